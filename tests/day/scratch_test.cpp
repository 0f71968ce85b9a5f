#include "day/scratch.h"
#include "race_on_show.h"

namespace quillon {
namespace {

class ScratchTest : public RaceOnShow {
protected:
    ScratchTest() {
        screen.scratchButtons.fill({.caption = "Scr"});
        screen.scratchButtons[0].caption = "X";
    }

    void scratch(int index) {
        answers = {"Yes"};
        Command4(index);
    }

    void remove(int index) {
        screen.scratchButtons[static_cast<std::size_t>(index)].caption = "X";
        scratch(index);
    }
};

struct CreditRow {
    const char* trackSize;
    std::array<const char*, 6> posts; ///< 5 to 10
};

TEST_F(ScratchTest, TheCreditGoesBySizeAndPost) {
    const CreditRow rows[] = {
        {"5/6", {"0", "0.6", "0.4", "0.5", "1", "1"}},
        {"1.Q", {"0", "0.6", "0.4", "0.5", "1", "1"}},
        {"1.M", {"0", "0.6", "0.4", "0.5", "1", "1"}},
        {"7/8", {"0", "0.7", "0.3", "0.75", "0.925", "1.325"}},
        {"3/1", {"0", "0.7", "0.3", "0.75", "0.925", "1.325"}},
        {"5/8", {"0.4", "0.6", "1", "0.25", "0.75", "1.25"}},
        {"3/4", {"0.4", "0.6", "1", "0.25", "0.75", "1.25"}},
        {"1/2", {"0.8", "0.7", "2.5", "1", "3", "0.5"}},
        {"1/1", {"0", "0", "0", "0", "0", "0"}},
        {"", {"0", "0", "0", "0", "0", "0"}},
    };
    for (const CreditRow& row : rows) {
        card.trackSize = row.trackSize;
        for (int post = 0; post <= 13; ++post) {
            cursor.scratchPost = static_cast<Integer>(post);
            Scr_adj();
            const bool inTable = post >= 5 && post <= 10;
            EXPECT_EQ(inTable ? row.posts[static_cast<std::size_t>(post - 5)] : "0", cursor.scratchAdjust)
                << row.trackSize << ", post " << post;
        }
    }
}

TEST_F(ScratchTest, AScratchOnAHalfMileTrackMovesThoseOutsideIn) {
    enter({"60.0", "61.0", "62.0", "63.0", "64.0", "65.0", "66.0", "67.0", "68.0", "69.0", "70.0", "71.0"});
    scratch(4);
    const char* ratings[] = {
        "60.0", "61.0", "62.0", "99.9",
        "63.2", // 64.0 - 0.8
        "64.3", // 65.0 - 0.7
        "63.5", // 66.0 - 2.5
        "66.0", // 67.0 - 1
        "65.0", // 68.0 - 3
        "68.5", // 69.0 - 0.5
        "70.0", "71.0",
    };
    for (int index = 1; index <= 12; ++index) {
        EXPECT_EQ(ratings[index - 1], ratingOf(index)) << index;
        EXPECT_EQ(index == 4 ? "   99.9" : ratings[index - 1], cell(index, 32)) << index;
    }
    // 60.0, 61.0, 62.0, 63.2 at post 5, then 63.5 at post 7
    EXPECT_EQ((Boxes{1, 2, 3, 5}), boxes());
    EXPECT_EQ(numberOf(7), card.raceOutcome(race, 9));
}

struct CutRow {
    const char* trackSize;
    int post;
    const char* before;
    const char* after;
};

TEST_F(ScratchTest, TheRatingIsCutToFourCharactersNotRounded) {
    const CutRow rows[] = {
        {"5/8", 8, "58.6", "58.3"},    // 58.6 - 0.25 = 58.35
        {"7/8", 9, "60.3", "59.3"},    // 60.3 - 0.925 = 59.375
        {"7/8", 10, " 60.0", "58.6"},  // 60.0 - 1.325 = 58.675
        {"7/8", 8, "60.0", "59.2"},    // 60.0 - 0.75 = 59.25
        {"1/2", 11, "100.5", "100.0"}, // "100." of 100.5
        {"1/2", 11, " 9.9", " 9.9"},
        {"1/2", 5, "0.5", " -.3"},    // 0.5 - 0.8 = -0.3
        {"1/2", 5, "60.8", "60.0"},   // "60"
        {"1/2", 11, "60.05", "60.0"}, // "60.0" of 60.05
        {"1/2", 5, "", ""},           // no rating
        {"1/2", 5, "     ", "     "}, // blanks are no number
        {"1/2", 9, "99.9", "96.9"},   // one that was scratched before: 99.9 - 3
    };
    for (const CutRow& row : rows) {
        card.trackSize = row.trackSize;
        std::vector<const char*> ratings(12, "70.0");
        ratings[static_cast<std::size_t>(row.post - 1)] = row.before;
        enter(ratings);
        scratch(1);
        EXPECT_EQ(row.after, ratingOf(row.post)) << row.trackSize << row.before;
        EXPECT_EQ(row.after, cell(row.post, 32)) << row.trackSize << row.before;
    }
}

TEST_F(ScratchTest, TheUserIsAskedFirst) {
    enter({"60.0", "61.0"});
    card.entry(race, 2).horseName = "Horse 2             "; // as the ranking has padded it
    Command4(2);
    Command4(1);
    screen.scratchButtons[2].caption = "X";
    answers = {"No"};
    Command4(2);
    const std::vector<std::string> expected{
        "beep",
        "question [Scratch Entry]: Are you sure you want to SCRATCH Program Number   8...   "
        "Horse 2             ? -> No",
        "beep",
        "question [Scratch Entry]: Are you sure you want to SCRATCH Program Number   9...   Horse 1? -> No",
        "beep",
        "question [Scratch Entry]: Are you sure you want to REMOVE Program Number   8...   "
        "Horse 2             ? -> No",
    };
    EXPECT_EQ(expected, shown);
    EXPECT_EQ("60.0", ratingOf(1));
    EXPECT_EQ("c", cell(2, 4));
    EXPECT_EQ("", card.payoffRecord(race, 10));
    EXPECT_EQ("", screen.boxes[0].text);
    EXPECT_FALSE(exists("A Quillon PRO/Results/M1_20260314.pmr"));
    EXPECT_FALSE(exists("A Quillon PRO/Selections/M1_20260314.pms"));
}

TEST_F(ScratchTest, AScratchLeavesARefund) {
    enter({"60.0", "61.0", "62.0", "63.0", "64.0"});
    put("A Quillon PRO/Results/M1_20260314.pmr", "Results");
    scratch(2);
    scratch(4);
    EXPECT_EQ("Results\r\nREFUNDS: R3         8\r\nREFUNDS: R3         6\r\n", // R3, seven blanks, "  8"
              contentOf("A Quillon PRO/Results/M1_20260314.pmr"));
    EXPECT_EQ("   8   6", card.payoffRecord(race, 10));
}

TEST_F(ScratchTest, ARemovalLeavesNoTraceInTheResults) {
    enter({"60.0", "61.0", "62.0", "63.0", "64.0"});
    card.entry(race, 2).chosen.POST = "4";
    remove(2);
    EXPECT_EQ("", card.payoffRecord(race, 10));
    EXPECT_FALSE(exists("A Quillon PRO/Results/M1_20260314.pmr"));
    EXPECT_EQ("99.9", ratingOf(2));
    EXPECT_EQ("99.9", cell(2, 32));
    EXPECT_EQ("X", cell(2, 4));
    EXPECT_EQ(" .200", cell(2, 31));
    for (int column = 5; column <= 30; ++column) EXPECT_EQ("c", cell(2, column)) << column;
    EXPECT_EQ("4", card.entry(race, 2).chosen.POST);
    EXPECT_EQ("63.2", ratingOf(5)); // those outside move in all the same: 64.0 - 0.8
    EXPECT_EQ((Boxes{1, 3, 4, 5}), boxes());
}

TEST_F(ScratchTest, AScratchEmptiesTheRowOfTheRaceView) {
    enter({"60.0", "61.0", "62.0"});
    for (int column = 0; column <= 2; ++column) screen.raceView[race](2, column).text = "c";
    scratch(2);
    EXPECT_EQ("Scr", cell(2, 4));
    for (int column = 0; column <= 2; ++column) EXPECT_EQ("c", cell(2, column)) << column;
    EXPECT_EQ("2", cell(2, 3));
    for (int column = 5; column <= 31; ++column) EXPECT_EQ("", cell(2, column)) << column;
    EXPECT_EQ("   99.9", cell(2, 32));
    EXPECT_EQ("c", cell(1, 5));
}

TEST_F(ScratchTest, TheEntryOfTheRowIsTheOneItsPostNames) {
    enter({"60.0", "61.0", "62.0"});
    screen.raceView[race](2, 3).text = "3";
    remove(2);
    EXPECT_EQ("61.0", trimmed(ratingOf(2)));
    EXPECT_EQ("99.9", ratingOf(3));
}

TEST_F(ScratchTest, ARowThatNamesNoEntryShowsTheRemovalAllTheSame) {
    enter({"60.0", "61.0", "62.0"});
    screen.raceView[race](2, 3).text = "99999"; // beyond a whole number of the system
    remove(2);
    EXPECT_EQ("99.9", cell(2, 32));
    EXPECT_EQ("61.0", ratingOf(2));
}

struct EmptiedRow {
    Text PastLine::*cell;
    bool emptied;
    bool emptiedCrossed;
};

constexpr EmptiedRow emptiedRows[] = {
    {&PastLine::TRACK, true, false},       {&PastLine::PURSE, true, false},
    {&PastLine::CLASS, true, false},       {&PastLine::CR, true, false},
    {&PastLine::LEAD_TM_1Q, true, false},  {&PastLine::LEAD_TM_2Q, true, false},
    {&PastLine::LEAD_TM_3Q, true, false},  {&PastLine::LEAD_TM_FN, true, false},
    {&PastLine::POST, true, true},         {&PastLine::CALL_1Q_PO, true, true},
    {&PastLine::CALL_2Q_PO, true, true},   {&PastLine::CALL_3Q_PO, true, true},
    {&PastLine::CALL_ST_PO, true, true},   {&PastLine::CALL_FN_PO, true, true},
    {&PastLine::HRSE_TM_4Q, true, false},  {&PastLine::HRSE_TM_FN, true, false},
    {&PastLine::CALL_1Q_PK, false, false}, {&PastLine::CALL_1Q_BF, false, false},
    {&PastLine::CALL_3Q_AF, false, false},
};

TEST_F(ScratchTest, AScratchEmptiesTheChosenLineAndThePositionsAtTheCrossedIndex) {
    enter({"60.0", "61.0", "62.0", "63.0", "64.0", "65.0"});
    for (const EmptiedRow& row : emptiedRows)
        for (const auto& [where, index] :
             {std::pair{race, 5}, std::pair{5, race}, std::pair{5, 5}, std::pair{race, 3}})
            card.entry(where, index).chosen.*row.cell = "x";
    scratch(5);
    for (const EmptiedRow& row : emptiedRows) {
        EXPECT_EQ(row.emptied ? "" : "x", card.entry(race, 5).chosen.*row.cell);
        EXPECT_EQ(row.emptiedCrossed ? "" : "x", card.entry(5, race).chosen.*row.cell);
        EXPECT_EQ("x", card.entry(5, 5).chosen.*row.cell);
        EXPECT_EQ("x", card.entry(race, 3).chosen.*row.cell);
    }
}

TEST_F(ScratchTest, ARaceAboveTwentyHasNoCrossedIndex) {
    screen.header.race = "22";
    RaceEntry& entry = card.entry(22, 2);
    entry.horseName = "Plain Biscuit";
    entry.chosen.POST = "4";
    entry.rating = "60.0";
    screen.raceView[22](2, 3).text = "2";
    scratch(2);
    EXPECT_EQ("", entry.chosen.POST);
    EXPECT_EQ("99.9", entry.rating);
}

TEST_F(ScratchTest, TheScratchedIsStillRanked) {
    enter({"60.0", "61.0", "62.0", "59.0"});
    scratch(4); // the last post: nobody is outside
    for (const int index : {1, 2, 3}) EXPECT_EQ(std::to_string(59 + index) + ".0", ratingOf(index));
    EXPECT_EQ((Boxes{1, 2, 3, 4}), boxes());
    EXPECT_EQ(" 99.9", card.selection(race, 4).selectionRating);
}

TEST_F(ScratchTest, AScratchIsNotTakenBackAndASecondAdjustsAgain) {
    enter({"60.0", "61.0", "62.0", "63.0", "70.0"});
    scratch(1);
    scratch(2);
    EXPECT_EQ("99.9", ratingOf(1));
    EXPECT_EQ("68.4", ratingOf(5)); // 70.0 - 0.8 - 0.8
}

TEST_F(ScratchTest, TheSelectionsAreBuiltAnew) {
    enter({"60.0", "61.0", "62.0", "63.0", "64.0", "65.0"});
    card.trackSize = "";
    card.entry(race, 3).horseName = "A Name Of Twenty-Six Letts"; // 26 characters
    card.entry(race, 4).driverName.clear();
    card.entry(race, 4).chosenDriver = "Roe, R";
    scratch(1);
    const int ranking[] = {2, 3, 4, 5, 6};
    for (int place = 1; place <= 5; ++place) {
        const int index = ranking[place - 1];
        const Selection& selection = card.selection(race, place);
        const Text name = index == 3 ? "A Name Of Twenty-Six Lett" : "Horse " + std::to_string(index);
        const Text driver = index == 4 ? "Roe, R" : "Doe, " + std::to_string(index);
        EXPECT_EQ(name, selection.selectionName);
        EXPECT_EQ("         " + driver + "  .200", selection.selectionDriver);
        EXPECT_EQ(" 5/2", selection.selectionOdds);
        EXPECT_EQ("  " + std::to_string(index), selection.selectionPost);
        EXPECT_EQ(" " + std::to_string(59 + index) + ".0", selection.selectionRating);
    }
}

TEST_F(ScratchTest, TheBoardIsStoredTintedAndTheSheetRewritten) {
    enter({"59.0", "60.0", "60.1", "62.0", "63.0", "64.0"});
    card.winHeat(race) = 2;
    screen.boxes[4].text = " 7 ";
    screen.tote[1] = " 5.40";
    scratch(1);
    EXPECT_EQ("8", card.raceOutcome(race, 1)); // entry 2, number "  8", trimmed on its way into the store
    EXPECT_EQ("7", card.raceOutcome(race, 5));
    EXPECT_EQ("5.40", card.payoffRecord(race, 1));
    EXPECT_EQ(recentYellow, screen.boxes[0].colour); // 60.1 - 60.0
    EXPECT_TRUE(screen.boxTenVisible);               // a dead heat for first
    EXPECT_TRUE(exists("A Quillon PRO/Selections/M1_20260314.pms"));
}

TEST_F(ScratchTest, ButtonZeroSwitchesTheColumn) {
    const auto captions = [](const char* first, const char* others) {
        for (std::size_t button = 0; button <= 12; ++button)
            EXPECT_EQ(button == 0 ? first : others, screen.scratchButtons[button].caption) << button;
    };
    screen.scratchButtons[5].caption = "X";
    Command4(0);
    captions("Scr", "X");
    Command4(0);
    captions("X", "Scr");
    EXPECT_TRUE(shown.empty());
}

TEST_F(ScratchTest, OnlyAnEntryWithANameCanBeScratched) {
    enter({"60.0"});
    card.entry(race, 2).horseName = "     ";
    EXPECT_TRUE(canScratch(0));
    EXPECT_TRUE(canScratch(1));
    for (const int button : {-1, 2, 3, 12, 13, 99}) {
        EXPECT_FALSE(canScratch(button)) << button;
        Command4(button);
    }
    screen.header.race = "";
    EXPECT_FALSE(canScratch(1));
    screen.header.race = "24";
    EXPECT_FALSE(canScratch(1));
    Command4(1);
    EXPECT_TRUE(shown.empty());
}

} // namespace
} // namespace quillon
