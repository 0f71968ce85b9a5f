#include "differences.h"

#include <gtest/gtest.h>

#include <ostream>

namespace scenarios {
namespace {

struct VisibleCase {
    std::string line;
    const char* shown;
};

void PrintTo(const VisibleCase& row, std::ostream* out) { *out << row.shown; }

class Visible : public testing::TestWithParam<VisibleCase> {};

TEST_P(Visible, ShowsWhatTheEyeWouldMiss) { EXPECT_EQ(GetParam().shown, visible(GetParam().line)); }

const VisibleCase visibleCases[] = {
    {"", ""},
    {"  4  Plain Biscuit", "  4  Plain Biscuit"},
    {"4 ", "4<20>"},
    {"  ", "<20><20>"},
    {"4  \r", "4<20><20><CR>"},
    {"4\r\r", "4<CR><CR>"},
    {" \r\r", " <CR><CR>"}, // only the blanks in front of the last CR end the line
    {"a\tb", "a<09>b"},
    {"\xBA\x7F~", "<BA><7F>~"},
    {std::string("\0\x1B", 2), "<00><1B>"},
};

INSTANTIATE_TEST_SUITE_P(Lines, Visible, testing::ValuesIn(visibleCases));

struct DifferenceCase {
    const char* shows;
    std::string expected;
    std::string actual;
    std::string difference;
};

void PrintTo(const DifferenceCase& row, std::ostream* out) { *out << row.shows; }

class Difference : public testing::TestWithParam<DifferenceCase> {};

TEST_P(Difference, IsTheLinesThatDiffer) {
    EXPECT_EQ(GetParam().difference, difference(GetParam().expected, GetParam().actual));
}

std::string lines(int count, const std::string& line) {
    std::string text;
    for (int at = 0; at < count; ++at) text += line + "\n";
    return text;
}

const DifferenceCase differenceCases[] = {
    {"nothing", "", "", ""},
    {"the same", "a\nb", "a\nb", ""},
    {"a line changed", "a\nb\nc\n", "a\nx\nc\n", "from line 2:\n- b\n+ x\n"},
    {"a line more", "a\nc\n", "a\nb\nc\n", "from line 2:\n+ b\n"},
    {"a line less", "a\nb\nc\n", "a\nc\n", "from line 2:\n- b\n"},
    {"a line twice", "a\na\n", "a\na\na\n", "from line 3:\n+ a\n"},
    {"nothing came", "a\n", "", "from line 1:\n- a\n"},
    {"nothing was expected", "", "a\n", "from line 1:\n+ a\n"},
    {"a carriage return", "a\r\n", "a\n", "from line 1:\n- a<CR>\n+ a\n"},
    {"a blank at the end", "a\n", "a \n", "from line 1:\n- a\n+ a<20>\n"},
    {"an end of line at the end", "a\n", "a", "from line 1:\n- a\n+ a<no line end>\n"},
    {"two places", "a\nb\nc\nd\n", "a\nx\nc\ny\n", "from line 2:\n- b\n- c\n- d\n+ x\n+ c\n+ y\n"},
    {"many lines", lines(32, "a"), "", "from line 1:\n" + lines(30, "- a") + "- ... and 2 more lines\n"},
};

INSTANTIATE_TEST_SUITE_P(Texts, Difference, testing::ValuesIn(differenceCases));

TEST(FirstLines, AreMarked) { EXPECT_EQ("+ a<CR>\n+ b<no line end>\n", firstLines("a\r\nb", "+")); }

} // namespace
} // namespace scenarios
