#include "analysis/pick_results.h"

#include "support/card_test.h"

#include <array>

namespace quillon {
namespace {

class PickResultsTest : public CardTest {
protected:
    PickResultsTest() { card.raceCount = 3; }

    static void picks(int race, const std::array<Text, 4>& numbers) {
        for (int pick = 1; pick <= 4; ++pick)
            card.keyPicks(race, pick) = numbers.at(static_cast<std::size_t>(pick) - 1);
    }
    static void winners(int race, const std::array<Text, 4>& numbers) {
        for (int slot = 1; slot <= 4; ++slot)
            card.pickLegs(race, slot) = numbers.at(static_cast<std::size_t>(slot) - 1);
    }
    static Text cell(int row, int column) { return screen.picks.text(row, column); }

    /// The column that is marked in a race's row; 0 for none.
    static int marked(int row) {
        int found = 0;
        for (int column = 1; column < screen.picks.columns(); ++column) {
            const Cell& cell = screen.picks.read(row, column);
            EXPECT_EQ(cell.bold, cell.background.has_value());
            if (!cell.bold) continue;
            EXPECT_EQ((Colour{255, 255, 100}), cell.background);
            EXPECT_EQ(0, found) << "one mark a race";
            found = column;
        }
        return found;
    }
};

TEST_F(PickResultsTest, HeadsAndTheFirstColumnAreBold) {
    Pick3Results();
    const std::vector<Text> heads{"RACE",  "S1",    "S2",     "S3", "S4", "",      "Win",
                                  "Win",   "Win",   "Win",    "",   "DD", "Pick3", "Pick4",
                                  "Pick5", "Pick6", "Pick10", "",   "",   ""};
    ASSERT_EQ(26, screen.picks.rows());
    ASSERT_EQ(20, screen.picks.columns());
    for (int column = 0; column < 20; ++column) {
        EXPECT_EQ(heads[static_cast<std::size_t>(column)], cell(0, column)) << column;
        EXPECT_TRUE(screen.picks.read(0, column).bold);
    }
    for (int row = 0; row < 26; ++row) EXPECT_TRUE(screen.picks.read(row, 0).bold);
    EXPECT_TRUE(screen.picksVisible);
    EXPECT_FALSE(screen.racePanelsVisible);
    EXPECT_TRUE(screen.item(CommandId::MainScreen).visible);
}

TEST_F(PickResultsTest, RacesAreNumberedUpToTheCount) {
    card.raceCount = 12;
    Pick3Results();
    EXPECT_EQ(" 1", cell(1, 0));
    EXPECT_EQ("12", cell(12, 0));
    EXPECT_EQ("", cell(13, 0));
}

TEST_F(PickResultsTest, ACardLongerThanTheViewEndsWithIt) {
    card.raceCount = 30;
    for (int race = 1; race <= 30; ++race) card.pickLegs(race, 1) = "7";
    Pick3Results();
    EXPECT_EQ("25", cell(25, 0));
    EXPECT_EQ("7", cell(25, 6));
    EXPECT_TRUE(screen.picksVisible);
}

TEST_F(PickResultsTest, PicksOfTwentyRacesAreShown) {
    picks(1, {"  4", "  2", "", ""});
    picks(20, {"  7", "  1", "  3", "  5"});
    picks(21, {"  9", "", "", ""});
    Pick3Results();
    EXPECT_EQ("  4", cell(1, 1));
    EXPECT_EQ("  2", cell(1, 2));
    EXPECT_EQ("", cell(1, 3));
    EXPECT_EQ("  5", cell(20, 4)); // also after the card's last race
    EXPECT_EQ("", cell(21, 1));
}

TEST_F(PickResultsTest, WinnersAndPayoffsOfTheCardsRacesAreShown) {
    winners(2, {"4", "7", "1", "9"});
    for (int legs = 0; legs <= 10; ++legs) card.pickPayoff(3, legs) = "pays " + std::to_string(legs);
    card.pickLegs(4, 1) = "8"; // after the last race
    Pick3Results();
    EXPECT_EQ("4", cell(2, 6));
    EXPECT_EQ("7", cell(2, 7));
    EXPECT_EQ("1", cell(2, 8));
    EXPECT_EQ("", cell(2, 9)); // the fourth winner is not shown
    EXPECT_EQ("pays 2", cell(3, 11));
    EXPECT_EQ("pays 3", cell(3, 12));
    EXPECT_EQ("pays 4", cell(3, 13));
    EXPECT_EQ("pays 5", cell(3, 14));
    EXPECT_EQ("pays 6", cell(3, 15));
    EXPECT_EQ("pays 10", cell(3, 16));
    EXPECT_EQ("", cell(4, 6));
}

struct MarkRow {
    const char* what;
    std::array<Text, 4> winners;
    std::array<Text, 4> picks;
    int marked;
};

TEST_F(PickResultsTest, TheFirstWinnerThatWasPickedIsMarked) {
    const MarkRow rows[] = {
        {"the winner is pick 1", {"4"}, {"  4"}, 6},
        {"the winner is pick 4", {"4"}, {"  1", "  2", "  3", "  4"}, 6},
        {"nobody picked him", {"5"}, {"  1", "  2", "  3", "  4"}, 0},
        {"1A counts as 1", {"1A"}, {"  1"}, 6},
        {"a number with a blank after it", {"4 "}, {"  4"}, 6},
        {"the second of a dead heat", {"5", "4"}, {"  4"}, 7},
        {"the third", {"5", "6", "4"}, {"  4"}, 8},
        {"the fourth, whose cell is not filled", {"5", "6", "7", "4"}, {"  4"}, 9},
        {"both picked: the first", {"4", "5"}, {"  5", "  4"}, 6},
        {"a third winner without a second", {"5", "", "4"}, {"  4"}, 0},
        {"no winner and no pick", {}, {}, 0},
        {"no winner, empty picks", {}, {"  4"}, 0},
        {"an empty winner in a dead heat", {"5", "6", "", "4"}, {"  4"}, 9},
        {"a blank winner is none", {"  "}, {"  4"}, 0},
    };
    for (const MarkRow& row : rows) {
        winners(1, row.winners);
        picks(1, row.picks);
        Pick3Results();
        EXPECT_EQ(row.marked, marked(1)) << row.what;
    }
}

} // namespace
} // namespace quillon
