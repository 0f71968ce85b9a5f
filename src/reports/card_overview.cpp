#include "reports/card_overview.h"

#include "card/race_card.h"
#include "core/formats.h"
#include "reports/bet_mark.h"
#include "reports/ranked_row.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillon {
namespace {

constexpr auto right = Align::right;

// clang-format off
constexpr std::array columns{
    ViewColumn{"Race",       600},
    ViewColumn{"Post Time",  960},
    ViewColumn{"Gait",       600},
    ViewColumn{"Dis",        540, right},
    ViewColumn{"CR",         480, right},
    ViewColumn{"Purse",      840, right},
    ViewColumn{"S1",        2400},
    ViewColumn{"S2",        2400},
    ViewColumn{"S3",        2400},
    ViewColumn{"S4",        2400},
    ViewColumn{"Margin",     700, right},
    ViewColumn{"Bet",       1050},
};
// clang-format on
static_assert(columns.size() == OverviewColumn::count);

Text withoutBlanks(TextView text) { return Text{trimmed(text)}; }

Text numberAndName(const RankedRow& row) {
    const Text number = withoutBlanks(row.pn);
    const Text name = withoutBlanks(row.name);
    return number.empty() || name.empty() ? number + name : number + "  " + name;
}

void fillConditions(std::span<Cell> cells, const RaceInfo& info) {
    const auto put = [&](int column, TextView text) {
        cells[static_cast<std::size_t>(column)].text = withoutBlanks(text);
    };
    put(OverviewColumn::race, info.label);
    put(OverviewColumn::postTime, info.postTime);
    put(OverviewColumn::gait, info.gait);
    put(OverviewColumn::distance, info.distance);
    put(OverviewColumn::classRating, info.todaysCr);
    put(OverviewColumn::purse, info.purse);
}

void fillSelections(std::span<Cell> cells, int race) {
    constexpr int selections = 4;
    for (int place = 1; place <= selections; ++place)
        cells[static_cast<std::size_t>(OverviewColumn::s1 + place - 1)].text =
            numberAndName(rankedRow(race, place));
    if (trimmed(rankedRow(race, 1).pr).empty()) return;

    Cell& margin = cells[OverviewColumn::margin];
    Cell& mark = cells[OverviewColumn::betMark];
    const Text text = marginOf(race);
    const double points = lenientNumber(text);
    margin.text = formatted("#0.0", text);
    mark.text = withoutBlanks(betMark(points));
    margin.bold = mark.bold = points >= clearMargin;
}

} // namespace

Grid cardOverview() {
    const int races = std::clamp<int>(card.raceCount, 0, raceExtent - 1);
    Grid overview{races + 1, OverviewColumn::count};
    for (std::size_t column = 0; column < columns.size(); ++column)
        overview(Grid::headRow, static_cast<int>(column)).text = columns[column].head;
    for (int race = 1; race <= races; ++race) {
        const std::span<Cell> cells = overview.cellsOf(race);
        fillConditions(cells, card.raceInfo[{race}]);
        fillSelections(cells, race);
    }
    return overview;
}

// Labels and times of day stand in the order of the races.
ViewLayout overviewLayout() {
    return {.columns = columns, .sortable = true, .rowOrderColumns = OverviewColumn::postTime + 1};
}

} // namespace quillon
