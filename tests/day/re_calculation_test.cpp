#include "day/re_calculation.h"
#include "race_on_show.h"

namespace quillon {
namespace {

class LineChoiceTest : public RaceOnShow {
protected:
    /// Three past lines of entry 2, in rows 5 to 7 of the race's data view, shown as rows 1 to 3 of its past
    /// performances. Their ratings are 57.0, 58.0 and 59.0.
    LineChoiceTest() {
        for (int line = 5; line <= 7; ++line) {
            Grid& lines = screen.dataView[race];
            for (int column = 1; column <= 39; ++column)
                lines(line, column).text = std::to_string(line) + "/" + std::to_string(column);
            lines(line, DataColumn::post).text = "2";
            lines(line, DataColumn::rating).text = " " + std::to_string(52 + line) + ".0";
            screen.dataView[25](line - 4, 39).text = std::to_string(line);
        }
        screen.pastPerformanceOpen = true;
    }
};

TEST_F(LineChoiceTest, ALineButtonTakesTheLineInItsRow) {
    enter({"60.0", "61.0", "62.0", "63.0", "64.0"});
    Command3(2); // row 6, 58.0
    EXPECT_EQ(" 58.0", ratingOf(2));
    EXPECT_EQ((Boxes{2, 1, 3, 4}), boxes());
    Command3(1); // row 5, 57.0
    EXPECT_EQ(" 57.0", ratingOf(2));
}

TEST_F(LineChoiceTest, TheRowOfTheRaceViewShowsTheLine) {
    enter({"60.0", "61.0", "62.0"});
    Command3(3); // row 7
    EXPECT_EQ("Horse 2", cell(2, 0));
    EXPECT_EQ("5/2", cell(2, 1));
    EXPECT_EQ("5/2", card.entry(race, 2).morningOdds.text()); // trimmed in the store as well
    EXPECT_EQ("  8", cell(2, 2));
    EXPECT_EQ("2", cell(2, 3)); // stays
    EXPECT_EQ("7/7", cell(2, 4));
    for (int column = 5; column <= 29; ++column)
        EXPECT_EQ("7/" + std::to_string(column + 5), cell(2, column)) << column; // data columns 10 to 34
    EXPECT_EQ("Doe, 2", cell(2, 30));
    EXPECT_EQ(" .200", cell(2, 31));
    EXPECT_EQ(" 59.0", cell(2, 32));
    EXPECT_EQ(" 59.0", cell(2, 38));
    EXPECT_EQ("Doe, 2", card.entry(race, 2).chosenDriver.text());
    EXPECT_EQ("c", cell(1, 4)); // another entry's row
}

TEST_F(LineChoiceTest, TheChosenLineItselfStays) {
    enter({"60.0", "61.0"});
    card.entry(race, 2).chosen.CR = "74";
    card.entry(race, 2).chosenLineNumber = 31;
    Command3(1);
    EXPECT_EQ("74", card.entry(race, 2).chosen.CR);
    EXPECT_EQ(31, card.entry(race, 2).chosenLineNumber);
}

TEST_F(LineChoiceTest, ARecalledCardKeepsTheDriverShownForToday) {
    enter({"60.0", "61.0"});
    card.entry(race, 2).driverName.clear();
    card.entry(race, 2).chosenDriver = "Roe, R";
    Command3(1);
    EXPECT_EQ("Roe, R", cell(2, 30));
    EXPECT_EQ("Roe, R", card.entry(race, 2).chosenDriver.text());
}

TEST_F(LineChoiceTest, OfEqualsALineButtonRanksTheEarlierAndALineNumberTheLater) {
    enter({"57.0", "61.0", "62.0", "63.0"});
    Command3(1); // entry 2 comes to 57.0 too
    EXPECT_EQ((Boxes{1, 2, 3, 4}), boxes());
    answers = {"5"};
    Command7();
    EXPECT_EQ((Boxes{2, 1, 3, 4}), boxes());
}

TEST_F(LineChoiceTest, PostsAreRenewedByALineNumberAndNotByALineButton) {
    enter({"60.0", "61.0", "62.0", "63.0", "64.0"});
    for (int place = 1; place <= 5; ++place)
        card.selection(race, place) = {.selectionName = "old", .selectionPost = "old"};
    Command3(2); // entry 2 at 58.0: 2, 1, 3, 4
    EXPECT_EQ("Horse 2", card.selection(race, 1).selectionName);
    EXPECT_EQ("         Doe, 2  .200", card.selection(race, 1).selectionDriver);
    EXPECT_EQ("5/2", card.selection(race, 1).selectionOdds);
    EXPECT_EQ(" 5/2", card.selection(race, 2).selectionOdds); // entry 1's was not trimmed
    EXPECT_EQ(" 58.0", card.selection(race, 1).selectionRating);
    for (int place = 1; place <= 4; ++place) EXPECT_EQ("old", card.selection(race, place).selectionPost);
    answers = {"6"};
    Command7();
    const char* posts[] = {"  2", "  1", "  3", "  4"};
    for (int place = 1; place <= 4; ++place)
        EXPECT_EQ(posts[place - 1], card.selection(race, place).selectionPost);
    EXPECT_EQ("old", card.selection(race, 5).selectionName); // the fifth stays
}

TEST_F(LineChoiceTest, TheBoardIsStoredTintedAndTheSheetRewritten) {
    enter({"57.1", "61.0", "62.0", "63.0"});
    screen.boxes[5].text = " 6 ";
    Command3(1); // 57.0
    EXPECT_EQ("8", card.raceOutcome(race, 1));
    EXPECT_EQ("6", card.raceOutcome(race, 6));
    EXPECT_EQ(recentYellow, screen.boxes[1].colour); // 57.1 - 57.0
    EXPECT_TRUE(exists("A Quillon PRO/Selections/M1_20260314.pms"));
}

TEST_F(LineChoiceTest, AButtonWithoutALineDoesNothing) {
    enter({"60.0", "61.0"});
    screen.dataView[25](14, 39).text = "5"; // rows 14 and 15 have numbers but no buttons
    for (const int button : {-1, 4, 13, 14, 99}) Command3(button);
    EXPECT_EQ("61.0", ratingOf(2));
    EXPECT_EQ("", screen.boxes[0].text);
}

TEST_F(LineChoiceTest, WithoutARaceOnShowNothingIsTaken) {
    enter({"60.0", "61.0"});
    screen.header.race = "";
    Command3(1);
    answers = {"5"};
    Command7();
    EXPECT_EQ("61.0", ratingOf(2));
}

struct AnswerRow {
    const char* answer;
    const char* rating; ///< of entry 2 afterwards
    bool refused;
};

TEST_F(LineChoiceTest, TheLineNumberMustBeOneOfTheEntrysLines) {
    const AnswerRow rows[] = {
        {"5", " 57.0", false}, {"7", " 59.0", false}, // first + count - 1
        {"4", "61.0", true},   {"8", "61.0", true},    {"99999", "61.0", true}, {"0", "61.0", false},
        {"-3", "61.0", false}, {"six", "61.0", false}, {"", "61.0", false},     {" 6 ", " 58.0", false},
    };
    for (const AnswerRow& row : rows) {
        enter({"60.0", "61.0"});
        shown.clear();
        answers = {row.answer};
        Command7();
        std::vector<std::string> expected{
            "input [Quillon Race Editor]: Enter Line Number of the selected race:  -> " + Text{row.answer}};
        if (row.refused)
            expected.emplace_back("message: Line Number is incorrect.  Enter a Line Number between 5 and 7");
        EXPECT_EQ(expected, shown);
        EXPECT_EQ(row.rating, ratingOf(2)) << row.answer;
    }
    enter({"60.0", "61.0"});
    Command7(); // cancelled
    EXPECT_EQ("61.0", ratingOf(2));
}

TEST_F(LineChoiceTest, OnlyTheFirstFifteenLinesHaveNumbers) {
    enter({"60.0", "61.0"});
    for (int row = 1; row <= 17; ++row) screen.dataView[25](row, 39).text = std::to_string(4 + row);
    answers = {"20"}; // 5 and 15 lines: up to 19
    Command7();
    ASSERT_EQ(2u, shown.size());
    EXPECT_EQ("message: Line Number is incorrect.  Enter a Line Number between 5 and 19", shown[1]);
}

TEST_F(LineChoiceTest, ANumberThatIsNoLineOfTheRaceOnShowTakesNothing) {
    // The past performances are those of another race, which had more lines: row 9 of this one is empty.
    enter({"60.0", "61.0"});
    screen.raceView[race](0, 32).text = "PR";
    card.entry(race, 0).rating = "70.0";
    screen.dataView[25](1, 39).text = "9";
    Command3(1);
    EXPECT_EQ("PR", cell(0, 32)); // the head of the view
    EXPECT_EQ("70.0", ratingOf(0));
    EXPECT_EQ("", screen.boxes[0].text);
}

TEST_F(LineChoiceTest, ButtonZeroClosesThePastPerformances) {
    screen.currentEntry = 2;
    Command3(0);
    EXPECT_FALSE(screen.pastPerformanceOpen);
    EXPECT_EQ(0, screen.currentEntry);
}

TEST_F(LineChoiceTest, ReCalculateRanksStrictlyAndWithoutTheFifth) {
    enter({"60.0", "60.0", "62.0", "61.0", "63.0"});
    card.rankEntry(5) = 9;
    RE_Calculate();
    const int ranking[] = {1, 2, 4, 3, 9}; // of the two at 60.0 the earlier first
    for (int place = 1; place <= 5; ++place) EXPECT_EQ(ranking[place - 1], card.rankEntry(place)) << place;
}

} // namespace
} // namespace quillon
