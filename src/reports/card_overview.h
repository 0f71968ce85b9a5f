// The card at a glance, for a front end to show: a race a row.
#pragma once

#include "screen/screen.h"

namespace quillon {

namespace overviewColumn {
constexpr int race = 0; ///< its label
constexpr int postTime = 1;
constexpr int gait = 2;
constexpr int distance = 3;
constexpr int classRating = 4;
constexpr int purse = 5;
constexpr int firstSelection = 6; ///< S1 to S4: program number and name
constexpr int margin = 10;        ///< of S1, as the selection sheet takes it
constexpr int betMark = 11;
constexpr int count = 12;
} // namespace overviewColumn

/// The margin from which S1 stands out on the overview.
constexpr double clearMargin = 3;

/// Row r is race r of the card, row 0 the heads. A race whose S1 has no rating has no margin and no mark.
Grid cardOverview();

} // namespace quillon
