#include "source/table_builder.h"
#include "source/table_cursor.h"
#include "support/card_test.h"

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

TEST_F(TableCursorTest, BehindTheLastRowAllFieldsAreEmpty) {
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

} // namespace
} // namespace quillon
