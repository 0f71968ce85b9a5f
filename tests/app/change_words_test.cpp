#include "app/change_words.h"

#include "support/card_test.h"

namespace quillon {
namespace {

using ChangeWordsTest = CardTest;

TEST_F(ChangeWordsTest, TheSelectionsThatAChangeMovedAreTold) {
    const Change change{.race = 3, .what = "", .before = {"5", "3", "7", "6"}, .after = {"3", "5", "7", ""}};
    const auto moved = movedPlaces(change);
    ASSERT_EQ(3U, moved.size());
    EXPECT_EQ(1, moved[0].place);
    EXPECT_EQ("5", moved[0].before);
    EXPECT_EQ("3", moved[0].after);
    EXPECT_EQ(4, moved[2].place);
    EXPECT_EQ("", moved[2].after);
}

// Its places are those of race 1, which say nothing of the card.
TEST_F(ChangeWordsTest, AChangeOfTheCardMovesNoPlace) {
    EXPECT_TRUE(movedPlaces({.race = 0, .what = "", .before = {"5"}, .after = {"3"}}).empty());
}

} // namespace
} // namespace quillon
