#include "analysis/pick_results.h"

#include "analysis/analysis_view.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/formats.h"
#include "screen/screen.h"
#include "screen/view_columns.h"

#include <array>

namespace quillon {
namespace {

constexpr int viewRows = 26;
constexpr int picks = 4;
constexpr int pickedRaces = 20; ///< races whose picks are shown
constexpr int winners = 4;      ///< a leg's winner, and those who shared the win with him
constexpr int shownWinners = 3;

/// A multi-race wager: its column, and the number of its legs.
struct Wager {
    PickColumn::Number column;
    int legs;
};
constexpr std::array wagers{
    Wager{PickColumn::dailyDouble, 2}, Wager{PickColumn::pick3, 3}, Wager{PickColumn::pick4, 4},
    Wager{PickColumn::pick5, 5},       Wager{PickColumn::pick6, 6}, Wager{PickColumn::pick10, 10},
};

constexpr int columnOfPick(int pick) { return PickColumn::s1 + pick - 1; }
constexpr int columnOfWinner(int winner) { return PickColumn::firstWinner + winner - 1; }

void layOutView() {
    layOut(screen.picks, viewRows - 1, pickColumns());
    for (Cell& head : screen.picks.cellsOf(0)) head.bold = true;
    for (int row = 0; row < viewRows; ++row) screen.picks(row, PickColumn::race).bold = true;
}

void fillPicks() {
    for (int race = 1; race <= pickedRaces; ++race)
        for (int pick = 1; pick <= picks; ++pick)
            screen.picks(race, columnOfPick(pick)).text = card.keyPicks[{race, pick}];
}

void fillRace(int race) {
    screen.picks(race, PickColumn::race).text = formatted("##", "@@", race);
    for (int winner = 1; winner <= shownWinners; ++winner)
        screen.picks(race, columnOfWinner(winner)).text = card.pickLegs(race, winner);
    for (const Wager& wager : wagers)
        screen.picks(race, wager.column).text = card.pickPayoff(race, wager.legs);
}

// Numbers compare as numbers: " 4" is 4. A cell without a number has no winner.
bool isPicked(int race, const Text& winner) {
    if (trimmed(winner).empty()) return false;
    for (int pick = 1; pick <= picks; ++pick)
        if (lenientNumber(winner) == lenientNumber(card.keyPicks(race, pick))) return true;
    return false;
}

// Marks the first winner that was picked.
void markHit(int race) {
    const bool deadHeat = !card.pickLegs(race, 2).empty();
    for (int winner = 1; winner <= (deadHeat ? winners : 1); ++winner) {
        if (!isPicked(race, card.pickLegs(race, winner))) continue;
        Cell& cell = screen.picks(race, columnOfWinner(winner));
        cell.bold = true;
        cell.background = recentYellow;
        return;
    }
}

} // namespace

void Pick3Results() {
    const Step step{"Pick3Results"};
    layOutView();
    fillPicks();
    for (int race = 1; race <= card.raceCount; ++race) {
        attempt([&] { fillRace(race); });
        attempt([&] { markHit(race); });
    }
    showAnalysisView(&Screen::picksVisible);
}

} // namespace quillon
