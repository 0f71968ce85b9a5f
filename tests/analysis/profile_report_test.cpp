#include "analysis/profile_report.h"

#include "analysis/betting_profiles.h"
#include "profile_test.h"

namespace quillon {
namespace {

using ProfileReportTest = ProfileTest;

// clang-format off
const Text heading =
    "              "
    " Races    S1    S2    S3    S4"
    "       Win     Place      Show      E1/2      E1-2    E1/2-3    E1-2-3  E1-2-3-4"
    "    T1/2-3  T1/2-3-4    T1-2-3  S1/2-3-4  S2-1/3-4  S1-2-3-4\r\n";
const Text fiveCounts(30, ' ');
const Text shift(30, ' ');      // in place of column 1
const Text fourCounts(24, ' '); // columns 2 to 5
const Text end = "\r\r\n";
Text bets(std::size_t empty) { return Text(empty * 10, ' '); }
// clang-format on

// Ten races: 120 bet. Win 30.00 x 6 = 180.00, net 60.00, 50 per cent; all others return nothing, -100 per
// cent. No superfecta, so no return on their bets.
TEST_F(ProfileReportTest, AProfileIsWrittenByteForByte) {
    ArchiveCard card;
    card.wins = {"4", "2", "1", "0"};
    card.sums[0] = "30.00";
    archive({card});
    ALL();
    Print2();

    const Text nothing = "       .00";
    const auto all = [](const Text& first, const Text& others, const Text& superfectas) {
        Text row = first;
        for (int bet = 7; bet <= 16; ++bet) row += others;
        for (int bet = 17; bet <= 19; ++bet) row += superfectas;
        return row;
    };
    // clang-format off
    EXPECT_EQ(heading +
        "              " + fiveCounts + bets(14) + end +
        "    Win Amount" + fiveCounts          + all("     30.00", nothing, nothing) + end +
        "  Adjusted Win" + shift + fourCounts  + all("    180.00", nothing, nothing) + end +
        "     Total Bet" + shift + fourCounts  + all("       120", "       120", nothing) + end +
        "    Net Profit" + shift + fourCounts  + all("     60.00", "   -120.00", nothing) + end +
        "           ROI" + shift + fourCounts  + all("     50.0%", "   -100.0%", "          ") + end +
        "              " + shift + fourCounts  + bets(14) + end +
        " Winning Cards" + fiveCounts          + all("         1", "          ", "          ") + end +
        "  1 Race Cards" "    10     4     2     1     0" + bets(14) + end +
        "\r\n"
        "       Win Pct       "
        "              " "         40%   20%   10%    0%" "       70%" + bets(13) + end +
        "\r\n"
        "   M1_20260314" "    10     4     2     1     0" + all("    180.00", nothing, nothing) + end,
        contentOf("Profile Results.txt"));
    // clang-format on
    EXPECT_EQ((std::vector<std::string>{"view: Profile Results.txt"}), shown);
    EXPECT_EQ("NOTEPAD Profile Results.txt\r\n", contentOf("Archives.bat"));
}

// Rows 3 to 7 stand 24 places to the right of the heading.
TEST_F(ProfileReportTest, TheMoneyOfTheShiftedRowsStandsRightOfItsHead) {
    archive({{}});
    ALL();
    Print2();
    const Text report = contentOf("Profile Results.txt");
    const auto columnOf = [&](const Text& label, const Text& figure) {
        const std::size_t line = report.find(label);
        return report.find(figure, line) - report.rfind('\n', line);
    };
    EXPECT_EQ(columnOf("Win Amount", ".00") + 24, columnOf("Adjusted Win", ".00"));
    EXPECT_EQ(columnOf("Win Amount", ".00") + 24, columnOf("Total Bet", "120"));
}

TEST_F(ProfileReportTest, EveryCardHasALine) {
    ArchiveCard older, newer;
    older.key = "   M1_20260101";
    newer.key = "   M1_20260102";
    older.superfectaRaces = newer.superfectaRaces = "113"; // column 20 is not written
    archive({older, newer});
    ALL();
    Print2();
    const Text report = contentOf("Profile Results.txt");
    EXPECT_LT(report.find("\r\n   M1_20260102    10"), report.find("\r\n   M1_20260101    10"));
    EXPECT_EQ(Text::npos, report.find("113"));
    EXPECT_TRUE(report.ends_with("\r\r\n"));
}

TEST_F(ProfileReportTest, AProfileWithoutCardsEndsWithThePercentages) {
    archive({});
    ALL();
    Print2();
    EXPECT_TRUE(
        contentOf("Profile Results.txt")
            .ends_with("\r\r\n\r\n       Win Pct       " + Text(44, ' ') + "        0%" + bets(13) + end));
}

TEST_F(ProfileReportTest, WithoutAProfileTheReportIsItsHeading) {
    Print2();
    EXPECT_EQ(heading, contentOf("Profile Results.txt"));
}

TEST_F(ProfileReportTest, ACancelledReportLeavesTheFileAsItWas) {
    Text archive;
    for (int card = 0; card < 100000; ++card) archive += "   M1\r\n";
    put("HRA.ini", archive);
    ALL();
    put("Profile Results.txt", "of the run before");
    cancelAt(1);
    Print2();
    EXPECT_EQ("of the run before", contentOf("Profile Results.txt"));
    EXPECT_TRUE(shown.empty());
}

} // namespace
} // namespace quillon
