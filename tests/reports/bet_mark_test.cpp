#include "reports/bet_mark.h"

#include "core/failure.h"
#include "support/card_test.h"

namespace quillon {

using BetMarkTest = CardTest;

TEST_F(BetMarkTest, AMorningLineIsDividedByItsLastDigit) {
    EXPECT_DOUBLE_EQ(2.5, oddsOf(" 5/2"));
    EXPECT_DOUBLE_EQ(10, oddsOf("10/1"));
    EXPECT_DOUBLE_EQ(1.5, oddsOf("3/12"));              // 3 by the 2 of 12
    for (const char* unreadable : {"", "   5", "5/10"}) // no "/", and a last digit of 0
        EXPECT_FALSE(attempt([&] { oddsOf(unreadable); })) << unreadable;
}

TEST_F(BetMarkTest, TheGapAfterS1IsCutForTheSheet) {
    card.selection(1, 1).selectionRating = " 60.0";
    card.selection(1, 2).selectionRating = " 72.35";
    EXPECT_NEAR(12.35, gapAfterS1(1), 1e-9);
    EXPECT_EQ("12.3", marginOf(1)); // four characters
    EXPECT_FALSE(attempt([] { gapAfterS1(raceExtent); }));
}

} // namespace quillon
