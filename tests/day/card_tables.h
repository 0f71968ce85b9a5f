// The vendor's tables of a card, written by a test row by row and laid in the source folder.
#pragma once

#include "dbf_writer.h"
#include "support/card_test.h"
#include "table_text.h"

#include <string>
#include <variant>
#include <vector>

namespace quillon {

/// A row of today's races.
struct RaceRow {
    std::string RACE = "1";
    std::string CARD_ID{};
    std::string TRACK = "BANG";
    std::string PURSE = "8000";
    std::string RACETEXT1 = "NW4000L5";
    std::string TODAYS_CR = "75";
    std::string BULLETDATE = "20260314";
};

/// A row of today's entries.
struct HorseRow {
    std::string RACE = "1";
    std::string HN = "1";
    std::string HORSE_NAME = "Plain Biscuit";
    std::string PROGRAM = "1";
    std::string PP = "1";
    std::string MORN_ODDS = "5/2";
    std::string DN = "1";
    std::string TN = "1";
};

/// A row of past lines: a mile in 1:54.3 after a third time of 1:25.3, fifth from post 3, ten days old.
struct LineRow {
    std::string TODAYSRACE = "1";
    std::string HN = "1";
    std::string DATE = "20260304";
    std::string TRACK = "BANG";
    std::string TRACKSIZE = "1/2";
    std::string PURSE = "8.5";
    std::string CLASS = "NW4000L5";
    std::string CR = "75";
    std::string DIST_MILES = "1";
    std::string LEAD_TM_3Q = "1:25.3";
    std::string LEAD_TM_FN = "1:53.4";
    std::string POST = "3";
    std::string CALL_1Q_BF{};
    std::string CALL_1Q_PO = "5";
    std::string CALL_1Q_PK{};
    std::string CALL_FN_PO = "5";
    std::string HRSE_TM_4Q = "29.1";
    std::string HRSE_TM_FN = "1:54.3";
    std::string FAV{};
    std::string ODDS = "12.4";
    std::string DN = "1";
};

inline samples::Table tableOf(std::string_view text) {
    auto read = samples::readTableText(text);
    const auto* error = std::get_if<samples::TextError>(&read);
    EXPECT_EQ(nullptr, error) << error->line << ": " << error->message;
    return error == nullptr ? std::get<samples::Table>(std::move(read)) : samples::Table{};
}

inline samples::Table raceTable(const std::vector<RaceRow>& rows) {
    samples::Table table =
        tableOf("RACE C6 | CARD_ID C1 | TRACK C5 | PURSE C7 | RACETEXT1 C120 | TODAYS_CR C3 |"
                "BULLETDATE C8 | RACEWAGERS C30 | POSTTIME C8 | GAIT C4 | DISTANCE C6");
    for (const RaceRow& row : rows)
        table.rows.push_back({{row.RACE, row.CARD_ID, row.TRACK, row.PURSE, row.RACETEXT1, row.TODAYS_CR,
                               row.BULLETDATE, "Exacta", "7:00 PM", "PACE", "1 mile"}});
    return table;
}

inline samples::Table horseTable(const std::vector<HorseRow>& rows) {
    samples::Table table = tableOf("RACE C6 | HN C6 | HORSE_NAME C25 | PROGRAM C3 | PP C6 | MORN_ODDS C5 |"
                                   "DN C6 | TN C6");
    for (const HorseRow& row : rows)
        table.rows.push_back(
            {{row.RACE, row.HN, row.HORSE_NAME, row.PROGRAM, row.PP, row.MORN_ODDS, row.DN, row.TN}});
    return table;
}

inline samples::Table lineTable(const std::vector<LineRow>& rows) {
    samples::Table table = tableOf(
        "TODAYSRACE C6 | HN C6 | DATE C8 | TRACK C5 | TRACKSIZE C5 | PURSE C8 | CLASS C12 | CR C4 |"
        "DIST_MILES C6 | LEAD_TM_3Q C6 | LEAD_TM_FN C6 | POST C3 | CALL_1Q_BF C2 | CALL_1Q_PO C2 |"
        "CALL_1Q_PK C2 | CALL_FN_PO C3 | HRSE_TM_4Q C5 | HRSE_TM_FN C6 | FAV C1 | ODDS C7 | DN C6 |"
        "COND C2 | LEAD_TM_1Q C4 | LEAD_TM_2Q C4 | CALL_1Q_AF C4 | CALL_2Q_BF C4 | CALL_2Q_PO C4 |"
        "CALL_2Q_PK C4 | CALL_2Q_AF C4 | CALL_3Q_BF C4 | CALL_3Q_PO C4 | CALL_3Q_PK C4 | CALL_3Q_AF C4 |"
        "CALL_ST_PO C4");
    for (const LineRow& row : rows)
        table.rows.push_back({{row.TODAYSRACE,
                               row.HN,
                               row.DATE,
                               row.TRACK,
                               row.TRACKSIZE,
                               row.PURSE,
                               row.CLASS,
                               row.CR,
                               row.DIST_MILES,
                               row.LEAD_TM_3Q,
                               row.LEAD_TM_FN,
                               row.POST,
                               row.CALL_1Q_BF,
                               row.CALL_1Q_PO,
                               row.CALL_1Q_PK,
                               row.CALL_FN_PO,
                               row.HRSE_TM_4Q,
                               row.HRSE_TM_FN,
                               row.FAV,
                               row.ODDS,
                               row.DN,
                               "ft",
                               "27.1",
                               "56.2",
                               "1a",
                               "2b",
                               "6",
                               "2k",
                               "2a",
                               "3b",
                               "7",
                               "3k",
                               "3a",
                               "8"}});
    return table;
}

/// A table with one text field, of drivers' names and such.
inline samples::Table listTable(std::string_view heads, const std::vector<std::vector<std::string>>& rows) {
    samples::Table table = tableOf(heads);
    for (const auto& cells : rows) table.rows.push_back({cells});
    return table;
}

/// Lays a table in the source folder.
inline void lay(const char* name, const samples::Table& table) {
    const auto path = std::filesystem::path{"A Quillon PRO/TrackMaster ExE Files"} / name;
    ASSERT_TRUE(samples::writeTable(path, table));
}

} // namespace quillon
