// A past line as the tests of its road begin with: at a three-quarter-mile track, and nothing counts but its times.
#pragma once

#include "card/race_card.h"
#include "screen/screen.h"
#include "tables/load_state.h"
#include "tables/table_builder.h"

namespace quillon {

/// A row of the track table.
inline Text trackRow(TextView key, TextView size) {
    return inField(key, 36) + inField(size, 3) + "   990*   57.0  10\r\n";
}

/// The line in hand: 3 x 54.3 - 25.3 - 70 = 67.6, of a horse at post 2.
inline void setPlainLine() {
    screen.header.track.caption = "TQ";
    card.trackSize = "3/4";
    card.maxPosts = 8;
    card.raceInfo(1).todaysCr = "75";
    card.totalLines = 12;
    cursor.row = 3;
    cursor.horseFinal = "54.3";
    cursor.leaderFinal = "25.3";
    load.horse.PP = "2";
    load.line.TRACK = "TQ";
    load.line.TRACKSIZE = "3/4";
    load.line.DIST_MILES = "1";
    load.line.HRSE_TM_4Q = "29.1";
    load.line.CALL_FN_PO = "5";
    load.line.CR = "75";
}

} // namespace quillon
