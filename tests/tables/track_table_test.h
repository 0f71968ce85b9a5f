// Track tables in the working folder, and a race table at one of their tracks.
#pragma once

#include "card/race_card.h"
#include "support/card_test.h"
#include "tables/load_state.h"
#include "tables/table_builder.h"
#include "tables/track_table.h"

namespace quillon {

/// A row with all its columns: 36 of key and name, 37 size, 42 stretch, 46 flag, 50 par; the post limit last.
inline Text trackRow(TextView key, TextView courseSize, TextView par = "57.0", TextView posts = "10") {
    Text row = inField(key, 36) + inField(courseSize, 3) + "  " + " 990" + "*" + "   " + inField(par, 4);
    return row.append("  ").append(posts).append("\r\n");
}

class TrackTableTest : public CardTest {
protected:
    TrackTableTest() { load = {}; }

    static void useTracks(const Text& content) {
        put("TrackEditor.ini", content);
        readTrackTable();
    }

    static void raceAt(const Text& track) {
        const BuiltTable races{.fields = {{"TRACK", 'C', 5}}, .rows = {" " + inField(track, 5)}};
        load.raceRows.openContent(races.bytes(), "RACESHR.DBF");
    }
};

} // namespace quillon
