#include "results/entry_marks.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "rating/line_selection.h"
#include "results/heat_slots.h"
#include "results/on_show.h"
#include "results/race_display.h"
#include "screen/race_views.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

constexpr TextView removedCaption = "X"; // of the button, which stands in the entry's Track from then on
constexpr TextView lastOfAll = "99.9";

constexpr std::array placeCells{OutcomeCell::s1, OutcomeCell::s2, OutcomeCell::s3, OutcomeCell::s4,
                                OutcomeCell::fifth};

int placeOf(int race, TextView number) {
    if (number.empty()) return 0;
    for (std::size_t at = 0; at < placeCells.size(); ++at)
        if (trimmed(card.raceOutcome(race, placeCells[at])) == number) return static_cast<int>(at) + 1;
    return 0;
}

// Program numbers, blanks apart.
bool hasRefund(int race, TextView number) {
    TextView rest = card.payoffRecord[{race, PayoffCell::refunds}];
    while (!(rest = trimmed(rest)).empty()) {
        const TextView first = rest.substr(0, rest.find(' '));
        if (first == number) return true;
        rest.remove_prefix(first.size());
    }
    return false;
}

void markTakenOut(EntryMarks& marks, int race, int row) {
    const RaceEntry& entry = card.entry[{race, row}];
    if (screen.mode == CardMode::recalled) {
        marks.scratched = trimmed(entry.rating) == lastOfAll && hasRefund(race, trimmed(entry.programNumber));
        return;
    }
    if (screen.lineTaken[{race, row}] != takenOut) return;
    marks.removed = raceViewOf(race).text(row, RaceColumn::track) == removedCaption;
    marks.scratched = !marks.removed;
}

void markLine(EntryMarks& marks, int race, int row) {
    const Integer taken = screen.lineTaken[{race, row}];
    marks.lineTaken =
        taken > 0 && !isKeptLine(dataViewOf(race), taken, card.entry[{race, row}].chosenLineNumber);
}

// The list of drivers and the table of them may cut a name differently.
TextView comparable(TextView name) {
    constexpr int sameInBoth = 15;
    return trimmed(leftOf(name, sameInBoth));
}

void markDriver(EntryMarks& marks, const RaceEntry& entry) {
    if (entry.driverNumber < 0 || entry.driverNumber >= card.driverTable.extents[0]) return;
    const TextView loaded = trimmed(card.driverTable[{entry.driverNumber}].name);
    marks.driverChanged = comparable(entry.chosenDriver) != comparable(loaded);
    if (marks.driverChanged) marks.driverBefore = loaded;
}

void compare(std::vector<int>& typed, TextView shown, TextView written, int column) {
    if (trimmed(shown) != trimmed(written)) typed.push_back(column);
}

// Of the entry's line, as whoever put it into the view wrote it.
void markTyped(EntryMarks& marks, int race, int row) {
    const Grid& view = raceViewOf(race);
    const Integer taken = screen.lineTaken[{race, row}];
    if (taken > 0) {
        const Grid& lines = dataViewOf(race);
        for (int column = RaceColumn::classText; column <= RaceColumn::favourite; ++column)
            compare(marks.typedColumns, view.text(row, column), lines.text(taken, column + dataColumnShift),
                    column);
        return;
    }
    for (const LoadedCell& cell : loadedCells(card.entry[{race, row}].chosenLineNumber))
        if (mayTypeCell(race, row, cell.column))
            compare(marks.typedColumns, view.text(row, cell.column), cell.text, cell.column);
    std::sort(marks.typedColumns.begin(), marks.typedColumns.end());
}

} // namespace

EntryMarks entryMarks(int race, int row) {
    EntryMarks marks;
    if (row > ratedEntries || horseIn(race, row).empty()) return marks;
    const RaceEntry& entry = card.entry[{race, row}];
    marks.place = placeOf(race, trimmed(entry.programNumber));
    markTakenOut(marks, race, row);
    // The horses of a heat come from other races, with their drivers and lines.
    if (screen.mode != CardMode::loaded || isHeat(race)) return marks;
    markDriver(marks, entry);
    if (marks.isOut()) return marks; // no line speaks for it
    markLine(marks, race, row);
    markTyped(marks, race, row);
    return marks;
}

bool isChanged(int race) {
    for (int row = Grid::firstRow; row <= ratedEntries; ++row)
        if (entryMarks(race, row).isChanged()) return true;
    return false;
}

} // namespace quillon
