#include "reports/card_overview.h"

#include "card/race_card.h"
#include "reports/bet_mark.h"
#include "reports/ranked_row.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillon {
namespace {

constexpr auto left = Align::left;
constexpr auto right = Align::right;

// clang-format off
constexpr std::array columns{
    ViewColumn{"Race",       600,         left,  "The race, by its number or letter"},
    ViewColumn{"Post Time",  960,         left,  "When the race starts"},
    ViewColumn{"Gait",       600,         left,  "Trot or pace"},
    ViewColumn{"Dis",        540,         right, "The distance in miles"},
    ViewColumn{"CR",         480,         right, "Today's class rating: what the class of the race is worth"},
    ViewColumn{"Purse",      840,         right, "What the race pays in all, in dollars"},
    ViewColumn{"S1",         2400,        left,  "The first selection: the lowest rating"},
    ViewColumn{"S2",         2400,        left,  "The second selection"},
    ViewColumn{"S3",         2400,        left,  "The third selection"},
    ViewColumn{"S4",         2400,        left,  "The fourth selection"},
    ViewColumn{"Margin",     700,         right, "How far the rating of S1 is below that of S2, in points"},
    ViewColumn{"Bet",        1050,        left,  "The bet mark of the margin: $ to $$$$$ by whole points from 1, VDH below a point, DEAD HEAT for a tenth or less"},
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
    const ShownMargin shown = shownMargin(race);
    Cell& margin = cells[OverviewColumn::margin];
    Cell& mark = cells[OverviewColumn::betMark];
    margin.text = shown.margin;
    mark.text = shown.mark;
    margin.bold = mark.bold = shown.points >= clearMargin;
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
    return {.columns = columns,
            .fitted = true,
            .sortable = true,
            .rowOrderColumns = OverviewColumn::postTime + 1};
}

} // namespace quillon
