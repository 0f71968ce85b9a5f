#include "results/auto_record.h"

#include "results_test.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

// Payoffs stand at the end of a finisher's line, six characters each. Race 1 is a plain race, race 2 a dead
// heat for first, race 3 one for second.
constexpr std::string_view sampleText = "Results - The Meadowlands\r\n"
                                        "Saturday March 14, 2026\r\n"
                                        "Race: 1\r\n"
                                        "1st  5 Fast Nellie 12.40  5.20  3.10\r\n"
                                        "2nd  2 Slow Bill  4.60  2.80\r\n"
                                        "3rd  7 Third Hope  2.10\r\n"
                                        "4th  1 Old Tom\r\n"
                                        "Exacta 5-2    24.60\r\n"
                                        "Trifecta 5-2-7   130.40\r\n"
                                        "Superfecta 5-2-7-1    812.40\r\n"
                                        "Race: 2\r\n"
                                        "1st 10 Big Ben  3.20  2.60  2.10\r\n"
                                        "1st  3 Late Lady  6.40  4.20  3.00\r\n"
                                        "3rd  4 Last Man  2.40\r\n"
                                        "D/D         5/10      38.20\r\n"
                                        "Race: 3\r\n"
                                        "1st  6 Sam A  8.80  4.00  3.60\r\n"
                                        "2nd  1 Ann  4.60  2.80\r\n"
                                        "2nd  9 Eve  5.60  3.20\r\n"
                                        "4th  8 Zoe\r\n"
                                        "Pick 3    5/3,10/6 3 of 3 412.80\r\n"
                                        "Refund: 4\r\n";

class WordLayoutTest : public ResultsPassTest {
protected:
    static void recordText(std::string_view text) {
        putResults(text);
        EBET();
    }
    static void recordRace(int race, std::string_view lines) {
        recordText("Race: " + std::to_string(race) + "\n" + std::string{lines});
    }
    // As a recall runs it: race 1 is on show, and the counters are those of the run before.
    static void recallText(std::string_view text) {
        putResults(text);
        screen.header.race = "1";
        AutoRecord2();
    }
    static void clearCounts() {
        card.winHeat.clear();
        card.placeHeat.clear();
    }
};

TEST_F(WordLayoutTest, APlainRaceIsReadWhole) {
    recordText(sampleText);
    EXPECT_TRUE(shown.empty());
    EXPECT_EQ(0U, journal.count()); // nothing of a text in good order fails
    EXPECT_EQ((Filled{"5=  5", "6=  2", "7=  7", "8=  1"}), outcome(1));
    // 1st: the last 20 are "ie 12.40  5.20  3.10": after the name " 12.40  5.20  3.10", the point fourth, so
    // six and six and the last six. 2nd: "  4.60  2.80", the point fourth. 3rd: "e  2.10", the "e" off: the
    // point fourth, six characters. Exacta: 19 characters, the last five. Trifecta: 23, the last six.
    // Superfecta: 28, the last seven.
    EXPECT_EQ((Filled{"1= 12.40", "2=  5.20", "3=  3.10", "4=  4.60", "5=  2.80", "6=  2.10", "7=24.60",
                      "8=130.40", "9= 812.40"}),
              payoffs(1));
    EXPECT_EQ(1, card.winHeat(1));
    EXPECT_EQ(1, card.placeHeat(1));
}

TEST_F(WordLayoutTest, ADeadHeatForFirstFillsTheSecondsPlaceAndCellTwenty) {
    recordText(sampleText);
    EXPECT_EQ(2, card.winHeat(2));
    EXPECT_EQ((Filled{"5= 10", "6=  3", "7=  4"}), outcome(2));
    // the other winner's Win in 20, his Place and Show in 4 and 5; the D/D line in 11 as it stands
    EXPECT_EQ((Filled{"1=  3.20", "2=  2.60", "3=  2.10", "4=  4.20", "5=  3.00", "6=  2.40",
                      "11=D/D         5/10      38.20", "20=  6.40"}),
              payoffs(2));
}

TEST_F(WordLayoutTest, ADeadHeatForSecondFillsTheThirdsPlaceAndCellTwenty) {
    recordText(sampleText);
    EXPECT_EQ(2, card.placeHeat(3));
    EXPECT_EQ((Filled{"5=  6", "6=  1", "7=  9", "8=  8"}), outcome(3));
    EXPECT_EQ((Filled{"1=  8.80", "2=  4.00", "3=  3.60", "4=  4.60", "5=  2.80", "6=  3.20", "10=Refund: 4",
                      "20=  5.60"}),
              payoffs(3));
}

TEST_F(WordLayoutTest, TheUsersPassFilesDoublesAndPicks) {
    recordText(sampleText);
    // D/D: what stands after column 16, "      38.20"
    EXPECT_EQ("    38.20", card.pickPayoff(2, 2));
    // Pick 3: "of" stands at 22, so nine characters from column 11 on are the pool, "5/3,10/6 ", and the last
    // 32 - 22 - 4 the payoff. The legs begin two races back, at race 1, over those of the double.
    EXPECT_EQ("   412.80", card.pickPayoff(3, 3));
    EXPECT_EQ("5", card.pickLegs(1, 1));
    EXPECT_EQ("3", card.pickLegs(2, 1));
    EXPECT_EQ("10", card.pickLegs(2, 2));
    EXPECT_EQ("6", card.pickLegs(3, 1));
}

TEST_F(WordLayoutTest, TheUsersPassEndsWithRaceOneShownWhole) {
    card.raceInfo(1).purse = "9000";
    card.raceOutcome(1, 1) = "  5";
    card.recallMode = "R";
    recordText(sampleText);
    EXPECT_EQ("RX", card.recallMode);
    EXPECT_EQ("1", screen.header.race);
    EXPECT_EQ(1, cursor.race);
    EXPECT_EQ("$ 9000", screen.header.purse);
    EXPECT_EQ("  5", screen.boxes[0].text);
    EXPECT_EQ("  5", screen.boxes[4].text);
    EXPECT_EQ(" 12.40", screen.tote[1]);
    EXPECT_EQ((std::array<Text, 4>{"  5", "  2", "  7", "  1"}), screen.finishLabels);
    EXPECT_TRUE(screen.raceButtons[1].current);
}

TEST_F(WordLayoutTest, RunTwiceTheUsersPassGivesTheSame) {
    recordText(sampleText);
    const auto first = payoffs(2);
    EBET();
    EXPECT_EQ(first, payoffs(2));
    EXPECT_EQ(2, card.winHeat(2));
    EXPECT_EQ((Filled{"5= 10", "6=  3", "7=  4"}), outcome(2));
}

TEST_F(WordLayoutTest, TheQuietPassReadsTheSameButNoPools) {
    recallText(sampleText);
    EXPECT_EQ("RX", card.recallMode);
    EXPECT_EQ((Filled{"1= 12.40", "2=  5.20", "3=  3.10", "4=  4.60", "5=  2.80", "6=  2.10", "7=24.60",
                      "8=130.40", "9= 812.40"}),
              payoffs(1));
    EXPECT_EQ(2, card.winHeat(2));
    EXPECT_EQ(2, card.placeHeat(3));
    EXPECT_EQ("D/D         5/10      38.20", card.payoffRecord(2, 11));
    for (int race = 0; race < raceExtent; ++race) {
        EXPECT_EQ("", card.pickLegs(race, 1)) << race;
        for (const int count : {2, 3}) EXPECT_EQ("", card.pickPayoff(race, count)) << race;
    }
    EXPECT_EQ("  5", screen.boxes[4].text); // race 1 is on show
    EXPECT_EQ(" 12.40", screen.tote[1]);
    EXPECT_EQ(1, cursor.race);
}

TEST_F(WordLayoutTest, RunAgainTheQuietPassCountsOn) {
    recallText(sampleText);
    recallText(sampleText);
    EXPECT_EQ(2, card.winHeat(1));
    EXPECT_EQ(4, card.winHeat(2));
    // race 1's "1st" and "2nd" lines are its second ones now: number 5 is the other winner too, and cell 20
    // takes first the Win payoff, then the Place payoff of the second
    EXPECT_EQ("  5", card.raceOutcome(1, 6));
    EXPECT_EQ("  4.60", card.payoffRecord(1, 20));
    EXPECT_TRUE(screen.boxTenVisible);
    EXPECT_EQ(2, screen.boxTenColumn);
}

// ---- the file and the check

TEST_F(WordLayoutTest, WithoutAFileBothPassesLeaveTheBoardAsItWas) {
    screen.boxes[4].text = "typed";
    card.winHeat(2) = 2;
    AutoRecord2();
    EXPECT_EQ(2, card.winHeat(2));
    EBET();
    EXPECT_EQ(0, card.winHeat(2));
    EXPECT_EQ("4", screen.header.race);
    EXPECT_EQ("typed", screen.boxes[4].text);
    EXPECT_EQ("RX", card.recallMode);
    EXPECT_TRUE(shown.empty());
}

TEST_F(WordLayoutTest, WithNoCardOpenNothingHappens) {
    card.cardFileName.clear();
    put("A Quillon PRO/Results/.pmr", sampleText);
    EBET();
    AutoRecord2();
    EXPECT_EQ("4", screen.header.race);
    EXPECT_EQ(Filled{}, payoffs(1));
}

struct DateRow {
    const char* what;
    const char* text;
    const char* told; ///< the day built from the text; none where it passes
};
constexpr std::array dateRows{
    DateRow{"the card's own day", "Results\nMarch 14, 2026\n", nullptr},
    DateRow{"words in front", "Results\nSaturday March 14, 2026\n", nullptr},
    DateRow{"in the heading itself", "Results for March 14, 2026\n", nullptr},
    DateRow{"another day", "Results\nMarch 15, 2026\n", "M1_20260315"},
    DateRow{"a day of one figure", "Results\nMarch 4, 2026\n", "M1_20260304"},
    DateRow{"January", "Results\nJanuary 14, 2026\n", "M1_20260114"},
    DateRow{"February", "Results\nFebruary 14, 2026\n", "M1_20260214"},
    DateRow{"April", "Results\nApril 14, 2026\n", "M1_20260414"},
    DateRow{"May", "Results\nMay 14, 2026\n", "M1_20260514"},
    DateRow{"June", "Results\nJune 14, 2026\n", "M1_20260614"},
    DateRow{"July", "Results\nJuly 14, 2026\n", "M1_20260714"},
    DateRow{"August", "Results\nAugust 14, 2026\n", "M1_20260814"},
    DateRow{"September", "Results\nSeptember 14, 2026\n", "M1_20260914"},
    DateRow{"October", "Results\nOctober 14, 2026\n", "M1_20261014"},
    DateRow{"November", "Results\nNovember 14, 2026\n", "M1_20261114"},
    DateRow{"December", "Results\nDecember 14, 2026\n", "M1_20261214"},
    DateRow{"of two months the earlier", "Results\nMarch and January 14, 2026\n", "M1_20260114"},
    DateRow{"May needs its blank", "Results\nMayor 15, 2026\n", nullptr},
    DateRow{"a comma after the weekday", "Results\nSaturday, March 14, 2026\n", "M1_202603ay"},
    DateRow{"no comma", "Results\nMarch 14 2026\n", "M1_202603"},
    DateRow{"a blank at the end", "Results\nMarch 14, 2026 \n", "M1_026 0314"},
    DateRow{"a horse of a month's name", "Results\n1st  5 April Love 12.40  5.20  3.10\n", "M1_3.1004"},
    DateRow{"the first such line alone", "Results\nMarch 14, 2026\nApril 1, 2020\n", nullptr},
    DateRow{"in front of the heading", "March 14, 2026\nResults\n", "_20260314"},
    DateRow{"a day without month's name is none", "Results\n2026-03-15\n", nullptr},
};

TEST_F(WordLayoutTest, TheLineWithAMonthsNameMustBeTheCardsDay) {
    for (const DateRow& row : dateRows) {
        shown.clear();
        recordText(row.text);
        if (row.told == nullptr)
            EXPECT_TRUE(shown.empty()) << row.what;
        else
            expectStopped(std::string{"M1_20260314"} + row.told, row.what);
    }
}

TEST_F(WordLayoutTest, AStopKeepsWhatWasSetAndLeavesTheBoardAsItWas) {
    screen.boxes[4].text = "typed";
    recordText("Results\nRace: 1\n1st  5 Nell 12.40  5.20  3.10\nMarch 15, 2026\n4th  8 Zoe\n");
    EXPECT_EQ(3U, shown.size());
    EXPECT_EQ((Filled{"5=  5"}), outcome(1));
    EXPECT_EQ("typed", screen.boxes[4].text);
    EXPECT_EQ("4", screen.header.race);
}

TEST_F(WordLayoutTest, TheQuietPassTellsTheSame) {
    recallText("Results\nMarch 15, 2026\n");
    EXPECT_EQ(3U, shown.size());
}

// ---- races

TEST_F(WordLayoutTest, TheRaceStandsAtColumnsSevenToNine) {
    recordText("4th  1\n" // the race on show
               "Race: 12 Pace\n4th  2\n"
               "The Race:  7\n4th  3\n" // columns 7 to 9 are "ce:", no number: race 0
               "Race: 999\n4th  4\n"    // none of the store's
               "Race: 30\n4th  5\n");
    EXPECT_EQ((Filled{"8=  1"}), outcome(4));
    EXPECT_EQ((Filled{"8=  2"}), outcome(12));
    EXPECT_EQ((Filled{"8=  3"}), outcome(0));
    EXPECT_EQ((Filled{"8=  5"}), outcome(30));
}

// ---- finishers

struct PayoffRow {
    const char* what;
    const char* lines;
    Filled payoffs;
};

// The user's pass looks at the last 20 characters of the first "1st" line, the quiet one at the last 18.
TEST_F(WordLayoutTest, AWinnersPayoffsAreCutByThePlaceOfTheFirstPoint) {
    const std::vector<PayoffRow> rows{
        {"second: four, four, the last six", "1st  5 Nellie .80 .60   .40", {"1= .80", "2= .60", "3=   .40"}},
        {"third: five, six, the last six",
         "1st  5 Nelli 4.40  5.20  3.10",
         {"1= 4.40", "2=  5.20", "3=  3.10"}},
        {"fourth: six, six, the last six",
         "1st  5 Nell  4.40  5.20  3.10",
         {"1=  4.40", "2=  5.20", "3=  3.10"}},
        {"none", "1st  5 Nellie", {}},
        {"short", "1st", {}},
    };
    for (const PayoffRow& row : rows) {
        clearResults();
        recordRace(3, row.lines);
        EXPECT_EQ(row.payoffs, payoffs(3)) << row.what;
        clearResults();
        clearCounts();
        recallText(std::string{"Race: 3\n"} + row.lines);
        EXPECT_EQ(row.payoffs, payoffs(3)) << row.what << ", quietly";
    }
}

TEST_F(WordLayoutTest, AWinPayoffOfThreeFiguresIsReadByTheUsersPassAlone) {
    // the last 20 are "i 112.40 15.20 13.10": the point fifth, so seven, six and the last six
    const std::string text = "Race: 3\n1st  5 Nelli 112.40 15.20 13.10";
    recordText(text);
    EXPECT_EQ((Filled{"1= 112.40", "2= 15.20", "3= 13.10"}), payoffs(3));

    // the last 18 begin with a figure, and with it the Win payoff goes: Place takes its cell
    clearResults();
    clearCounts();
    recallText(text);
    EXPECT_EQ((Filled{"1= 15.20", "2= 13.10", "3= 13.10"}), payoffs(3));

    // a blank more: the last 20 are "  112.40 15.20 13.10", the point sixth, and nothing is cut
    clearResults();
    recordRace(3, "1st  5 Nelli  112.40 15.20 13.10");
    EXPECT_EQ(Filled{}, payoffs(3));
}

TEST_F(WordLayoutTest, ASecondWinnerIsReadFromTheLast18InBothPasses) {
    const std::string lines = "1st  5 Nelli 112.40 15.20 13.10\n1st  3 Billy 112.40 15.20 13.10\n";
    recordRace(3, lines);
    EXPECT_EQ((Filled{"5=  5", "6=  3"}), outcome(3));
    EXPECT_EQ((Filled{"1= 112.40", "2= 15.20", "3= 13.10", "4= 13.10", "5= 13.10", "20= 15.20"}), payoffs(3));
}

TEST_F(WordLayoutTest, AThirdWinnerOrSecondIsOnlyCounted) {
    recordRace(
        3, "1st  1 A\n1st  2 B\n1st  3 C   4.40  5.20  3.10\n2nd  4 D\n2nd  5 E\n2nd  6 F   4.40  5.20\n");
    EXPECT_EQ(3, card.winHeat(3));
    EXPECT_EQ(3, card.placeHeat(3));
    EXPECT_EQ((Filled{"5=  1", "6=  4", "7=  5"}), outcome(3));
    EXPECT_EQ(Filled{}, payoffs(3));
}

TEST_F(WordLayoutTest, TheSecondsPayoffsAreCutFromTheLastTwelve) {
    const std::vector<PayoffRow> rows{
        {"second: the first four and the last", "2nd  2 Bill4.60 2.80", {"4=4.60", "5=2.80"}},
        {"third: five", "2nd  2 Bill 4.60   2.80", {"4= 4.60", "5= 2.80"}},
        {"fourth: six", "2nd  2 Bill  4.60  2.80", {"4=  4.60", "5=  2.80"}},
        {"three figures stand first", "2nd  2 Bill 100.40 25.20", {"4=100.40", "5= 25.20"}},
        {"fifth: none", "2nd  2 Bill 100.40 5.20", {}},
        {"a capital stays, and the point is fifth", "2nd  2 Bill N  4.60 2.80", {}},
    };
    for (const PayoffRow& row : rows) {
        clearResults();
        recordRace(3, row.lines);
        EXPECT_EQ(row.payoffs, payoffs(3)) << row.what;
        EXPECT_EQ((Filled{"6=  2"}), outcome(3)) << row.what;
    }
}

TEST_F(WordLayoutTest, TheThirdsShowIsCutFromTheLastSeven) {
    const std::vector<PayoffRow> rows{
        {"second: four", "3rd  7 Hope2.10", {"6=2.10"}},
        {"third: five", "3rd  7 Hope 2.10", {"6= 2.10"}},
        {"fourth: six", "3rd  7 Hope  2.10", {"6=  2.10"}},
        {"fifth: none", "3rd  7 Hope   2.10", {}},
    };
    for (const PayoffRow& row : rows) {
        clearResults();
        recordRace(3, row.lines);
        EXPECT_EQ(row.payoffs, payoffs(3)) << row.what;
        EXPECT_EQ((Filled{"7=  7"}), outcome(3)) << row.what;
    }
}

// Race 1 is shown as it is read: by the user's pass its payoffs lose one nought in front.
TEST_F(WordLayoutTest, InRaceOneTheUsersPassTakesALeadingZeroOff) {
    const std::string lines = "1st  5 Nell 12.40005.20003.10\n" // " 12.40", "005.20", "003.10"
                              "2nd  2 Bill  4.60002.80\n"       // "  4.60", "002.80"
                              "3rd  7 Hope002.10\n";
    recordRace(1, lines);
    EXPECT_EQ((Filled{"1= 12.40", "2=05.20", "3=03.10", "4=  4.60", "5=02.80", "6=02.10"}), payoffs(1));
    EXPECT_EQ("05.20", screen.tote[2]);

    recordRace(2, lines);
    EXPECT_EQ((Filled{"1= 12.40", "2=005.20", "3=003.10", "4=  4.60", "5=002.80", "6=002.10"}), payoffs(2));

    clearResults();
    clearCounts();
    recallText("Race: 1\n" + lines);
    EXPECT_EQ((Filled{"1= 12.40", "2=005.20", "3=003.10", "4=  4.60", "5=002.80", "6=002.10"}), payoffs(1));
}

TEST_F(WordLayoutTest, ASecondLineOfTheSecondTakesAnotherOffCellFive) {
    recordRace(1, "2nd  2 Bill  4.60002.80\n2nd  9 Eve  5.60003.20\n");
    EXPECT_EQ((Filled{"4=  4.60", "5=2.80", "6=03.20", "20=  5.60"}), payoffs(1));
}

// ---- exotics

struct LengthRow {
    const char* word;
    std::size_t length;
    int cell;
    std::size_t characters; ///< of the end of the line; 0 where the cell stays
};
constexpr std::array lengthRows{
    LengthRow{"Exacta", 17, 7, 0},     LengthRow{"Exacta", 18, 7, 4},     LengthRow{"Exacta", 19, 7, 5},
    LengthRow{"Exacta", 20, 7, 6},     LengthRow{"Exacta", 21, 7, 7},     LengthRow{"Exacta", 22, 7, 7},
    LengthRow{"Exacta", 23, 7, 0},     LengthRow{"Perfecta", 17, 7, 0},   LengthRow{"Perfecta", 18, 7, 4},
    LengthRow{"Perfecta", 22, 7, 7},   LengthRow{"Trifecta", 10, 8, 6},   LengthRow{"Trifecta", 24, 8, 6},
    LengthRow{"Trifecta", 25, 8, 7},   LengthRow{"Trifecta", 26, 8, 8},   LengthRow{"Trifecta", 27, 8, 8},
    LengthRow{"Trifecta", 28, 8, 0},   LengthRow{"Superfecta", 12, 9, 7}, LengthRow{"Superfecta", 28, 9, 7},
    LengthRow{"Superfecta", 29, 9, 8}, LengthRow{"Superfecta", 30, 9, 9}, LengthRow{"Superfecta", 300, 9, 9},
};

TEST_F(WordLayoutTest, TheLengthOfAnExoticsLineTellsHowMuchOfItIsThePayoff) {
    for (const LengthRow& row : lengthRows) {
        clearResults();
        card.payoffRecord(3, row.cell) = "old";
        std::string line = row.word;
        while (line.size() < row.length) line += static_cast<char>('0' + line.size() % 10);
        recordRace(3, line);
        const std::string payoff = row.characters == 0 ? "old" : line.substr(row.length - row.characters);
        EXPECT_EQ(payoff, card.payoffRecord(3, row.cell)) << row.word << " " << row.length;
    }
}

TEST_F(WordLayoutTest, TheFirstWordOfALineCounts) {
    recordRace(3, "Exacta Trifecta 4.60\nSuperfecta, Trifecta D/D\nRefund and D/D\nRefund 4\n");
    // 20 characters: the last six; 24: the last six, none for the superfecta; D/D goes before Refund
    EXPECT_EQ((Filled{"7=a 4.60", "8=ta D/D", "10=Refund 4", "11=Refund and D/D"}), payoffs(3));
}

// ---- doubles and picks

TEST_F(WordLayoutTest, ADoubleNamesItsWinnersAtFixedColumns) {
    recordRace(3, "D/D         5/10      38.2\n");
    EXPECT_EQ(" 5", card.pickLegs(2, 1)); // columns 12 and 13
    EXPECT_EQ("10", card.pickLegs(3, 1)); // columns 15 and 16
    EXPECT_EQ("    38.20", card.pickPayoff(3, 2));
    recordRace(3, "D/D         5/10 $1,038.20");
    EXPECT_EQ(" $1,038.20", card.pickPayoff(3, 2)); // no number: as it stands, the blank too
    EXPECT_EQ("D/D         5/10 $1,038.20", card.payoffRecord(3, 11));
    recordRace(0, "D/D         5/10      38.20\n"); // there is no race in front of race 0
    EXPECT_EQ("10", card.pickLegs(0, 1));
}

struct PickRow {
    const char* line;
    int count;
    const char* payoff;
    std::vector<std::pair<int, const char*>> winners;
    int raceAfter; ///< from race 8
};

TEST_F(WordLayoutTest, APickIsReadAroundItsOf) {
    const std::vector<PickRow> rows{
        {"Pick 3    3/5/1 3 of 3 412.8", 3, "   412.80", {{6, "3"}, {7, "5"}, {8, "1"}}, 8},
        // "of" at 21: eight from column 11, "3/5/1/2 "; the last 33 - 21 - 4 = 8, no number for its comma
        {"Pick 4    3/5/1/2 4 of 4 1,204.60", 4, " 1,204.60", {{5, "3"}, {6, "5"}, {7, "1"}, {8, "2"}}, 8},
        {"Pick 5    3////2 5 of 5 9.00", 5, "     9.00", {{4, "3"}, {8, "2"}}, 8},
        {"Pick 6    3/////2 5 of 6 9.00", 6, "     9.00", {{3, "3"}, {8, "2"}}, 8},
        {"Pick 7    3/5 7 of 7 99.00", 7, "    99.00", {}, 8},
        {"Pick 10   3/5 9 of 9 99.00", 1, "    99.00", {}, 8}, // the digit after "Pick " alone
        // no "of": no pool, and all but four characters are the payoff; two races back and not forward again
        {"Pick 3    3/5/1 99.00", 3, " 3    3/5/1 99.00", {}, 6},
        {"Pick 3 of 3 99.00", 3, "    99.00", {}, 6}, // "of" at 8 leaves no room for a pool
        {"Pick", 0, "         ", {}, 8},
    };
    for (const PickRow& row : rows) {
        clearResults();
        recordRace(8, std::string{row.line} + "\nRefund\n");
        EXPECT_EQ(row.payoff, card.pickPayoff(8, row.count)) << row.line;
        for (const auto& [race, winner] : row.winners)
            EXPECT_EQ(winner, card.pickLegs(race, 1)) << row.line << ", race " << race;
        if (row.winners.empty()) {
            EXPECT_EQ("", card.pickLegs(6, 1)) << row.line;
        }
        EXPECT_EQ("Refund", card.payoffRecord(row.raceAfter, 10)) << row.line;
    }
}

// ---- whatever the file holds

TEST_F(WordLayoutTest, EveryPrefixOfATextIsReadWithoutHarm) {
    for (std::size_t length = 0; length <= sampleText.size(); ++length) {
        clearResults();
        clearCounts();
        shown.clear();
        recordText(sampleText.substr(0, length));
        EXPECT_EQ(shown.empty() ? "1" : "4", screen.header.race) << length;
        EXPECT_EQ(Filled{}, outcome(4)) << length;
        EXPECT_EQ(Filled{}, payoffs(5)) << length;
        // what the whole text gives the winner of race 1 is there as soon as his line is
        if (length >= sampleText.find("2nd")) {
            EXPECT_EQ(" 12.40", card.payoffRecord(1, 1)) << length;
        }

        clearResults();
        clearCounts();
        recallText(sampleText.substr(0, length));
        EXPECT_EQ(Filled{}, payoffs(5)) << length;
    }
}

TEST_F(WordLayoutTest, LinesOfAnyLengthAndBytesOfAnyKindEnd) {
    const std::string letters(100'000, 'n');
    const std::string figures(100'000, '7');
    for (const std::string& line :
         {"1st" + letters, "2nd" + letters, "3rd" + figures, "4th" + figures, "Race:" + figures,
          "Superfecta" + figures, "D/D" + figures, "Pick 3" + figures + " of " + figures,
          figures + "Pick 4 of", "March " + figures + ",", "Results" + letters, anyBytes(200'000, 3),
          anyBytes(200'000, 4), std::string(1000, '\0'),
          std::string{"\xEF\xBB\xBFRace: 3\n1st  5 \xC3\x89toile \xE2\x82\xAC 4.40\n"}}) {
        clearResults();
        recordText(line);
        recallText(line);
        recordRace(3, "Exacta 5-2    24.60\n");
        EXPECT_EQ("24.60", card.payoffRecord(3, 7)); // and the next text is read as ever
    }
}

TEST_F(WordLayoutTest, MoreWinnersThanCanBeCountedAreStillRead) {
    std::string lines;
    for (int line = 0; line < 40'000; ++line) lines += "1st\n";
    recordRace(3, lines + "4th  8 Zoe\n");
    EXPECT_EQ(32767, card.winHeat(3));
    EXPECT_EQ("  8", card.raceOutcome(3, 8));
}

} // namespace
} // namespace quillon
