// How the race views show program numbers: in the colours of the saddle cloths.
#pragma once

#include "screen/screen.h"

namespace quillon {

/// Puts the program number that stands in the cell in width 3 and colours the cell by its number, 1 to 12
/// ("1A" counts as 1). A cell with another number, or none, has no colours.
void colourSaddleCloth(Cell& programNumber);

/// Colours the program number in the row of the cursor's race and entry. Stops where there is no such row.
void Colors();

} // namespace quillon
