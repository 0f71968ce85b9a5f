// The winners of a multi-race wager's legs.
#pragma once

namespace quillon {

/// Reads the pool `card.poolText` of a wager over `card.poolLegs` races into `card.pickLegs`: "/" goes to the
/// next leg, "," to another winner of the same leg. The race cursor goes back to the first leg and ends on
/// the last one named. Resumes at failures; `poolLegs` is 0 afterwards.
void Pick3();

} // namespace quillon
