#include "results/race_display.h"

#include "day/re_calculation.h"
#include "day/save.h"
#include "day/scratch.h"
#include "results/board.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

// A card of 12 races of which race r has the purse "r000" and the label "rA", its entry e the program number
// e, and its cells the texts "<race>.<cell>".
class RaceDisplayTest : public CardTest {
protected:
    RaceDisplayTest() {
        card.raceCount = 12;
        card.cardFileName = "M1_20260314.pmd";
        screen.offer(StartOffer::selectRace);
        for (int race = 1; race <= 25; ++race) {
            const Text number = std::to_string(race);
            card.raceInfo(race) = {.label = number + "A",
                                   .trackCode = "M1",
                                   .trackInfo = "Meadowlands 1.M",
                                   .purse = number + "000",
                                   .classText = "class " + number,
                                   .todaysCr = "8" + number,
                                   .wagering = "wagers " + number,
                                   .postTime = "7:" + number,
                                   .gait = "Pace",
                                   .distance = "1 mile"};
            for (int entry = 1; entry <= 12; ++entry)
                card.entry(race, entry).programNumber = rightAligned(std::to_string(entry), 3);
            for (int cell = 1; cell <= 9; ++cell) card.raceOutcome(race, cell) = cellText(race, cell);
            for (int cell = 1; cell <= 21; ++cell) card.payoffRecord(race, cell) = cellText(race, cell);
        }
        card.raceInfo(13) = {};
        for (int cell = 1; cell <= 4; ++cell) card.raceOutcome(13, cell).clear();
    }

    static Text cellText(int race, int cell) {
        return " " + std::to_string(race) + "." + std::to_string(cell);
    }

    static std::vector<int> shownRaceViews() {
        std::vector<int> shown;
        for (int view = 0; view < raceViews; ++view)
            if (screen.raceViewVisible.at(view)) shown.push_back(view);
        return shown;
    }

    static std::vector<int> shownChecks() {
        std::vector<int> shown;
        for (int race = 1; race <= 23; ++race)
            if (screen.raceChecks.at(race).visible) shown.push_back(race);
        return shown;
    }

    static std::vector<int> redButtons() {
        std::vector<int> shown;
        for (int race = 0; race <= 23; ++race)
            if (screen.raceButtons.at(race).current) shown.push_back(race);
        return shown;
    }
};

using Races = std::vector<int>;

TEST_F(RaceDisplayTest, ARaceIsHeadedWithItsConditions) {
    RaceButton(7);
    EXPECT_EQ("7", screen.header.race);
    EXPECT_EQ("$ 7000", screen.header.purse);
    EXPECT_EQ("class 7", screen.header.classText);
    EXPECT_EQ("87", screen.header.cr);
    EXPECT_EQ("wagers 7", screen.header.wagering);
    EXPECT_EQ("7:7", screen.header.postTime);
    EXPECT_EQ("Pace", screen.header.gait);
    EXPECT_EQ("M1", screen.header.track.caption);
    EXPECT_EQ("Meadowlands 1.M", screen.header.trackInfo);
    EXPECT_EQ("1 mile", screen.header.distance);
    EXPECT_EQ(7, cursor.race);
}

TEST_F(RaceDisplayTest, TheBoardShowsTheCellsAsTheyStand) {
    screen.tote.fill("old");
    screen.refunds = "old";
    RaceButton(7);
    for (int box = 0; box < 8; ++box) EXPECT_EQ(cellText(7, box + 1), screen.boxes.at(box).text) << box;
    for (const int box : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11})
        EXPECT_EQ(cellText(7, box), screen.tote.at(box)) << box;
    EXPECT_EQ(cellText(7, 20), screen.tote[10]);
    EXPECT_EQ(cellText(7, 10), screen.refunds);
    EXPECT_EQ("RACE:  7", screen.tote[0]);
    EXPECT_EQ((std::array<Text, 4>{" 7.5", " 7.6", " 7.7", " 7.8"}), screen.finishLabels);
}

TEST_F(RaceDisplayTest, ItsViewItsRedButtonAndItsCheckMarkAloneAreShown) {
    screen.raceViewVisible.fill(true);
    for (Button& button : screen.raceButtons) button.current = true;
    RaceButton(7);
    EXPECT_EQ((Races{0, 7}), shownRaceViews()); // the spare view 0 belongs to no race
    EXPECT_EQ((Races{7}), redButtons());
    EXPECT_EQ((Races{7}), shownChecks());
    EXPECT_EQ("7A", screen.raceChecks[7].caption);
}

TEST_F(RaceDisplayTest, PreviousAndTheRaceListPutAwayNoMoreThanTheFirst21) {
    screen.raceViewVisible.fill(true);
    for (Button& check : screen.raceChecks) check.visible = true;
    RaceList("RACE 7");
    EXPECT_EQ((Races{0, 7, 22, 23}), shownRaceViews());
    EXPECT_EQ((Races{7, 22, 23}), shownChecks());
    screen.raceViewVisible.fill(true);
    Previous();
    EXPECT_EQ((Races{0, 6, 22, 23}), shownRaceViews());
    EXPECT_EQ((Races{6}), redButtons());
    Next();
    EXPECT_EQ((Races{0, 7}), shownRaceViews());
    EXPECT_EQ((Races{7}), shownChecks());
}

TEST_F(RaceDisplayTest, EntryButtonsTellProgramNumbersAboveZero) {
    card.entry(7, 2).programNumber = "1A";
    card.entry(7, 3).programNumber = "AE1";
    card.entry(7, 4).programNumber = "";
    card.entry(7, 5).programNumber = "0";
    screen.entryButtons[3].caption = "  3";
    RaceButton(7);
    const std::array<const char*, 12> captions{"  1", " 1A", "",    "",    "",    "  6",
                                               "  7", "  8", "  9", " 10", " 11", " 12"};
    for (int entry = 1; entry <= 12; ++entry)
        EXPECT_EQ(captions.at(entry - 1), screen.entryButtons.at(entry).caption) << entry;
}

TEST_F(RaceDisplayTest, TheHeatMarkAndItsButtonsGoAndTheEntrysFrameCloses) {
    screen.header.race = "5";
    screen.item(CommandId::HeatWinner).checked = true;
    EntryButton(4);
    ASSERT_TRUE(screen.pastPerformanceOpen);
    RaceButton(7);
    EXPECT_FALSE(screen.item(CommandId::HeatWinner).checked);
    for (int row = 1; row <= 12; ++row) EXPECT_FALSE(screen.heatButtons.at(row).visible) << row;
    EXPECT_FALSE(screen.pastPerformanceOpen);
    EXPECT_EQ(0, screen.currentEntry);
    EXPECT_EQ(white, screen.raceView[5].read(4, 3).background); // in the race that was left
    EXPECT_FALSE(screen.raceView[7].read(4, 3).background.has_value());
}

TEST_F(RaceDisplayTest, TheDataViewIsShownOnlyWhileTheStartButtonReadsStart) {
    RaceButton(7);
    EXPECT_FALSE(screen.dataViewVisible[7]);
    screen.offer(StartOffer::load);
    RaceButton(7);
    EXPECT_TRUE(screen.dataViewVisible[7]);
}

TEST_F(RaceDisplayTest, ADeadHeatOfTheNewRaceIsShownWithIt) {
    card.winHeat(7) = 2;
    card.raceOutcome(7, 1) = "  5";
    card.raceOutcome(7, 6) = " 5 ";
    RaceButton(7);
    EXPECT_TRUE(screen.boxTenVisible);
    EXPECT_EQ(" 7.20", card.payoffRecord(7, 1)); // S1 is the other winner: the Win payoff is that of cell 20
    EXPECT_EQ(" 7.20", screen.tote[1]);
    RaceButton(8);
    EXPECT_FALSE(screen.boxTenVisible);
}

TEST_F(RaceDisplayTest, TheSelectionsOfTheRaceLeftDontMeetTheDeadHeatOfTheNewOne) {
    card.winHeat(7) = 2;
    card.raceOutcome(6, 1) = "5"; // S1 of race 6 has the number of race 7's other winner
    card.raceOutcome(7, 1) = "2";
    card.raceOutcome(7, 6) = "5";
    RaceButton(6);
    RaceButton(7);
    EXPECT_EQ(" 7.1", card.payoffRecord(7, 1));
}

TEST_F(RaceDisplayTest, ShownAtAnyNumberARaceOfNoPlaceChangesNothing) {
    RaceButton(7);
    for (const int race : {-1, 0, 31, 1000}) showRace(race);
    EXPECT_EQ("7", screen.header.race);
}

// ---- race buttons

TEST_F(RaceDisplayTest, ARaceButtonShowsItsRaceWhateverItsCaptionAndTheCardsOffset) {
    screen.raceButtons[3].caption = "10B";
    card.raceOffset = 7;
    RaceButton(3);
    EXPECT_EQ("3", screen.header.race);
}

TEST_F(RaceDisplayTest, ARaceButtonDropsWhatWasTyped) {
    RaceButton(7);
    TypeBox(4, "9");
    TypeTote(1, "99.00");
    RaceButton(8);
    EXPECT_EQ(cellText(7, 5), card.raceOutcome(7, 5));
    EXPECT_EQ(cellText(7, 1), card.payoffRecord(7, 1));
    EXPECT_EQ(cellText(8, 5), card.raceOutcome(8, 5));
}

TEST_F(RaceDisplayTest, ARaceButtonEndsTheModeOfARecallAndShowsItsRace) {
    card.recallMode = "R";
    RaceButton(7);
    EXPECT_EQ("", card.recallMode);
    EXPECT_EQ("7", screen.header.race);
    card.recallMode = "RX";
    RaceButton(8);
    EXPECT_EQ("RX", card.recallMode);
}

TEST_F(RaceDisplayTest, ARaceAboveTwentyCantBeReachedByItsButton) {
    card.raceCount = 23;
    for (const int button : {20, 21, 23}) {
        RaceButton(button);
        EXPECT_EQ("20", screen.header.race) << button;
        EXPECT_EQ("RACE:  20", screen.tote[0]) << button;
    }
}

// ---- arrows

TEST_F(RaceDisplayTest, NextStoresTheBoardAndShowsTheRaceAfter) {
    RaceButton(7);
    TypeBox(4, " 9 ");
    TypeTote(1, "99.00 ");
    Next();
    EXPECT_EQ("8", screen.header.race);
    EXPECT_EQ("9", card.raceOutcome(7, 5));
    EXPECT_EQ("99.00", card.payoffRecord(7, 1));
    EXPECT_EQ(cellText(8, 5), screen.boxes[4].text);
}

TEST_F(RaceDisplayTest, NextAtTheLastRaceStoresAndShowsNothingButEndsTheHeatChoice) {
    card.labelledRaces = 3;
    RaceButton(12);
    TypeBox(4, "9");
    screen.item(CommandId::HeatWinner).checked = true;
    Next();
    EXPECT_EQ("12", screen.header.race);
    EXPECT_EQ(cellText(12, 5), card.raceOutcome(12, 5));
    EXPECT_EQ("9", screen.boxes[4].text);
    EXPECT_FALSE(screen.item(CommandId::HeatWinner).checked);
    EXPECT_EQ(15, cursor.race); // 3 lettered races and 12
}

TEST_F(RaceDisplayTest, TheArrowsGoByTheLabelAlsoRightAfterTheLoadOfALetteredCard) {
    screen.header.race = "1A";
    screen.boxes[4].text = "9";
    Next();
    EXPECT_EQ("2", screen.header.race);
    EXPECT_EQ("9", card.raceOutcome(1, 5));
}

TEST_F(RaceDisplayTest, PreviousStoresTheBoardAndShowsTheRaceInFront) {
    RaceButton(7);
    TypeBox(7, "9");
    Previous();
    EXPECT_EQ("6", screen.header.race);
    EXPECT_EQ("9", card.raceOutcome(7, 8));
    EXPECT_EQ(cellText(6, 8), screen.boxes[7].text);
}

TEST_F(RaceDisplayTest, PreviousAtTheFirstRaceStoresTheBoardAndStays) {
    RaceButton(1);
    TypeBox(7, "9");
    screen.tote[10] = "5.40";
    Previous();
    EXPECT_EQ("1", screen.header.race);
    EXPECT_EQ("9", card.raceOutcome(1, 8));
    EXPECT_EQ("9", screen.boxes[7].text);
    EXPECT_EQ("5.40", screen.tote[10]); // the board is not drawn again
    EXPECT_EQ(1, cursor.race);
}

TEST_F(RaceDisplayTest, WhatWasTypedInBoxTenDoesNotComeBack) {
    RaceButton(7);
    TypeTote(10, "5.40");
    Next();
    Previous();
    EXPECT_EQ(cellText(7, 20), screen.tote[10]);
    EXPECT_EQ("5.40", card.payoffRecord(7, 12));
}

TEST_F(RaceDisplayTest, APlacePayoffTypedWithAZeroHasLostItWhenItComesBack) {
    RaceButton(7);
    TypeTote(2, "04.40");
    TypeTote(6, "02.10");
    Next();
    Previous(); // stores race 8, and on the way takes the zeros off: the last 4 of "4.40" for both
    EXPECT_EQ("4.40", screen.tote[2]);
    EXPECT_EQ("4.40", screen.tote[6]);
}

TEST_F(RaceDisplayTest, WithNoRaceOnShowTheArrowsDoNothing) {
    screen.boxes[4].text = "9";
    Next();
    Previous();
    EXPECT_EQ("", screen.header.race);
    EXPECT_EQ("9", screen.boxes[4].text);
    EXPECT_EQ(cellText(1, 5), card.raceOutcome(1, 5));
}

TEST_F(RaceDisplayTest, TheRacesAfterTheLastRaceViewHaveABoardToo) {
    card.raceCount = 25;
    screen.header.race = "24";
    screen.raceViewVisible[23] = true;
    Next();
    EXPECT_EQ("25", screen.header.race);
    EXPECT_EQ(cellText(25, 5), screen.boxes[4].text);
    EXPECT_EQ(Races{}, shownRaceViews());
    EXPECT_EQ(Races{}, redButtons());
}

// ---- race list

struct ListRow {
    const char* line;
    const char* race;
};
constexpr std::array listRows{
    ListRow{"RACE 7", "7"}, ListRow{"RACE 12", "12"}, ListRow{"RACE 9  ", "9"}, ListRow{"RACE 1A 5", "5"},
    ListRow{"RACE 0", "1"}, ListRow{"RACE ", "1"},    ListRow{"RACE 25", "20"}, ListRow{"RACE -3", "3"},
};

TEST_F(RaceDisplayTest, TheRaceListShowsTheRaceOfTheNumberAtItsEnd) {
    for (const ListRow& row : listRows) {
        RaceList(row.line);
        EXPECT_EQ(row.race, screen.header.race) << row.line;
    }
    RaceList("RACE 99999999999999999999999999");
    EXPECT_EQ("20", screen.header.race);
}

TEST_F(RaceDisplayTest, TheRaceListDropsWhatWasTyped) {
    RaceButton(7);
    TypeBox(4, "9");
    RaceList("RACE 8");
    EXPECT_EQ(cellText(7, 5), card.raceOutcome(7, 5));
}

TEST_F(RaceDisplayTest, TheRaceListHasALineForEachRace) {
    card.raceCount = 3;
    screen.raceList.lines = {"of a card before"};
    FillRaceList();
    EXPECT_EQ((std::vector<Text>{"RACE 1", "RACE 2", "RACE 3"}), screen.raceList.lines);
}

// ---- an entry's past lines

// Race 5 has 3 lines of post 2 in rows 1 to 3 and 4 lines of post 4 in rows 4 to 7.
class EntryDetailTest : public RaceDisplayTest {
protected:
    EntryDetailTest() {
        RaceButton(5);
        for (int row = 1; row <= 7; ++row)
            for (int column = 0; column <= 39; ++column)
                screen.dataView[5](row, column).text = std::to_string(row) + ":" + std::to_string(column);
        for (int row = 1; row <= 7; ++row) screen.dataView[5](row, 4).text = row <= 3 ? " 2" : "4";
    }

    static const Grid& shownLines() { return screen.dataView[pastPerformanceView]; }

    static int filledRows() {
        int rows = 0;
        for (int row = 1; row < shownLines().rows(); ++row)
            if (!shownLines().text(row, 1).empty()) ++rows;
        return rows;
    }
};

TEST_F(EntryDetailTest, ShowsItsLinesWithoutTheHiddenRaceAndTheNameColumn) {
    EntryButton(4);
    EXPECT_TRUE(screen.pastPerformanceOpen);
    EXPECT_TRUE(screen.dataViewVisible[pastPerformanceView]);
    EXPECT_EQ(4, screen.currentEntry);
    EXPECT_EQ(4, filledRows());
    EXPECT_EQ("4:1", shownLines().text(1, 1));
    EXPECT_EQ("7:38", shownLines().text(4, 38));
    EXPECT_EQ("4", shownLines().text(2, 4));
    EXPECT_EQ("", shownLines().text(1, 0));
    EXPECT_EQ("", shownLines().text(1, 2));
    EXPECT_EQ("4:3", shownLines().text(1, 3));
}

TEST_F(EntryDetailTest, LineButtonsReadTheLinesRowInTheRace) {
    EntryButton(4);
    const std::array<const char*, 4> numbers{"4", "5", "6", "7"};
    for (int row = 1; row <= 4; ++row) EXPECT_EQ(numbers.at(row - 1), shownLines().text(row, 39)) << row;
}

TEST_F(EntryDetailTest, AfterTheFifteenthLineTheNumberIsTheViewsOwn) {
    for (int row = 8; row <= 20; ++row) {
        screen.dataView[5](row, 4).text = "4";
        screen.dataView[5](row, 39).text = "n" + std::to_string(row);
    }
    EntryButton(4); // 17 lines in rows 4 to 20; the 15th is row 18
    EXPECT_EQ("18", shownLines().text(15, 39));
    EXPECT_EQ("n19", shownLines().text(16, 39));
    EXPECT_EQ("n20", shownLines().text(17, 39));
}

TEST_F(EntryDetailTest, RecentLinesAreYellowOlderOnesCyanAndTheRestPlain) {
    card.entry(5, 4).linesInLastWindow = 1;
    card.entry(5, 4).linesInFiftyDays = 3;
    EntryButton(4);
    EXPECT_EQ(recentYellow, shownLines().read(1, 1).background);
    EXPECT_EQ(recentYellow, shownLines().read(1, 39).background);
    EXPECT_FALSE(shownLines().read(1, 0).background.has_value());
    EXPECT_EQ(olderCyan, shownLines().read(2, 1).background);
    EXPECT_EQ(olderCyan, shownLines().read(3, 39).background);
    EXPECT_FALSE(shownLines().read(4, 1).background.has_value());
}

TEST_F(EntryDetailTest, ItsRowOfTheRaceViewIsLitBehindTheSaddleCloth) {
    EntryButton(4);
    EXPECT_FALSE(screen.raceView[5].read(4, 2).background.has_value());
    EXPECT_EQ(recentYellow, screen.raceView[5].read(4, 3).background);
    EXPECT_EQ(recentYellow, screen.raceView[5].read(4, 39).background);
    EXPECT_FALSE(screen.raceView[5].read(3, 3).background.has_value());
}

TEST_F(EntryDetailTest, AnotherButtonMovesTheLightAndShowsItsOwnLinesAlone) {
    EntryButton(4);
    EntryButton(2);
    EXPECT_EQ(3, filledRows());
    EXPECT_EQ("1:1", shownLines().text(1, 1));
    EXPECT_EQ(white, screen.raceView[5].read(4, 3).background);
    EXPECT_EQ(white, screen.raceView[5].read(4, 39).background);
    EXPECT_EQ(recentYellow, screen.raceView[5].read(2, 3).background);
}

TEST_F(EntryDetailTest, TheSameButtonAgainClosesTheFrameAndAThirdTimeOpensIt) {
    EntryButton(4);
    EntryButton(4);
    EXPECT_FALSE(screen.pastPerformanceOpen);
    EXPECT_FALSE(screen.dataViewVisible[pastPerformanceView]);
    EXPECT_EQ(0, screen.currentEntry);
    EXPECT_EQ(white, screen.raceView[5].read(4, 3).background);
    EntryButton(4);
    EXPECT_TRUE(screen.pastPerformanceOpen);
}

TEST_F(EntryDetailTest, AnEntryWithoutLinesShowsNone) {
    EntryButton(4);
    EntryButton(9);
    EXPECT_TRUE(screen.pastPerformanceOpen);
    EXPECT_EQ(0, filledRows());
    EXPECT_EQ("", shownLines().text(1, 39));
}

TEST_F(EntryDetailTest, TheFrameIsHeadedWithNumberAndName) {
    card.entry(5, 4).horseName = "Fast Nellie         ";
    EntryButton(4);
    EXPECT_EQ("4  Fast Nellie", screen.pastPerformanceHeading);
}

TEST_F(EntryDetailTest, ButtonsThatArentThereAndNoRaceOnShowChangeNothing) {
    for (const int button : {-1, 0, 13}) EntryButton(button);
    EXPECT_FALSE(screen.pastPerformanceOpen);
    screen.header.race.clear();
    EntryButton(4);
    EXPECT_FALSE(screen.pastPerformanceOpen);
    screen.header.race = "24"; // has a board, but no views
    EntryButton(4);
    EXPECT_FALSE(screen.pastPerformanceOpen);
}

TEST_F(EntryDetailTest, OnARecalledCardTheOffsetIsTheFigureAtTheEndOfTheFileName) {
    card.raceOffset = 5;
    EntryButton(4);
    EXPECT_EQ(5, card.raceOffset); // not a recalled card
    card.recallMode = "R";
    EntryButton(2);
    EXPECT_EQ(0, card.raceOffset); // "d" is no number
    card.cardFileName = "M1_20260314.pmd2";
    EntryButton(4);
    EXPECT_EQ(2, card.raceOffset);
}

// Entry 4 of race 5 has rows 4 to 7 of the race's data view; row 6, its third line, is the card's 61st.
class LineInUseTest : public EntryDetailTest {
protected:
    LineInUseTest() {
        card.entry(5, 4).horseName = "Corner Boy";
        for (int row = 1; row <= 7; ++row)
            for (int column = 1; column <= 39; ++column)
                writeLineCell(55 + row, column, screen.dataView[5].text(row, column));
        card.entry(5, 4).chosenLineNumber = 61;
    }
};

TEST_F(LineInUseTest, NoneIsKnownWhileNoLinesAreShown) {
    EXPECT_EQ(0, lineInUse().row);
    EntryButton(4);
    ClosePastPerformances();
    EXPECT_EQ(0, lineInUse().row);
}

TEST_F(LineInUseTest, ItIsTheProgramsUntilTheUserTakesAnother) {
    EntryButton(4);
    EXPECT_EQ(3, lineInUse().row);
    EXPECT_EQ(3, lineInUse().programsRow);
    EXPECT_FALSE(lineInUse().byUser);

    Command3(1); // row 4 of the race's view
    EXPECT_EQ(1, lineInUse().row);
    EXPECT_EQ(3, lineInUse().programsRow);
    EXPECT_TRUE(lineInUse().byUser);

    Command3(3); // the program's own line again
    EXPECT_EQ(3, lineInUse().row);
    EXPECT_FALSE(lineInUse().byUser);
}

TEST_F(LineInUseTest, ALineTakenByItsNumberIsTheUsersToo) {
    EntryButton(4);
    answers = {"7"};
    Command7();
    EXPECT_EQ(4, lineInUse().row);
    EXPECT_TRUE(lineInUse().byUser);
}

TEST_F(LineInUseTest, EachEntryHasItsOwn) {
    EntryButton(4);
    Command3(2);
    EntryButton(2); // the program chose none for it
    EXPECT_EQ(0, lineInUse().row);
    EntryButton(4);
    EXPECT_EQ(2, lineInUse().row);
}

TEST_F(LineInUseTest, NoLineSpeaksForAnEntryThatWasTakenOut) {
    screen.scratchButtons.fill({.caption = "Scr"});
    EntryButton(4);
    answers = {"No"};
    Command4(4);
    EXPECT_EQ(3, lineInUse().row);
    answers = {"Yes"};
    Command4(4);
    EXPECT_EQ(0, lineInUse().row);
    EXPECT_EQ(3, lineInUse().programsRow);
    Command3(2); // taken in again with a line of the user's
    EXPECT_EQ(2, lineInUse().row);
    EXPECT_TRUE(lineInUse().byUser);
}

TEST_F(LineInUseTest, OnARecalledCardOnlyTheUsersIsKnown) {
    card.entry(5, 4).chosenLineNumber = 0;
    EntryButton(4);
    EXPECT_EQ(0, lineInUse().row);
    Command3(2);
    EXPECT_EQ(2, lineInUse().row);
    EXPECT_TRUE(lineInUse().byUser);
}

TEST_F(LineInUseTest, AClosedCardForgetsWhatTheUserTook) {
    EntryButton(4);
    Command3(1);
    card.cardFileName.clear(); // nothing to save
    CloseRC();
    EXPECT_EQ(noLineTaken, screen.lineTaken(5, 4));
}

TEST_F(LineInUseTest, ALineNumberBeyondTheKeptLinesIsNoLine) {
    card.entry(5, 4).chosenLineNumber = 3001;
    EntryButton(4);
    EXPECT_EQ(0, lineInUse().row);
}

} // namespace
} // namespace quillon
