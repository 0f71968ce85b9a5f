#include "reports/condensed_program.h"

#include "core/failure.h"
#include "sheet_test.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr const char* programPath = "A Quillon PRO/Programs/M1_20260314.ppp";

const std::string head = "\r\n"
                         "The Quillon Selections by Tarnbeck Software\r\n"
                         "\r\n"
                         "M1\r\n"
                         "Meadowlands  1.M\r\n"
                         "20260314\r\n"
                         "\r\n";
const std::string heading =
    "Date    Track  CD   Purse        Class  CR    1/4    1/2    3/4  Final PP   1C      2C    "
    "  3C    SC Fn  Horses Times   Driver       \r\n";
const std::string rule(129, '-');

constexpr std::size_t headLines = 7;

} // namespace

class CondensedProgramTest : public SheetTest {
protected:
    CondensedProgramTest() {
        card.raceInfo(1).label = "1";
        card.raceInfo(1).postTime = "7:15";
    }

    static void addEntry(int post, const Text& name) {
        card.entry(1, post).horseName = name;
        card.entry(1, post).programNumber = rightAligned(std::to_string(post), 3);
        card.entry(1, post).morningOdds = " 5/2";
        card.entry(1, post).driverName = "Roe, C";
        card.entry(1, post).driverUdr = " .205";
    }

    /// A line as a load leaves it: in its print widths.
    static PastLine& addLine(int post, int at) {
        return card.pastLine.write(1, post, at) = {.DATE = "20260228",
                                                   .TRACK = "   M1",
                                                   .COND = "ft",
                                                   .PURSE = "12000",
                                                   .CLASS = "NW8000L5",
                                                   .CR = " 82",
                                                   .LEAD_TM_1Q = "  27.1",
                                                   .LEAD_TM_2Q = "  56.0",
                                                   .LEAD_TM_3Q = "1:24.2",
                                                   .LEAD_TM_FN = "1:52.3",
                                                   .POST = " 4",
                                                   .CALL_1Q_BF = " a",
                                                   .CALL_1Q_PO = " 3",
                                                   .CALL_1Q_PK = " \xBA",
                                                   .CALL_1Q_AF = " b",
                                                   .CALL_2Q_BF = " c",
                                                   .CALL_2Q_PO = " 2",
                                                   .CALL_2Q_PK = "\xBA\xBA",
                                                   .CALL_2Q_AF = " d",
                                                   .CALL_3Q_BF = " e",
                                                   .CALL_3Q_PO = " 1",
                                                   .CALL_3Q_PK = "  ",
                                                   .CALL_3Q_AF = " f",
                                                   .CALL_ST_PO = " 5",
                                                   .CALL_FN_PO = " 6",
                                                   .HRSE_TM_4Q = "28.1",
                                                   .HRSE_TM_FN = "1:53.0",
                                                   .driverName = "Adams, B",
                                                   .rating = " 58.6",
                                                   .lineNumber = 17};
    }

    static std::vector<std::string> program() {
        Condensed_PPP();
        return linesOf(programPath);
    }
    static std::string programLine(std::size_t line) { return program().at(line); }

    /// The part of the program between the heading of race 1 and its selections.
    static std::string entriesOfRaceOne() {
        Condensed_PPP();
        const std::string content = contentOf(programPath);
        const auto start = content.find(heading) + heading.size();
        return content.substr(start, content.find("\r\nSelections: ") - start);
    }
};

TEST_F(CondensedProgramTest, WritesARaceFromItsHeadingToItsRule) {
    card.raceInfo(1) = {.label = "1A",
                        .trackCode = "M1",
                        .trackInfo = "Meadowlands  1.M",
                        .purse = "12000",
                        .classText = "NW8000L5.  Claiming",
                        .todaysCr = "82",
                        .wagering = "Exacta Trifecta",
                        .postTime = "7:15",
                        .gait = "Pace",
                        .distance = "1"};
    rank(1, {{.pn = "2"}, {.pn = "  7"}, {.pn = ""}, {.pn = "1A"}});
    addEntry(2, "Quick Silver");
    addLine(2, 1);

    Condensed_PPP();

    EXPECT_EQ(head +
                  "RACE 1A  Post Time: 7:15   Pace    CR: 82   1 Mi\r\n"
                  "PURSE: 12000 NW8000L5.\r\n"
                  "WAGERING:  Exacta Trifecta\r\n"
                  "\r\n" +
                  heading +
                  "\r\n"
                  "  2  2     5/2  Quick Silver                   Driver: Roe, C  .205\r\n"
                  "\r\n"
                  "02-28-26    M1 ft   12000     NW8000L5  82   27.1   56.0 1:24.2 1:52.3  4"
                  "  a 3 \xBA b c 2\xBA\xBA d e 1   f  5  6  28.1 1:53.0 Adams, B      58.6\r\n"
                  "\r\n"
                  "Selections:  2-  7-  -1A\r\n" +
                  rule + "\r\n",
              contentOf(programPath));
}

TEST_F(CondensedProgramTest, LeavesOutRacesWithoutAPostTimeAndGoesOnAfterThem) {
    card.raceInfo(1).postTime = "";
    card.raceInfo(2).label = "2";
    card.raceInfo(3).label = "3";
    card.raceInfo(3).postTime = "8:00";
    card.raceInfo(23).label = "23";
    card.raceInfo(23).postTime = "9:00";
    card.raceInfo(24).label = "24";
    card.raceInfo(24).postTime = "9:30"; // beyond the races that are rated
    std::vector<std::string> races;
    for (const std::string& line : program())
        if (line.starts_with("RACE ")) races.push_back(line.substr(0, 7));
    EXPECT_EQ((std::vector<std::string>{"RACE 3 ", "RACE 23"}), races);
}

TEST_F(CondensedProgramTest, CutsTheConditionsAtTheFirstWideGapOrFullStop) {
    const auto x = [](std::size_t count) { return std::string(count, 'x'); };
    struct Row {
        const char* claim;
        std::string conditions;
        std::string shown;
    };
    const Row rows[] = {
        {"up to the first of four blanks", "NW4    Claiming.", "NW4 "},
        {"a gap goes before a full stop in front of it", "A. B    C", "A. B "},
        {"three blanks are no gap", "NW4   Claiming. More", "NW4   Claiming."},
        {"up to the full stop", "Claiming. More", "Claiming."},
        {"neither", "Claiming", "Claiming"},
        {"neither in 110 characters", x(110), x(105)},
        {"a full stop in place 105", x(104) + ".x", x(104) + "."},
        {"a full stop after that", x(105) + ".x", x(105)},
        {"a gap after that, a full stop in front of it", x(10) + "." + x(99) + "    ",
         x(10) + "." + x(94)}, // the gap decides, and it is at 111
        {"empty", "", ""},
    };
    for (const Row& row : rows) {
        card.raceInfo(1).purse = "5000";
        card.raceInfo(1).classText = row.conditions;
        EXPECT_EQ("PURSE: 5000 " + row.shown, programLine(headLines + 1)) << row.claim;
    }
}

TEST_F(CondensedProgramTest, ShowsFourLinesAtTheMost) {
    addEntry(1, "Oak");
    for (int at = 1; at <= 5; ++at) addLine(1, at).DATE = "2026020" + std::to_string(at);
    const std::string entries = entriesOfRaceOne();
    EXPECT_EQ(3 + 4,
              std::count(entries.begin(), entries.end(), '\n')); // the entry between empty lines, four lines
    EXPECT_NE(std::string::npos, entries.find("02-04-26"));
    EXPECT_EQ(std::string::npos, entries.find("02-05-26"));
}

TEST_F(CondensedProgramTest, LeavesOutAnEntryWithoutLines) {
    addEntry(1, "Oak");
    EXPECT_EQ("", entriesOfRaceOne());
    EXPECT_EQ("Oak", card.entry(1, 1).horseName.text()); // and its name stays as it is
}

TEST_F(CondensedProgramTest, ShowsTheLinesOfAnEntryWithoutAName) {
    for (const char* name : {"", "A", "   "}) {
        addEntry(1, name);
        addLine(1, 1);
        const std::string entries = entriesOfRaceOne();
        EXPECT_EQ(1, std::count(entries.begin(), entries.end(), '\n')) << "\"" << name << "\"";
        EXPECT_TRUE(entries.starts_with("02-28-26")) << "\"" << name << "\"";
    }
    addEntry(1, "Al");
    EXPECT_TRUE(entriesOfRaceOne().starts_with("\r\n  1  1     5/2  Al "));
}

TEST_F(CondensedProgramTest, LeavesOutALineWithoutADateButNotItsEntry) {
    addEntry(1, "Oak");
    addLine(1, 1).DATE = "";
    addLine(1, 2);
    const std::string entries = entriesOfRaceOne();
    EXPECT_TRUE(entries.starts_with("\r\n  1  1     5/2  Oak "));
    EXPECT_EQ(3 + 1, std::count(entries.begin(), entries.end(), '\n'));
}

TEST_F(CondensedProgramTest, ShowsEntriesOneToTwelve) {
    for (int post = 0; post <= 13; ++post) {
        addEntry(post, "Horse" + std::to_string(post));
        addLine(post, 1);
    }
    const std::string entries = entriesOfRaceOne();
    EXPECT_EQ(std::string::npos, entries.find("Horse0"));
    EXPECT_NE(std::string::npos, entries.find("\r\n  1  1     5/2  Horse1 "));
    EXPECT_NE(std::string::npos, entries.find("\r\n 12  12     5/2  Horse12 "));
    EXPECT_EQ(std::string::npos, entries.find("Horse13"));
}

TEST_F(CondensedProgramTest, WidensTheNameInTheEntryButNoCellOfItsLine) {
    addEntry(1, "Oak");
    addLine(1, 1);
    Condensed_PPP();
    EXPECT_EQ("Oak" + std::string(27, ' '), card.entry(1, 1).horseName.text());
    EXPECT_EQ("12000", card.pastLine.read(1, 1, 1).PURSE);
    EXPECT_EQ("NW8000L5", card.pastLine.read(1, 1, 1).CLASS);
    EXPECT_EQ("Adams, B", card.pastLine.read(1, 1, 1).driverName);
    EXPECT_EQ(" 58.6", card.pastLine.read(1, 1, 1).rating);
}

TEST_F(CondensedProgramTest, CutsALongPurseAndKeepsALongClassAndDriver) {
    addEntry(1, "Oak");
    PastLine& line = addLine(1, 1);
    line.PURSE = "12345678";
    line.CLASS = "NW2RACELTCD-X";
    line.driverName = "Vandersloot-Smith";
    const std::string entries = entriesOfRaceOne();
    EXPECT_NE(std::string::npos, entries.find(" ft 1234567 NW2RACELTCD-X  82 "));
    EXPECT_TRUE(entries.ends_with(" 1:53.0 Vandersloot-Smith58.6\r\n")) << entries;
}

TEST_F(CondensedProgramTest, ShowsARatingInFourPlaces) {
    struct Row {
        const char* rating;
        const char* shown;
    };
    constexpr Row rows[] = {
        {" 58.6", "58.6"}, {"58", "58.0"},    {"9.25", " 9.3"},   {" 99.9", "99.9"},
        {"99.94", "99.9"}, {"99.96", "100."}, // below 100 when it is tested, cut after its format
        {"100", "99.9"},   {"123.4", "99.9"}, {" - ", "  - "},    {"***", " ***"},
        {"", "    "},      {"     ", "    "}, {"-12.34", "-12."}, {".5", "  .5"},
    };
    for (const Row& row : rows) {
        addEntry(1, "Oak");
        addLine(1, 1).rating = row.rating;
        EXPECT_TRUE(entriesOfRaceOne().ends_with("Adams, B      " + std::string(row.shown) + "\r\n"))
            << row.rating;
    }
}

TEST_F(CondensedProgramTest, ALineWhoseRatingCantBeShownIsPassedOver) {
    addEntry(1, "Oak");
    addLine(1, 1).rating = "-99999999999999999999";
    addLine(1, 2).DATE = "20260101";
    const std::string entries = entriesOfRaceOne();
    EXPECT_EQ(std::string::npos, entries.find("02-28-26"));
    EXPECT_NE(std::string::npos, entries.find("01-01-26"));
}

TEST_F(CondensedProgramTest, WritesNothingWithNoCardOpen) {
    card.cardFileName.clear();
    Condensed_PPP();
    EXPECT_FALSE(exists("A Quillon PRO/Programs"));
}

} // namespace quillon
