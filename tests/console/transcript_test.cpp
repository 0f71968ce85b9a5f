#include "console/transcript.h"

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>

namespace quillon {
namespace {

struct LineCase {
    const char* shows;
    Text text;
    std::string printed;
};

void PrintTo(const LineCase& row, std::ostream* out) {
    *out << row.shows;
}

class OneLine : public testing::TestWithParam<LineCase> {};

TEST_P(OneLine, IsTheTextInUtf8WithItsBreaksMarked) {
    EXPECT_EQ(GetParam().printed, onOneLine(GetParam().text));
}

const LineCase lineCases[] = {
    {"empty", "", ""},
    {"blanks and tabs stay", "  a\t b ", "  a\t b "},
    {"LF", "a\nb", "a\\nb"},
    {"CR LF is one break", "a\r\nb", "a\\nb"},
    {"CR alone", "a\rb", "a\\nb"},
    {"CR at the end", "a\r", "a\\n"},
    {"the extra CR of a report line", "a\r\r\nb", "a\\n\\nb"},
    {"LF CR are two breaks", "a\n\rb", "a\\n\\nb"},
    {"breaks alone", "\n\n", "\\n\\n"},
    {"a backslash stays", "a\\nb", "a\\nb"},
    {"NUL stays", Text("a\0b", 3), std::string("a\0b", 3)},
    {"park mark BA is U+00BA", "\xBA", "\xC2\xBA"},
    {"E9 is U+00E9", "caf\xE9", "caf\xC3\xA9"},
    {"80 is the euro U+20AC", "\x80", "\xE2\x82\xAC"},
    {"9F is U+0178", "\x9F", "\xC5\xB8"},
    {"FF is U+00FF", "\xFF", "\xC3\xBF"},
    // the five undefined bytes are U+0081, U+008D, U+008F, U+0090, U+009D: C2 and the byte itself in UTF-8
    {"undefined bytes are the code points of their number", "\x81\x8D\x8F\x90\x9D",
     "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D"},
};

INSTANTIATE_TEST_SUITE_P(Texts, OneLine, testing::ValuesIn(lineCases));

TEST(Transcript, EndsItsLinesInLf) {
    std::ostringstream out;
    Transcript transcript{out};
    transcript.line("beep");
    transcript.line("");
    transcript.line("message: a\r\nb");
    EXPECT_EQ("beep\n\nmessage: a\\nb\n", out.str());
}

} // namespace
} // namespace quillon
