// The vendor's tables of the card being loaded, one cursor each, and the running line at work.
#pragma once

#include "core/text.h"
#include "tables/table_cursor.h"

namespace quillon {

struct SourceTables {
    TableCursor raceRows;    ///< RACESHR: one row per race of today's card
    TableCursor horseRows;   ///< HORSEHR: one row per entry
    TableCursor lineRows;    ///< RUNLINHR: one row per past line of an entry
    TableCursor driverRows;  ///< DRIVERHR: row n is driver n
    TableCursor trainerRows; ///< TRAINRHR: row n is trainer n
};

/// The row of the running-line table that the line cursor is on, without trailing blanks, read once a line.
struct SourceLine {
    Text TODAYSRACE{};
    Text HN{};
    Text DATE{};
    Text TRACK{};
    Text TRACKSIZE{};
    Text COND{};
    Text PURSE{}; ///< thousands
    Text CLASS{};
    Text CR{};
    Text DIST_MILES{};
    Text LEAD_TM_1Q{};
    Text LEAD_TM_2Q{};
    Text LEAD_TM_3Q{};
    Text LEAD_TM_FN{};
    Text POST{};
    Text CALL_1Q_BF{};
    Text CALL_1Q_PO{};
    Text CALL_1Q_PK{};
    Text CALL_1Q_AF{};
    Text CALL_2Q_BF{};
    Text CALL_2Q_PO{};
    Text CALL_2Q_PK{};
    Text CALL_2Q_AF{};
    Text CALL_3Q_BF{};
    Text CALL_3Q_PO{};
    Text CALL_3Q_PK{};
    Text CALL_3Q_AF{};
    Text CALL_ST_PO{};
    Text CALL_FN_PO{};
    Text HRSE_TM_4Q{};
    Text HRSE_TM_FN{};
    Text FAV{};
    Text ODDS{};
    Text DN{};
};

/// The row of the horse table that the horse cursor is on, without trailing blanks, read once a horse.
struct SourceHorse {
    Text RACE{};
    Text HN{};
    Text HORSE_NAME{};
    Text PROGRAM{};
    Text PP{}; ///< post position; 99 for none
    Text MORN_ODDS{};
    Text DN{};
    Text TN{};
};

extern SourceTables sourceTables;
extern SourceLine sourceLine;
extern SourceHorse sourceHorse;

/// Takes the current row of the running-line table into `sourceLine`.
void ReadSourceLine();

/// Takes the current row of the horse table into `sourceHorse`.
void ReadSourceHorse();

} // namespace quillon
