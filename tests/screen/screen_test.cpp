#include "core/failure.h"
#include "screen/screen.h"
#include "support/card_test.h"

#include <utility>

namespace quillon {

using ScreenTest = CardTest;

TEST_F(ScreenTest, ViewsKnowTheirBounds) {
    Grid grid{3, 4};
    EXPECT_TRUE(attempt([&] { grid(2, 3).text = "corner"; }));
    EXPECT_FALSE(attempt([&] { grid(3, 0).text = "lost"; }));
    EXPECT_FALSE(attempt([&] { grid(0, 4).text = "lost"; }));
    EXPECT_FALSE(attempt([&] { grid(-1, 0).text = "lost"; }));
    EXPECT_EQ("corner", grid.text(2, 3));
    EXPECT_EQ("", grid.text(1, 1));
}

TEST_F(ScreenTest, ClearingKeepsTheHeads) {
    Grid grid{3, 2};
    grid(0, 1).text = "Date";
    grid(1, 1).text = "20260301";
    grid.clear();
    EXPECT_EQ("Date", grid.text(0, 1));
    EXPECT_EQ("", grid.text(1, 1));
    grid.clearAll();
    EXPECT_EQ("", grid.text(0, 1));
}

TEST_F(ScreenTest, RowsAreMadeWhenTheyAreLookedAt) {
    Grid grid{3, 2};
    grid(1, 0).text = "kept";
    int made = 0;
    grid.showRows(2, {1000000, [&](int row, std::span<Cell> cells) {
                          ++made;
                          cells[1] = {.text = "row " + std::to_string(row), .bold = row == 3};
                      }});
    EXPECT_EQ(1000002, grid.rows());
    EXPECT_EQ("kept", grid.text(1, 0));
    EXPECT_EQ(0, made);
    EXPECT_EQ("row 1000001", grid.text(1000001, 1));
    EXPECT_EQ("", grid.text(1000001, 0));
    EXPECT_EQ(1, made); // once for both cells
    EXPECT_TRUE(grid.read(3, 1).bold);
    EXPECT_FALSE(grid.read(2, 1).bold);
    EXPECT_FALSE(attempt([&] { grid.text(1000002, 0); }));
}

TEST_F(ScreenTest, MadeRowsAreNotWrittenAndGoWithTheRest) {
    Grid grid{4, 2};
    const RowSource sameText{5, [](int, std::span<Cell> cells) { cells[0].text = "made"; }};
    grid.showRows(2, sameText);
    EXPECT_FALSE(attempt([&] { grid(2, 0).text = "lost"; }));
    EXPECT_EQ("made", grid.text(2, 0));
    grid.clear();
    EXPECT_EQ(2, grid.rows());
    EXPECT_FALSE(attempt([&] { grid.text(2, 0); }));

    grid.showRows(1, sameText);
    grid.layOut(4, 2);
    EXPECT_EQ(4, grid.rows());
    EXPECT_EQ("", grid.text(2, 0));
}

TEST_F(ScreenTest, CopiesShareRowsUntilOneOfThemIsWritten) {
    Grid grid{3, 2};
    grid(1, 1).text = "5/2";
    const Grid copy = grid;
    EXPECT_EQ(&copy.read(1, 1), &std::as_const(grid).read(1, 1));
    grid(1, 1).text = "3/1";
    EXPECT_EQ("3/1", grid.text(1, 1));
    EXPECT_EQ("5/2", copy.text(1, 1));
    EXPECT_NE(copy.version(), grid.version());
    grid(1, 1).text = "5/2";
    grid.shareWith(copy);
    EXPECT_EQ(&copy.read(1, 1), &std::as_const(grid).read(1, 1));
}

TEST_F(ScreenTest, EveryChangeRaisesTheVersion) {
    Grid grid{2, 2};
    const auto before = grid.version();
    grid(1, 1).text = "x";
    EXPECT_GT(grid.version(), before);
    const auto written = grid.version();
    grid.showRows(1, {1, [](int, std::span<Cell>) {}});
    EXPECT_GT(grid.version(), written);
}

} // namespace quillon
