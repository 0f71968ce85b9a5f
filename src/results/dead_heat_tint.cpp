#include "card/race_card.h"
#include "core/failure.h"
#include "results/board.h"
#include "screen/screen.h"

#include <cmath>

namespace quillon {
namespace {

// The gap between the top two in tenths, so that 60.0 and 60.2 are 0.2 apart and not a hair more.
double gapInTenths(const Selection& first, const Selection& second) {
    return std::round((lenientNumber(second.selectionRating) - lenientNumber(first.selectionRating)) * 10);
}

constexpr Colour gapColour(double tenths) {
    if (tenths < 1) return closeMagenta;
    if (tenths <= 2) return recentYellow;
    return white;
}

} // namespace

void DeadHeat() {
    const Step step{"DeadHeat"};
    for (Box& box : screen.boxes) box.colour = white;
    const int race = raceOnShow();
    if (race == 0) return;
    const Colour colour = gapColour(gapInTenths(card.selection(race, 1), card.selection(race, 2)));
    screen.boxes[0].colour = colour;
    screen.boxes[1].colour = colour;
}

} // namespace quillon
