#include "support/card_test.h"
#include "tables/load_state.h"
#include "tables/table_builder.h"

namespace quillon {
namespace {

class SourceLineTest : public CardTest {
protected:
    SourceLineTest() { forget(); }
    ~SourceLineTest() override { forget(); }

    static void forget() { load = {}; }

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
    load.lineRows.openContent(lines().bytes(), "RUNLINHR.DBF");
    ReadSourceLine();
    EXPECT_EQ("101", load.line.HN);
    EXPECT_EQ("M1", load.line.TRACK);
    EXPECT_EQ("\xB0", load.line.CALL_1Q_PK); // two places wide, one mark
    EXPECT_EQ("29", load.line.LEAD_TM_1Q);

    load.lineRows.MoveNext();
    ReadSourceLine();
    EXPECT_EQ("1010", load.line.HN);
    EXPECT_EQ("Sac", load.line.TRACK);
    EXPECT_EQ("\xB0\xB0", load.line.CALL_1Q_PK);
    EXPECT_EQ("-97", load.line.LEAD_TM_1Q);
}

TEST_F(SourceLineTest, AfterTheLastRowTheLineIsEmpty) {
    load.lineRows.openContent(lines().bytes(), "RUNLINHR.DBF");
    ReadSourceLine();
    load.lineRows.MoveLast();
    load.lineRows.MoveNext();
    ReadSourceLine();
    EXPECT_EQ("", load.line.HN);
    EXPECT_EQ("", load.line.CALL_1Q_PK);
}

TEST_F(SourceLineTest, FieldsThatTheTableLacksAreEmptyAndToldOnce) {
    load.lineRows.openContent(lines().bytes(), "RUNLINHR.DBF");
    load.line.PURSE = "left from the card before";
    ReadSourceLine();
    ReadSourceLine();
    EXPECT_EQ("", load.line.PURSE);
    EXPECT_TRUE(journalTells("RUNLINHR.DBF: no field PURSE"));
    EXPECT_EQ(30U, journal.count()); // 34 fields are taken, 4 are there
}

TEST_F(SourceLineTest, ATableWithOtherPlacesForItsFieldsIsReadByItsOwn) {
    load.lineRows.openContent(lines().bytes(), "RUNLINHR.DBF");
    ReadSourceLine();
    const BuiltTable other{.fields = {{"TRACK", 'C', 5}, {"HN", 'N', 4}}, .rows = {" PcD  2002"}};
    load.lineRows.openContent(other.bytes(), "RUNLINHR.DBF");
    ReadSourceLine();
    EXPECT_EQ("PcD", load.line.TRACK);
    EXPECT_EQ("2002", load.line.HN);
}

TEST_F(SourceLineTest, WithoutATableTheLineIsEmpty) {
    load.line.HN = "7";
    ReadSourceLine();
    EXPECT_EQ("", load.line.HN);
    EXPECT_EQ(0U, journal.count());
}

} // namespace
} // namespace quillon
