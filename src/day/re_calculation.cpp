#include "day/re_calculation.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "day/new_ranking.h"
#include "results/board.h"
#include "results/race_display.h"
#include "screen/ports.h"
#include "screen/race_views.h"

namespace quillon {
namespace {

constexpr int numberedRows = 15; ///< rows of the past-performance view that carry a line's number

// A race view has the columns of a data view from the purse to the favourite's mark, further left.

// The row in the race's data view of the line in this row of the past-performance view; 0 for none.
double lineInRow(int row) {
    return lenientNumber(screen.dataView[pastPerformanceView].text(row, DataColumn::lineNumber));
}

// Ranks the race on show again, and everything that follows from it.
void rankAgain(int race, const Ranking& ranking, Posts posts) {
    attempt(RE_Calculate);
    rankOnBoard(race, ranking);
    renewSelections(race, ranking.stages, posts);
    CloseRanking();
}

// The rating of the line in this row of the data view becomes its entry's. The past-performance view may
// still hold another race's lines, so that the row may be empty; entry 0 would be the race view's head.
void takeLine(double row, const Ranking& ranking, Posts posts) {
    const int race = raceOnShow();
    if (race == 0) return;
    const Grid& lines = dataViewOf(race);
    const Integer line = toInteger(row);
    const Integer entry = toInteger(lenientNumber(lines.text(line, DataColumn::post)));
    if (entry < 1) return;
    cursor.race = static_cast<Integer>(race);
    cursor.row = line;
    cursor.entry = entry;
    card.entry(race, cursor.entry).rating = lines.text(cursor.row, DataColumn::rating);
    attempt([&] { screen.lineTaken(race, entry) = line; });
    attempt(CommandThree);
    rankAgain(race, ranking, posts);
}

} // namespace

LineNumbers linesOnShow() {
    int count = 0;
    for (int row = 1; row <= numberedRows; ++row)
        if (lineInRow(row) > 0) ++count;
    const double first = lineInRow(1);
    return {first, first + count - 1};
}

void CommandThree() {
    const Step step{"CommandThree"};
    Grid& view = raceViewOf(cursor.race);
    const Grid& lines = dataViewOf(cursor.race);
    RaceEntry& entry = card.entry(cursor.race, cursor.entry);
    const int row = cursor.entry;
    const int line = cursor.row;
    entry.morningOdds = Text{trimmed(entry.morningOdds)};
    if (!entry.driverName.empty()) entry.chosenDriver = entry.driverName; // a recalled card has none
    view(row, RaceColumn::horseName).text = entry.horseName;
    view(row, RaceColumn::morningOdds).text = entry.morningOdds;
    view(row, RaceColumn::programNumber).text = entry.programNumber;
    view(row, RaceColumn::track).text = lines.text(line, DataColumn::track);
    for (int column = RaceColumn::purse; column <= RaceColumn::favourite; ++column)
        view(row, column).text = lines.text(line, column + dataColumnShift);
    view(row, RaceColumn::driver).text = entry.chosenDriver;
    view(row, RaceColumn::udr).text = entry.driverUdr;
    view(row, RaceColumn::rating).text = lines.text(line, DataColumn::rating);
    view(row, RaceColumn::ratingTaken).text = entry.rating;
}

void RE_Calculate() {
    const Step step{"RE_Calculate"};
    rankRace(raceOnShow(), strictStages);
}

void Command3(int button) {
    const Step step{"Command3"};
    if (button == 0) ClosePastPerformances();
    if (button < 1 || button > lineButtons) return;
    if (const double row = lineInRow(button); row > 0) takeLine(row, strictStages, Posts::kept);
}

void Command7() {
    const Step step{"Command7"};
    const auto answer = ports.input("Enter Line Number of the selected race: ", "Quillon Race Editor");
    const double line = lenientNumber(answer.value_or(""));
    if (line <= 0) return;
    const LineNumbers numbers = linesOnShow();
    if (line < numbers.first || line > numbers.last) {
        ports.message("Line Number is incorrect.  Enter a Line Number between " + numberText(numbers.first) +
                          " and " + numberText(numbers.last),
                      "");
        return;
    }
    takeLine(line, fourStages, Posts::renewed);
}

} // namespace quillon
