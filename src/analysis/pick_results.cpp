#include "analysis/pick_results.h"

#include "analysis/analysis_view.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/formats.h"
#include "screen/screen.h"

#include <array>

namespace quillon {
namespace {

constexpr int viewRows = 26;
constexpr int viewColumns = 20;
constexpr int picks = 4;
constexpr int pickedRaces = 20; ///< races whose picks are shown
constexpr int winners = 4;      ///< a leg's winner, and those who shared the win with him
constexpr int shownWinners = 3;
constexpr int firstPickColumn = 1;
constexpr int firstWinnerColumn = 6;

// clang-format off
struct Head { int column; TextView text; };
constexpr std::array heads{
    Head{0, "RACE"},
    Head{1, "S1"},  Head{2, "S2"},  Head{3, "S3"},  Head{4, "S4"},
    Head{6, "Win"}, Head{7, "Win"}, Head{8, "Win"}, Head{9, "Win"},
};

/// A multi-race wager: its column, and the number of its legs.
struct Wager { int column; TextView head; int legs; };
constexpr std::array wagers{
    Wager{11, "DD",     2},
    Wager{12, "Pick3",  3},
    Wager{13, "Pick4",  4},
    Wager{14, "Pick5",  5},
    Wager{15, "Pick6",  6},
    Wager{16, "Pick10", 10},
};
// clang-format on

void layOutView() {
    screen.picks.layOut(viewRows, viewColumns);
    for (const Head& head : heads) screen.picks(0, head.column).text = head.text;
    for (const Wager& wager : wagers) screen.picks(0, wager.column).text = wager.head;
    for (int column = 0; column < viewColumns; ++column) screen.picks(0, column).bold = true;
    for (int row = 0; row < viewRows; ++row) screen.picks(row, 0).bold = true;
}

void fillPicks() {
    for (int race = 1; race <= pickedRaces; ++race)
        for (int pick = 1; pick <= picks; ++pick)
            screen.picks(race, firstPickColumn + pick - 1).text = card.keyPicks[{race, pick}];
}

void fillRace(int race) {
    screen.picks(race, 0).text = formatted("##", "@@", race);
    for (int winner = 1; winner <= shownWinners; ++winner)
        screen.picks(race, firstWinnerColumn + winner - 1).text = card.pickLegs(race, winner);
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
        Cell& cell = screen.picks(race, firstWinnerColumn + winner - 1);
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
