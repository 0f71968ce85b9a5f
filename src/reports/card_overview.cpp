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

constexpr std::array<TextView, overviewColumn::count> heads{
    "Race", "Post Time", "Gait", "Dis", "CR", "Purse", "S1", "S2", "S3", "S4", "Margin", "Bet"};

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
    put(overviewColumn::race, info.label);
    put(overviewColumn::postTime, info.postTime);
    put(overviewColumn::gait, info.gait);
    put(overviewColumn::distance, info.distance);
    put(overviewColumn::classRating, info.todaysCr);
    put(overviewColumn::purse, info.purse);
}

void fillSelections(std::span<Cell> cells, int race) {
    constexpr int selections = 4;
    for (int place = 1; place <= selections; ++place)
        cells[static_cast<std::size_t>(overviewColumn::firstSelection + place - 1)].text =
            numberAndName(rankedRow(race, place));
    if (trimmed(rankedRow(race, 1).pr).empty()) return;

    Cell& margin = cells[overviewColumn::margin];
    Cell& mark = cells[overviewColumn::betMark];
    const Text text = marginOf(race);
    const double points = lenientNumber(text);
    margin.text = formatted("#0.0", text);
    mark.text = withoutBlanks(betMark(points));
    margin.bold = mark.bold = points >= clearMargin;
}

} // namespace

Grid cardOverview() {
    const int races = std::clamp<int>(card.raceCount, 0, raceExtent - 1);
    Grid overview{races + 1, overviewColumn::count};
    for (std::size_t column = 0; column < heads.size(); ++column)
        overview(0, static_cast<int>(column)).text = heads[column];
    for (int race = 1; race <= races; ++race) {
        const std::span<Cell> cells = overview.cellsOf(race);
        fillConditions(cells, card.raceInfo[{race}]);
        fillSelections(cells, race);
    }
    return overview;
}

} // namespace quillon
