#include "support/card_test.h"
#include "tables/source_tables.h"
#include "tables/table_builder.h"

namespace quillon {
namespace {

class SourceLineTest : public CardTest {
protected:
    SourceLineTest() { forget(); }
    ~SourceLineTest() override { forget(); }

    static void forget() {
        sourceTables = {};
        sourceLine = {};
    }

    static BuiltTable lines() {
        return {
            .fields = {{"HN", 'N', 4}, {"TRACK", 'C', 5}, {"CALL_1Q_PK", 'C', 2}, {"LEAD_TM_1Q", 'N', 5, 1}},
            .rows = {"  101M1   \xB0 "
                     "29.00",
                     " 1010Sac  \xB0\xB0"
                     "  -97"}};
    }
};

TEST_F(SourceLineTest, TheRowIsTakenWithoutTrailingBlanks) {
    sourceTables.lineRows.openContent(lines().bytes(), "RUNLINHR.DBF");
    ReadSourceLine();
    EXPECT_EQ("101", sourceLine.HN);
    EXPECT_EQ("M1", sourceLine.TRACK);
    EXPECT_EQ("\xB0", sourceLine.CALL_1Q_PK); // two places wide, one mark
    EXPECT_EQ("29", sourceLine.LEAD_TM_1Q);

    sourceTables.lineRows.MoveNext();
    ReadSourceLine();
    EXPECT_EQ("1010", sourceLine.HN);
    EXPECT_EQ("Sac", sourceLine.TRACK);
    EXPECT_EQ("\xB0\xB0", sourceLine.CALL_1Q_PK);
    EXPECT_EQ("-97", sourceLine.LEAD_TM_1Q);
}

TEST_F(SourceLineTest, BehindTheLastRowTheLineIsEmpty) {
    sourceTables.lineRows.openContent(lines().bytes(), "RUNLINHR.DBF");
    ReadSourceLine();
    sourceTables.lineRows.MoveLast();
    sourceTables.lineRows.MoveNext();
    ReadSourceLine();
    EXPECT_EQ("", sourceLine.HN);
    EXPECT_EQ("", sourceLine.CALL_1Q_PK);
}

TEST_F(SourceLineTest, FieldsThatTheTableLacksAreEmptyAndToldOnce) {
    sourceTables.lineRows.openContent(lines().bytes(), "RUNLINHR.DBF");
    sourceLine.PURSE = "left from the card before";
    ReadSourceLine();
    ReadSourceLine();
    EXPECT_EQ("", sourceLine.PURSE);
    EXPECT_TRUE(journalTells("RUNLINHR.DBF: no field PURSE"));
    EXPECT_EQ(30U, journal.count()); // 34 fields are taken, 4 are there
}

TEST_F(SourceLineTest, ATableWithOtherPlacesForItsFieldsIsReadByItsOwn) {
    sourceTables.lineRows.openContent(lines().bytes(), "RUNLINHR.DBF");
    ReadSourceLine();
    const BuiltTable other{.fields = {{"TRACK", 'C', 5}, {"HN", 'N', 4}}, .rows = {" PcD  2002"}};
    sourceTables.lineRows.openContent(other.bytes(), "RUNLINHR.DBF");
    ReadSourceLine();
    EXPECT_EQ("PcD", sourceLine.TRACK);
    EXPECT_EQ("2002", sourceLine.HN);
}

TEST_F(SourceLineTest, WithoutATableTheLineIsEmpty) {
    sourceLine.HN = "7";
    ReadSourceLine();
    EXPECT_EQ("", sourceLine.HN);
    EXPECT_EQ(0U, journal.count());
}

} // namespace
} // namespace quillon
