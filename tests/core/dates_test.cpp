#include "core/dates.h"
#include "core/failure.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {

TEST_F(CardTest, DifferencesInDaysCrossMonthsAndLeapDays) {
    EXPECT_EQ(1, dayNumber("20240301") - dayNumber("20240229"));
    EXPECT_EQ(2, dayNumber("20240301") - dayNumber("20240228")); // 2024 is a leap year
    EXPECT_EQ(1, dayNumber("20260301") - dayNumber("20260228"));
    EXPECT_EQ(-33, dayNumber("20260209") - dayNumber("20260314")); // 19 days left of February, 14 of March
    EXPECT_EQ(1, dayNumber("19000301") - dayNumber("19000228"));   // 1900 is none
}

TEST_F(CardTest, ADayThatDoesNotExistFails) {
    for (const char* text :
         {"", "2026031", "202603144", "20260230", "20261301", "20260100", "2026 314", "abcdefgh"})
        EXPECT_FALSE(attempt([&] { dayNumber(text); })) << text;
}

TEST(Dates, TheDashedFormGoesByPosition) {
    EXPECT_EQ("03-14-2026", dashedDate("20260314"));
    EXPECT_EQ("--", dashedDate(""));
}

} // namespace quillon
