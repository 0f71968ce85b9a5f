#include "app/screen.h"
#include "core/failure.h"
#include "support/card_test.h"

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

TEST_F(ScreenTest, ABoundViewShowsItsTableWithoutACopy) {
    Grid grid;
    int asked = 0;
    grid.bind(2, 3, [&](int row, int column) {
        ++asked;
        return std::to_string(row) + "/" + std::to_string(column);
    });
    grid(0, 1).text = "head";
    EXPECT_EQ(0, asked);
    EXPECT_EQ("head", grid.text(0, 1));
    EXPECT_EQ("2/1", grid.text(2, 1));
    EXPECT_FALSE(attempt([&] { grid.text(3, 1); }));
}

TEST_F(ScreenTest, EveryChangeRaisesTheVersion) {
    Grid grid{2, 2};
    const auto before = grid.version();
    grid(1, 1).text = "x";
    EXPECT_GT(grid.version(), before);
}

} // namespace quillon
