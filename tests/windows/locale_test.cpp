// Run where Windows is set to Russian: code page 1251 and a decimal comma.
#include "windows_files.h"

#include "core/files.h"
#include "core/formats.h"
#include "core/numbers.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cstdio>

namespace quillon {
namespace {

class RussianWindows : public CardTest {
protected:
    RussianWindows() { std::setlocale(LC_ALL, ""); }
    ~RussianWindows() override { std::setlocale(LC_ALL, "C"); }
};

// Without it the other tests would show nothing.
TEST_F(RussianWindows, IsWhatTheTestsRunOn) {
    std::array<wchar_t, 4> point{};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, point.data(), static_cast<int>(point.size()));
    EXPECT_STREQ(L",", point.data());
    EXPECT_EQ(1251U, GetACP());
    std::array<char, 8> half{};
    std::snprintf(half.data(), half.size(), "%.1f", 0.5);
    EXPECT_STREQ("0,5", half.data());
}

TEST_F(RussianWindows, NumbersHaveAPoint) {
    EXPECT_EQ("60.6", numberText(60.6));
    EXPECT_EQ(0.5, strictNumber("0.5"));
    EXPECT_EQ(0.0, lenientNumber("0,5"));
    EXPECT_EQ(31.7, lenientNumber("31.7"));
    EXPECT_EQ("31.70", formatted("##.00", 31.7));
}

TEST_F(RussianWindows, FileNamesKeepTheirLetters) {
    writeFile({Folder::working, "\xC9toile.txt"}, "x"); // the byte is another letter in code page 1251
    EXPECT_EQ("x", windows::content(L"C:\\\u00C9toile.txt"));
    EXPECT_EQ(std::vector<Text>{"\xC9toile.txt"}, filesIn(Folder::working, ".txt"));
}

} // namespace
} // namespace quillon
