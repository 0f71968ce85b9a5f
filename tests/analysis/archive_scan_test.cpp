#include "analysis/archive_scan.h"

#include "core/failure.h"
#include "core/numbers.h"
#include "profile_test.h"

#include <algorithm>
#include <random>

namespace quillon {
namespace {

using ArchiveScanTest = ProfileTest;

// Every figure in the plainest way: the places as the archive's description has them, one by one.
std::vector<double> figuresByPlace(const Text& line) {
    const auto at = [&](std::size_t place, std::size_t width) {
        return place > line.size() ? 0 : lenientNumber(line.substr(place - 1, width));
    };
    std::vector<double> figures{at(15, 3), at(18, 5), at(23, 5), at(28, 5), at(33, 5)};
    for (std::size_t place = 38; place <= 128; place += 9) figures.push_back(at(place, 9));
    for (std::size_t place = 137; place <= 157; place += 10) figures.push_back(at(place, 10));
    figures.push_back(lenientNumber(line.substr(line.size() - std::min<std::size_t>(line.size(), 2))));
    return figures;
}

std::vector<double> figuresOf(TextView line) {
    const ArchivedCard card = archivedCardOf(line);
    std::vector<double> figures{card.races};
    figures.insert(figures.end(), card.wins.begin(), card.wins.end());
    figures.insert(figures.end(), card.sums.begin(), card.sums.end());
    figures.push_back(card.superfectaRaces);
    return figures;
}

// All of it in the form of a recorded line, so that each test changes what it tells and nothing else.
const ArchiveCard fullCard{
    .key = "  MVR_20260314",
    .races = "12",
    .wins = {"5", "0", "10", "3"},
    .sums = {"1.50", "22.40", "333.00", ".80", "4321.60", "54321.20", ".00", "654321.99", "7.77", "88.80",
             "999.01"},
    .s1WithAll = "123456.78",
    .allFour = "23.45",
    .s2WithAll = ".05",
    .superfectaRaces = "11",
};

TEST(ArchivedCards, AreReadByPlace) {
    const Text line = lineOf(fullCard);
    ASSERT_EQ(169u, line.size());
    EXPECT_EQ((std::vector<double>{12,      5, 0,         10,   3,    1.5,    22.4,      333,   0.8,  4321.6,
                                   54321.2, 0, 654321.99, 7.77, 88.8, 999.01, 123456.78, 23.45, 0.05, 11}),
              figuresOf(line));
    EXPECT_EQ("MVR", trackIn(line));
    EXPECT_EQ("  MVR_20260314", cellIn(line, archivePlaces::key));
}

struct OddLine {
    const char* what;
    std::size_t place;
    const char* characters;
    std::size_t figure; ///< counted from 0: races, wins, sums, superfecta races
    double value;
};

TEST(ArchivedCards, FieldsThatAreNoPlainNumbersAreReadAsNumbersAre) {
    const OddLine rows[] = {
        {"a letter after the digits", 15, "1x ", 0, 1},
        {"a letter in front", 15, "x12", 0, 0},
        {"a blank between digits", 18, "  1 2", 1, 1},
        {"a blank after", 18, "  12 ", 1, 12},
        {"a tab is no blank", 18, "\t  12", 1, 0},
        {"a minus sign", 18, "   -4", 1, -4},
        {"a plus sign", 18, "   +4", 1, 4},
        {"a point", 18, "  4.5", 1, 4.5},
        {"signs with a digit's low bits", 18, "  !#)", 1, 0},
        {"letters with a digit's low bits", 18, "  pqr", 1, 0},
        {"characters above 127", 18, "  \xB1\xB2\xB3", 1, 0},
        {"a zero byte's neighbours", 18, "\x10\x10\x10\x11\x12", 1, 0},
        {"no point", 38, "    12345", 5, 12345},
        {"a point elsewhere", 38, "   12.345", 5, 12.345},
        {"one decimal", 38, "     12.5", 5, 12.5},
        {"a blank after the point", 38, "    12. 5", 5, 12},
        {"a blank as the last", 38, "    12.5 ", 5, 12.5},
        {"a digit after a point between blanks", 38, "      . 5", 5, 0},
        {"only a point", 38, "      .  ", 5, 0},
        {"only blanks", 38, "         ", 5, 0},
        {"a comma", 38, " 1,234.50", 5, 1},
        {"a minus sign in a sum", 38, "   -12.50", 5, -12.5},
        {"an exponent is none", 38, "     1e.5", 5, 1},
        {"ten characters of a sum", 137, "1234567.89", 16, 1234567.89},
        {"a letter as the first of ten", 137, "x234567.89", 16, 0},
        {"a tenth digit without a point", 147, "1234567890", 17, 1234567890},
        {"letters at the end of the line", 167, " xy", 19, 0},
    };
    for (const OddLine& row : rows) {
        Text line = lineOf(fullCard);
        const Text characters = row.characters;
        line.replace(row.place - 1, characters.size(), characters);
        EXPECT_EQ(row.value, figuresOf(line).at(row.figure)) << row.what;
        EXPECT_EQ(figuresByPlace(line), figuresOf(line)) << row.what;
    }
}

TEST(ArchivedCards, ShortLinesCountWhatIsThere) {
    const Text whole = lineOf(fullCard);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const Text line = whole.substr(0, length);
        EXPECT_EQ(figuresByPlace(line), figuresOf(TextView{whole}.substr(0, length))) << length;
    }
    EXPECT_EQ(figuresByPlace(whole + " 7"), figuresOf(whole + " 7")); // a longer one ends in other characters
}

TEST(ArchivedCards, AnyCharacterAnywhereIsReadAsByPlace) {
    std::mt19937 random{20260314};
    const Text plain = lineOf(fullCard);
    for (int round = 0; round < 20000; ++round) {
        Text line = plain;
        for (unsigned changes = random() % 4 + 1; changes > 0; --changes)
            line[random() % line.size()] =
                static_cast<char>(round % 2 == 0 ? random() % 256 : ' ' + random() % 32);
        ASSERT_EQ(figuresByPlace(line), figuresOf(line)) << line;
    }
}

std::vector<Text> allLines(auto reader) {
    std::vector<Text> lines;
    while (const auto line = reader.next()) lines.emplace_back(*line);
    return lines;
}

TEST_F(ArchiveScanTest, LinesComeForwardsAndBackwards) {
    const std::vector<std::pair<Text, std::vector<Text>>> rows{
        {"", {}},
        {"one", {"one"}},
        {"one\r\n", {"one"}},
        {"one\r\ntwo\r\n", {"one", "two"}},
        {"one\ntwo\n", {"one", "two"}},
        {"one\r\n\r\ntwo", {"one", "", "two"}},
        {"\n\n", {"", ""}},
        {"\r\r\n", {"\r"}},
    };
    for (const auto& [content, lines] : rows) {
        put("HRA.ini", content);
        EXPECT_EQ(lines, allLines(LinesForwards{archivePlace()})) << content;
        std::vector<Text> reversed{lines.rbegin(), lines.rend()};
        EXPECT_EQ(reversed, allLines(LinesBackwards{archivePlace()})) << content;
    }
    std::filesystem::remove("HRA.ini");
    EXPECT_FALSE(attempt([] { LinesForwards{archivePlace()}; }));
    EXPECT_FALSE(attempt([] { LinesBackwards{archivePlace()}; }));
}

TEST_F(ArchiveScanTest, BlocksCutNoLine) {
    // Lines of up to 2,000 characters, and one longer than three blocks, over many blocks of the file.
    std::vector<Text> lines;
    Text content;
    for (std::size_t length = 0; length < 2000; ++length) {
        lines.push_back(Text(length, static_cast<char>('a' + length % 26)));
        if (length == 1000) lines.emplace_back(800000, 'x');
    }
    for (std::size_t at = 0; at < lines.size(); ++at) content += lines[at] + (at % 2 == 0 ? "\r\n" : "\n");
    put("HRA.ini", content);
    EXPECT_TRUE(lines == allLines(LinesForwards{archivePlace()}));
    std::reverse(lines.begin(), lines.end());
    EXPECT_TRUE(lines == allLines(LinesBackwards{archivePlace()}));

    // Whole blocks exactly: 2^18 characters, lines of 64 with their ends.
    content.clear();
    for (int line = 0; line < 4096; ++line) content += Text(63, 'y') + "\n";
    put("HRA.ini", content);
    EXPECT_EQ(4096u, allLines(LinesForwards{archivePlace()}).size());
    EXPECT_EQ(4096u, allLines(LinesBackwards{archivePlace()}).size());
}

TEST_F(ArchiveScanTest, LongWorkIsReportedEveryHundredThousandLines) {
    cancelAt(2);
    LongWork work{400000};
    int lines = 1;
    while (work.goesOn(2)) ++lines;
    EXPECT_EQ(200000, lines);
    EXPECT_EQ((std::vector<double>{0.5, 1.0}), reports);
}

} // namespace
} // namespace quillon
