#include "core/failure.h"
#include "core/numbers.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {

struct Reading {
    const char* shows;
    const char* text;
    double lenient;
    std::optional<double> strict;
};

const Reading readings[] = {
    {"plain", "12", 12, 12},
    {"decimals", "58.6", 58.6, 58.6},
    {"leading blanks", "   4", 4, 4},
    {"trailing blanks", "4  ", 4, 4},
    {"bare point in front", ".25", 0.25, 0.25},
    {"bare point after", "5.", 5, 5},
    {"minus", "-99", -99, -99},
    {"plus", "+7", 7, 7},
    {"coupled entry", "1A", 1, std::nullopt},
    {"odds", "8/5", 8, std::nullopt},
    {"minutes", "1:29.3", 1, std::nullopt},
    {"second point ends it", "1.2.3", 1.2, std::nullopt},
    {"thousands separator ends it", "1,234", 1, std::nullopt},
    {"an exponent is strict only", "2E1", 2, 20},
    {"signed exponent", "25e-1", 25, 2.5},
    {"half an exponent", "2E", 2, std::nullopt},
    {"empty", "", 0, std::nullopt},
    {"blanks", "     ", 0, std::nullopt},
    {"text", " - ", 0, std::nullopt},
    {"stars", "***", 0, std::nullopt},
    {"point alone", ".", 0, std::nullopt},
    {"sign, then a blank", "- 5", 0, std::nullopt},
    {"tab is no blank", "\t5", 0, std::nullopt},
    {"not a number's name", "inf", 0, std::nullopt},
    {"hexadecimal is none", "0x10", 0, std::nullopt},
    {"beyond a double", "1E999", 1, std::nullopt},
    {"more digits than a double tells", "0.1000000000000000055511", 0.1, 0.1},
};

TEST(Numbers, LenientAndStrictReadings) {
    for (const Reading& row : readings) {
        EXPECT_EQ(row.lenient, lenientNumber(row.text)) << row.shows;
        EXPECT_EQ(row.strict, numberIn(row.text)) << row.shows;
    }
}

TEST_F(CardTest, AStrictNumberFailsAndTellsTheJournal) {
    EXPECT_FALSE(attempt([] { strictNumber("AE"); }));
    EXPECT_TRUE(journalTells("\"AE\" is no number"));
}

TEST_F(CardTest, IntegersRoundHalvesToEvenAndFailBeyondSixteenBits) {
    EXPECT_EQ(0, toInteger(0.5));
    EXPECT_EQ(2, toInteger(1.5));
    EXPECT_EQ(2, toInteger(2.5));
    EXPECT_EQ(-2, toInteger(-2.5));
    EXPECT_EQ(32767, toInteger(32767.4));
    EXPECT_FALSE(attempt([] { toInteger(32767.5); }));
    EXPECT_FALSE(attempt([] { toInteger(-32769); }));
    EXPECT_FALSE(attempt([] { toInteger(lenientNumber("99999")); }));
}

TEST_F(CardTest, ACountStandsWhenItCanGoNoHigher) {
    Integer count = 32766;
    countUp(count);
    EXPECT_EQ(32767, count);
    EXPECT_FALSE(attempt([&] { countUp(count); }));
    EXPECT_EQ(32767, count);
}

TEST(Numbers, TextHasFifteenSignificantDigitsAndNoExponent) {
    EXPECT_EQ("60.6", numberText(61.3 - 0.7));   // 60.599999999999994 in binary
    EXPECT_EQ("1001", numberText(1.001 * 1000)); // 1000.9999999999999
    EXPECT_EQ("9.9", numberText(70.0 - 60.1));   // 9.899999999999999
    EXPECT_EQ("0", numberText(0));
    EXPECT_EQ("0", numberText(-0.0));
    EXPECT_EQ("0.05", numberText(0.05));
    EXPECT_EQ("-0.5", numberText(-0.5));
    EXPECT_EQ("0.0000001", numberText(1e-7));
    EXPECT_EQ("12345678901234500000", numberText(12345678901234500000.0));
    EXPECT_EQ("0.333333333333333", numberText(1.0 / 3));
    EXPECT_EQ("100", numberText(99.9999999999999999));
}

TEST(Numbers, PrintListsPutABlankRoundANumber) {
    EXPECT_EQ(" 7 ", listNumber(7));
    EXPECT_EQ("-7 ", listNumber(-7));
    EXPECT_EQ(" 0 ", listNumber(0));
}

TEST_F(CardTest, ADivisionByZeroFails) {
    EXPECT_EQ(2.5, quotient(5, 2));
    EXPECT_FALSE(attempt([] { quotient(5, 0); }));
}

} // namespace quillon
