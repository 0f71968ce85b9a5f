// Numbers as text without a format, checked against the C library's fifteen significant digits.
#include "core/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>

namespace quillon {
namespace {

// The C library leaves trailing zeros out by itself, and writes no exponent within these bounds.
Text fifteenDigits(double number) {
    char text[64];
    std::snprintf(text, sizeof text, "%.15g", number);
    return text;
}

// A plain generator, so that every run sees the same figures.
struct Figures {
    std::uint64_t state = 20260314;
    int below(int bound) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<int>((state >> 33) % static_cast<std::uint64_t>(bound));
    }
};

TEST(NumberText, FiguresOfFewDecimalsAreToldExactly) {
    EXPECT_EQ("60.6", numberText(61.3 - 0.7));
    EXPECT_EQ("9.9", numberText(70.0 - 60.1));
    EXPECT_EQ("1001", numberText(1.001 * 1000));
    EXPECT_EQ("0.3", numberText(0.1 + 0.2));
    EXPECT_EQ("62.675", numberText(60 + 2.675));
    EXPECT_EQ("0.05", numberText(0.05));
    EXPECT_EQ("0.005", numberText(0.005));
    EXPECT_EQ("-0.5", numberText(-0.5));
    EXPECT_EQ("-40", numberText(-40));
    EXPECT_EQ("100", numberText(100));
    EXPECT_EQ("999999999.999", numberText(999999999.999));
    EXPECT_EQ("0", numberText(-0.0));
}

TEST(NumberText, FiguresOfManyDecimalsKeepFifteenDigits) {
    EXPECT_EQ("0.333333333333333", numberText(1.0 / 3));
    EXPECT_EQ("60.0001", numberText(60.0001));
    EXPECT_EQ("60.0000000000001", numberText(60.0000000000001));
    EXPECT_EQ("0.0001", numberText(0.0001));
    EXPECT_EQ("123456789012345", numberText(123456789012345.0));
}

TEST(NumberText, SumsAndTheirNeighboursHaveTheDigitsOfTheCLibrary) {
    Figures figures;
    for (int i = 0; i < 20000; ++i) {
        const double sum =
            figures.below(2000000) / 1000.0 - figures.below(2000000) / 1000.0 + figures.below(100) / 7.0;
        const double few = figures.below(2000000) / 100.0 - figures.below(2000000) / 1000.0;
        if (few == 0 || sum == 0) continue;
        double near = few;
        for (int step = 0; step < 8; ++step) {
            if (std::fabs(near) >= 0.0001) { // below, the C library writes an exponent
                ASSERT_EQ(fifteenDigits(near), numberText(near));
            }
            near = std::nextafter(near, 1e9);
        }
        if (std::fabs(sum) >= 0.0001) {
            ASSERT_EQ(fifteenDigits(sum), numberText(sum));
        }
    }
}

} // namespace
} // namespace quillon
