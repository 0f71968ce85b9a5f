#include "tables/track_table_test.h"

namespace quillon {

// ---- Rows ----

TEST_F(TrackTableTest, ARowIsReadByItsColumns) {
    // clang-format off
    //           1         2         3         4         5         6         7
    //  123456789012345678901234567890123456789012345678901234567890123456789012345
    const TrackTable table = trackTableOf(
       " M1 IJKLM:  The Meadowlands, NJ     1.M  1320* xx57.1  remarks and more remarks 13\r\n");
    // clang-format on
    ASSERT_EQ(1U, table.rows.size());
    const TrackRecord& row = table.rows[0];
    EXPECT_EQ("M1 I", row.trackKey); // columns 1 to 5 are " M1 I"
    EXPECT_EQ("  The Meadowlands, NJ     1.M  1320* xx57.1  remarks and more remarks 13", row.trackLine);
    EXPECT_EQ("The Meadowlands, NJ     1.M  1320* xx57.1  remarks an", row.trackName);
    EXPECT_EQ(53U, row.trackName.size());
    EXPECT_EQ("1.M", row.courseSize);
    EXPECT_EQ(1320, row.stretchLength);
    EXPECT_EQ("*", row.stretchFlag);
    EXPECT_EQ(13, row.maxPosts);
    // From its first character that is no blank the row's columns stand one place further left.
    EXPECT_EQ(".M", row.lineCourseSize);
    EXPECT_EQ("67.1", row.linePar); // columns 50 to 53 of the cut row are "7.1 ": below 10, 60 more
}

TEST_F(TrackTableTest, ARowWithoutLeadingBlanksReadsTheSameForCardAndLine) {
    const TrackTable table = trackTableOf(trackRow("NFLD", "1/2", "59.8", "09"));
    ASSERT_EQ(1U, table.rows.size());
    EXPECT_EQ("NFLD", table.rows[0].trackKey);
    EXPECT_EQ("1/2", table.rows[0].courseSize);
    EXPECT_EQ("1/2", table.rows[0].lineCourseSize);
    EXPECT_EQ("59.8", table.rows[0].linePar);
    EXPECT_EQ(990, table.rows[0].stretchLength);
    EXPECT_EQ(9, table.rows[0].maxPosts);
}

struct PostLimitRow {
    const char* what;
    const char* row;
    int expected;
};

TEST_F(TrackTableTest, ThePostLimitIsTheLastTwoCharactersAndTwelveWhenTheySayNothing) {
    const PostLimitRow rows[]{
        {"two digits", "A 10", 10},
        {"one digit", "A  8", 8},
        {"a leading zero", "A 08", 8},
        {"zero", "A 00", 12},
        {"below zero", "A -3", 12},
        {"blanks", "A   ", 12},
        {"no number", "A xy", 12},
        {"a number and a letter", "A 9x", 9},
        {"a row of one character", "A", 12},
        {"a row of one digit", "7", 7},
        {"one horse", "A 01", 1},
        {"a third digit in front", "A110", 10},
        {"after a long row", "A, a track with a very long description that ends in its limit, 11", 11},
    };
    for (const PostLimitRow& row : rows)
        EXPECT_EQ(row.expected, trackTableOf(row.row).rows.at(0).maxPosts) << row.what;
}

TEST_F(TrackTableTest, ABlankOrUnreadableStretchIsNought) {
    const Text front = inField("A", 36) + "1.M" + "  ";
    EXPECT_EQ(0, trackTableOf(front + "    " + "*   57.0 10").rows.at(0).stretchLength);
    EXPECT_EQ(0, trackTableOf(front + "long" + "*   57.0 10").rows.at(0).stretchLength);
    EXPECT_EQ(440, trackTableOf(front + " 440" + "*   57.0 10").rows.at(0).stretchLength);
    EXPECT_EQ(9999, trackTableOf(front + "9999" + "*   57.0 10").rows.at(0).stretchLength);
}

TEST_F(TrackTableTest, NoColumnReachesIntoTheNext) {
    // Digits all along: 37 to 39 are "789", 42 to 45 "2345", 46 "6", 50 to 53 "0123".
    const TrackRecord row =
        trackTableOf("1234567890123456789012345678901234567890123456789012345678").rows.at(0);
    EXPECT_EQ("12345", row.trackKey);
    EXPECT_EQ("789", row.courseSize);
    EXPECT_EQ("789", row.lineCourseSize);
    EXPECT_EQ(2345, row.stretchLength);
    EXPECT_EQ("6", row.stretchFlag);
    EXPECT_EQ("0123", row.linePar);
    EXPECT_EQ(78, row.maxPosts);
}

TEST_F(TrackTableTest, AParBelowTenHasLeftItsMinuteOut) {
    const auto par = [](TextView text) {
        return trackTableOf(trackRow("A", "1.M", text)).rows.at(0).linePar;
    };
    EXPECT_EQ("57.2", par("57.2"));
    EXPECT_EQ("10.0", par("10.0"));
    EXPECT_EQ("69.9", par(" 9.9")); // 9.9 + 60
    EXPECT_EQ("60.4", par("00.4")); // 0.4 + 60
    EXPECT_EQ("", par("    "));     // a blank par is none
}

TEST_F(TrackTableTest, AnOddCourseSizeLosesItsBlanks) {
    EXPECT_EQ("1", trackTableOf(trackRow("A", " 1 ")).rows.at(0).courseSize);
    EXPECT_EQ("1", trackTableOf(trackRow("A", "1  ")).rows.at(0).lineCourseSize);
    EXPECT_EQ("", trackTableOf(trackRow("A", "   ")).rows.at(0).courseSize);
}

TEST_F(TrackTableTest, AShortRowHasOnlyWhatItReachesTo) {
    const TrackRecord row = trackTableOf("YR").rows.at(0);
    EXPECT_EQ("YR", row.trackKey);
    EXPECT_EQ("", row.trackLine);
    EXPECT_EQ("", row.trackName);
    EXPECT_EQ("", row.courseSize);
    EXPECT_EQ("", row.stretchFlag);
    EXPECT_EQ(12, row.maxPosts);
}

TEST_F(TrackTableTest, TheTableEndsAtItsFirstEmptyLine) {
    const TrackTable table = trackTableOf("A    10\r\nB    11\r\n\r\nC    12\r\n");
    EXPECT_EQ(2U, table.rows.size());
    EXPECT_NE(nullptr, table.first("B"));
    EXPECT_EQ(nullptr, table.first("C"));
}

TEST_F(TrackTableTest, ARowOfBlanksIsNoEmptyLine) {
    const TrackTable table = trackTableOf("A    10\r\n   \r\nC    12\r\n");
    EXPECT_EQ(3U, table.rows.size());
    EXPECT_NE(nullptr, table.first("C"));
}

TEST_F(TrackTableTest, LineEndsMayBeOfEitherKindOrMissing) {
    for (const char* content : {"A    10\nB    11\n", "A    10\r\nB    11\r\n", "A    10\r\nB    11"}) {
        const TrackTable table = trackTableOf(content);
        ASSERT_EQ(2U, table.rows.size()) << content;
        EXPECT_EQ(11, table.rows[1].maxPosts) << content;
    }
}

TEST_F(TrackTableTest, AnEmptyFileIsAnEmptyTable) {
    EXPECT_TRUE(trackTableOf("").rows.empty());
    EXPECT_EQ(nullptr, trackTableOf("").first(""));
}

// ---- Look-up ----

TEST_F(TrackTableTest, ATrackListedTwiceHasAFirstAndALastRow) {
    const TrackTable table = trackTableOf("PHL  1\nM1   2\nYR   3\nM1   4\nA    5\nM1   6\n");
    EXPECT_EQ(2, table.first("M1")->maxPosts);
    EXPECT_EQ(6, table.last("M1")->maxPosts);
    EXPECT_EQ(3, table.first("YR")->maxPosts);
    EXPECT_EQ(3, table.last("YR")->maxPosts);
    EXPECT_EQ(nullptr, table.first("M"));
    EXPECT_EQ(nullptr, table.last("ZZ"));
}

TEST_F(TrackTableTest, CaseAndWholeKeysCountInALookUp) {
    const TrackTable table = trackTableOf("Yr   1\nM11  2\n");
    EXPECT_EQ(nullptr, table.first("YR"));
    EXPECT_NE(nullptr, table.first("Yr"));
    EXPECT_EQ(nullptr, table.first("M1"));
}

TEST_F(TrackTableTest, AMissingFileGivesAnEmptyTableAndAFault) {
    readTrackTable();
    EXPECT_TRUE(load.tracks.rows.empty());
    EXPECT_TRUE(journalTells("TrackEditor.ini"));
}

TEST_F(TrackTableTest, TheFileIsReadAgainOnlyWhenAsked) {
    useTracks("A    10\n");
    put("TrackEditor.ini", "A    11\n");
    EXPECT_EQ(10, load.tracks.first("A")->maxPosts);
    readTrackTable();
    EXPECT_EQ(11, load.tracks.first("A")->maxPosts);
    EXPECT_EQ(0U, journal.count());
}

TEST_F(TrackTableTest, TheMeadowlandsHasTwoCodes) {
    EXPECT_EQ("M1", trackKeyOf("M"));
    EXPECT_EQ("M1", trackKeyOf(" M  "));
    EXPECT_EQ("M1", trackKeyOf("M1"));
    EXPECT_EQ("MR", trackKeyOf("MR "));
    EXPECT_EQ("", trackKeyOf("   "));
}

} // namespace quillon
