#include "screen/race_views.h"

#include "card/race_card.h"
#include "core/failure.h"

namespace quillon {
namespace {

std::size_t viewNumber(int race) {
    if (race < 1 || race > ratedRaces) fail("race " + std::to_string(race) + " has no view");
    return static_cast<std::size_t>(race);
}

} // namespace

Grid& raceViewOf(int race) { return screen.raceView[viewNumber(race)]; }

Grid& dataViewOf(int race) { return screen.dataView[viewNumber(race)]; }

} // namespace quillon
