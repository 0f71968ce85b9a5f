#include "everything_shown.h"

#include "app/commands.h"
#include "console/show.h"
#include "screen/screen.h"

#include <sstream>
#include <vector>

namespace quillon {

std::string everythingShown() {
    std::vector<std::string> parts{"header",    "board",    "buttons",     "menu",
                                   "store",     "summary",  "profile",     "tracks",
                                   "picks",     "stars",    "racelist",    "driverlist",
                                   "tracklist", "filelist", "starsfields", "colours summary"};
    for (int view = 0; view < dataViews; ++view) {
        parts.push_back("dataview " + std::to_string(view));
        parts.push_back("colours dataview " + std::to_string(view));
    }
    for (int view = 0; view < raceViews; ++view) {
        parts.push_back("raceview " + std::to_string(view));
        parts.push_back("colours raceview " + std::to_string(view));
    }
    std::ostringstream out;
    Transcript transcript{out};
    for (const std::string& part : parts) show(part, commandTable(), transcript);
    return out.str();
}

} // namespace quillon
