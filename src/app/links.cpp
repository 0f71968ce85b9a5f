#include "app/links.h"

#include "core/failure.h"
#include "core/files.h"
#include "screen/ports.h"

namespace quillon {
namespace {

Text lastLineOf(TextView content) {
    LineReader lines{content};
    TextView last;
    while (const auto line = lines.next()) last = *line;
    return Text{trimmed(last)};
}

} // namespace

void Reset() {
    const Step step{"Reset"};
    const Text address = lastLineOf(readFile({Folder::working, "webpage.ini"}));
    if (address.empty()) fail("the last line of webpage.ini is empty");
    ports.browse(address);
}

// clang-format off
void USTA()    { ports.browse("https://racing.ustrotting.com/"); }
void RTN()     { ports.browse("https://www.rtn.tv/"); }
void Weather() { ports.browse("https://www.weather.gov/"); }
void TRC()     { ports.browse("https://www.trackmaster.com/tracks-breed-state-results.jsp?breed=h&sortby=tracks.trackname"); }
void QLR()     { ports.browse("https://www.tarnbeck.example/Revisions.html"); }
// clang-format on

} // namespace quillon
