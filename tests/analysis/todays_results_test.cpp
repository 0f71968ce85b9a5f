#include "summary_test.h"

namespace quillon {
namespace {

constexpr const char* path = "Todays Results.txt";

const std::string rule = std::string(173, '-') + "\r\n";
const std::string emptyReturn = "\r\r\n";

const std::string head =
    "QUILLON Selections\r\n"
    "Tarnbeck Software\r\n"
    "Handicapping for harness racing, trot and pace\r\n"
    "Questions and ideas: the Quillon desk at Tarnbeck Software\r\n"
    "M1 Meadowlands  1.M\r\n"
    "03-14-2026\r\n"
    "\r\n" +
    rule +
    "         Selections        Results\r\n"
    "         S1  S2  S3  S4    R1  R2  R3  R4     Win   Place    Show     E1/2     E1-2   E1/2-3   E1-2-3"
    " E1-2-3-4    T1/2-3  T1/2-3-4    T1-2-3   S1/2-3-4   S1,2/3-4   S1-2-3-4\r\n" +
    rule + emptyReturn;

std::string blanksOf(std::size_t count) { return std::string(count, ' '); }

// The money fields of a line without payoffs: 3 of 8, 5 of 9, 3 of 10, 2 of 11.
const std::string noMoney = blanksOf(24 + 45 + 30 + 22);

// The two lines below the races of a card without wins: seven blanks, then a label field of seven blanks that
// each of the four wins repeats, two blanks, four fields of four, and the sums of 0, which are blanks too.
const std::string emptyTotals = blanksOf(7 + 5 * 7 + 2 + 16) + noMoney + emptyReturn;

const std::string totalsWithoutWins = emptyTotals + rule + emptyReturn + emptyTotals + rule;

std::string racesWithoutData(int count) {
    std::string lines;
    for (int race = 1; race <= count; ++race) {
        // The label, "Race 1" or "Race 10" in seven places, is repeated in place of each missing selection.
        const std::string label = (race < 10 ? " Race " : "Race ") + std::to_string(race);
        lines += label + label + label + label + label + blanksOf(2 + 16) + noMoney + emptyReturn;
    }
    return lines;
}

} // namespace

TEST_F(SummaryTest, ReportOfASmallCard) {
    card.raceCount = 2;
    race(1, {"1", "2", "3", "4"}, {"1", "2", "3", "4"},
         {"5.40", "3.20", "2.40", "4.00", "2.80", "2.60", "12.60", "45.20", "150.40"});
    race(2, {"  5", "  6", " 1A", " 10"}, {"6", "11", "2", ""}, {.winPay = "8.20", .exactaPay = "31.00"});

    SelectionResults();

    // Wins: S1 in race 1, S2 in race 2, one of two races each. S3 and S4 have none, so that their fields
    // repeat those of S2, in the percentages as well.
    EXPECT_EQ(head +
                  " Race 1   1   2   3   4     1   2   3   4    5.40    3.20    2.40"
                  "    12.60    12.60    12.60    12.60    12.60     45.20     45.20     45.20"
                  "     150.40     150.40\r\r\n"
                  " Race 2   5   6  1A  10     6  11   2    " +
                  noMoney + "\r\r\n" + rule +
                  "                 1   1   1   1                      5.40    3.20    2.40"
                  "    12.60    12.60    12.60    12.60    12.60     45.20     45.20     45.20"
                  "     150.40     150.40\r\r\n" +
                  rule + emptyReturn + "               50% 50% 50% 50%                  " + noMoney +
                  "\r\r\n" + rule,
              contentOf(path));
}

TEST_F(SummaryTest, ReportRepeatsTheFieldBeforeAWinCountOfNone) {
    card.raceCount = 4;
    for (int r = 1; r <= 4; ++r) race(r, {"1", "2", "3", "4"}, {"9", "8", "7", "6"});
    race(2, {"1", "2", "3", "4"}, {"3", "8", "7", "6"});

    SelectionResults();

    // S1 and S2 without wins repeat the label's field, seven blanks; S3 has one of four, and S4 repeats it.
    const std::string content = contentOf(path);
    EXPECT_NE(std::string::npos,
              content.find("\n" + blanksOf(7 + 3 * 7) + "   1   1" + blanksOf(2 + 16) + noMoney + "\r\r\n"));
    EXPECT_NE(std::string::npos,
              content.find("\n" + blanksOf(7 + 3 * 7) + " 25% 25%" + blanksOf(2 + 16) + noMoney + "\r\r\n"));
}

TEST_F(SummaryTest, ReportKeepsAPayoffTooLongForItsField) {
    race(1, {"1", "2", "3", "4"}, {"1", "9", "8", "7"}, {.winPay = "123456.80"});
    SelectionResults();
    // Nine characters in a field of eight: what follows moves one place to the right.
    EXPECT_NE(std::string::npos, contentOf(path).find(" Race 1   1   2   3   4     1   9   8   7123456.80" +
                                                      noMoney.substr(8) + "\r\r\n"));
}

TEST_F(SummaryTest, ReportOfACardThatStartsAboveRaceOneHasNoTotals) {
    card.raceOffset = 4;
    card.raceCount = 2;
    SelectionResults();
    EXPECT_EQ(head + racesWithoutData(2) + rule, contentOf(path));
}

TEST_F(SummaryTest, ReportOfACardWithoutRacesHasItsTotals) {
    card.raceCount = 0;
    SelectionResults();
    EXPECT_EQ(head + rule + totalsWithoutWins, contentOf(path));
}

TEST_F(SummaryTest, ReportOfTwentyRacesHasItsTotals) {
    card.raceCount = 20;
    SelectionResults();
    EXPECT_EQ(head + racesWithoutData(20) + rule + totalsWithoutWins, contentOf(path));
}

// Race 21 lies on the row of the totals, which now has a label, and race 22 on the row of the percentages,
// which hasn't.
namespace {

const std::string totalsLabelled =
    blanksOf(7) + "Race 21Race 21Race 21Race 21Race 21" + blanksOf(2 + 16) + noMoney + emptyReturn;

} // namespace

TEST_F(SummaryTest, ReportOfTwentyOneRacesEndsAfterOneSetOfTotals) {
    for (const int offset : {0, 3}) { // of partial cards the one with totals
        card.raceOffset = static_cast<Integer>(offset);
        card.raceCount = 21;
        SelectionResults();
        EXPECT_EQ(head + racesWithoutData(21) + rule + totalsLabelled + rule + emptyReturn + emptyTotals +
                      rule,
                  contentOf(path))
            << offset;
    }
}

TEST_F(SummaryTest, ReportOfTwentyTwoRacesEndsAfterOneSetOfTotals) {
    card.raceCount = 22;
    SelectionResults();
    const std::string race22 = blanksOf(5 * 7 + 2 + 16) + noMoney + emptyReturn;
    EXPECT_EQ(head + racesWithoutData(21) + race22 + rule + totalsLabelled + rule + emptyReturn +
                  emptyTotals + rule,
              contentOf(path));
}

TEST_F(SummaryTest, ReportIsWrittenAnewByEachRun) {
    put(path, std::string(100000, 'x'));
    card.raceOffset = 4;
    SelectionResults();
    EXPECT_EQ(head + racesWithoutData(1) + rule, contentOf(path));
}

TEST_F(SummaryTest, AReportThatCannotBeWrittenStopsNothing) {
    std::filesystem::create_directories(std::filesystem::path{path} / "in the way");
    race(1, {"1", "2", "3", "4"}, {"1", "2", "3", "4"}, {.superfectaPay = "150.40"});
    SelectionResults();
    EXPECT_EQ(1, card.superfectaRaces);
    EXPECT_GE(journal.count(), 1U);
}

} // namespace quillon
