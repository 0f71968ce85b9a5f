#include "day/why.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "core/journal.h"
#include "day/card_frame.h"
#include "day/card_load.h"
#include "day/snapshot.h"
#include "rating/line_selection.h"
#include "screen/screen.h"

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

// The state and the journal as they stand, put back at the end.
class PutBack {
public:
    PutBack() : state_{Snapshot::taken()}, journal_{journal} {}
    ~PutBack() {
        state_.putBack();
        journal = std::move(journal_);
    }
    PutBack(const PutBack&) = delete;
    PutBack& operator=(const PutBack&) = delete;

private:
    Snapshot state_;
    FaultJournal journal_;
};

// From an empty store to rated lines, as a load does it, but for what goes into files: a rating can hang on the
// lines before it, and on what the store held of them.
void rateOnceMore() {
    card.clear();
    attempt(FrameCard);
    attempt(ReadEntries);
    attempt(LoadLines);
}

bool isLoaded() { return screen.mode == CardMode::loaded; }

std::vector<WhyLine> storedLines(int race, int entry) {
    std::vector<WhyLine> lines;
    if (race < 1 || race >= raceExtent || entry < 0 || entry >= entryExtent) return lines;
    for (int line = 1; line < lineExtent; ++line) {
        const PastLine& stored = card.pastLine.read(race, entry, line);
        if (stored.lineNumber < 1) break;
        lines.emplace_back().rating = stored.rating;
        lines.back().road.lineNumber = stored.lineNumber;
    }
    return lines;
}

// A line that the user took in place of the program's.
void showTaken(std::vector<WhyLine>& lines, int taken) {
    const auto isTaken = [&](const WhyLine& line) { return taken > 0 && line.road.row == taken; };
    const auto found = std::find_if(lines.begin(), lines.end(), isTaken);
    if (found == lines.end() || found->note.verdict == Verdict::chosen) return;
    for (WhyLine& line : lines)
        if (line.note.verdict == Verdict::chosen)
            line.note = {Verdict::passedOver, line.note.reason + "; the program's choice, another was taken"};
    found->note = {Verdict::chosen, "taken by you in place of the program's choice"};
}

} // namespace

std::vector<LineRoad> roadsOfCard() {
    if (!isLoaded()) return {};
    const PutBack putBack;
    const RoadRecorder recorder;
    rateOnceMore();
    return recorder.roads();
}

std::vector<WhyLine> whyLines(int race, int entry) {
    if (!isLoaded()) return {};
    std::vector<WhyLine> lines = storedLines(race, entry);
    if (lines.empty()) return lines;
    std::vector<Integer> numbers;
    numbers.reserve(lines.size());
    for (const WhyLine& line : lines) numbers.push_back(line.road.lineNumber);
    const bool isRated = race <= ratedRaces && entry >= 1 && entry <= ratedEntries;
    const int taken = isRated ? screen.lineTaken(race, entry) : Integer{0};

    const PutBack putBack;
    const RoadRecorder recorder{numbers};
    const SearchNotes notes{race, entry};
    rateOnceMore();
    attempt(SelectLines);
    for (std::size_t at = 0; at < lines.size(); ++at) {
        for (const LineRoad& road : recorder.roads())
            if (road.lineNumber == lines[at].road.lineNumber) lines[at].road = road;
        lines[at].note =
            isRated ? notes.of(static_cast<int>(at) + 1)
                    : LineNote{Verdict::notLookedAt, "only entries 1 to 12 of races 1 to 23 are rated"};
    }
    showTaken(lines, taken);
    return lines;
}

} // namespace quillon
