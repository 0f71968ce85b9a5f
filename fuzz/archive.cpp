// The archive of recorded cards, parts "HRA" and "Stars5", through all profiles and what they write. A part
// "long" is the length of a piece without a line end between two copies of the cards.
#include "analysis/archive_records.h"
#include "analysis/archive_scan.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "support/fuzz_target.h"
#include "support/parts.h"

#include <algorithm>
#include <vector>

using namespace quillon;

namespace {

// The quick reading of a line and the plain one are the same.
void compareReadings(TextView line) {
    const ArchivedCard read = archivedCardOf(line);
    const auto plain = [&](Places places) { return lenientNumber(cellIn(line, places)); };
    fuzz::ensure(read.races == plain(archivePlaces::races), "races are read as any number");
    for (std::size_t at = 0; at < read.wins.size(); ++at)
        fuzz::ensure(read.wins[at] == plain(archivePlaces::wins[at]), "wins are read as any number");
    for (std::size_t at = 0; at < read.sums.size(); ++at)
        fuzz::ensure(read.sums[at] == plain(archivePlaces::sums[at]), "sums are read as any number");
    fuzz::ensure(read.superfectaRaces == lenientNumber(rightOf(line, 2)), "superfectas likewise");
}

// Both ways through the file come by the same lines.
void compareWalks(TextView content) {
    fuzz::put("HRA.ini", content);
    std::vector<TextView> lines;
    LineReader reader{content};
    while (const auto line = reader.next()) lines.push_back(*line);
    LinesForwards forwards{archivePlace()};
    for (const TextView line : lines) {
        const auto read = forwards.next();
        fuzz::ensure(read && *read == line, "the lines are read forwards");
        compareReadings(line);
    }
    fuzz::ensure(!forwards.next(), "the lines end forwards");
    LinesBackwards backwards{archivePlace()};
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
        const auto read = backwards.next();
        fuzz::ensure(read && *read == *line, "the lines are read backwards");
    }
    fuzz::ensure(!backwards.next(), "the lines end backwards");
}

// The file is read in blocks of a quarter of a megabyte, which an input is too short for.
Text withLongPiece(TextView cards, double length) {
    constexpr double longest = 1 << 20;
    Text content{cards};
    content.append(static_cast<std::size_t>(std::min(length, longest)), 'x');
    return content += cards;
}

void profileTracks() {
    fuzz::press("Track_Profile");
    fuzz::lookAt(screen.tracks);
    for (const char* name : {"ALL", "Print2", "HALF", "FIVE", "Seven", "MILE", "QUARTER"}) {
        fuzz::press(name);
        fuzz::lookAt(screen.profile);
    }
    fuzz::press("Select");
    fuzz::press("Select"); // lists the tracks that the first scan found
    constexpr std::size_t enough = 3;
    auto tracks = screen.trackList.lines;
    tracks.resize(std::min(tracks.size(), enough));
    for (const Text& track : tracks) fuzz::press("SelectTrack", {.text = track});
    fuzz::press("SelectTrack", {.text = "EXIT"});
}

void profileStars() {
    struct Filter {
        const char* margin;
        const char* odds;
    };
    for (const auto& [margin, odds] : {Filter{"$", "2/1"}, {"ALL Margins", "ALL Odds"}, {"$$$$$", "9/5"}}) {
        fuzz::press("Star");
        fuzz::press("MarginChoice", {.text = margin});
        fuzz::press("OddsChoice", {.text = odds});
        fuzz::press("MaxOddsChoice", {.text = "ALL Odds"});
        fuzz::lookAt(screen.stars);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::beginInput();
    TextView cards;
    double longest = 0;
    for (const fuzz::Part& part : fuzz::partsOf(fuzz::textOf(data, size))) {
        if (part.name == "HRA") cards = part.content;
        if (part.name == "Stars5") fuzz::put("Stars5.ini", part.content);
        if (part.name == "long") longest = lenientNumber(part.content);
    }
    if (longest > 0) compareWalks(withLongPiece(cards, longest));
    compareWalks(cards);
    profileTracks();
    fuzz::press("MainScreen");
    profileStars();
    attempt([] { isArchived("DTN_20260314.pmd"); });
    return 0;
}
