#include "console/input_lines.h"

#include "console/transcript.h"

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>
#include <streambuf>
#include <vector>

namespace quillon {
namespace {

std::vector<Text> linesOf(const std::string& bytes) {
    std::istringstream in{bytes};
    std::ostringstream out;
    Transcript transcript{out};
    InputLines lines{in, [&] { transcript.flush(); }};
    std::vector<Text> read;
    while (const auto line = lines.next()) read.push_back(*line);
    return read;
}

struct InputCase {
    const char* shows;
    std::string bytes;
    std::vector<Text> lines;
};

void PrintTo(const InputCase& row, std::ostream* out) { *out << row.shows; }

class Input : public testing::TestWithParam<InputCase> {};

TEST_P(Input, IsLinesInTheCodePage) { EXPECT_EQ(GetParam().lines, linesOf(GetParam().bytes)); }

const InputCase inputCases[] = {
    {"no input", "", {}},
    {"LF", "a\nb\n", {"a", "b"}},
    {"CR LF", "a\r\nb\r\n", {"a", "b"}},
    {"last line without an end", "a\nb", {"a", "b"}},
    {"last line with half an end", "a\nb\r", {"a", "b"}},
    {"only one CR is part of the end", "a\r\r\n", {"a\r"}},
    {"CR in a line stays", "a\rb\n", {"a\rb"}},
    {"empty lines", "\n\r\n\n", {"", "", ""}},
    {"NUL is a character", std::string("a\0b\n", 4), {Text("a\0b", 3)}},
    {"byte order mark in front",
     "\xEF\xBB\xBF"
     "Start\n",
     {"Start"}},
    {"byte order mark later is a character outside the code page",
     "a\n\xEF\xBB\xBF"
     "b\n",
     {"a", "?b"}},
    {"byte order mark alone", "\xEF\xBB\xBF", {""}},
    {"letters of the code page", "caf\xC3\xA9 \xC2\xBA \xE2\x82\xAC\n", {"caf\xE9 \xBA \x80"}},
    {"undefined bytes come back from their code points",
     "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D\n",
     {"\x81\x8D\x8F\x90\x9D"}},
    {"outside the code page: a Cyrillic letter, a horse's head", "\xD0\x96 \xF0\x9F\x90\xB4\n", {"? ?"}},
    {"U+0080 is in no code page place", "\xC2\x80\n", {"?"}},
    {"a byte that starts nothing",
     "a\xFF"
     "b\x80\n",
     {"a?b?"}},
    {"a character cut short", "a\xE2\x82\n", {"a??"}},
    {"a longer form than needed", "\xC0\xAF\n", {"??"}},
};

INSTANTIATE_TEST_SUITE_P(Bytes, Input, testing::ValuesIn(inputCases));

TEST(InputOfALongLine, IsRead) {
    const std::string line(5'000'000, 'x');
    EXPECT_EQ((std::vector<Text>{line, "y"}), linesOf(line + "\ny"));
}

// An input whose other end types a line only when it has read what was printed before.
class Typist : public std::streambuf {
public:
    Typist(std::vector<std::string> lines, std::streambuf& screen, std::vector<std::string>& seen)
        : lines_(std::move(lines)), screen_(dynamic_cast<std::stringbuf&>(screen)), seen_(seen) {}

protected:
    int_type underflow() override {
        seen_.push_back(screen_.str());
        if (at_ == lines_.size()) return traits_type::eof();
        std::string& line = lines_[at_++];
        setg(line.data(), line.data(), line.data() + line.size());
        return traits_type::to_int_type(line.front());
    }

private:
    std::vector<std::string> lines_;
    std::size_t at_ = 0;
    std::stringbuf& screen_;
    std::vector<std::string>& seen_;
};

// A stream buffer that hands on only what was flushed.
class Buffered : public std::stringbuf {
public:
    explicit Buffered(std::stringbuf& behind) : behind_(behind) {}

protected:
    int sync() override {
        const std::string text = str();
        behind_.sputn(text.data(), static_cast<std::streamsize>(text.size()));
        str("");
        return 0;
    }

private:
    std::stringbuf& behind_;
};

TEST(InputThatWaits, FindsAllThatWasPrintedBefore) {
    std::stringbuf shown;
    Buffered buffered{shown};
    std::ostream out{&buffered};
    std::vector<std::string> seen;
    Typist typist{{"first\n", "second\n"}, shown, seen};
    std::istream in{&typist};
    Transcript transcript{out};
    InputLines lines{in, [&] { transcript.flush(); }};
    while (const auto line = lines.next()) transcript.line("> " + *line);
    EXPECT_EQ((std::vector<std::string>{"", "> first\n", "> first\n> second\n"}), seen);
}

} // namespace
} // namespace quillon
