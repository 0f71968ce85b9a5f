// What a load keeps from line to line, beside the card and the screen: the vendor's tables with their
// cursors, the rows they stand on, the track table, and the log. Steps read and write it through `load`.
#pragma once

#include "core/text.h"
#include "tables/source_rows.h"
#include "tables/table_cursor.h"
#include "tables/track_table.h"

#include <optional>
#include <unordered_map>
#include <vector>

namespace quillon {

struct LoadState {
    TableCursor raceRows;    ///< RACESHR: one row per race of today's card
    TableCursor horseRows;   ///< HORSEHR: one row per entry
    TableCursor lineRows;    ///< RUNLINHR: one row per past line of an entry
    TableCursor driverRows;  ///< DRIVERHR: row n is driver n
    TableCursor trainerRows; ///< TRAINRHR: row n is trainer n

    SourceLine line;
    SourceHorse horse;
    TrackTable tracks; ///< TrackEditor.ini as it was read last

    std::vector<int> raceIndexOfRow;              ///< of each race row, in table order
    std::unordered_map<Text, int> lastRowOfHorse; ///< the last row of the horse table with this HN
    std::optional<int> cardDay;                   ///< the card's date, by the current race row
    int daysFromCard = 0; ///< the line's date less the card's; an unreadable date leaves it as it was
    Text log;             ///< of the ratings, while a card loads
};

extern LoadState load;

/// Takes the current row of the running-line table into `load.line`.
void ReadSourceLine();

/// Takes the current row of the horse table into `load.horse`.
void ReadSourceHorse();

/// Reads TrackEditor.ini into `load.tracks` again, since the user may have edited it. Without the file the
/// table is empty, and the journal tells so.
void readTrackTable();

} // namespace quillon
