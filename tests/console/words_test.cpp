#include "console/words.h"

#include "console/console.h"

#include <gtest/gtest.h>

#include <ostream>

namespace quillon {
namespace {

struct NumberCase {
    const char* text;
    std::optional<int> number;
};

void PrintTo(const NumberCase& row, std::ostream* out) { *out << '"' << row.text << '"'; }

class WholeNumber : public testing::TestWithParam<NumberCase> {};

TEST_P(WholeNumber, IsDigitsWithASign) { EXPECT_EQ(GetParam().number, wholeNumber(GetParam().text)); }

const NumberCase numberCases[] = {
    {"0", 0},
    {"7", 7},
    {"-3", -3},
    {"+3", 3},
    {"007", 7},
    {"2147483647", 2147483647},
    {"-2147483648", -2147483647 - 1},
    {"2147483648", std::nullopt}, // one more than an int holds
    {"-2147483649", std::nullopt},
    {"99999999999999999999999", std::nullopt},
    {"", std::nullopt},
    {"+", std::nullopt},
    {"-", std::nullopt},
    {"+-3", std::nullopt},
    {"--3", std::nullopt},
    {"++3", std::nullopt},
    {"3.0", std::nullopt},
    {"1e2", std::nullopt},
    {"0x10", std::nullopt},
    {"3a", std::nullopt},
    {" 3", std::nullopt},
    {"3 ", std::nullopt},
    {"three", std::nullopt},
    {"\xB2", std::nullopt}, // a superscript two
};

INSTANTIATE_TEST_SUITE_P(Texts, WholeNumber, testing::ValuesIn(numberCases));

TEST(TakeWord, CutsAtEachBlank) {
    std::optional<TextView> rest = "Box 1  two ";
    EXPECT_EQ("Box", takeWord(rest));
    EXPECT_EQ("1  two ", rest);
    EXPECT_EQ("1", takeWord(rest));
    EXPECT_EQ("", takeWord(rest)); // two blanks: an empty word between them
    EXPECT_EQ("two ", rest);
    EXPECT_EQ("two", takeWord(rest));
    EXPECT_EQ("", rest); // the last blank is followed by an empty word
    EXPECT_EQ("", takeWord(rest));
    EXPECT_EQ(std::nullopt, rest);
    EXPECT_EQ("", takeWord(rest));
    EXPECT_EQ(std::nullopt, rest);
}

struct ArgumentsCase {
    const char* shows;
    Takes takes;
    std::optional<TextView> rest;
    bool understood;
    std::array<int, 3> numbers{};
    const char* text = "";
};

void PrintTo(const ArgumentsCase& row, std::ostream* out) { *out << row.shows; }

class ArgumentsOfALine : public testing::TestWithParam<ArgumentsCase> {};

TEST_P(ArgumentsOfALine, AreTakenInOrder) {
    const auto arguments = argumentsFor(GetParam().takes, GetParam().rest);
    ASSERT_EQ(GetParam().understood, arguments.has_value());
    if (!arguments) return;
    EXPECT_EQ(GetParam().numbers, arguments->numbers);
    EXPECT_EQ(GetParam().text, arguments->text);
}

constexpr std::optional<TextView> none = std::nullopt;

const ArgumentsCase argumentsCases[] = {
    {"nothing", Takes::nothing, none, true},
    {"nothing, and a word", Takes::nothing, "now", false},
    {"nothing, and a blank", Takes::nothing, "", false},
    {"a number", Takes::number, "12", true, {12}},
    {"a number below 0", Takes::number, "-1", true, {-1}},
    {"a number, missing", Takes::number, none, false},
    {"a number, empty", Takes::number, "", false},
    {"a number, a word instead", Takes::number, "one", false},
    {"a number, and a blank", Takes::number, "1 ", false},
    {"a number, after a second blank", Takes::number, " 1", false},
    {"a number, and one more", Takes::number, "1 2", false},
    {"a number beyond int", Takes::number, "4294967296", false},
    {"text", Takes::text, "RACE 3", true, {}, "RACE 3"},
    {"text, blanks kept", Takes::text, "  a  b ", true, {}, "  a  b "},
    {"text, empty", Takes::text, "", true},
    {"text, left away", Takes::text, none, true},
    {"number and text", Takes::numberAndText, "3 12.40", true, {3}, "12.40"},
    {"number and text, blanks kept", Takes::numberAndText, "3  7 ", true, {3}, " 7 "},
    {"number and text, text empty", Takes::numberAndText, "3 ", true, {3}},
    {"number and text, text left away", Takes::numberAndText, "3", true, {3}},
    {"number and text, both missing", Takes::numberAndText, none, false},
    {"number and text, text first", Takes::numberAndText, "x 3", false},
    {"cell", Takes::cell, "1 2 30 Barlow,A", true, {1, 2, 30}, "Barlow,A"},
    {"cell, text of blanks", Takes::cell, "1 2 30  ", true, {1, 2, 30}, " "},
    {"cell, text left away", Takes::cell, "1 2 30", true, {1, 2, 30}},
    {"cell, column missing", Takes::cell, "1 2", false},
    {"cell, column empty", Takes::cell, "1 2  x", false},
    {"cell, row a word", Takes::cell, "1 b 3 x", false},
};

INSTANTIATE_TEST_SUITE_P(Lines, ArgumentsOfALine, testing::ValuesIn(argumentsCases));

} // namespace
} // namespace quillon
