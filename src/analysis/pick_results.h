// The pick results: the sheet's picks beside the day's winners and the payoffs of the multi-race wagers.
#pragma once

namespace quillon {

/// Fills and shows `screen.picks` from `keyPicks`, `pickLegs` and `pickPayoff`. Resumes at failures.
void Pick3Results();

} // namespace quillon
