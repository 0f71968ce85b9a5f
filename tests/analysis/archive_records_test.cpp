#include "analysis/archive_records.h"

#include "core/failure.h"
#include "summary_test.h"

#include <vector>

namespace quillon {

class ArchiveRecordsTest : public SummaryTest {
protected:
    /// The ratings and the morning line of S1 that a race's star record is made of.
    static void rate(int race, const Text& s1, const Text& s2, const Text& morningLine) {
        card.selection(race, 1).selectionRating = s1;
        card.selection(race, 2).selectionRating = s2;
        card.selection(race, 1).selectionOdds = morningLine;
    }

    /// The star record of a card of this one race, without its heading and line end.
    static std::string starRecord() {
        std::filesystem::remove("Stars5.ini");
        SelectionResults();
        Record();
        const std::string content = contentOf("Stars5.ini");
        const std::string heading = "M1_20260314\r\n";
        EXPECT_EQ(heading, content.substr(0, heading.size()));
        EXPECT_EQ("\r\n", content.substr(content.size() - 2));
        return content.substr(heading.size(), content.size() - heading.size() - 2);
    }
};

TEST_F(ArchiveRecordsTest, KeyHasTheDateAtPlacesSevenToFourteen) {
    const struct {
        const char* cardFileName;
        const char* key;
    } rows[]{
        // clang-format off
        {"PcDwn_20260314.pmd", "PcDwn_20260314"}, // 18 characters
        {"YonR_20260314.pmd",  " YonR_20260314"}, // 17
        {"ABC_20100312.pmd",   "  ABC_20100312"}, // 16
        {"M1_20260314.pmd",    "   M1_20260314"}, // 15
        {"Z_20260314.pmd",     "    Z_20260314"}, // 14
        {"_20260314.pmd",      "     _20260314"}, // a card without a track
        // Of a ".pmd2" name four characters are taken off too, so that all stands one place to the left.
        {"M1_20260314.pmd2",   "  M1_20260314."},
        {"YonR_20260314.pmd2", "YonR_20260314."},
        {"PcDwn_20260314.pmd2", "PcDwn_20260314"}, // no more than the 14 places
        // clang-format on
    };
    for (const auto& row : rows) EXPECT_EQ(row.key, archiveKey(row.cardFileName)) << row.cardFileName;
}

TEST_F(ArchiveRecordsTest, NoCardHasNoKey) {
    EXPECT_FALSE(attempt([] { archiveKey(""); }));
}

TEST_F(ArchiveRecordsTest, ACardIsArchivedByTrackAndDateOfALine) {
    const struct {
        const char* what;
        const char* archive;
        const char* cardFileName;
        bool archived;
    } rows[]{
        // clang-format off
        {"its line",            "   M1_20260314 12\r\n",             "M1_20260314.pmd", true},
        {"its line is the last","  ABC_20260314 12\r\n   M1_20260314", "M1_20260314.pmd", true},
        {"LF alone",            "   M1_20260313\n   M1_20260314\n",  "M1_20260314.pmd", true},
        {"moved by hand",       " M1   20260314",                    "M1_20260314.pmd", true},
        {"another track",       "   M2_20260314 12\r\n",             "M1_20260314.pmd", false},
        {"another date",        "   M1_20260315 12\r\n",             "M1_20260314.pmd", false},
        {"part of a track",     "  M1X_20260314 12\r\n",             "M1_20260314.pmd", false},
        {"another case",        "   m1_20260314 12\r\n",             "M1_20260314.pmd", false},
        {"one place off",       "  M1_20260314 12\r\n",              "M1_20260314.pmd", false},
        {"torn line",           "   M1_202603",                      "M1_20260314.pmd", false},
        {"empty line",          "\r\n\r\n",                          "M1_20260314.pmd", false},
        {"empty file",          "",                                  "M1_20260314.pmd", false},
        {"five letters",        "PcDwn_20260314 12\r\n",             "PcDwn_20260314.pmd", true},
        {"partial, not saved",  "  M1_20260314. 12\r\n",             "M1_20260314.pmd2", true},
        {"partial, saved",      "   M1_20260314 12\r\n",             "M1_20260314.pmd2", true},
        // clang-format on
    };
    for (const auto& row : rows) {
        put("HRA.ini", row.archive);
        EXPECT_EQ(row.archived, isArchived(row.cardFileName)) << row.what;
    }
}

TEST_F(ArchiveRecordsTest, NoArchiveHoldsNoCard) {
    EXPECT_FALSE(isArchived("M1_20260314.pmd"));
    EXPECT_EQ(0U, journal.count());
}

TEST_F(ArchiveRecordsTest, WritesTheCardsTotalsByPlace) {
    card.raceCount = 2;
    // 1-2-3-4 hits every bet; 2-1-3-4 hits E1-2, E1-2-3, E1-2-3-4, T1-2-3, S2-1/3-4 and S1-2-3-4.
    race(1, {"1", "2", "3", "4"}, {"1", "2", "3", "4"},
         {"5.40", "3.20", "2.40", "", "", "", "10.00", "100.00", "1000.00"});
    race(2, {"1", "2", "3", "4"}, {"2", "1", "3", "4"},
         {"9.00", "", "", "4.10", "2.20", "", "20.50", "200.50", "2000.50"});
    rate(1, "58.0", "59.0", " 5/2");
    rate(2, "58.0", "59.0", " 5/2");

    SelectionResults();
    Record();

    EXPECT_EQ("   M1_20260314" //   1 key
              "  2"            //  15 races
              "    1"          //  18 wins of S1
              "    1"          //  23 of S2
              "    0"          //  28 of S3
              "    0"          //  33 of S4
              "     5.40"      //  38 Win
              "     7.30"      //  47 Place, 3.20 + 4.10
              "     4.60"      //  56 Show, 2.40 + 2.20
              "    10.00"      //  65 E1/2
              "    30.50"      //  74 E1-2
              "    10.00"      //  83 E1/2-3
              "    30.50"      //  92 E1-2-3
              "    30.50"      // 101 E1-2-3-4
              "   100.00"      // 110 T1/2-3
              "   100.00"      // 119 T1/2-3-4
              "   300.50"      // 128 T1-2-3
              "   1000.00"     // 137 S1/2-3-4
              "   3000.50"     // 147 S1-2-3-4
              "   3000.50"     // 157 S2-1/3-4
              "  2"            // 167 races that paid a superfecta
              "\r\n",
              contentOf("HRA.ini"));
    EXPECT_EQ(169U + 2, contentOf("HRA.ini").size());
}

// With race 1 a 1-2-3-4 and nothing else, S1-2-3-4 and S2-1/3-4 are level; this card tells them apart.
TEST_F(ArchiveRecordsTest, TheBoxOfFourStandsBeforeTheTwoOnTop) {
    race(1, {"1", "2", "3", "4"}, {"3", "1", "2", "4"}, {.superfectaPay = "777.00"});
    rate(1, "58.0", "59.0", " 5/2");
    SelectionResults();
    Record();
    const std::string line = contentOf("HRA.ini");
    EXPECT_EQ("       .00", line.substr(136, 10)); // S1/2-3-4
    EXPECT_EQ("    777.00", line.substr(146, 10)); // S1-2-3-4
    EXPECT_EQ("       .00", line.substr(156, 10)); // S2-1/3-4
    EXPECT_EQ("  1", line.substr(166, 3));
}

TEST_F(ArchiveRecordsTest, ASumTooLongForItsFieldStaysWhole) {
    race(1, {"1", "2", "3", "4"}, {"1", "9", "8", "7"}, {.winPay = "1234567.00"});
    rate(1, "58.0", "59.0", " 5/2");
    SelectionResults();
    Record();
    EXPECT_EQ("1234567.00      .00", contentOf("HRA.ini").substr(37, 19));
}

TEST_F(ArchiveRecordsTest, ACardIsRecordedOnce) {
    rate(1, "58.0", "59.0", " 5/2");
    for (const char* name : {"M1_20260314.pmd", "YonR_20260314.pmd2"}) {
        card.cardFileName = name;
        SelectionResults();
        EXPECT_TRUE(screen.record.enabled) << name;
        Record();
        EXPECT_FALSE(screen.record.enabled) << name;
        SelectionResults();
        EXPECT_FALSE(screen.record.enabled) << name;
    }
}

TEST_F(ArchiveRecordsTest, RecordsAreAddedAfterWhatIsThere) {
    const std::string earlier = "   M1_20260313  9\r\n";
    put("HRA.ini", earlier);
    put("Stars5.ini", "M1_20260313\r\n");
    rate(1, "58.0", "59.0", " 5/2");
    SelectionResults();
    Record();
    EXPECT_EQ(earlier + "   M1_20260314  1", contentOf("HRA.ini").substr(0, earlier.size() + 17));
    EXPECT_EQ("M1_20260313\r\nM1_20260314\r\n", contentOf("Stars5.ini").substr(0, 26));
}

TEST_F(ArchiveRecordsTest, ATornLastLineDoesNotMergeWithTheNext) {
    put("HRA.ini", "   M1_20260313  9    1");
    put("Stars5.ini", "M1_20260313\r\n                1 ");
    rate(1, "58.0", "59.0", " 5/2");
    SelectionResults();
    Record();
    EXPECT_EQ("   M1_20260313  9    1\r\n   M1_20260314  1", contentOf("HRA.ini").substr(0, 41));
    EXPECT_EQ("M1_20260313\r\n                1 \r\nM1_20260314\r\n", contentOf("Stars5.ini").substr(0, 46));
}

TEST_F(ArchiveRecordsTest, WritesAHeadingAndALineARace) {
    card.raceCount = 10;
    for (int r = 1; r <= 10; ++r) {
        race(r, {"1", "2", "3", "4"}, {"9", "8", "7", "6"});
        rate(r, "58.0", "63.3", " 5/2");
    }
    race(10, {"1", "2", "3", "4"}, {"1A", "8", "7", "6"}, {.winPay = "5.40"});
    SelectionResults();
    Record();

    // Race at 16, margin 63.3 less 58.0 at 24, odds 5 by 2 at 34, morning line at 41, bet at 51; the winner's
    // return, 6 times 5.40, at 60, and his 1 at 68.
    std::string expected = "M1_20260314\r\n";
    for (const char digit : TextView{"123456789"})
        expected += std::string("                ") + digit + "        5.3      2.50   5/2      12.00\r\n";
    expected += "               10        5.3      2.50   5/2      12.00     32.40  1\r\n";
    EXPECT_EQ(expected, contentOf("Stars5.ini"));
}

TEST_F(ArchiveRecordsTest, MarginsAreCutAndShownWithOneDecimal) {
    const struct {
        const char* s1;
        const char* s2;
        const char* field; ///< places 24 to 29
    } rows[]{
        // clang-format off
        {" 58.0", " 58.0", "    . "}, // level is 0.01, cut to "0.0"
        {"60.1",  "70.0",  "  9.9 "}, // the double is just below 9.9; its text is not
        {"60.0",  "70.3",  " 10.3 "}, // four characters from 10 on
        {"60.0",  "72",    "  12. "},
        {"60.0",  "61.0",  "   1. "},
        {"60.0",  "60.5",  "   .5 "},
        {"60.2",  "60.3",  "    . "}, // 0.0999999999999943 is cut to "0.0"
        {"58.0",  "99.9",  " 41.9 "},
        {"60.0",  "160.0", " 100. "}, // fills its six places
        {"",      "",      "    . "},
        {"61.5",  "60.0",  "  -1. "}, // "-1.5" is cut to "-1."
        // clang-format on
    };
    race(1, {"1", "2", "3", "4"}, {"9", "8", "7", "6"});
    for (const auto& row : rows) {
        rate(1, row.s1, row.s2, " 5/2");
        EXPECT_EQ("                1      " + std::string{row.field} + "     2.50   5/2      12.00",
                  starRecord())
            << row.s2 << " less " << row.s1;
    }
}

TEST_F(ArchiveRecordsTest, OddsAreTheMorningLineAsANumber) {
    const struct {
        const char* morningLine;
        const char* field; ///< places 34 to 44: odds, two blanks, the line as stored
    } rows[]{
        // clang-format off
        {"10/1", "10.00  10/1"},
        {" 5/2", " 2.50   5/2"},
        {" 9/5", " 1.80   9/5"},
        {" 8/3", " 2.67   8/3"}, // 2.66666... is cut to "2.666"
        {" 1/9", "  .11   1/9"}, // 0.1111... is cut to "0.111"
        {"35/3", "11.66  35/3"}, // 11.6666... is cut to "11.66"
        {"3/12", " 1.50  3/12"}, // the last digit alone divides
        // clang-format on
    };
    race(1, {"1", "2", "3", "4"}, {"9", "8", "7", "6"});
    for (const auto& row : rows) {
        rate(1, "58.0", "63.3", row.morningLine);
        EXPECT_EQ("                1        5.3     " + std::string{row.field} + "      12.00", starRecord());
    }
}

TEST_F(ArchiveRecordsTest, AWinnerHasHisReturnAndAOne) {
    const std::string start = "                1        5.3      2.50   5/2      12.00";
    const struct {
        const char* what;
        const char* finisher;
        const char* winPay;
        const char* end;
    } rows[]{
        {"won", "1", "5.40", "     32.40  1"},
        {"won, padded", "  1", "2.10", "     12.60  1"},
        {"won, coupled", "1A", "5.40", "     32.40  1"},
        {"a hundred and more moves the 1", "1", "17.00", "     102.00  1"},
        {"won, not paid", "1", "", "       .00  1"},
        {"second", "2", "5.40", ""},
        {"no result", "", "5.40", ""},
    };
    rate(1, "58.0", "63.3", " 5/2");
    for (const auto& row : rows) {
        race(1, {"1", "2", "3", "4"}, {row.finisher, "1", "7", "6"}, {.winPay = row.winPay});
        EXPECT_EQ(start + row.end, starRecord()) << row.what;
    }
}

TEST_F(ArchiveRecordsTest, ARaceThatCannotBeToldEndsTheStarRecordsOfTheCard) {
    card.raceCount = 3;
    for (int r = 1; r <= 3; ++r) {
        race(r, {"1", "2", "3", "4"}, {"9", "8", "7", "6"});
        rate(r, "58.0", "63.3", " 5/2");
    }
    for (const char* unreadable : {"", "   5", "5/10"}) { // no "/", and a last digit of 0
        rate(2, "58.0", "63.3", unreadable);
        EXPECT_EQ("                1        5.3      2.50   5/2      12.00", starRecord()) << unreadable;
        EXPECT_FALSE(screen.record.enabled); // the archive has the card
    }
}

TEST_F(ArchiveRecordsTest, ACardOfNoRacesHasNoStarRecords) {
    card.raceCount = 0;
    SelectionResults();
    Record();
    EXPECT_EQ("   M1_20260314  0", contentOf("HRA.ini").substr(0, 17));
    EXPECT_FALSE(exists("Stars5.ini"));
}

TEST_F(ArchiveRecordsTest, WithoutACardNothingIsRecorded) {
    card.cardFileName.clear();
    SelectionResults();
    EXPECT_FALSE(attempt(Record));
    EXPECT_FALSE(exists("HRA.ini"));
    EXPECT_FALSE(exists("Stars5.ini"));
}

TEST_F(ArchiveRecordsTest, AnArchiveThatCannotBeWrittenLeavesRecordAvailable) {
    std::filesystem::create_directory("HRA.ini");
    rate(1, "58.0", "59.0", " 5/2");
    SelectionResults();
    EXPECT_FALSE(attempt(Record));
    EXPECT_TRUE(screen.record.enabled);
    EXPECT_FALSE(exists("Stars5.ini"));
}

} // namespace quillon
