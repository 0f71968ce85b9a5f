#include "results/on_show.h"

#include "card/columns.h"
#include "card/line_fields.h"
#include "card/race_card.h"
#include "results/board.h"
#include "screen/race_views.h"

#include <algorithm>

namespace quillon {
namespace {

bool hasView(int race) { return race >= 1 && race <= ratedRaces; }

bool isShown(int race) { return hasView(race) && screen.raceViewVisible.at(static_cast<std::size_t>(race)); }

bool isBelowHead(const Grid& view, int row) { return row >= Grid::firstRow && row < view.rows(); }

Text plainText(const Grid& view, int row, int column) { return Text{trimmed(view.text(row, column))}; }

// Their cells show the table's text as it stands, and no line has such a time.
bool isTimeOfLeader(int column) {
    return column >= RaceColumn::leaderQuarter && column <= RaceColumn::leaderFinish;
}

} // namespace

int raceViewOnShow() {
    if (isShown(raceOnShow())) return raceOnShow();
    for (int race = 1; race <= ratedRaces; ++race)
        if (isShown(race)) return race;
    return 1;
}

int raceLinesOnShow() { return hasView(raceOnShow()) ? raceOnShow() : 0; }

int horsesIn(int race) {
    int horses = 0;
    if (race < 1 || race >= raceExtent) return horses;
    for (int index = 1; index < entryExtent; ++index)
        if (!trimmed(card.entry[{race, index}].horseName).empty()) ++horses;
    return horses;
}

Text horseIn(int race, int row) {
    if (!hasView(race) || !isBelowHead(raceViewOf(race), row)) return {};
    return plainText(raceViewOf(race), row, RaceColumn::horseName);
}

bool mayTypeCell(int race, int row, int column) {
    const bool isKept = column >= RaceColumn::classText && column <= RaceColumn::favourite;
    return isKept && !horseIn(race, row).empty() && !isFirstStart(race, row);
}

bool isFirstStart(int race, int row) {
    if (horseIn(race, row).empty()) return false;
    const Grid& view = raceViewOf(race);
    return std::any_of(lineFields.begin(), lineFields.end(), [&](const LineField& field) {
        return isTimeOfLeader(field.raceColumn) && trimmed(view.text(row, field.raceColumn)) == field.name;
    });
}

std::optional<DriverChange> driverChange() {
    const int race = raceOnShow();
    const int row = screen.driverRow;
    if (!hasView(race) || !isBelowHead(raceViewOf(race), row)) return std::nullopt;
    return DriverChange{race, horseIn(race, row), plainText(raceViewOf(race), row, RaceColumn::driver)};
}

Text lineNumberIn(int row) {
    const Grid& lines = screen.dataView[pastPerformanceView];
    return isBelowHead(lines, row) ? plainText(lines, row, DataColumn::lineNumber) : Text{};
}

LineUse useOf(int row, const LineInUse& used) {
    if (row == used.row) return used.byUser ? LineUse::taken : LineUse::inUse;
    return row == used.programsRow ? LineUse::passedOver : LineUse::none;
}

bool hasShadedLines(const Grid& lines) {
    for (int row = Grid::firstRow; row < lines.rows(); ++row)
        if (lines.read(row, DataColumn::date).background) return true;
    return false;
}

} // namespace quillon
