#include "results/board.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "reports/bet_mark.h"
#include "results/heat_slots.h"
#include "screen/race_views.h"
#include "screen/screen.h"

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

constexpr int boxCount = 8;
constexpr int normalisedRaces = 25;

constexpr int deadHeat = 2; ///< "1st" or "2nd" lines that make one
constexpr int besideWin = 1;
constexpr int besidePlace = 2;

/// A dead heat as the board shows it: where box 10 stands, who shared the place with the horse
/// ahead of him, and the payoff that becomes S1's.
struct SharedPlace {
    int boxTenColumn;
    OutcomeCell::Number otherHorse;
    PayoffCell::Number payoff;
};
constexpr SharedPlace sharedWin{besideWin, OutcomeCell::r2, PayoffCell::win};
constexpr SharedPlace sharedSecond{besidePlace, OutcomeCell::r3, PayoffCell::place2};

/// A Win, Place or Show payoff that begins with a zero loses it, by way of the winner's Place payoff: any
/// cell so typed ends as the tail of that one, which is right for itself alone.
void dropLeadingZeros() {
    for (int race = 1; race <= normalisedRaces; ++race) {
        const Text& placePay = card.payoffRecord[{race, PayoffCell::place1}];
        for (int cell = PayoffCell::win; cell <= PayoffCell::show3; ++cell) {
            Text& payoff = card.payoffRecord[{race, cell}];
            if (payoff.empty() || payoff.front() != '0') continue;
            payoff = Text{rightOf(placePay, static_cast<int>(payoff.size()) - 1)};
        }
    }
}

void storeBoard(int race) {
    attempt([&] { screen.boardsToTakeIn(race) = 0; });
    for (int box = 0; box < boxCount; ++box)
        attempt([&] { card.raceOutcome(race, cellOfBox(box)) = trimmed(screen.boxes.at(box).text); });
    for (const int cell : cellsOfTheirBoxes)
        attempt([&] { card.payoffRecord(race, cell) = trimmed(screen.tote.at(cell)); });
    attempt([&] {
        card.payoffRecord(race, PayoffCell::boxTenEcho) = trimmed(screen.tote.at(ToteBox::deadHeat));
    });
    attempt([&] { card.raceInfo(race).trackCode = screen.header.track.caption; });
}

/// The payoff of the place becomes what S1 paid, where S1 is the other horse of the dead heat. The board
/// shows the new payoff too, or leaving the race would put the old one back.
void payOtherHorse(int race, const SharedPlace& place) {
    const double topSelection = lenientNumber(screen.boxes[0].text);
    if (topSelection <= 0 || topSelection != lenientNumber(card.raceOutcome(race, place.otherHorse))) return;
    card.payoffRecord(race, place.payoff) = card.payoffRecord(race, PayoffCell::deadHeat);
    screen.tote.at(place.payoff) = card.payoffRecord(race, place.payoff);
}

const SharedPlace* sharedPlace(int race) {
    if (card.placeHeat(race) == deadHeat) return &sharedSecond;
    if (card.winHeat(race) == deadHeat) return &sharedWin;
    return nullptr;
}

// In tenths, so that 60.0 and 60.2 are 0.2 apart and not a hair more.
Colour gapColour(double gap) {
    const double tenths = std::round(gap * 10);
    if (tenths < 1) return closeMagenta;
    return tenths <= 2 ? recentYellow : white;
}

} // namespace

int raceOnShow() {
    int race = 0;
    attempt([&] { race = toInteger(lenientNumber(screen.header.race)); });
    return race;
}

bool boardHasUnkeptTyping() {
    const int race = raceOnShow();
    if (race < 1 || race >= raceExtent) return false;
    // Cells come from tables and results texts with blanks round them, and are stored without.
    const auto differs = [](const Text& shown, const Text& stored) {
        return trimmed(shown) != trimmed(stored);
    };
    // A heat shows its ranking where it has no selections of its own.
    const int firstBox = isHeat(race) && !hasSelections(race) ? firstFinishBox : 0;
    for (int box = firstBox; box < boxCount; ++box)
        if (differs(screen.boxes.at(box).text, card.raceOutcome[{race, cellOfBox(box)}])) return true;
    return std::any_of(cellsOfTheirBoxes.begin(), cellsOfTheirBoxes.end(), [&](int cell) {
        return differs(screen.tote.at(cell), card.payoffRecord[{race, cell}]);
    });
}

void setBox(int box, TextView text) {
    if (box < 0 || box >= boxCount) fail("there is no box " + std::to_string(box));
    Text& shown = screen.boxes.at(box).text;
    if (shown == text) return;
    shown = text;
    TEXT_56();
}

void Get_Textbox_Data() {
    const Step step{"Get_Textbox_Data"};
    dropLeadingZeros();
    if (card.recallMode == "R") {
        cursor.race = 1;
        card.recallMode.clear();
    }
    if (const int race = raceOnShow(); race > 0) storeBoard(race);
}

void TEXT_56() {
    const Step step{"TEXT_56"};
    const int race = raceOnShow();
    const SharedPlace* place = nullptr;
    if (race > 0) attempt([&] { place = sharedPlace(race); });
    screen.boxTenVisible = place != nullptr;
    screen.boxTenColumn = place ? place->boxTenColumn : 0;
    if (place) attempt([&] { payOtherHorse(race, *place); });
    for (std::size_t i = 0; i < screen.finishLabels.size(); ++i)
        screen.finishLabels[i] = screen.boxes[i + firstFinishBox].text;
}

void DeadHeat() {
    const Step step{"DeadHeat"};
    for (Box& box : screen.boxes) box.colour = white;
    const int race = raceOnShow();
    if (race == 0) return;
    screen.boxes[0].colour = screen.boxes[1].colour = gapColour(gapAfterS1(race));
}

void TypeBox(int box, const Text& text) { setBox(box, text); }

void TypeTote(int box, const Text& text) {
    if (box < ToteBox::first || box > ToteBox::last) fail("there is no payoff box " + std::to_string(box));
    screen.tote.at(box) = text;
}

void TypeRefunds(const Text& text) { screen.refunds = text; }

void TypeCell(int race, int row, int column, const Text& text) {
    if (row < 1) fail("the head of a race view can't be edited");
    raceViewOf(race)(row, column).text = text;
}

} // namespace quillon
