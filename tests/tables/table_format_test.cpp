#include "support/card_test.h"
#include "tables/table_builder.h"
#include "tables/table_cursor.h"
#include "tables/table_format.h"

#include <bit>

namespace quillon {
namespace {

using namespace std::string_literals;

class TableFormatTest : public CardTest {
protected:
    static TableCursor opened(const BuiltTable& table) {
        TableCursor cursor;
        cursor.openContent(table.bytes(), "RACESHR.DBF");
        return cursor;
    }
};

TEST_F(TableFormatTest, AllMakersOfUsualHeadersAreRead) {
    for (const int mark :
         {0x03, 0x05, 0x30, 0x31, 0x32, 0x43, 0x63, 0x7B, 0x83, 0x8B, 0x8E, 0xCB, 0xE5, 0xF5, 0xFB}) {
        const TableCursor rows =
            opened({.fields = {{"RACE", 'N', 2}, {"GAIT", 'C', 4}}, .rows = {"  1PACE"}, .mark = mark});
        EXPECT_EQ(1, rows.rowCount()) << mark;
        EXPECT_EQ("1", rows.field("RACE")) << mark;
        EXPECT_EQ("PACE", rows.field("GAIT")) << mark;
    }
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableFormatTest, TheLongDescriptorsOfDBase7AreRead) {
    for (const int mark : {0x04, 0x8C}) {
        const TableCursor rows =
            opened({.fields = {{"A_NAME_LONGER_THAN_TEN_PLACES", 'C', 4},
                               {"RACE", 'I', 4},
                               {"ROW", '+', 4},
                               {"ODDS", 'O', 8},
                               {"CHANGED", '@', 8}},
                    .rows = {" PACE\x80\0\0\x07\x7F\xFF\xFF\xFF\xBF\xF0\0\0\0\0\0\0abcdefgh"s},
                    .mark = mark,
                    .nameLength = 32});
        EXPECT_EQ("PACE", rows.field("A_NAME_LONGER_THAN_TEN_PLACES"));
        EXPECT_EQ("7", rows.field("RACE"));
        EXPECT_EQ("-1", rows.field("ROW"));
        EXPECT_EQ("1", rows.field("ODDS")); // 3F F0 00 ... with its sign bit turned
        EXPECT_EQ("", rows.field("CHANGED"));
    }
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableFormatTest, ADoubleOfFoxProIsAMemoOfDBase) {
    BuiltTable table{.fields = {{"X", 'B', 8}, {"RACE", 'N', 2}},
                     .rows = {" " + bytesOf(std::bit_cast<std::uint64_t>(61.5), 8) + " 3"},
                     .mark = 0x30};
    EXPECT_EQ("61.5", opened(table).field("X"));
    table.mark = 0x8B;
    EXPECT_EQ("", opened(table).field("X"));
    EXPECT_EQ("3", opened(table).field("RACE"));
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableFormatTest, EveryTypeHasItsReading) {
    const TableCursor rows =
        opened({.fields = {{"C", 'C', 3},
                           {"V", 'V', 3},
                           {"N", 'N', 5, 2},
                           {"F", 'F', 5, 1},
                           {"D", 'D', 8},
                           {"L", 'L', 1},
                           {"I", 'I', 4},
                           {"Y", 'Y', 8, 4},
                           {"T", 'T', 8},
                           {"M", 'M', 10},
                           {"G", 'G', 10},
                           {"P", 'P', 10},
                           {"W", 'W', 4},
                           {"Q", 'Q', 4},
                           {"LAST", 'C', 1}},
                .rows = {" ab cd  1.50  .5020260314T" + bytesOf(7, 4) + bytesOf(125000, 8) +
                         bytesOf(2451545, 4) + bytesOf(0, 4) + "         1         2         3bbbbqqqqz"},
                .mark = 0x30});
    constexpr TextView texts[] = {"ab ",      "cd ", "1.5", "0.5", "20260314", "T", "7", "12.5",
                                  "20000101", "",    "",    "",    "",         "",  "z"};
    for (int number = 1; number <= rows.fieldCount(); ++number)
        EXPECT_EQ(texts[number - 1], rows.field(number)) << rows.fieldName(number);
    EXPECT_EQ(15, rows.fieldCount());
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableFormatTest, TheNullFlagsOfFoxProAreNoFieldButTakeTheirRoom) {
    const TableCursor rows = opened({.fields = {{"RACE", 'N', 2}, {"_NullFlags", '0', 1}, {"GAIT", 'C', 4}},
                                     .rows = {"  1\x02PACE", "  2\x03TROT"},
                                     .mark = 0x30});
    EXPECT_EQ(2, rows.fieldCount());
    EXPECT_EQ("GAIT", rows.fieldName(2));
    EXPECT_EQ("TROT", rows.field(2, 2));
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableFormatTest, ATextMayBeWiderThanOneByteCounts) {
    const TableCursor rows = opened(
        {.fields = {{"RACETEXT1", 'C', 300}, {"RACE", 'N', 2}}, .rows = {" " + Text(299, 'x') + "y 7"}});
    EXPECT_EQ(Text(299, 'x') + "y", rows.field("RACETEXT1"));
    EXPECT_EQ("7", rows.field("RACE"));
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableFormatTest, OtherThingsInTheHighByteOfATextsWidthAreLeftAlone) {
    const TableCursor rows = opened(
        {.fields = {{"GAIT", 'C', 4, 2}, {"RACE", 'N', 2}}, .rows = {" PACE 7"}}); // 2 * 256 + 4 is no width
    EXPECT_EQ("PACE", rows.field("GAIT"));
    EXPECT_EQ("7", rows.field("RACE"));
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableFormatTest, WhatStandsBetweenFieldListAndRowsIsSkipped) {
    BuiltTable table{.fields = {{"RACE", 'N', 2}}, .rows = {"  1", "  2"}, .mark = 0x30};
    const Text linkArea = "data\\races.dbc"s + Text(263 - 14, '\0'); // 14 characters of 263
    for (const Text& between : {Text{}, Text{'\0'}, Text(31, '\0'), linkArea, Text(100, '\xFF')}) {
        table.behindFieldsEnd = between;
        const TableCursor rows = opened(table);
        EXPECT_EQ(1, rows.fieldCount());
        EXPECT_EQ(2, rows.rowCount());
        EXPECT_EQ("2", rows.field(2, 1));
    }
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableFormatTest, AFieldsNameEndsAtItsZeroByte) {
    const TableCursor rows = opened({.fields = {{"RACE\0\xCD\xCD"
                                                 "X"s,
                                                 'N', 2},
                                                {"ELEVENPLACE", 'N', 2}},
                                     .rows = {"  1 2"}});
    EXPECT_EQ("RACE", rows.fieldName(1));
    EXPECT_EQ("1", rows.field("RACE"));
    EXPECT_EQ("ELEVENPLACE", rows.fieldName(2));
    EXPECT_EQ("2", rows.field("ELEVENPLACE"));
}

TEST_F(TableFormatTest, AFileNeedsNoEndMark) {
    const TableCursor rows = opened({.fields = {{"RACE", 'N', 2}}, .rows = {"  1", "  2"}, .end = ""});
    EXPECT_EQ(2, rows.rowCount());
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableFormatTest, ATableWithoutRowsIsInGoodOrder) {
    const TableCursor rows = opened({.fields = {{"RACE", 'N', 2}}, .rows = {}});
    EXPECT_EQ(0, rows.rowCount());
    EXPECT_EQ("RACE", rows.fieldName(1));
    EXPECT_TRUE(rows.Eof());
    EXPECT_EQ("", rows.field("RACE"));
    EXPECT_EQ(0U, journal.count());
}

} // namespace
} // namespace quillon
