#include "support/card_test.h"
#include "tables/table_builder.h"
#include "tables/table_cursor.h"

namespace quillon {
namespace {

using namespace std::string_literals;

// Two fields after the flag: row n of three reads "1", "2", "3" and "aaaa", "bbbb", "cccc".
class TableDamageTest : public CardTest {
protected:
    static constexpr std::size_t rowLength = 7;                  // 1 + 2 + 4
    static constexpr std::size_t headerLength = 32 + 2 * 32 + 1; // 97

    BuiltTable table{.fields = {{"RACE", 'N', 2}, {"GAIT", 'C', 4}},
                     .rows = {"  1aaaa", "  2bbbb", "  3cccc"}};

    static TableCursor opened(Text content) {
        TableCursor cursor;
        cursor.openContent(std::move(content), "RACESHR.DBF");
        return cursor;
    }
    TableCursor opened() const { return opened(table.bytes()); }

    static std::vector<Text> column(const TableCursor& rows, int number) {
        std::vector<Text> texts;
        for (int row = 1; row <= rows.rowCount(); ++row) texts.push_back(rows.field(row, number));
        return texts;
    }

    // Everything that can be asked of a cursor; for what must only not read outside.
    static std::size_t askAll(TableCursor rows) {
        std::size_t characters = 0;
        for (; !rows.Eof(); rows.MoveNext())
            for (int number = 0; number <= rows.fieldCount() + 1; ++number)
                characters += rows.field(number).size();
        rows.MoveLast();
        return characters + rows.field("GAIT").size();
    }
};

TEST_F(TableDamageTest, AMissingTableIsEmptyAndToldOnce) {
    TableCursor rows;
    rows.open("RACESHR.DBF");
    EXPECT_TRUE(rows.Eof());
    EXPECT_EQ(0, rows.rowCount());
    EXPECT_EQ(0, rows.fieldCount());
    EXPECT_EQ("", rows.field("RACE"));
    EXPECT_TRUE(journalTells("RACESHR.DBF: the table is missing"));
    EXPECT_EQ(1U, journal.count());
}

TEST_F(TableDamageTest, WhatWasOpenBeforeIsGone) {
    TableCursor rows = opened();
    rows.MoveLast();
    rows.open("NONE.DBF");
    EXPECT_EQ(0, rows.rowCount());
    rows.openContent(table.bytes(), "RACESHR.DBF");
    EXPECT_EQ(1, rows.row());
    EXPECT_EQ("1", rows.field("RACE"));
}

TEST_F(TableDamageTest, WhatIsNoTableIsEmptyAndToldOnce) {
    const Text contents[] = {"",
                             "\x03",
                             "PK\x03\x04 an archive, as it came by mail, and not yet unpacked",
                             "<html>not found</html>",
                             Text(500, '\0'),
                             Text(500, '\xFF'),
                             "\x02" + Text(600, ' ')};
    for (const Text& content : contents) {
        journal.clear();
        const TableCursor rows = opened(content);
        EXPECT_EQ(0, rows.rowCount());
        EXPECT_EQ(0, rows.fieldCount());
        EXPECT_EQ("", rows.field("RACE"));
        EXPECT_TRUE(journalTells("RACESHR.DBF: no table"));
        EXPECT_EQ(1U, journal.count());
    }
}

TEST_F(TableDamageTest, MoreRowsCountedThanThereAreGivesThoseThere) {
    for (const std::uint32_t counted : {4U, 1000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        journal.clear();
        table.rowCount = counted;
        EXPECT_EQ((std::vector<Text>{"1", "2", "3"}), column(opened(), 1));
        EXPECT_TRUE(
            journalTells("the header counts " + std::to_string(counted) + " rows, the file has room for 3"));
        EXPECT_EQ(1U, journal.count()); // the end mark after the rows is no cut row
    }
}

TEST_F(TableDamageTest, FewerRowsCountedThanThereAreGivesThoseCounted) {
    table.rowCount = 2;
    EXPECT_EQ((std::vector<Text>{"1", "2"}), column(opened(), 1));
    EXPECT_TRUE(journalTells("rows lie behind the 2 that the header counts"));
}

TEST_F(TableDamageTest, ACutRowIsNotReadButTold) {
    const Text whole = table.bytes();
    const TableCursor rows = opened(whole.substr(0, headerLength + 2 * rowLength + 4));
    EXPECT_EQ((std::vector<Text>{"1", "2"}), column(rows, 1));
    EXPECT_TRUE(journalTells("row 3 is cut"));
}

TEST_F(TableDamageTest, EveryBeginningOfATableGivesItsWholeRows) {
    for (const int mark : {0x03, 0x30, 0x04}) {
        table.mark = mark;
        table.nameLength = mark == 0x04 ? 32 : 11;
        const std::size_t header = mark == 0x04 ? 68 + 2 * 48 + 1 : headerLength;
        const Text whole = table.bytes();
        for (std::size_t length = 0; length <= whole.size(); ++length) {
            journal.clear();
            const TableCursor rows = opened(whole.substr(0, length));
            const std::size_t wholeRows =
                length < header ? 0 : std::min<std::size_t>((length - header) / rowLength, 3);
            std::vector<Text> expected{"aaaa", "bbbb", "cccc"};
            expected.resize(wholeRows);
            EXPECT_EQ(expected, column(rows, 2)) << length;
            EXPECT_EQ(wholeRows == 3, journal.count() == 0) << length;
            askAll(rows);
        }
    }
}

TEST_F(TableDamageTest, EveryByteOfTheHeaderMayLie) {
    const Text whole = table.bytes();
    for (std::size_t place = 0; place < headerLength; ++place)
        for (int value = 0; value < 256; ++value) {
            Text content = whole;
            content[place] = static_cast<char>(value);
            EXPECT_LE(askAll(opened(content)), whole.size() * whole.size());
        }
}

TEST_F(TableDamageTest, WhereTheRowLengthLiesTheWidthsOfTheFieldsTellIt) {
    for (const std::size_t length : {0U, 1U, 6U, 8U, 70U, 0xFFFFU}) {
        journal.clear();
        table.rowLength = length;
        const TableCursor rows = opened();
        EXPECT_EQ((std::vector<Text>{"1", "2", "3"}), column(rows, 1)) << length;
        EXPECT_EQ((std::vector<Text>{"aaaa", "bbbb", "cccc"}), column(rows, 2)) << length;
        EXPECT_TRUE(journalTells("the widths of the fields don't add up")) << length;
    }
}

// Each lie leaves the header inside the file and its rows cut in the wrong places, of which some would pass
// for flags: the first two places of a row are blank.
TEST_F(TableDamageTest, AHeaderLengthThatPointsIntoTheRowsIsMendedFromTheEndOfTheFile) {
    table.rows.assign(40, "  1aaaa");
    for (const std::size_t length : {1U, 3U, 5U, 7U, 8U, 9U, 100U, 250U}) {
        journal.clear();
        table.headerLength = headerLength + length;
        EXPECT_EQ(std::vector<Text>(40, "1"), column(opened(), 1)) << length;
        EXPECT_TRUE(journalTells("the rows don't begin where the header says")) << length;
    }
}

TEST_F(TableDamageTest, AHeaderThatLiesAboutLengthAndCountGivesNoRows) {
    table.rows.assign(40, "  1aaaa");
    table.rowCount = 1000;
    for (const std::size_t length : {2U, 3U, 5U, 100U}) {
        journal.clear();
        table.headerLength = headerLength + length;
        EXPECT_EQ(0, opened().rowCount()) << length;
        EXPECT_TRUE(journalTells("the rows don't begin where the header says")) << length;
    }
}

TEST_F(TableDamageTest, AFieldThatReachesBeyondTheRowIsEmpty) {
    table.fields[1].width = 9; // 1 + 2 + 9 is 12, but a row has 7
    table.rowLength = rowLength;
    const TableCursor rows = opened();
    EXPECT_EQ((std::vector<Text>{"1", "2", "3"}), column(rows, 1));
    EXPECT_EQ((std::vector<Text>{"", "", ""}), column(rows, 2));
    EXPECT_TRUE(journalTells("the widths of the fields don't add up"));
    EXPECT_TRUE(journalTells("fields that can't be read for their type or width: 1, the first is field 2"));
}

TEST_F(TableDamageTest, WidthsWhoseSumIsBeyondSixteenBitsDoNotWrapRound) {
    // 1 + 2 + 4 + 257 * 255 is 65,542, or 6 in sixteen bits
    table.fields.insert(table.fields.end(), 257, BuiltField{"WIDE", 'N', 255});
    table.rowLength = rowLength;
    const TableCursor rows = opened();
    EXPECT_EQ((std::vector<Text>{"1", "2", "3"}), column(rows, 1));
    EXPECT_EQ((std::vector<Text>{"aaaa", "bbbb", "cccc"}), column(rows, 2));
    EXPECT_EQ("", rows.field("WIDE"));
    EXPECT_TRUE(journalTells("the widths of the fields don't add up"));
}

TEST_F(TableDamageTest, ARowLongerThanItsFieldsIsReadAndTold) {
    table.rowLength = rowLength + 1;
    table.rows = {"  1aaaa?", "  2bbbb?"};
    EXPECT_EQ((std::vector<Text>{"aaaa", "bbbb"}), column(opened(), 2));
    EXPECT_TRUE(journalTells("the widths of the fields don't add up"));
}

TEST_F(TableDamageTest, AHeaderLengthOutsideTheFileGivesNoRows) {
    for (const std::size_t length : {0U, 1U, 31U, 32U, 40U, 0x7FFFU, 0x8000U, 0xFFFFU}) {
        journal.clear();
        table.headerLength = length;
        const TableCursor rows = opened();
        EXPECT_EQ(0, rows.rowCount()) << length;
        EXPECT_GT(journal.count(), 0U) << length;
    }
}

TEST_F(TableDamageTest, AHeaderThatBreaksOffInsideTheFieldListGivesNoRows) {
    table.headerLength = 32 + 32; // the first field alone, and its width fills no row
    EXPECT_EQ(0, opened().rowCount());
    EXPECT_TRUE(journalTells("the list of fields has no end"));
}

TEST_F(TableDamageTest, AFieldListWithoutEndIsReadWhereItFillsTheRow) {
    for (const Text& between : {Text{}, Text(32, '\0'), Text(263, '\0')}) {
        journal.clear();
        table.fieldsEnd = "";
        table.behindFieldsEnd = between;
        const TableCursor rows = opened();
        EXPECT_EQ(2, rows.fieldCount());
        EXPECT_EQ((std::vector<Text>{"aaaa", "bbbb", "cccc"}), column(rows, 2));
        EXPECT_TRUE(journalTells("the list of fields has no end"));
    }
}

TEST_F(TableDamageTest, AFieldOfUnknownTypeIsEmptyAndTheOthersAreRead) {
    table.fields[0].type = '\x01';
    const TableCursor rows = opened();
    EXPECT_EQ((std::vector<Text>{"", "", ""}), column(rows, 1));
    EXPECT_EQ((std::vector<Text>{"aaaa", "bbbb", "cccc"}), column(rows, 2));
    EXPECT_TRUE(journalTells("can't be read for their type or width: 1, the first is field 1"));
}

TEST_F(TableDamageTest, ABinaryFieldOfAnotherWidthIsEmpty) {
    for (const char type : {'I', 'Y', 'T', 'L', 'B'}) {
        journal.clear();
        table.mark = 0x30;
        table.fields[0].type = type; // two places wide, as none of these is
        const TableCursor rows = opened();
        EXPECT_EQ((std::vector<Text>{"", "", ""}), column(rows, 1));
        EXPECT_EQ((std::vector<Text>{"aaaa", "bbbb", "cccc"}), column(rows, 2));
        EXPECT_EQ(1U, journal.count());
    }
}

TEST_F(TableDamageTest, AnEndMarkInFrontOfARowEndsTheTable) {
    table.rows = {"  1aaaa", "\x1A 2bbbb", "  3cccc"};
    EXPECT_EQ((std::vector<Text>{"1"}), column(opened(), 1));
    EXPECT_TRUE(journalTells("the end mark stands in front of row 2"));
}

TEST_F(TableDamageTest, DeletedRowsTakeNoRowNumber) {
    table.rows = {"* 1aaaa", "  2bbbb", "* 3cccc", "  4dddd"};
    TableCursor rows = opened();
    EXPECT_EQ((std::vector<Text>{"2", "4"}), column(rows, 1));
    EXPECT_EQ("2", rows.field("RACE"));
    rows.MoveNext();
    EXPECT_EQ(2, rows.row());
    EXPECT_EQ("4", rows.field("RACE"));
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableDamageTest, ATableOfDeletedRowsIsEmpty) {
    table.rows = {"* 1aaaa", "* 2bbbb"};
    TableCursor rows = opened();
    EXPECT_EQ(0, rows.rowCount());
    EXPECT_TRUE(rows.Eof());
    rows.MoveLast();
    rows.MoveNext();
    EXPECT_TRUE(rows.Eof());
    EXPECT_EQ("", rows.field("RACE"));
}

TEST_F(TableDamageTest, AFlagThatIsNeitherBlankNorStarDeletesNothing) {
    table.rows = {"x 1aaaa", "\0 2bbbb"s, "\xFF 3cccc"};
    EXPECT_EQ((std::vector<Text>{"1", "2", "3"}), column(opened(), 1));
}

TEST_F(TableDamageTest, AMissingFieldIsEmptyAndToldOnceATable) {
    const TableCursor rows = opened();
    for (const TextView name : {"PURSE", "PURSE", "purse", "POSTTIME"}) EXPECT_EQ("", rows.field(name));
    EXPECT_TRUE(journalTells("RACESHR.DBF: no field PURSE"));
    EXPECT_TRUE(journalTells("RACESHR.DBF: no field POSTTIME"));
    EXPECT_EQ(2U, journal.count());
}

} // namespace
} // namespace quillon
