#include "support/card_test.h"
#include "tables/table_builder.h"
#include "tables/table_cursor.h"

namespace quillon {
namespace {

class TableCursorTest : public CardTest {
protected:
    // The entries of two races: a race number of two places, a name of ten, odds of five with one decimal.
    static BuiltTable entries() {
        return {.fields = {{"RACE", 'N', 2}, {"HORSE_NAME", 'C', 10}, {"ODDS", 'N', 5, 1}},
                .rows = {"  1"
                         "Ada       "
                         "  2.5",
                         "  1"
                         "Bo Jo     "
                         " 29.0",
                         " 12"
                         "Cy        "
                         "  0.3"}};
    }

    static TableCursor opened(const BuiltTable& table) {
        TableCursor cursor;
        cursor.openContent(table.bytes(), "HORSEHR.DBF");
        return cursor;
    }
};

TEST_F(TableCursorTest, RowsAreReadForwardInStoredOrder) {
    TableCursor rows = opened(entries());
    std::vector<Text> names;
    for (; !rows.Eof(); rows.MoveNext()) names.push_back(rows.field("HORSE_NAME"));
    EXPECT_EQ((std::vector<Text>{"Ada       ", "Bo Jo     ", "Cy        "}), names);
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TableCursorTest, AFileOfTheSourceFolderIsFoundInAnyCase) {
    put("A Quillon PRO/TrackMaster ExE Files/horsehr.dbf", entries().bytes());
    TableCursor rows;
    rows.open("HORSEHR.DBF");
    EXPECT_EQ(3, rows.rowCount());
    EXPECT_EQ("1", rows.field("RACE"));
}

TEST_F(TableCursorTest, AfterTheLastRowAllFieldsAreEmpty) {
    TableCursor rows = opened(entries());
    rows.MoveLast();
    EXPECT_EQ(3, rows.row());
    EXPECT_FALSE(rows.Eof());
    EXPECT_EQ("12", rows.field("RACE"));
    for (int i = 0; i < 2; ++i) { // it stays there
        rows.MoveNext();
        EXPECT_TRUE(rows.Eof());
        EXPECT_EQ(4, rows.row());
        EXPECT_EQ("", rows.field("RACE"));
    }
    rows.MoveFirst();
    EXPECT_EQ(1, rows.row());
    EXPECT_EQ("Ada       ", rows.field(2));
}

TEST_F(TableCursorTest, TheWholeTableIsThereByRowAndField) {
    const TableCursor rows = opened(entries());
    EXPECT_EQ(3, rows.rowCount());
    EXPECT_EQ(3, rows.fieldCount());
    EXPECT_EQ("HORSE_NAME", rows.fieldName(2));
    EXPECT_EQ("29", rows.field(2, 3));
    EXPECT_EQ("0.3", rows.field(3, 3));
    for (const int row : {-1, 0, 4}) EXPECT_EQ("", rows.field(row, 1));
    for (const int number : {-1, 0, 4}) EXPECT_EQ("", rows.field(1, number));
    for (const int number : {-1, 0, 4}) EXPECT_EQ("", rows.fieldName(number));
}

TEST_F(TableCursorTest, RowsBeforeItsBeginningAreLeftOut) {
    TableCursor rows = opened(entries());
    rows.MoveLast();
    rows.beginAt(2);
    EXPECT_EQ(1, rows.row());
    EXPECT_EQ(2, rows.rowCount());
    EXPECT_EQ("Bo Jo     ", rows.field("HORSE_NAME"));
    EXPECT_EQ("12", rows.field(2, 1));
    rows.beginAt(2); // counted from the new beginning
    EXPECT_EQ(1, rows.rowCount());
    EXPECT_EQ("Cy        ", rows.field("HORSE_NAME"));
}

TEST_F(TableCursorTest, ABeginningAtOrBeforeTheFirstRowLeavesTheTableWhole) {
    for (const int row : {1, 0, -1}) {
        TableCursor rows = opened(entries());
        rows.MoveLast();
        rows.beginAt(row);
        EXPECT_EQ(3, rows.rowCount()) << row;
        EXPECT_EQ(1, rows.row()) << row;
        EXPECT_EQ("Ada       ", rows.field("HORSE_NAME")) << row;
    }
}

TEST_F(TableCursorTest, ABeginningAfterTheLastRowLeavesNone) {
    for (const int row : {4, 5, 1000}) {
        TableCursor rows = opened(entries());
        rows.beginAt(row);
        EXPECT_EQ(0, rows.rowCount()) << row;
        EXPECT_TRUE(rows.Eof()) << row;
        EXPECT_EQ("", rows.field("HORSE_NAME")) << row;
        rows.beginAt(1);
        EXPECT_TRUE(rows.Eof()) << row;
    }
    TableCursor none;
    none.beginAt(3);
    EXPECT_TRUE(none.Eof());
}

TEST_F(TableCursorTest, FieldNamesIgnoreCaseAndTheFirstOfTwoWins) {
    const TableCursor rows =
        opened({.fields = {{"Race", 'N', 2}, {"RACE", 'N', 2}, {"race", 'N', 2}}, .rows = {"  1 2 3"}});
    for (const TextView name : {"RACE", "race", "Race", "rACE"}) EXPECT_EQ("1", rows.field(name));
    EXPECT_EQ(1, rows.fieldNumber("race"));
    EXPECT_EQ("2", rows.field(2)); // the others are there by their number
    EXPECT_EQ(0, rows.fieldNumber("RACE2"));
}

TEST_F(TableCursorTest, AFieldIsPutInATextThatIsThereWithoutItsTrailingBlanks) {
    const TableCursor rows = opened(entries());
    Text text = "something longer than a name";
    rows.trimmedFieldTo(text, 2);
    EXPECT_EQ("Ada", text);
    rows.trimmedFieldTo(text, 0);
    EXPECT_EQ("", text);
}

TEST_F(TableCursorTest, ASerialTellsOneTableFromAnother) {
    const TableCursor first = opened(entries());
    const TableCursor second = opened(entries());
    EXPECT_EQ(0U, TableCursor{}.serial());
    EXPECT_NE(0U, first.serial());
    EXPECT_NE(first.serial(), second.serial());
}

} // namespace
} // namespace quillon
