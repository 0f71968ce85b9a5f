#include "day/driver_change.h"
#include "day/race_on_show.h"

namespace quillon {
namespace {

class DriverChangeTest : public RaceOnShow {
protected:
    void openList(int row) {
        put("DriverList.txt", "Good, G              .320\r\n"
                              "Fair, F              .250\r\n"
                              "Poor, P              .095\r\n"
                              "                       \r\n"
                              "Exactly Fifteen            .2\r\n");
        DriverColumn(row);
    }
};

struct CreditRow {
    double udr;
    double credit;
};

TEST(DriverCredits, TheUdrDecides) {
    const CreditRow rows[] = {
        {0.400, 1.0}, {0.300, 1.0}, {0.299, 0},    {0.190, 0},   {0.189, -0.5}, {0.151, -0.5},
        {0.150, 0},   {0.101, 0},   {0.100, -1.0}, {0.05, -1.0}, {0, -1.0},
    };
    for (const CreditRow& row : rows) EXPECT_EQ(row.credit, driverCredit(row.udr)) << row.udr;
}

struct MoveRow {
    const char* oldUdr;
    const char* line;
    const char* before;
    const char* after;
};

TEST_F(DriverChangeTest, TheRatingMovesByBothDrivers) {
    const MoveRow rows[] = {
        {" .320", "New, N               .250", "60.0", "61.0"}, // + 1.0
        {" .120", "New, N               .180", "60.0", "60.5"}, // + 0.5
        {" .095", "New, N               .340", "60.0", "58.0"}, // - 1.0 - 1.0
        {" .160", "New, N               .170", "60.0", "60.0"}, // - 0.5 + 0.5
        {" .320", "New, N               .090", "60.0", "62.0"}, // + 1.0 + 1.0
        {" .250", "New, N               .2", "60.0", "60.0"},   // the last four characters are "  .2"
        {" .250", "New, N               .300", " 9.0", " 8.0"},
        {" .250", "New, N               .300", "99.9", "98.9"},
        {" .320", "New, N               .250", "", ""}, // without a rating there is none to move
        {" .320", "New, N               .250", "     ", "     "},
    };
    for (const MoveRow& row : rows) {
        enter({"70.0", row.before});
        screen.raceView[race](2, 31).text = row.oldUdr;
        put("DriverList.txt", row.line);
        DriverColumn(2);
        DriverChoice(row.line);
        EXPECT_EQ(row.after, ratingOf(2)) << row.oldUdr << row.line;
        EXPECT_EQ(row.after, cell(2, 32)) << row.oldUdr << row.line;
    }
}

TEST_F(DriverChangeTest, TheListHasTheLinesOfTheFileAndExit) {
    enter({"60.0", "61.0"});
    openList(2);
    EXPECT_TRUE(screen.driverList.visible);
    EXPECT_EQ(2, screen.driverRow);
    const std::vector<Text> expected{"Good, G              .320",     "Fair, F              .250",
                                     "Poor, P              .095",     "                       ",
                                     "Exactly Fifteen            .2", "EXIT"};
    EXPECT_EQ(expected, screen.driverList.lines);
    DriverColumn(1);
    EXPECT_EQ(6u, screen.driverList.lines.size()); // not twice
}

TEST_F(DriverChangeTest, WithoutTheFileThereIsOnlyExit) {
    enter({"60.0"});
    DriverColumn(1);
    EXPECT_EQ(std::vector<Text>{"EXIT"}, screen.driverList.lines);
    EXPECT_TRUE(screen.driverList.visible);
}

TEST_F(DriverChangeTest, RowsWithoutAnEntryHaveNoList) {
    enter({"60.0"});
    for (const int row : {-1, 0, 2, 13, 99}) DriverColumn(row);
    screen.header.race = "";
    DriverColumn(1);
    EXPECT_FALSE(screen.driverList.visible);
}

TEST_F(DriverChangeTest, TheEntryKeepsItsNewDriver) {
    enter({"60.0", "61.0"});
    openList(2);
    DriverChoice("Good, G              .320");
    const RaceEntry& entry = card.entry(race, 2);
    EXPECT_EQ("Good, G        ", entry.driverName); // the first 15 characters
    EXPECT_EQ("Good, G        ", entry.chosenDriver.text());
    EXPECT_EQ(" .320", entry.driverUdr);
    EXPECT_EQ("Good, G        ", cell(2, 30));
    EXPECT_EQ(".320", cell(2, 31));
    EXPECT_FALSE(screen.driverList.visible);
}

TEST_F(DriverChangeTest, TheUdrHasTheEntrysFormInTheStoreOnly) {
    enter({"60.0", "61.0"});
    openList(2);
    DriverChoice("Exactly Fifteen            .2");
    EXPECT_EQ("Exactly Fifteen", card.entry(race, 2).driverName);
    EXPECT_EQ(" .200", card.entry(race, 2).driverUdr);
    EXPECT_EQ("  .2", cell(2, 31));
}

TEST_F(DriverChangeTest, AUdrBeyondAllBoundsLeavesTheRestOfTheChangeStanding) {
    enter({"60.0", "61.0"});
    put("DriverList.txt", "Wild, W              1e99"); // begins with a 1: a driver of 0.300 or more
    DriverColumn(2);
    DriverChoice("Wild, W              1e99");
    EXPECT_EQ(" .200", card.entry(race, 2).driverUdr); // can't be told in its form, and stays
    EXPECT_EQ("1e99", cell(2, 31));
    EXPECT_EQ("Wild, W        ", cell(2, 30));
    EXPECT_EQ("60.0", cell(2, 32)); // 61.0 - 1.0
}

TEST_F(DriverChangeTest, ExitAndLinesWithoutADriverChangeNothing) {
    enter({"60.0", "61.0"});
    for (const char* line : {"EXIT", "                       ", ""}) {
        openList(2);
        DriverChoice(line);
        EXPECT_FALSE(screen.driverList.visible) << line;
        EXPECT_EQ("61.0", ratingOf(2)) << line;
        EXPECT_EQ("Doe, 2", card.entry(race, 2).driverName) << line;
        EXPECT_EQ("", screen.boxes[0].text) << line;
    }
}

TEST_F(DriverChangeTest, OnlyALineOfTheListCanBePicked) {
    enter({"60.0", "61.0"});
    DriverChoice("Good, G              .320"); // no list
    openList(2);
    DriverChoice("Nobody, N            .320");
    EXPECT_TRUE(screen.driverList.visible);
    EXPECT_EQ("Doe, 2", card.entry(race, 2).driverName);
}

TEST_F(DriverChangeTest, TheRaceIsRankedAgain) {
    // Entry 5 goes from 62.0 to 61.0 with a driver of .320 for one of .200.
    enter({"60.0", "63.0", "61.0", "64.0", "62.0"});
    openList(5);
    DriverChoice("Good, G              .320");
    // 60.0; of the two at 61.0 the higher post; the other; 63.0
    EXPECT_EQ((Boxes{1, 5, 3, 2}), boxes());
    const int ranking[] = {1, 5, 3, 2};
    for (int place = 1; place <= 4; ++place) {
        const int index = ranking[place - 1];
        const Selection& selection = card.selection(race, place);
        const Text driver = index == 5 ? "Good, G        " : "         Doe, " + std::to_string(index);
        EXPECT_EQ("Horse " + std::to_string(index), selection.selectionName);
        EXPECT_EQ(driver + (index == 5 ? "  .320" : "  .200"), selection.selectionDriver);
        EXPECT_EQ(" 5/2", selection.selectionOdds);
        EXPECT_EQ("  " + std::to_string(index), selection.selectionPost);
        EXPECT_EQ(" " + Text{trimmed(ratingOf(index))}, selection.selectionRating);
    }
}

TEST_F(DriverChangeTest, ATieWithS1AtAHigherPostTakesFirst) {
    enter({"60.0", "61.0"});
    openList(2);
    DriverChoice("Good, G              .320"); // 61.0 - 1.0
    EXPECT_EQ((Boxes{2, 1, 0, 0}), (Boxes{boxes()[0], boxes()[1], 0, 0}));
}

TEST_F(DriverChangeTest, OfEqualsTheLowerPostIsFourth) {
    // Entry 4 comes to 63.0 from 62.0 (a driver of .095 for one of .200), level with 5; 6 is the seed.
    enter({"60.0", "61.0", "62.0", "62.0", "63.0", "64.0"});
    openList(4);
    DriverChoice("Poor, P              .095");
    EXPECT_EQ((Boxes{1, 2, 3, 4}), boxes());
}

TEST_F(DriverChangeTest, TheFifthRowKeepsItsEntryAndGetsItsNameAndRatingAgain) {
    enter({"60.0", "61.0", "62.0", "63.0", "64.0"});
    card.raceOutcome(race, 9) = numberOf(5);
    card.entry(race, 5).horseName = "A Name Of Twenty-Six Letts";
    card.selection(race, 5) = {
        .selectionName = "old", .selectionOdds = "old", .selectionRating = "old", .selectionPost = "old"};
    openList(5);
    DriverChoice("Poor, P              .095"); // 64.0 + 1.0
    const Selection& fifth = card.selection(race, 5);
    EXPECT_EQ("A Name Of Twenty-Six Lett", fifth.selectionName);
    EXPECT_EQ("Poor, P          .095", fifth.selectionDriver);
    EXPECT_EQ(" 65.0", fifth.selectionRating);
    EXPECT_EQ("old", fifth.selectionOdds);
    EXPECT_EQ("old", fifth.selectionPost);
    EXPECT_EQ(numberOf(5), card.raceOutcome(race, 9));
}

TEST_F(DriverChangeTest, WithoutANumberOfTheFifthHorseItsRowStays) {
    enter({"60.0", "61.0", "62.0", "63.0", "64.0"}); // a recalled card has none
    card.selection(race, 5).selectionName = "old";
    openList(5);
    DriverChoice("Poor, P              .095");
    EXPECT_EQ("old", card.selection(race, 5).selectionName);
}

TEST_F(DriverChangeTest, TheBoardIsStoredTintedAndTheSheetRewritten) {
    enter({"60.0", "61.2"});
    screen.boxes[4].text = " 7 ";
    openList(2);
    DriverChoice("Good, G              .320"); // 60.2
    EXPECT_EQ("9", card.raceOutcome(race, 1));
    EXPECT_EQ("7", card.raceOutcome(race, 5));
    EXPECT_EQ(recentYellow, screen.boxes[0].colour);
    EXPECT_TRUE(exists("A Quillon PRO/Selections/M1_20260314.pms"));
}

} // namespace
} // namespace quillon
