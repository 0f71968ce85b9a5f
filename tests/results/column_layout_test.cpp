#include "results/auto_record.h"

#include "results_test.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

// The text as it is pasted: race 1 whole, a double and a pick that end in races 2 and 4, and the refunds of
// two scratches after them.
constexpr std::string_view sampleText = "Results of the races\r\n"
                                        "2026-03-14\r\n"
                                        "RACE: 1   Pace  $9,000\r\n"
                                        "PRG HORSE                    WIN    PLACE   SHOW\r\n"
                                        " 5 Fast Nellie             12.40     5.20    3.10\r\n"
                                        " 2 Slow Bill                         4.60    2.80\r\n"
                                        " 7 Third Hope                                2.10\r\n"
                                        "      EXACTA 5-2 paid $24.60\r\n"
                                        "      TRIFECTA 5-2-7 paid $1,234.60\r\n"
                                        "      SUPERFECTA 5-2-7-1 paid $812.40\r\n"
                                        "RACE: 2   Trot\r\n"
                                        "PRG HORSE                    WIN    PLACE   SHOW\r\n"
                                        "10 Big Ben                 3.20     2.60    2.10\r\n"
                                        " 1 Old Tom                           9.80    5.60\r\n"
                                        " 3 Late Lady                                 4.40\r\n"
                                        "      DD 5/10 (5-10) paid $38.20\r\n"
                                        "RACE: 4\r\n"
                                        "      PICK THREE 10/3,4/6 (10-3-6) paid $412.80\r\n"
                                        "REFUNDS: R1         4\r\n"
                                        "REFUNDS: R12       10\r\n";

class ColumnLayoutTest : public ResultsPassTest {
protected:
    static void recordText(std::string_view text) {
        putResults(text);
        AutoRecord();
    }

    // Lines below the heading of race 3.
    static void recordRaceThree(std::string_view lines) { recordText("RACE: 3\r\n" + std::string{lines}); }
};

TEST_F(ColumnLayoutTest, ARaceIsReadWhole) {
    recordText(sampleText);
    EXPECT_TRUE(shown.empty());
    EXPECT_EQ(0U, journal.count()); // nothing of a text in good order fails
    EXPECT_EQ((Filled{"5= 5", "6= 2", "7= 7", "8=1"}), outcome(1));
    // Win: " 5" off, six from the first figure on are "12.40 ". Seven dropped and trimmed: "5.20    3.10", of
    // which the first six are "5.20  " and the last six "  3.10".
    // Second: "4.60  " as cut; then "2.80", shorter than the last five. Third: the last five, " 2.10".
    EXPECT_EQ((Filled{"1= 12.40", "2=  5.20", "3=  3.10", "4=4.60  ", "5=2.80", "6= 2.10", "7=24.60",
                      "8=1234.60", "9=812.40", "10=  4"}),
              payoffs(1));
}

TEST_F(ColumnLayoutTest, FiguresOfTheNextRaceGoToTheNextRace) {
    recordText(sampleText);
    EXPECT_EQ((Filled{"5=10", "6= 1", "7= 3"}), outcome(2));
    EXPECT_EQ((Filled{"1=  3.20", "2=  2.60", "3=  2.10", "4=9.80  ", "5=5.60", "6= 4.40"}), payoffs(2));
    for (const int race : {0, 3, 4, 5}) {
        EXPECT_EQ(Filled{}, outcome(race)) << race;
        EXPECT_EQ(Filled{}, payoffs(race)) << race;
    }
    EXPECT_EQ((Filled{"10= 10"}), payoffs(12));
}

TEST_F(ColumnLayoutTest, DoublesAndPicksFileTheirPayoffAndLegs) {
    recordText(sampleText);
    EXPECT_EQ("38.20", card.pickPayoff(2, 2));
    EXPECT_EQ("5", card.pickLegs(1, 1));
    EXPECT_EQ("412.80", card.pickPayoff(4, 3));
    EXPECT_EQ("10", card.pickLegs(2, 1));
    EXPECT_EQ("3", card.pickLegs(3, 1));
    EXPECT_EQ("4", card.pickLegs(3, 2));
    EXPECT_EQ("6 ", card.pickLegs(4, 1)); // the blank in front of the bracket stays with it
}

TEST_F(ColumnLayoutTest, ThePassEndsWithRaceOneShownWhole) {
    card.raceOutcome(1, 1) = "  5";
    card.raceInfo(1).purse = "9000";
    screen.boxes[0].text = "typed";
    recordText(sampleText);
    EXPECT_EQ("1", screen.header.race);
    EXPECT_EQ(1, cursor.race);
    EXPECT_EQ("$ 9000", screen.header.purse);
    EXPECT_EQ("RACE:  1", screen.tote[0]);
    EXPECT_EQ("  5", screen.boxes[0].text);
    EXPECT_EQ(" 5", screen.boxes[4].text);
    EXPECT_EQ("1", screen.boxes[7].text);
    EXPECT_EQ(" 12.40", screen.tote[1]); // as the cell stands
    EXPECT_EQ("1234.60", screen.tote[8]);
    EXPECT_EQ("  4", screen.refunds);
    EXPECT_TRUE(screen.raceViewVisible[1]);
    EXPECT_TRUE(screen.raceButtons[1].current);
}

TEST_F(ColumnLayoutTest, ItEndsTheRecallAndCountsNoDeadHeats) {
    card.recallMode = "R";
    card.winHeat(1) = 2;
    card.placeHeat(9) = 1;
    recordText(sampleText);
    EXPECT_EQ("RX", card.recallMode);
    EXPECT_EQ(0, card.winHeat(1));
    EXPECT_EQ(0, card.placeHeat(9));
}

TEST_F(ColumnLayoutTest, RunTwiceItListsTheRefundsTwiceAndChangesNothingElse) {
    recordText(sampleText);
    const auto first = payoffs(2);
    AutoRecord();
    EXPECT_EQ("  4  4", card.payoffRecord(1, 10));
    EXPECT_EQ("1234.60", card.payoffRecord(1, 8));
    EXPECT_EQ(first, payoffs(2));
}

TEST_F(ColumnLayoutTest, WithoutAResultsFileItShowsRaceOneAndNothingElse) {
    card.payoffRecord(1, 1) = "4.40";
    AutoRecord();
    EXPECT_TRUE(shown.empty());
    EXPECT_EQ("1", screen.header.race);
    EXPECT_EQ("4.40", screen.tote[1]);
    EXPECT_EQ((Filled{"1=4.40"}), payoffs(1));
}

TEST_F(ColumnLayoutTest, WithNoCardOpenNothingHappens) {
    card.cardFileName.clear();
    put("A Quillon PRO/Results/.pmr", sampleText);
    AutoRecord();
    EXPECT_EQ("4", screen.header.race);
    EXPECT_EQ("", card.recallMode);
    EXPECT_EQ(Filled{}, payoffs(1));
}

TEST_F(ColumnLayoutTest, TheFileIsReadWithEitherLineEnd) {
    std::string text{sampleText};
    std::erase(text, '\r');
    recordText(text);
    EXPECT_EQ("812.40", card.payoffRecord(1, 9));
    EXPECT_EQ(" 10", card.payoffRecord(12, 10));
}

// ---- the check

struct CheckRow {
    const char* what;
    const char* text;
    const char* told; ///< card and text run together; none where the text passes
};
constexpr std::array checkRows{
    CheckRow{"the card's own day", "Results\n2026-03-14\n", nullptr},
    CheckRow{"any two separators", "Results\n2026/03/14\n", nullptr},
    CheckRow{"words in front of the year", "Results\nSaturday 2026-03-14 evening\n", nullptr},
    CheckRow{"another day", "Results\n2026-03-15\n", "M1_20260314M1_20260315"},
    CheckRow{"a day in words", "Results\nMarch 14, 2026\n", "M1_20260314M1_2026"},
    CheckRow{"a figure 2 in front of the year", "Results\n12 2026-03-14\n", "M1_20260314M1_2 206-3-"},
    CheckRow{"no year: month and day stand at 5 and 8", "Results\nabcd1503\n", "M1_20260314M1_153"},
    CheckRow{"nothing of a day", "Results\n\n", nullptr},
    CheckRow{"cut off", "Results", nullptr},
    CheckRow{"no heading", "RACE: 1\n2026-03-15\n", nullptr},
    CheckRow{"a heading that doesn't begin its line", " Results\n2026-03-15\n", nullptr},
    CheckRow{"a second heading isn't looked at", "Results\n2026-03-14\nResults\n2026-03-15\n", nullptr},
};

TEST_F(ColumnLayoutTest, TheDayAfterTheHeadingMustBeTheCards) {
    for (const CheckRow& row : checkRows) {
        shown.clear();
        recordText(row.text);
        if (row.told == nullptr)
            EXPECT_TRUE(shown.empty()) << row.what;
        else
            expectStopped(row.told, row.what);
    }
}

TEST_F(ColumnLayoutTest, TheTrackMustStandInTheTrackTable) {
    put("TrackEditor.ini", "MR        Monticello\r\n");
    recordText(sampleText);
    ASSERT_EQ(3U, shown.size());
    EXPECT_EQ("message: M1_20260314_20260314", shown[2]);
}

TEST_F(ColumnLayoutTest, AStopAtTheCheckLeavesStoreAndBoardAsTheyWere) {
    screen.boxes[4].text = "typed";
    card.winHeat(2) = 2;
    std::string text{sampleText};
    text.replace(text.find("03-14"), 5, "03-13");
    recordText(text);
    EXPECT_EQ("4", screen.header.race);
    EXPECT_EQ("typed", screen.boxes[4].text);
    for (int race = 0; race < raceExtent; ++race) {
        EXPECT_EQ(Filled{}, outcome(race)) << race;
        EXPECT_EQ(Filled{}, payoffs(race)) << race;
    }
    EXPECT_EQ(0, card.winHeat(2)); // the counters have begun anew before the check
}

// ---- one rule each

TEST_F(ColumnLayoutTest, LinesInFrontOfTheFirstRaceBelongToTheRaceOnShow) {
    recordText("      EXACTA 5-2 paid $24.60\n");
    EXPECT_EQ((Filled{"7=24.60"}), payoffs(4));
}

TEST_F(ColumnLayoutTest, AnyColonSetsTheRaceToTheThreeCharactersAfterIt) {
    recordText("POST TIME 7:10\n"
               "      EXACTA paid $1.00\n"
               "RACE:   12: x\n" // the first colon counts: "   ", which is 0
               "      EXACTA paid $2.00\n"
               "A:12345\n" // race 123 is none of the store's: its figures are lost
               "      TRIFECTA paid $3.00\n");
    EXPECT_EQ((Filled{"7=1.00"}), payoffs(10));
    EXPECT_EQ((Filled{"7=2.00"}), payoffs(0));
    EXPECT_EQ(Filled{}, payoffs(12));
}

TEST_F(ColumnLayoutTest, ARefundInTheMiddleSetsTheRaceToZeroUntilTheNextRace) {
    recordText("RACE: 3\n"
               "REFUNDS: R3         4\n"
               "      EXACTA paid $2.00\n"
               "RACE: 5\n"
               "      EXACTA paid $3.00\n");
    EXPECT_EQ((Filled{"7=2.00"}), payoffs(0));
    EXPECT_EQ((Filled{"10=  4"}), payoffs(3));
    EXPECT_EQ((Filled{"7=3.00"}), payoffs(5));
}

TEST_F(ColumnLayoutTest, RefundsAreAddedInTheirOrderAfterThoseThatStandThere) {
    card.payoffRecord(3, 10) = "   8";
    recordText("REFUNDS: R3         4\n"
               "x REFUNDS: 3 10\n" // columns 11 and 12 are " 3"
               "REFUNDS: R99        5\n"
               "REFUNDS: R3        1A\n");
    EXPECT_EQ("   8  4 10 1A", card.payoffRecord(3, 10));
}

TEST_F(ColumnLayoutTest, ANameWithAFigureIsTakenForThePayoff) {
    recordRaceThree("PRG\n"
                    " 5 Number 7 Seven          12.40     5.20    3.10\n");
    // six from the 7 on are "7 Seve", no number, so they stand as they are; after the "n" and the blanks the
    // first six are "12.40 " and the last six "  3.10"
    EXPECT_EQ((Filled{"1=7 Seve", "2= 12.40", "3=  3.10"}), payoffs(3));
}

TEST_F(ColumnLayoutTest, AFinisherWithoutAPayoffLeavesTheCellsAsTheyWere) {
    for (const int cell : {1, 2, 3, 4, 5}) card.payoffRecord(3, cell) = "old";
    recordRaceThree("PRG\n"
                    " 5 Nellie\n"
                    " 2 Bill\n"
                    " 7 Hope\n");
    EXPECT_EQ((Filled{"5= 5", "6= 2", "7= 7"}), outcome(3));
    // the third's payoff is the end of his line, whatever it is
    EXPECT_EQ((Filled{"1=old", "2=old", "3=old", "4=old", "5=old", "6= Hope"}), payoffs(3));
}

TEST_F(ColumnLayoutTest, AWinPayoffAloneIsReadThreeTimes) {
    recordRaceThree("PRG\n"
                    " 5 Nellie 112.40\n");
    // nothing is left after six and one more: Place and Show are the value of no text, .00
    EXPECT_EQ((Filled{"1=112.40", "2=   .00", "3=   .00"}), payoffs(3));
}

TEST_F(ColumnLayoutTest, FinishersThatTheTextLacksAreNotMadeUp) {
    recordRaceThree("PRG HORSE WIN PLACE SHOW\n"
                    " 5 Fast Nellie             12.40     5.20    3.10\n");
    EXPECT_EQ((Filled{"5= 5"}), outcome(3));
}

TEST_F(ColumnLayoutTest, TheExactaKeepsItsCommaUntilTheNextRunMeetsItsHeading) {
    recordRaceThree("PRG\n 5 A 4.40 3.20 2.10\n 2 B 3.20 2.10\n 7 C 2.10\n"
                    "      EXACTA 5-2 paid $1,024.60\n");
    EXPECT_EQ("1,024.60", card.payoffRecord(3, 7));
    recordRaceThree("PRG\n 5 A 4.40 3.20 2.10\n 2 B 3.20 2.10\n 7 C 2.10\n");
    EXPECT_EQ("1024.60", card.payoffRecord(3, 7));
}

struct ExoticRow {
    const char* line;
    int cell;
    const char* payoff;
};
constexpr std::array exoticRows{
    ExoticRow{"      EX 5-2 $24.60", 7, "24.60"},
    ExoticRow{"123456EXACTA $24.60", 7, "24.60"}, // what stands in the first six columns doesn't matter
    ExoticRow{"      TR $12,345.60", 8, "12345.60"},
    ExoticRow{"      TRI 5-2-7 paid $99.00", 8, "99.00"},
    ExoticRow{"      SU 5-2-7-1 paid $1,812.40", 9, "1812.40"},
    ExoticRow{"     EXACTA $24.60", 7, ""},  // one column too early
    ExoticRow{"      exacta $24.60", 7, ""}, // small letters
    ExoticRow{"      EX", 7, "      EX"},    // no "$": the ten last are the line
};

TEST_F(ColumnLayoutTest, ExoticsAreToldByTheTwoLettersAtColumnSeven) {
    for (const ExoticRow& row : exoticRows) {
        clearResults();
        recordRaceThree(row.line);
        EXPECT_EQ(row.payoff, card.payoffRecord(3, row.cell)) << row.line;
    }
}

struct FourthRow {
    const char* line;
    const char* fourth;
};
constexpr std::array fourthRows{
    FourthRow{"      SUPERFECTA 5-2-7-1 paid $812.40", "1"}, // column 18: "5-2-7-1 pai"
    FourthRow{"      SU 5-2-7-1 paid $812.40", "1"},         // column 10
    FourthRow{"      SU 5-2-7-10paid", "10"},
    FourthRow{"      SU 5-2-7-10 paid", "0"},     // "0 ": a number of two figures loses one to the blank
    FourthRow{"      SU 10-2-7-11 paid", "1"},    // "10-2-7-11 p" just reaches its "p"
    FourthRow{"      SU 10-12-7-11 paid", "old"}, // "10-12-7-11 " ends in front of it
    FourthRow{"      SU 5-2-7-xx paid", "0"},
    FourthRow{"      SUB 5-2-7-1 paid", "old"}, // neither "SU " nor "SUP"
    FourthRow{"      SU p", "0"},               // nothing in front of it
};

TEST_F(ColumnLayoutTest, TheFourthFinisherIsTheLastNumberOfTheSuperfecta) {
    for (const FourthRow& row : fourthRows) {
        clearResults();
        card.raceOutcome(3, 8) = "old";
        recordRaceThree(row.line);
        EXPECT_EQ(row.fourth, card.raceOutcome(3, 8)) << row.line;
    }
}

struct PickRow {
    const char* line;
    int legs;
    const char* payoff;
    std::vector<std::pair<int, const char*>> winners; ///< by race, from race 8 on back
};

TEST_F(ColumnLayoutTest, DoublesAndPicksAreToldByTheirKeywordAndCount) {
    const std::vector<PickRow> rows{
        {"      DD 3/5 paid $38.20", 2, "38.20", {{7, "3"}, {8, "5 "}}},
        {"      DOUBLE 3/5 (x) paid $38.20  ", 2, "38.20", {{7, "3"}, {8, "5 "}}}, // "d $38.20  ", ten
        {"      DD 3/5 paid 38.20", 2, "paid 38.20", {{7, "3"}, {8, "5 "}}},
        {"      PICK THREE 3/5/1 paid $412.80", 3, "412.80", {{6, "3"}, {7, "5"}, {8, "1 "}}},
        {"      PICK FOUR 3/5/1/2 paid $412.80", 4, "aid $412.80", {{5, "3"}, {6, "5"}, {7, "1"}, {8, "2 "}}},
        {"      PICK FIVE 3////2 paid $412.80", 5, "aid $412.80", {{4, "3"}, {8, "2 "}}},
        {"      PICK SIX  3/////2 paid $412.80", 6, "aid $412.80", {{3, "3"}, {8, "2 "}}},
        {"      PICK TEN  3/////////2 paid $412.80", 10, "aid $412.80", {{8, "3"}, {17, "2 "}}},
        {"      PICK NINE 3/4 paid $412.80", 0, "aid $412.80", {{8, "3"}, {9, "4 "}}},
    };
    for (const PickRow& row : rows) {
        clearResults();
        recordText(std::string{"RACE: 8\n"} + row.line);
        EXPECT_EQ(row.payoff, card.pickPayoff(8, row.legs)) << row.line;
        for (const auto& [race, winner] : row.winners)
            EXPECT_EQ(winner, card.pickLegs(race, 1)) << row.line << race;
    }
}

TEST_F(ColumnLayoutTest, TheDollarOfALongerPickIsLookedForInThePickThree) {
    card.pickPayoff(8, 3) = "12345678$"; // the "$" at place 9: two characters of the eleven are left
    recordText("RACE: 8\n      PICK FOUR 3/5/1/2 paid $412.80\n");
    EXPECT_EQ("80", card.pickPayoff(8, 4));
}

TEST_F(ColumnLayoutTest, ALineWithoutAPoolLeavesTheCursorAtTheFirstLeg) {
    recordText("RACE: 8\n"
               "      DD 3/5\n"
               "      EXACTA paid $24.60\n"); // race 7 now
    EXPECT_EQ("", card.pickLegs(7, 1));
    EXPECT_EQ("24.60", card.payoffRecord(7, 7));
}

// ---- whatever the file holds

TEST_F(ColumnLayoutTest, EveryPrefixOfATextIsReadWithoutHarm) {
    for (std::size_t length = 0; length <= sampleText.size(); ++length) {
        clearResults();
        shown.clear();
        recordText(sampleText.substr(0, length));
        const bool stopped = !shown.empty(); // the day is cut short
        EXPECT_EQ(stopped ? "4" : "1", screen.header.race) << length;
        EXPECT_EQ(Filled{}, payoffs(3)) << length;
        EXPECT_EQ(Filled{}, outcome(4)) << length;
        EXPECT_EQ(Filled{}, outcome(5)) << length;
        // what the whole text gives a finisher is there as soon as his line is
        if (length >= sampleText.find(" 2 Slow")) {
            EXPECT_EQ("  3.10", card.payoffRecord(1, 3)) << length;
        }
    }
}

TEST_F(ColumnLayoutTest, LinesOfAnyLengthAndBytesOfAnyKindEnd) {
    const std::string much(100'000, '7');
    const std::string blanksOnly(100'000, ' ');
    const std::string commas(100'000, ',');
    for (const std::string& line :
         {much, "PRG" + much + "\n" + much + "\n" + much + "\n" + much, "      EX" + much,
          "      TR$" + commas, "      SUPERFECTA " + much + "p", "      DD " + much + "(",
          "      PICK TEN " + commas + much + "paid", "REFUNDS: R3" + blanksOnly, "Results\n" + much,
          ":" + much, blanksOnly, anyBytes(200'000, 1), anyBytes(200'000, 2), std::string(1000, '\0'),
          std::string{"\xEF\xBB\xBFRACE: 3 \xE2\x82\xAC\n"}}) {
        clearResults();
        shown.clear();
        recordText(line);
        recordText("RACE: 3\n      EXACTA paid $24.60\n");
        EXPECT_EQ("24.60", card.payoffRecord(3, 7)); // and the next text is read as ever
    }
}

} // namespace
} // namespace quillon
