// The card at a glance, for a front end to show: a race a row.
#pragma once

#include "screen/screen.h"
#include "screen/view_layouts.h"

namespace quillon {

struct OverviewColumn {
    enum Number {
        race, ///< its label
        postTime,
        gait,
        distance,
        classRating,
        purse,
        s1, ///< program number and name
        s2,
        s3,
        s4,
        margin, ///< of S1, as the selection sheet takes it
        betMark,
        count
    };
};

/// The margin from which S1 stands out on the overview.
constexpr double clearMargin = 3;

/// Row r is race r of the card, row 0 the heads. A race whose S1 has no rating has no margin and no mark.
Grid cardOverview();

/// How it is shown.
ViewLayout overviewLayout();

} // namespace quillon
