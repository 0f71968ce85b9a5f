#include "core/failure.h"
#include "core/formats.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(NumberFormats, ThePointAlwaysStands) {
    EXPECT_EQ("5.", formatted("##.#", 5));
    EXPECT_EQ(".", formatted(".###", 0));
    EXPECT_EQ(".5", formatted("##.0", 0.5));
    EXPECT_EQ(".00", formatted("####.#0", 0));
    EXPECT_EQ(".25", formatted(".###", 0.25)); // an optional digit that is 0 does not stand
}

TEST(NumberFormats, ForcedAndOptionalDigits) {
    EXPECT_EQ("05", formatted("0#", 5));
    EXPECT_EQ("12", formatted("0#", 12));
    EXPECT_EQ("", formatted("##", 0));
    EXPECT_EQ("7", formatted("##", 7));
    EXPECT_EQ("123", formatted("##", 123)); // no digit of the number is lost
    EXPECT_EQ(".300", formatted("#.#00", 0.3));
    EXPECT_EQ("3.50", formatted("##.#0", 3.5));
    EXPECT_EQ("1234.50", formatted("####.#0", 1234.5));
}

TEST(NumberFormats, HalvesGoAwayFromZeroOnTheExactBinaryValue) {
    EXPECT_EQ("58.3", formatted("##.0", 58.25)); // 58.25 is exact: the half goes up
    EXPECT_EQ("58.8", formatted("##.0", 58.75));
    EXPECT_EQ("78.0", formatted("##.0", 78.05 - 1e-13));
    EXPECT_EQ("78.0", formatted("##.0", 78.05)); // 78.05 is 78.0499999999999971578... in binary
    EXPECT_EQ("1.1", formatted("##.0", 1.05));   // 1.05 is 1.0500000000000000444: above the half
    EXPECT_EQ("2.6", formatted("##.0", 2.65));   // 2.65 is 2.64999999999999991118: below it
    EXPECT_EQ("-58.3", formatted("##.0", -58.25));
    EXPECT_EQ("3", formatted("##", 2.5));
    EXPECT_EQ(".13", formatted("##.00", 0.125));
}

TEST(NumberFormats, TextRoundTheDigitsStands) {
    EXPECT_EQ(" 12.3 ", formatted(" ##.# ", 12.3));
    EXPECT_EQ(" 24.60  ", formatted(" ###.00  ", 24.6));
    EXPECT_EQ("7 ", formatted("## ", 7));
    EXPECT_EQ("12.5%", formatted("##.0%", 0.125));
    EXPECT_EQ("-8.0%", formatted("###.0%", -0.08));
}

TEST(NumberFormats, TextThatIsNoNumberPassesUnchanged) {
    EXPECT_EQ(" - ", formatted("###.0", TextView{" - "}));
    EXPECT_EQ("", formatted("###.0", TextView{""}));
    EXPECT_EQ("1A", formatted("###.0", TextView{"1A"}));
    EXPECT_EQ("58.6", formatted("###.0", TextView{"   58.6 "}));
}

TEST_F(CardTest, ANumberBeyondItsDigitsFails) {
    EXPECT_FALSE(attempt([] { formatted("##.0", 1e300); }));
}

TEST(Alignments, TextIsRightAlignedAndNeverCut) {
    EXPECT_EQ("  7", aligned("@@@", "7"));
    EXPECT_EQ("     ", aligned("@@@@@", ""));
    EXPECT_EQ("100.4", aligned("@@@@", "100.4"));
    EXPECT_EQ(" 40%", aligned("@@@%", "40"));
    EXPECT_EQ("$   144.00", aligned("$@@@@@@@@@", "144.00"));
    EXPECT_EQ("       Smith, J ", aligned("@@@@@@@@@@@@@@@ ", "Smith, J"));
}

TEST(Alignments, AFormatComesFirst) {
    EXPECT_EQ("   58.6", formatted("#####.0", "@@@@@@@", TextView{"58.6"}));
    EXPECT_EQ("   - ", formatted("###.0", "@@@@@", TextView{" - "}));
}

} // namespace quillon
