// The ranked rows of a race as the reports print them.
#pragma once

#include "core/text.h"

namespace quillon {

constexpr int fifthPlace = 5; ///< after S1 to S4

struct RankedRow {
    TextView pn; ///< program number
    TextView pp; ///< post position
    TextView ml; ///< morning line
    TextView name;
    TextView driverText; ///< driver and UDR
    TextView pr;         ///< rating
};

/// Places 1 to 5 of a race, as the selections stand. Fails outside the bounds.
RankedRow rankedRow(int race, int place);

} // namespace quillon
