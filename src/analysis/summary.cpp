#include "analysis/summary.h"

#include "analysis/analysis_view.h"
#include "analysis/archive_records.h"
#include "analysis/todays_results.h"
#include "card/race_card.h"
#include "core/dates.h"
#include "core/failure.h"
#include "core/formats.h"
#include "results/board.h"
#include "screen/screen.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

constexpr int filledRaces = 23;         ///< races that the rows are filled for
constexpr int judgedRaces = 24;         ///< races that the bets are decided for
constexpr int lastRow = raceExtent - 1; ///< no card has a race behind it
constexpr Integer winDeadHeat = 2;      ///< finishers that share the win

/// Cells of a race's outcome: its selections, then its finishers.
enum OutcomeCell { s1 = 1, s2, s3, s4, r1, r2, r3, r4 };

/// Cells of a race's payoffs.
enum PayoffCell {
    winPay = 1,
    placePay1,
    showPay1,
    placePay2,
    showPay2,
    showPay3,
    exactaPay,
    trifectaPay,
    superfectaPay,
};

// clang-format off
constexpr std::array<TextView, summaryColumns> heads{
    "",                                                     //  0 label of the race
    "S1", "S2", "S3", "S4", "",                             //  1
    "R1", "R2", "R3", "R4", "",                             //  6
    "Win", "Place", "Show", "",                             // 11
    "E1/2", "E1-2", "E1/2-3", "E1-2-3", "E1-2-3-4", "", "", // 15
    "T1/2-3", "T1/2-3-4", "T1-2-3", "",                     // 22
    "S1/2-3-4", "S2-1/3-4", "S1-2-3-4",                     // 26
    "Pick 3",                                               // 29 a head without values
};

/// A payoff and the column that it is shown in and added to; column 0 is none.
struct PaidColumn { int column = 0; PayoffCell payoff{}; };

/// What a finisher earns where he is the selection. Program numbers compare as numbers here: "1A" runs for 1.
struct PlacePass {
    OutcomeCell finisher;
    OutcomeCell selection;
    Integer RaceCard::*wins = nullptr;     ///< counts the hits and colours their cells
    bool endsAtDeadHeat = false;           ///< at the first race with a dead heat for the win not told yet
    std::array<PaidColumn, 3> paid{};
};

constexpr PlacePass winOfS1{
    r1, s1, &RaceCard::s1Wins, false, {{{11, winPay}, {12, placePay1}, {13, showPay1}}},
};

constexpr std::array placePasses{
    PlacePass{r1, s2, &RaceCard::s2Wins, true},
    PlacePass{r1, s3, &RaceCard::s3Wins},
    PlacePass{r1, s4, &RaceCard::s4Wins},
    PlacePass{r2, s1, nullptr, false, {{{12, placePay2}, {13, showPay2}}}},
    PlacePass{r3, s1, nullptr, false, {{{13, showPay3}}}},
};

/// For each finisher in turn the selections that win the bet by finishing there; "" where all do.
using Ticket = std::array<TextView, 4>;

/// A bet on the order of finish. Program numbers compare as texts here: " 4" is not "4".
struct Bet {
    std::array<int, 3> shown;  ///< columns that the payoff is written to; 0 is none
    std::array<int, 2> added;  ///< columns that it is added to
    PayoffCell payoff;
    Ticket ticket;
    Ticket otherTicket{};      ///< wins as well, once for both
};

constexpr std::array bets{
    //  shown         added     payoff         1st     2nd     3rd     4th
    Bet{{15},         {15},     exactaPay,     {"1",    "2"}},
    Bet{{16},         {16},     exactaPay,     {"12",   "12"}},
    Bet{{17},         {17},     exactaPay,     {"1",    "23"}},
    Bet{{18},         {18},     exactaPay,     {"123",  "123"}},
    Bet{{19},         {19},     exactaPay,     {"1234", "1234"}},
    Bet{{23},         {23},     trifectaPay,   {"1",    "234",  "234"}},
    Bet{{24},         {24},     trifectaPay,   {"123",  "123",  "123"}},
    Bet{{22},         {22},     trifectaPay,   {"1",    "2",    "3"},  {"1", "3", "2"}},
    // A superfecta shows under every bet that holds it.
    Bet{{26, 27, 28}, {26, 27}, superfectaPay, {"1",    "234",  "234",  "234"}},
    Bet{{27, 28},     {27},     superfectaPay, {"2",    "134",  "134",  "134"}},
    Bet{{28},         {28},     superfectaPay, {"1234", "1234", "1234", "1234"}},
};

/// Columns of sums and their form in the totals row.
struct SumColumns { int first; int last; NumberFormat format; };
constexpr std::array sumColumns{
    SumColumns{11, 13, "####.#0"},
    SumColumns{15, 19, "#####.#0"},
    SumColumns{22, 24, "######.#0"},
    SumColumns{26, 28, "######.#0"},
};

constexpr std::array winCounters{
    &RaceCard::s1Wins, &RaceCard::s2Wins, &RaceCard::s3Wins, &RaceCard::s4Wins,
};
// clang-format on

/// What each column's bet paid on the card.
using Sums = std::array<double, summaryColumns>;

int lastRace() { return std::min<int>(card.raceCount, lastRow); }

// Another card is chosen from the main screen, not over its summary.
void openView() {
    screen.item(MenuItem::NewRC).enabled = false;
    screen.item(MenuItem::RecallRaceCard).enabled = false;
    screen.item(MenuItem::PrintSummary).visible = true;
    showAnalysisView(&Screen::summaryVisible);
}

// Track and date by place: the date is what stands in front of the last four characters, so that a ".pmd2"
// name shows it one place off.
void showCaption() {
    constexpr int extensionLength = 4;
    constexpr int dateLength = 8;
    const TextView name = card.cardFileName;
    const TextView stem = leftOf(name, static_cast<int>(name.size()) - extensionLength);
    Text caption{leftOf(name, placeOf("_", name) - 1)};
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
    screen.summary.layOut(rows + 1, summaryColumns);
    for (int column = 0; column < summaryColumns; ++column) screen.summary(0, column).text = heads.at(column);
}

// The labels go on behind a card that starts above race 1, whose races stand in the rows from 1 all the same.
void labelRows() {
    for (int row = 1; row <= card.raceOffset + card.raceCount; ++row)
        screen.summary(row, 0).text = "Race " + std::to_string(row);
}

void fillRow(int race) {
    for (int place = 0; place < 4; ++place) {
        screen.summary(race, firstSelectionColumn + place).text = card.raceOutcome(race, s1 + place);
        screen.summary(race, firstFinisherColumn + place).text = card.raceOutcome(race, r1 + place);
    }
}

void fillRows() {
    for (int race = 1; race <= filledRaces; ++race)
        if (!card.raceOutcome(race, s1).empty()) fillRow(race);
    screen.summary(percentagesRow, 0).text.clear();
}

void trimPayoffs() {
    for (int race = 1; race < raceExtent; ++race)
        for (int cell = winPay; cell <= superfectaPay; ++cell) {
            Text& payoff = card.payoffRecord(race, cell);
            payoff = Text{trimmed(payoff)};
        }
}

bool sameNumber(int race, int finisher, int selection) {
    return lenientNumber(card.raceOutcome(race, finisher)) ==
           lenientNumber(card.raceOutcome(race, selection));
}

void countWin(int race, const PlacePass& pass) {
    if (pass.wins == nullptr || lenientNumber(card.raceOutcome(race, pass.selection)) <= 0) return;
    screen.summary(race, pass.selection).background = recentYellow;
    countUp(card.*pass.wins);
}

void settle(int race, const PlacePass& pass, Sums& sums) {
    countWin(race, pass);
    for (const PaidColumn& paid : pass.paid) {
        if (paid.column == 0) continue;
        const Text& payoff = card.payoffRecord(race, paid.payoff);
        screen.summary(race, paid.column).text = payoff;
        sums.at(paid.column) += lenientNumber(payoff);
    }
}

// Whether S1 won, in a dead heat also as the second horse. The dead heat is told by that, whoever shared it.
bool wonByS1(int race) {
    Integer& heat = card.winHeat(race);
    const bool shared = heat == winDeadHeat;
    if (heat > winDeadHeat) return false;
    if (shared) heat = 1;
    return sameNumber(race, r1, s1) || (shared && sameNumber(race, r2, s1));
}

void settleWinsOfS1(Sums& sums) {
    for (int race = 1; race <= lastRace(); ++race)
        if (wonByS1(race)) settle(race, winOfS1, sums);
}

void settlePass(const PlacePass& pass, Sums& sums) {
    for (int race = 1; race <= judgedRaces; ++race) {
        if (pass.endsAtDeadHeat && card.winHeat(race) >= winDeadHeat) return;
        if (sameNumber(race, pass.finisher, pass.selection)) settle(race, pass, sums);
    }
}

bool isAmong(int race, int finisher, TextView selections) {
    const Text& number = card.raceOutcome(race, finisher);
    return std::any_of(selections.begin(), selections.end(),
                       [&](char selection) { return card.raceOutcome(race, selection - '0') == number; });
}

bool wins(int race, const Ticket& ticket) {
    if (ticket.front().empty()) return false;
    for (int place = 0; place < 4; ++place) {
        const TextView selections = ticket.at(place);
        if (!selections.empty() && !isAmong(race, r1 + place, selections)) return false;
    }
    return true;
}

// A race without data wins every bet, and adds nothing by its empty payoffs.
void settleBet(const Bet& bet, Sums& sums) {
    for (int race = 1; race <= judgedRaces; ++race) {
        if (!wins(race, bet.ticket) && !wins(race, bet.otherTicket)) continue;
        const Text& payoff = card.payoffRecord(race, bet.payoff);
        for (const int column : bet.shown)
            if (column > 0) screen.summary(race, column).text = payoff;
        for (const int column : bet.added)
            if (column > 0) sums.at(column) += lenientNumber(payoff);
    }
}

void settleCard(Sums& sums) {
    for (Integer RaceCard::*const counter : winCounters) card.*counter = 0;
    settleWinsOfS1(sums);
    for (const PlacePass& pass : placePasses) settlePass(pass, sums);
    for (const Bet& bet : bets) settleBet(bet, sums);
}

void showSums(const Sums& sums) {
    for (const SumColumns& columns : sumColumns)
        for (int column = columns.first; column <= columns.last; ++column)
            attempt(
                [&] { screen.summary(totalsRow, column).text = formatted(columns.format, sums.at(column)); });
}

void showWins() {
    int column = firstSelectionColumn;
    for (Integer RaceCard::*const counter : winCounters) {
        screen.summary(totalsRow, column).text = std::to_string(card.*counter);
        ++column;
    }
}

// A card of no races has no percentages: the division ends the step.
void showPercentages() {
    int column = firstSelectionColumn;
    for (Integer RaceCard::*const counter : winCounters) {
        const double percentage = quotient(card.*counter * 100, card.raceCount);
        screen.summary(percentagesRow, column).text = formatted("###", "@@@%", percentage);
        ++column;
    }
}

void countSuperfectas() {
    card.superfectaRaces = 0;
    for (int race = 1; race <= lastRace(); ++race)
        if (lenientNumber(card.payoffRecord(race, superfectaPay)) > 0) countUp(card.superfectaRaces);
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
    Sums sums{};
    settleCard(sums);
    showWins();
    showSums(sums);
    attempt(showPercentages);
    attempt(TodaysResults);
    countSuperfectas();
}

} // namespace quillon
