#include "analysis/summary.h"

#include "analysis/analysis_view.h"
#include "analysis/archive_records.h"
#include "analysis/hits.h"
#include "analysis/todays_results.h"
#include "card/card_files.h"
#include "card/race_card.h"
#include "core/dates.h"
#include "core/failure.h"
#include "core/formats.h"
#include "results/board.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

constexpr int filledRaces = 23;         ///< races that the rows are filled for
constexpr int lastRow = raceExtent - 1; ///< no card has a race after it

// clang-format off
/// Columns of sums and their form in the totals row.
struct SumColumns { SummaryColumn::Number first; SummaryColumn::Number last; NumberFormat format; };
constexpr std::array sumColumns{
    SumColumns{SummaryColumn::win,                SummaryColumn::show,              "####.#0"},
    SumColumns{SummaryColumn::exacta1With2,       SummaryColumn::exactaBox1234,     "#####.#0"},
    SumColumns{SummaryColumn::trifecta1With23,    SummaryColumn::trifectaBox123,    "######.#0"},
    SumColumns{SummaryColumn::superfecta1With234, SummaryColumn::superfectaBox1234, "######.#0"},
};

/// A selection, its column, and where the card counts its wins.
struct SelectionWins { OutcomeCell::Number selection; SummaryColumn::Number column; Integer RaceCard::*wins; };
constexpr std::array selectionWins{
    SelectionWins{OutcomeCell::s1, SummaryColumn::s1, &RaceCard::s1Wins},
    SelectionWins{OutcomeCell::s2, SummaryColumn::s2, &RaceCard::s2Wins},
    SelectionWins{OutcomeCell::s3, SummaryColumn::s3, &RaceCard::s3Wins},
    SelectionWins{OutcomeCell::s4, SummaryColumn::s4, &RaceCard::s4Wins},
};

/// Program numbers that a race's row shows.
struct ShownNumber { SummaryColumn::Number column; OutcomeCell::Number cell; };
constexpr std::array shownNumbers{
    ShownNumber{SummaryColumn::s1, OutcomeCell::s1}, ShownNumber{SummaryColumn::s2, OutcomeCell::s2},
    ShownNumber{SummaryColumn::s3, OutcomeCell::s3}, ShownNumber{SummaryColumn::s4, OutcomeCell::s4},
    ShownNumber{SummaryColumn::r1, OutcomeCell::r1}, ShownNumber{SummaryColumn::r2, OutcomeCell::r2},
    ShownNumber{SummaryColumn::r3, OutcomeCell::r3}, ShownNumber{SummaryColumn::r4, OutcomeCell::r4},
};
// clang-format on

// Another card is chosen from the main screen, not over its summary.
void openView() {
    screen.item(CommandId::NewRC).enabled = false;
    screen.item(CommandId::RecallRaceCard).enabled = false;
    screen.item(CommandId::PrintSummary).visible = true;
    showAnalysisView(&Screen::summaryVisible);
}

// Track and date by place: the date is what stands before the last four characters, so that a ".pmd2"
// name shows it one place off.
void showCaption() {
    constexpr int extensionLength = 4;
    constexpr int dateLength = 8;
    const TextView name = card.cardFileName;
    const TextView stem = leftOf(name, static_cast<int>(name.size()) - extensionLength);
    Text caption{cardTrackOf(name)};
    caption += blank;
    screen.caption = caption + dashedDate(rightOf(stem, dateLength));
}

void offerRecord() {
    screen.record.enabled = true;
    attempt([] { screen.record.enabled = !isArchived(card.cardFileName); });
}

void holdRaceCursor() {
    if (cursor.race < 1) cursor.race = 1;
    if (cursor.race > card.raceOffset + card.raceCount) cursor.race = card.raceCount;
}

// An empty view with a row for each race that is judged or labelled.
void clearView() {
    const int labelled = card.raceOffset + card.raceCount;
    const int rows = std::clamp(std::max<int>(labelled, card.raceCount), judgedRaces, lastRow);
    layOut(screen.summary, rows, summaryColumns());
}

// The labels go on after a card that starts above race 1, whose races stand in the rows from 1 all the same.
void labelRows() {
    for (int row = 1; row <= card.raceOffset + card.raceCount; ++row)
        screen.summary(row, SummaryColumn::label).text = "Race " + std::to_string(row);
}

void fillRows() {
    for (int race = 1; race <= filledRaces; ++race) {
        if (card.raceOutcome(race, OutcomeCell::s1).empty()) continue;
        for (const ShownNumber& number : shownNumbers)
            screen.summary(race, number.column).text = card.raceOutcome(race, number.cell);
    }
    screen.summary(SummaryRow::percentages, SummaryColumn::label).text.clear();
}

void trimPayoffs() {
    for (int race = 1; race < raceExtent; ++race)
        for (int cell = PayoffCell::win; cell <= PayoffCell::superfecta; ++cell) {
            Text& payoff = card.payoffRecord(race, cell);
            payoff = Text{trimmed(payoff)};
        }
}

CardResults cardResults() {
    CardResults results{.lastRace = card.raceCount};
    for (int race = 1; race < raceExtent; ++race) {
        RaceResults& result = results.races.at(race);
        for (int cell = 0; cell < OutcomeCell::count; ++cell)
            result.outcome.at(cell) = card.raceOutcome[{race, cell}];
        for (int cell = 0; cell < PayoffCell::count; ++cell)
            result.payoff.at(cell) = card.payoffRecord[{race, cell}];
        result.winHeat = card.winHeat[{race}];
    }
    return results;
}

void keepCounts(const CardHits& hits) {
    for (int race = 1; race < raceExtent; ++race) card.winHeat[{race}] = hits.winHeat.at(race);
    for (const SelectionWins& row : selectionWins) card.*row.wins = hits.wins[row.selection];
    card.superfectaRaces = hits.superfectaRaces;
}

void showRace(int race, const RaceHits& hits) {
    for (const SelectionWins& row : selectionWins)
        if (hits.won[row.selection]) screen.summary(race, row.column).background = recentYellow;
    for (int column = 0; column < SummaryColumn::count; ++column)
        if (const TextView paid = hits.paid.at(column); !paid.empty())
            screen.summary(race, column).text = paid;
}

void showTotals(const CardHits& hits) {
    for (const SelectionWins& row : selectionWins)
        screen.summary(SummaryRow::totals, row.column).text = std::to_string(hits.wins[row.selection]);
    for (const SumColumns& columns : sumColumns)
        for (int column = columns.first; column <= columns.last; ++column)
            attempt([&] {
                screen.summary(SummaryRow::totals, column).text =
                    formatted(columns.format, hits.sums.at(column));
            });
}

// A card of no races has no percentages: the division ends the step.
void showPercentages(const CardHits& hits) {
    for (const SelectionWins& row : selectionWins) {
        const double percentage = quotient(hits.wins[row.selection] * 100, card.raceCount);
        screen.summary(SummaryRow::percentages, row.column).text = formatted("###", "@@@%", percentage);
    }
}

} // namespace

void SelectionResults() {
    const Step step{"SelectionResults"};
    openView();
    attempt(showCaption);
    offerRecord();
    holdRaceCursor();
    attempt(Get_Textbox_Data);
    clearView();
    attempt(labelRows);
    fillRows();
    trimPayoffs();
    const CardHits hits = hitsOf(cardResults());
    keepCounts(hits);
    for (int race = 1; race < screen.summary.rows(); ++race) showRace(race, hits.races.at(race));
    showTotals(hits);
    attempt([&] { showPercentages(hits); });
    attempt(TodaysResults);
}

} // namespace quillon
