#include "card/race_card.h"
#include "core/failure.h"
#include "rating/rating_display.h"
#include "results/board.h"
#include "support/card_test.h"

namespace quillon {
namespace {

struct ClothRow {
    const char* programNumber;
    Colour cloth;
    Colour digits;
};

TEST(SaddleCloths, EachNumberHasItsColours) {
    const ClothRow rows[] = {
        {"1", {255, 0, 0}, {255, 255, 255}},   {"2", {0, 0, 255}, {255, 255, 255}},
        {"3", {255, 255, 255}, {1, 1, 1}},     {"4", {0, 128, 0}, {255, 255, 255}},
        {"5", {1, 1, 1}, {255, 255, 255}},     {"6", {255, 255, 0}, {0, 0, 0}},
        {"7", {255, 0, 255}, {0, 0, 0}},       {"8", {128, 128, 128}, {255, 255, 255}},
        {"9", {128, 0, 128}, {255, 255, 255}}, {"10", {0, 0, 255}, {255, 0, 0}},
        {"11", {0, 255, 255}, {0, 0, 0}},      {"12", {128, 0, 0}, {255, 255, 255}},
        {"1A", {255, 0, 0}, {255, 255, 255}},  {"  7", {255, 0, 255}, {0, 0, 0}},
        {"7  ", {255, 0, 255}, {0, 0, 0}},
    };
    for (const ClothRow& row : rows) {
        Cell cell{.text = row.programNumber};
        colourSaddleCloth(cell);
        EXPECT_EQ(row.cloth, cell.background) << row.programNumber;
        EXPECT_EQ(row.digits, cell.foreground) << row.programNumber;
        EXPECT_TRUE(cell.bold) << row.programNumber;
    }
}

TEST(SaddleCloths, OtherNumbersHaveNone) {
    for (const char* number : {"13", "0", "AE", "", "1.5", "-1", "112"}) {
        Cell cell{.text = number, .background = red, .foreground = white, .bold = true};
        colourSaddleCloth(cell);
        EXPECT_FALSE(cell.background) << number;
        EXPECT_FALSE(cell.foreground) << number;
        EXPECT_FALSE(cell.bold) << number;
    }
}

TEST(SaddleCloths, TheNumberIsRightAlignedInThree) {
    Cell cell{.text = " 4 "};
    colourSaddleCloth(cell);
    EXPECT_EQ("  4", cell.text);
}

class RatingDisplayTest : public CardTest {};

TEST_F(RatingDisplayTest, ColorsWorksOnTheCursorsRow) {
    screen.raceView[2](5, 2).text = "8";
    cursor.race = 2;
    cursor.entry = 5;
    Colors();
    EXPECT_EQ((Colour{128, 128, 128}), screen.raceView[2].read(5, 2).background);
    cursor.race = 24; // no such view
    EXPECT_FALSE(attempt(Colors));
}

struct GapRow {
    const char* first;
    const char* second;
    Colour colour;
};

TEST_F(RatingDisplayTest, TheGapOfTheTopTwoTintsTheirBoxes) {
    const GapRow rows[] = {
        {"60.0", "60.0", closeMagenta}, {"60.0", "60.1", recentYellow},   {"60.0", "60.2", recentYellow},
        {"60.0", "60.3", white},        {" 58.7", " 58.9", recentYellow}, // 0.2 but for the last bits
        {"61.0", "60.0", closeMagenta},                                   // below 0.1
        {"60.0", "63.0", white},        {"", "", closeMagenta},           // 0
    };
    screen.header.race = "4";
    for (const GapRow& row : rows) {
        for (Box& box : screen.boxes) box.colour = red;
        card.selection(4, 1).selectionRating = row.first;
        card.selection(4, 2).selectionRating = row.second;
        DeadHeat();
        for (std::size_t box = 0; box < screen.boxes.size(); ++box)
            EXPECT_EQ(box < 2 ? row.colour : white, screen.boxes[box].colour)
                << row.first << row.second << box;
    }
}

TEST_F(RatingDisplayTest, TheLetteredFirstRaceIsRaceOne) {
    screen.header.race = "1A";
    card.selection(1, 1).selectionRating = "60.0";
    card.selection(1, 2).selectionRating = "60.2";
    DeadHeat();
    EXPECT_EQ(recentYellow, screen.boxes[0].colour);
}

TEST_F(RatingDisplayTest, NoRaceOnShowHasNoTint) {
    for (Box& box : screen.boxes) box.colour = red;
    DeadHeat();
    for (const Box& box : screen.boxes) EXPECT_EQ(white, box.colour);
}

} // namespace
} // namespace quillon
