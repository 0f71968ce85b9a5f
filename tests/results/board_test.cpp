#include "results/board.h"

#include "core/failure.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

class BoardTest : public CardTest {
protected:
    BoardTest() {
        card.raceCount = 12;
        screen.header.race = "3";
    }

    // The boxes 0 to 7 as a user or a step has left them.
    static void fillBoxes(const std::array<Text, 8>& texts) {
        for (std::size_t box = 0; box < texts.size(); ++box) screen.boxes[box].text = texts[box];
    }
};

TEST_F(BoardTest, TheRaceOnShowIsTheNumberThatItsLabelBeginsWith) {
    const std::vector<std::pair<const char*, int>> labels{
        {"1A", 1}, {"12", 12}, {" 7", 7}, {"", 0}, {"A", 0}};
    for (const auto& [label, race] : labels) {
        screen.header.race = label;
        EXPECT_EQ(race, raceOnShow()) << label;
    }
}

// ---- leaving a race

TEST_F(BoardTest, LeavingARaceStoresEachBoxTrimmedInItsCell) {
    fillBoxes({"  4", " 2 ", "  7", "  1", "4 ", "2", "10", " 8"});
    for (int box = 1; box <= 11; ++box) screen.tote.at(box) = " p" + std::to_string(box) + " ";
    screen.header.track.caption = "M1";
    Get_Textbox_Data();
    const std::array<const char*, 8> outcome{"4", "2", "7", "1", "4", "2", "10", "8"};
    for (int cell = 1; cell <= 8; ++cell) EXPECT_EQ(outcome.at(cell - 1), card.raceOutcome(3, cell)) << cell;
    for (const int cell : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11})
        EXPECT_EQ("p" + std::to_string(cell), card.payoffRecord(3, cell)) << cell;
    EXPECT_EQ("M1", card.raceInfo(3).trackCode);
}

TEST_F(BoardTest, WhatStandsInBoxTenEndsInTheEchoCellAndNowhereElse) {
    card.payoffRecord(3, 20) = "9.80";
    screen.tote[10] = " 5.40 ";
    Get_Textbox_Data();
    EXPECT_EQ("5.40", card.payoffRecord(3, 12));
    EXPECT_EQ("9.80", card.payoffRecord(3, 20));
    EXPECT_EQ("", card.payoffRecord(3, 10));
}

TEST_F(BoardTest, TheRefundsBoxIsOnlyShown) {
    card.payoffRecord(3, 10) = "   4";
    TypeRefunds("   4   9");
    Get_Textbox_Data();
    EXPECT_EQ("   4   9", screen.refunds);
    EXPECT_EQ("   4", card.payoffRecord(3, 10));
}

TEST_F(BoardTest, TheBoardIsStoredUnderTheRaceItShowsThoughTheRaceCursorHasMovedOn) {
    cursor.race = 9;
    screen.boxes[4].text = "6";
    Get_Textbox_Data();
    EXPECT_EQ("6", card.raceOutcome(3, 5));
    EXPECT_EQ("", card.raceOutcome(9, 5));
}

TEST_F(BoardTest, WithNoRaceOnShowNothingIsStored) {
    screen.header.race.clear();
    cursor.race = 2;
    screen.boxes[4].text = "6";
    screen.tote[1] = "4.40";
    Get_Textbox_Data();
    for (const int race : {0, 1, 2, 3}) {
        EXPECT_EQ("", card.raceOutcome(race, 5)) << race;
        EXPECT_EQ("", card.payoffRecord(race, 1)) << race;
    }
}

TEST_F(BoardTest, ARecalledCardLeavesItsModeAndStandsOnRaceOne) {
    card.recallMode = "R";
    cursor.race = 8;
    Get_Textbox_Data();
    EXPECT_EQ("", card.recallMode);
    EXPECT_EQ(1, cursor.race);
}

TEST_F(BoardTest, OnlyTheExactRecallModeEnds) {
    card.recallMode = "RX";
    cursor.race = 8;
    Get_Textbox_Data();
    EXPECT_EQ("RX", card.recallMode);
    EXPECT_EQ(8, cursor.race);
}

// A payoff with a zero in front becomes the end of its race's Place payoff, as long as itself less one.
struct ZeroRow {
    const char* what;
    int cell;
    const char* typed;
    const char* place;
    const char* stored;
};
constexpr std::array zeroRows{
    ZeroRow{"Place loses its zero", 2, "04.40", "04.40", "4.40"}, // its own last 4 of 5
    ZeroRow{"Win takes the tail of Place", 1, "09.80", "12.40", "2.40"},
    ZeroRow{"Show takes the tail of Place", 3, "02.60", "12.40", "2.40"},
    ZeroRow{"Show of the second likewise", 5, "03.10", "5.20", "5.20"}, // 4 of 4
    ZeroRow{"Place of the second likewise", 4, "0.9", "5.20", "20"},    // 2 of 4
    ZeroRow{"Show of the third likewise", 6, "0", "5.20", ""},          // none of 4
    ZeroRow{"a longer one takes all of Place", 6, "0123456", "5.20", "5.20"},
    ZeroRow{"without a Place payoff nothing is left", 3, "02.60", "", ""},
    ZeroRow{"a figure in front stays", 3, "2.60", "12.40", "2.60"},
    ZeroRow{"a blank in front stays", 3, " 02.60", "12.40", " 02.60"},
};

TEST_F(BoardTest, APayoffWithALeadingZeroBecomesTheTailOfThePlacePayoff) {
    for (const int race : {1, 25})
        for (const ZeroRow& row : zeroRows) {
            card.payoffRecord.clear();
            card.payoffRecord(race, 2) = row.place;
            card.payoffRecord(race, row.cell) = row.typed;
            Get_Textbox_Data();
            EXPECT_EQ(row.stored, card.payoffRecord(race, row.cell)) << row.what << ", race " << race;
        }
}

TEST_F(BoardTest, WinLooksAtPlaceWhileItStillHasItsZeroAndShowWhenItHasLostIt) {
    card.payoffRecord(5, 1) = "03.00"; // the last 4 of "04.40"
    card.payoffRecord(5, 2) = "04.40";
    card.payoffRecord(5, 3) = "02.10"; // the last 4 of "4.40"
    Get_Textbox_Data();
    EXPECT_EQ("4.40", card.payoffRecord(5, 1));
    EXPECT_EQ("4.40", card.payoffRecord(5, 2));
    EXPECT_EQ("4.40", card.payoffRecord(5, 3));
}

TEST_F(BoardTest, ExoticsAndRacesAbove25KeepALeadingZero) {
    card.payoffRecord(5, 2) = "5.20";
    card.payoffRecord(5, 7) = "024.60";
    card.payoffRecord(26, 2) = "04.40";
    Get_Textbox_Data();
    EXPECT_EQ("024.60", card.payoffRecord(5, 7));
    EXPECT_EQ("04.40", card.payoffRecord(26, 2));
}

TEST_F(BoardTest, TheZeroGoesBeforeTheBoardIsStored) {
    screen.tote[2] = "04.40"; // typed just now: it keeps its zero until the next time
    Get_Textbox_Data();
    EXPECT_EQ("04.40", card.payoffRecord(3, 2));
    screen.header.race = "4";
    Get_Textbox_Data();
    EXPECT_EQ("4.40", card.payoffRecord(3, 2));
}

// ---- what a race button would drop

TEST_F(BoardTest, ABoardAsStoredHasNoUnkeptTyping) {
    card.raceOutcome(3, 1) = "  4"; // as the ranking pads it
    screen.boxes[0].text = "  4";
    card.payoffRecord(3, 1) = " 4.40"; // as a results pass cuts it
    screen.tote[1] = "4.40";
    EXPECT_FALSE(boardHasUnkeptTyping());
}

TEST_F(BoardTest, ABoxThatDiffersFromItsCellIsUnkeptUntilTheBoardIsStored) {
    for (int box = 0; box < 8; ++box) {
        screen.boxes.at(box).text = "6";
        EXPECT_TRUE(boardHasUnkeptTyping()) << box;
        Get_Textbox_Data();
        EXPECT_FALSE(boardHasUnkeptTyping()) << box;
    }
    for (const int box : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11}) {
        screen.tote.at(box) = "5.20";
        EXPECT_TRUE(boardHasUnkeptTyping()) << box;
        Get_Textbox_Data();
        EXPECT_FALSE(boardHasUnkeptTyping()) << box;
    }
    screen.tote[2].clear(); // taken out again
    EXPECT_TRUE(boardHasUnkeptTyping());
}

TEST_F(BoardTest, BlanksAloneAreNoTyping) {
    screen.boxes[5].text = "  ";
    screen.tote[7] = " ";
    EXPECT_FALSE(boardHasUnkeptTyping());
}

TEST_F(BoardTest, BoxTenAndTheRefundsComeBackNeitherWay) {
    screen.tote[10] = "5.40";
    screen.refunds = " 4";
    EXPECT_FALSE(boardHasUnkeptTyping());
}

TEST_F(BoardTest, WithNoRaceOnShowNothingIsUnkept) {
    screen.boxes[4].text = "6";
    for (const char* race : {"", "A", "31", "400"}) {
        screen.header.race = race;
        EXPECT_FALSE(boardHasUnkeptTyping()) << race;
    }
}

TEST_F(BoardTest, TheRankingThatAHeatShowsIsNotTyping) {
    screen.header.race = "15"; // above the card's twelve
    screen.boxes[0].text = "2";
    EXPECT_FALSE(boardHasUnkeptTyping());
    screen.boxes[4].text = "2";
    EXPECT_TRUE(boardHasUnkeptTyping());
    screen.boxes[4].text.clear();
    card.raceOutcome(15, 2) = "7"; // now it has selections of its own
    EXPECT_TRUE(boardHasUnkeptTyping());
}

// ---- dead heats

class DeadHeatBoardTest : public BoardTest {
protected:
    DeadHeatBoardTest() {
        card.payoffRecord(3, 1) = "4.40";
        card.payoffRecord(3, 4) = "3.20";
        card.payoffRecord(3, 20) = "9.80";
        screen.tote[1] = "4.40";
        screen.tote[4] = "3.20";
        card.raceOutcome(3, 5) = " 2 ";
        card.raceOutcome(3, 6) = " 5 ";
        card.raceOutcome(3, 7) = " 7 ";
    }
};

TEST_F(DeadHeatBoardTest, APlainFinishHidesBoxTenAndTheLabelsRepeatTheFinish) {
    screen.boxTenVisible = true;
    screen.boxTenColumn = 1;
    fillBoxes({"5", "2", "7", "1", "2", "5", "7", "8"});
    card.winHeat(3) = 1;
    card.placeHeat(3) = 1;
    TEXT_56();
    EXPECT_FALSE(screen.boxTenVisible);
    EXPECT_EQ(0, screen.boxTenColumn);
    EXPECT_EQ((std::array<Text, 4>{"2", "5", "7", "8"}), screen.finishLabels);
    EXPECT_EQ("4.40", card.payoffRecord(3, 1));
    EXPECT_EQ("3.20", card.payoffRecord(3, 4));
}

TEST_F(DeadHeatBoardTest, ForFirstBoxTenStandsBesideWinAndSOneIsPaidAsTheOtherWinner) {
    card.winHeat(3) = 2;
    fillBoxes({"  5", "2", "7", "1", "2", "5", "7", "8"}); // S1 is number 5, the second of the winners
    TEXT_56();
    EXPECT_TRUE(screen.boxTenVisible);
    EXPECT_EQ(1, screen.boxTenColumn);
    EXPECT_EQ("9.80", card.payoffRecord(3, 1));
    EXPECT_EQ("9.80", screen.tote[1]);
    EXPECT_EQ("3.20", card.payoffRecord(3, 4));
    EXPECT_EQ((std::array<Text, 4>{"2", "5", "7", "8"}), screen.finishLabels);
}

TEST_F(DeadHeatBoardTest, ForFirstTheWinPayoffStaysWhereSOneIsTheFirstWinnerOrNone) {
    card.winHeat(3) = 2;
    for (const char* topSelection : {"2", "7", "1", ""}) {
        screen.boxes[0].text = topSelection;
        TEXT_56();
        EXPECT_TRUE(screen.boxTenVisible);
        EXPECT_EQ("4.40", card.payoffRecord(3, 1)) << topSelection;
    }
}

TEST_F(DeadHeatBoardTest, ForSecondBoxTenStandsBesidePlaceAndSOneIsPaidAsTheOtherSecond) {
    card.placeHeat(3) = 2;
    screen.boxes[0].text = "7";
    TEXT_56();
    EXPECT_TRUE(screen.boxTenVisible);
    EXPECT_EQ(2, screen.boxTenColumn);
    EXPECT_EQ("9.80", card.payoffRecord(3, 4));
    EXPECT_EQ("9.80", screen.tote[4]);
    EXPECT_EQ("4.40", card.payoffRecord(3, 1));
}

TEST_F(DeadHeatBoardTest, ForSecondThePlacePayoffStaysWhereSOneIsTheFirstOfTheTwo) {
    card.placeHeat(3) = 2;
    screen.boxes[0].text = "5";
    TEXT_56();
    EXPECT_EQ("3.20", card.payoffRecord(3, 4));
}

TEST_F(DeadHeatBoardTest, OneForSecondGoesBeforeOneForFirst) {
    card.placeHeat(3) = 2;
    card.winHeat(3) = 2;
    screen.boxes[0].text = "5"; // the other winner, but the Win payoff is not looked at
    TEXT_56();
    EXPECT_EQ(2, screen.boxTenColumn);
    EXPECT_EQ("4.40", card.payoffRecord(3, 1));
}

TEST_F(DeadHeatBoardTest, ThreeLinesAreNone) {
    card.winHeat(3) = 3;
    card.placeHeat(3) = 4;
    TEXT_56();
    EXPECT_FALSE(screen.boxTenVisible);
}

TEST_F(DeadHeatBoardTest, OfAnotherRaceIsNoneOfThisOne) {
    card.winHeat(4) = 2;
    TEXT_56();
    EXPECT_FALSE(screen.boxTenVisible);
    screen.header.race.clear();
    card.winHeat(0) = 2; // results in front of a text's first race
    TEXT_56();
    EXPECT_FALSE(screen.boxTenVisible);
}

TEST_F(DeadHeatBoardTest, LeavingTheRaceKeepsThePayoffThatItHasChanged) {
    card.winHeat(3) = 2;
    fillBoxes({"5", "2", "7", "1", "2", "5", "7", "8"});
    TEXT_56();
    Get_Textbox_Data();
    EXPECT_EQ("9.80", card.payoffRecord(3, 1));
}

// ---- what the user types

TEST_F(DeadHeatBoardTest, ATypedSelectionLooksAtTheDeadHeatAgain) {
    card.winHeat(3) = 2;
    TypeBox(0, "5");
    EXPECT_EQ("5", screen.boxes[0].text);
    EXPECT_EQ("9.80", card.payoffRecord(3, 1));
}

TEST_F(DeadHeatBoardTest, ATypedFinishIsRepeatedAboveThePayoffs) {
    TypeBox(4, "8");
    TypeBox(7, "1");
    EXPECT_EQ((std::array<Text, 4>{"8", "", "", "1"}), screen.finishLabels);
}

TEST_F(DeadHeatBoardTest, TheSameTextAgainIsNoChange) {
    screen.boxes[0].text = "5";
    card.winHeat(3) = 2;
    setBox(0, "5");
    EXPECT_FALSE(screen.boxTenVisible);
    EXPECT_EQ("4.40", card.payoffRecord(3, 1));
}

TEST_F(BoardTest, TypingReachesBoxesThatAreThereAndFailsForOthers) {
    TypeTote(1, "4.40");
    TypeTote(11, "D/D 5/2");
    EXPECT_EQ("4.40", screen.tote[1]);
    EXPECT_EQ("D/D 5/2", screen.tote[11]);
    for (const int box : {-1, 0, 12}) EXPECT_FALSE(attempt([&] { TypeTote(box, "x"); })) << box;
    for (const int box : {-1, 8}) EXPECT_FALSE(attempt([&] { TypeBox(box, "x"); })) << box;
    EXPECT_EQ("", screen.tote[0]);
}

TEST_F(BoardTest, ACellOfARaceViewIsEditedBelowItsHead) {
    TypeCell(23, 1, 32, " 58.0");
    EXPECT_EQ(" 58.0", screen.raceView[23].text(1, 32));
    const std::vector<std::array<int, 3>> outside{{0, 1, 1},  {24, 1, 1}, {-1, 1, 1}, {1, 0, 1},
                                                  {1, 21, 1}, {1, 1, 40}, {1, 1, -1}};
    for (const auto& [race, row, column] : outside)
        EXPECT_FALSE(attempt([race = race, row = row, column = column] { TypeCell(race, row, column, "x"); }))
            << race << " " << row << " " << column;
}

} // namespace
} // namespace quillon
