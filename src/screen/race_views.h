// The views of a race: its entries and its past lines.
#pragma once

#include "card/columns.h"
#include "screen/screen.h"

namespace quillon {

/// The view of a race's entries. Fails for a race that has none.
Grid& raceViewOf(int race);

/// The view of a race's past lines. Fails for a race that has none.
Grid& dataViewOf(int race);

} // namespace quillon
