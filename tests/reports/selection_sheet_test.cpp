#include "reports/selection_sheet.h"

#include "sheet_test.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr const char* sheetPath = "A Quillon PRO/Selections/M1_20260314.pms";

// Lines of the sheet after the seven of its head: where a race's parts stand.
constexpr std::size_t headLines = 7;
constexpr std::size_t markLine = headLines + 4;
constexpr std::size_t picksLine = markLine + 8; // four entries, the fifth, two empty lines

const std::string publisher = "Tarnbeck Software\r\n"
                              "Handicapping for harness racing, trot and pace\r\n"
                              "Questions and ideas: the Quillon desk at Tarnbeck Software\r\n";
const std::string head = "QUILLON Selections - Professional Version\r\n" + publisher +
                         "M1 Meadowlands  1.M\r\n"
                         "03-14-2026\r\n"
                         "\r\n";

} // namespace

class SelectionSheetTest : public SheetTest {
protected:
    static std::string sheetLine(std::size_t line) { return linesOf(sheetPath).at(line); }

    /// The sheet of one race with these ratings: its lines from the selections line on.
    static std::vector<std::string> picksOf(const std::vector<Text>& ratings) {
        rankByRatings(1, ratings);
        SelectionSheet();
        const auto lines = linesOf(sheetPath);
        return {lines.begin() + picksLine, lines.end()};
    }

    static bool isStar() { return contentOf("Stars.txt") != head; }
};

TEST_F(SelectionSheetTest, WritesARaceFromItsHeadingToItsPicks) {
    card.raceInfo(1).label = "1A";
    card.raceInfo(1).postTime = "7:15 PM";
    card.raceInfo(1).gait = "Pace";
    card.raceInfo(1).todaysCr = "82";
    card.raceInfo(1).distance = "1";
    card.raceInfo(1).purse = "12000";
    card.raceInfo(1).classText = "NW8000L5";
    card.raceInfo(1).wagering = "Exacta Trifecta";
    rank(1, {{"  3", "  2", " 5/2", "Quick Silver        ", "       Adams, B  .310", " 58.0"},
             {"  7", "  6", "10/1", "Northern Light      ", "         Roe, C  .205", " 59.0"},
             {"  1", "  1", " 9/5", "Oak                 ", "Vandersloot-Smith, J  .199", " 59.5"},
             {" 1A", "  9", "30/1", "A Name Of More Than Twenty", "                ", "61.5"},
             {"  4", "  4", "4/1", "Elm                 ", "", "99.9"}});

    SelectionSheet();

    // S2 less S1 is 1.0: "$". The gaps after S1 to S3 are 1, 0.5 (which rounds to 0) and 2: three picks.
    EXPECT_EQ(
        head +
            "RACE: 1A  POST TIME: 7:15 PM Pace 82   1 Mi\r\n"
            "$12000  NW8000L5\r\n"
            "Exacta Trifecta\r\n"
            " PN   PP       ML  ENTRY                          DRIVER   UDR     PR      Scr Adj*\r\n"
            "$        \r\n"
            "   3    2      5/2  Quick Silver                 Adams, B  .310   58.0\r\n"
            "   7    6     10/1  Northern Light                 Roe, C  .205   59.0\r\n"
            "   1    1      9/5  Oak                   Vandersloot-Smith, J  .199   59.5\r\n"
            "  1A    9     30/1  A Name Of More Than Twenty                     61.5\r\n"
            "   4    4      4/1  Elm" +
            std::string(17 + 2 + 15 + 2, ' ') + // rest of the name, no driver
            " 99.9\r\n"
            "\r\n"
            "\r\n"
            "SELECTIONS:    3  -  7  -  1\r\n"
            "\r\n"
            "*Scr_Adj:  If an entry with a Post Position that is INSIDE the Selection, DEDUCT the Scr_Adj "
            "from the PR.\r\n",
        contentOf(sheetPath));
    EXPECT_EQ(head, contentOf("Stars.txt"));
}

TEST_F(SelectionSheetTest, TheFifthRowsPostStandsAsStored) {
    rank(1, {{.pn = "1", .pp = "1"}, {}, {}, {}, {.pn = "5", .pp = "5"}});
    SelectionSheet();
    const std::string empty(2 + 7 + 2 + 0 + 2 + 15 + 2 + 5, ' '); // odds, name, driver and rating
    EXPECT_EQ("   1    1" + empty, sheetLine(markLine + 1));      // post in three places
    EXPECT_EQ("   5  5" + empty, sheetLine(markLine + 5));
}

TEST_F(SelectionSheetTest, MarksTheMarginOfS1) {
    struct Row {
        const char* claim;
        Text s1;
        Text s2;
        Text mark;
    };
    const Row rows[] = {
        {"level", " 60.0", " 60.0", "DEAD HEAT"},
        {"a tenth", " 0.0", " 0.1", "DEAD HEAT"},
        {"a tenth with the residue of its subtraction", " 60.0", " 60.1",
         "DEAD HEAT"}, // 0.10 of 0.100000000000001
        {"a bit more than a tenth", "0", "0.11", "VDH      "},
        {"the cut comes before the mark: 0.104 is 0.10", "0", "0.104", "DEAD HEAT"},
        {"two tenths", " 60.0", " 60.2", "VDH      "},
        {"just under one", " 60.0", " 60.9", "VDH      "},
        {"one", " 60.0", " 61.0", "$        "},
        {"just under two", " 60.0", " 61.9", "$        "},
        {"two", " 60.0", " 62.0", "$$       "},
        {"just under three", " 60.0", " 62.9", "$$       "},
        {"three", " 60.0", " 63.0", "$$$      "},
        {"just under four", " 60.0", " 63.9", "$$$      "},
        {"four", " 60.0", " 64.0", "$$$$     "},
        {"just under five", " 60.0", " 64.9", "$$$$     "},
        {"five", " 60.0", " 65.0", "$$$$$    "},
        {"9.8", " 60.0", " 69.8", "$$$$$    "},
        {"9.9 is as good as level", " 60.1", " 70.0", "DEAD HEAT"},
        {"9.95 too", " 60.0", " 69.95", "DEAD HEAT"},
        {"ten", " 60.0", " 70.0", "$$$$$    "},
        {"10.3", " 60.0", " 70.3", "$$$$$    "},
        {"S2 better than S1", " 61.0", " 60.0", "DEAD HEAT"},
        {"no ratings", "", "", "DEAD HEAT"},
        {"text counts as 0", " -- ", "  3.5", "$$$      "},
    };
    for (const Row& row : rows) {
        rankByRatings(1, {row.s1, row.s2});
        SelectionSheet();
        EXPECT_EQ(row.mark, sheetLine(markLine)) << row.claim;
    }
}

TEST_F(SelectionSheetTest, EndsThePicksAtTheFirstWideGap) {
    const std::string note = "*Scr_Adj:  If an entry with a Post Position that is INSIDE the Selection, "
                             "DEDUCT the Scr_Adj from the PR.";
    using Lines = std::vector<std::string>;
    // One pick and four end their line themselves, so two empty lines follow; else one.
    EXPECT_EQ((Lines{"SELECTIONS:   11", "", "", note}), picksOf({"60.0", "65.0", "65.0", "65.0"}));
    EXPECT_EQ((Lines{"SELECTIONS:   11  -12", "", note}), picksOf({"60.0", "61.0", "62.0", "63.0"}));
    EXPECT_EQ((Lines{"SELECTIONS:   11  -12  -13", "", note}), picksOf({"60.0", "61.0", "61.0", "62.0"}));
    EXPECT_EQ((Lines{"SELECTIONS:   11  -12  -13  -14", "", "", note}),
              picksOf({"60.0", "61.0", "61.0", "61.0"}));
}

TEST_F(SelectionSheetTest, RoundsTheGapsToWholeNumbersHalvesToEven) {
    struct Row {
        const char* claim;
        std::vector<Text> ratings;
        std::size_t picks;
    };
    const Row rows[] = {
        {"4.5 behind S1 is 4", {"60.0", "64.5", "70.0", "70.0"}, 2},
        {"a margin that is marked as level still leaves one pick", {"60.1", "70.0", "70.0", "70.0"}, 1},
        {"4.6 behind S1 is 5", {"60.0", "64.6", "70.0", "70.0"}, 1},
        {"0.5 behind S2 is 0", {"60.0", "61.0", "61.5", "70.0"}, 3},
        {"0.6 behind S2 is 1", {"60.0", "61.0", "61.6", "70.0"}, 2},
        {"0.5 behind S3 is 0", {"60.0", "60.0", "60.0", "60.5"}, 4},
        {"0.6 behind S3 is 1", {"60.0", "60.0", "60.0", "60.6"}, 3},
        {"a worse rank in front is no gap", {"60.0", "59.0", "58.0", "57.0"}, 4},
        {"a gap beyond 16 bits is none", {"0", "40000", "40000", "40000"}, 4},
    };
    for (const Row& row : rows) {
        const std::string line = picksOf(row.ratings).front();
        EXPECT_EQ(row.picks, static_cast<std::size_t>(std::count(line.begin(), line.end(), '-')) + 1)
            << row.claim;
    }
}

TEST_F(SelectionSheetTest, AlignsS1OnTheSelectionsLineAndLeavesTheOthersAsStored) {
    rank(1, {{.pn = "3"}, {.pn = "  7"}, {.pn = "1A"}, {.pn = "12"}});
    SelectionSheet();
    EXPECT_EQ("SELECTIONS:    3  -  7  -1A  -12", sheetLine(picksLine));
}

TEST_F(SelectionSheetTest, KeepsThePicksOfARaceAndNeverClearsThem) {
    picksOf({"60.0", "60.0", "60.0", "60.0"});
    EXPECT_EQ("11", card.keyPicks(1, 1));
    EXPECT_EQ("14", card.keyPicks(1, 4));

    rank(1, {{.pn = "7", .pr = "60.0"}, {.pn = "8", .pr = "66.0"}, {.pr = "66.0"}, {.pr = "66.0"}});
    SelectionSheet();
    EXPECT_EQ("7", card.keyPicks(1, 1));
    EXPECT_EQ("12", card.keyPicks(1, 2)); // 2 to 4 of the earlier sheet
    EXPECT_EQ("13", card.keyPicks(1, 3));
    EXPECT_EQ("14", card.keyPicks(1, 4));
}

TEST_F(SelectionSheetTest, StarsAreAMarginOfFiveAtThreeToFive) {
    struct Row {
        Text morningLine;
        Text s2;
        bool star;
    };
    const Row rows[] = {
        {" 3/1", "65.0", true},   {" 5/1", "65.0", true},  {" 4/1", "65.0", true},  {" 2/1", "65.0", false},
        {" 6/1", "65.0", false},  {" 5/2", "65.0", false}, // 2.5 is 2
        {" 7/2", "65.0", true},                            // 3.5 is 4
        {"11/2", "65.0", false},                           // 5.5 is 6
        {" 9/2", "65.0", true},                            // 4.5 is 4
        {" 4/1", "64.99", false}, {" 4/1", "64.9", false}, {" 4/1", "69.9", false}, {" 4/1", "70.0", true},
        {"    ", "65.0", false},  {" EVN", "65.0", false}, {" 4/0", "65.0", false},
    };
    for (const Row& row : rows) {
        rankByRatings(1, {"60.0", row.s2}, row.morningLine);
        SelectionSheet();
        EXPECT_EQ(row.star, isStar()) << row.morningLine << " at " << row.s2;
    }
}

TEST_F(SelectionSheetTest, OddsThatCantBeToldAreThoseOfTheRaceBefore) {
    showRaces(2);
    rankByRatings(1, {"60.0", "60.0"}, " 4/1");
    rankByRatings(2, {"60.0", "66.0"}, "    ");
    SelectionSheet();
    EXPECT_TRUE(isStar());

    rankByRatings(1, {"60.0", "60.0"}, " 9/1");
    SelectionSheet();
    EXPECT_FALSE(isStar());
}

TEST_F(SelectionSheetTest, ShowsAZeroPercentageFromTheSecondRaceOfARunOn) {
    showRaces(2);
    for (int race = 1; race <= 2; ++race) {
        card.raceInfo(race).label = std::to_string(race);
        card.raceInfo(race).postTime = "7:00";
        card.raceInfo(race).gait = "T";
        card.raceInfo(race).todaysCr = "75";
        card.raceInfo(race).distance = "1";
        rank(race, {{"  1", "  1", " 4/1", "Oak", "Roe, C", "60.0"}, {.pr = "65.0"}});
    }
    const auto star = [](const std::string& race, const std::string& percentage) {
        return "RACE: " + race + "  POST TIME: 7:00 T 75   1 Mi\r\n" +
               " PN   PP       ML  ENTRY                          DRIVER   UDR     PR \r\n" + percentage +
               "\r\n" + "   1    1      4/1  Oak           Roe, C   60.0\r\n" + "\r\n";
    };
    SelectionSheet();
    EXPECT_EQ(head + star("1", "") + star("2", " 0 "), contentOf("Stars.txt"));
    SelectionSheet();
    EXPECT_EQ(head + star("1", " 0 ") + star("2", " 0 "), contentOf("Stars.txt"));
}

TEST_F(SelectionSheetTest, CountsTheRacesWhoseButtonsShow) {
    card.raceCount = 9;
    showRaces(3);
    SelectionSheet();
    EXPECT_EQ(3, card.raceCount);
    const auto lines = linesOf(sheetPath);
    EXPECT_EQ(3, std::count(lines.begin(), lines.end(), "DEAD HEAT"));

    screen.raceButtons[0].visible = true; // the spare one is no race's
    screen.raceButtons[2].visible = false;
    SelectionSheet();
    EXPECT_EQ(2, card.raceCount);

    showRaces(23);
    SelectionSheet();
    EXPECT_EQ(23, card.raceCount);
}

TEST_F(SelectionSheetTest, RewritesBothFilesAndEndsWithThePickSheet) {
    put(sheetPath, "an older sheet that is much longer than nothing");
    put("Stars.txt", "older stars");
    screen.item(CommandId::ViewSummary).enabled = false;
    showRaces(0);
    SelectionSheet();
    EXPECT_TRUE(contentOf(sheetPath).starts_with(head + "*Scr_Adj:  If"));
    EXPECT_EQ(head, contentOf("Stars.txt"));
    EXPECT_TRUE(screen.item(CommandId::ViewSummary).enabled);
    EXPECT_TRUE(exists("A Quillon PRO/Selections2/M1_20260314.pmr2"));
}

TEST_F(SelectionSheetTest, GoesOnWhenASheetCantBeWritten) {
    put("A Quillon PRO/Selections", "a file where the folder should be");
    rankByRatings(1, {"60.0", "66.0"});
    SelectionSheet();
    EXPECT_EQ("11", card.keyPicks(1, 1));
    EXPECT_TRUE(isStar());
    EXPECT_TRUE(exists("A Quillon PRO/Selections2/M1_20260314.pmr2"));
}

TEST_F(SelectionSheetTest, WritesNoSheetWithNoCardOpen) {
    card.cardFileName.clear();
    SelectionSheet();
    EXPECT_FALSE(exists("A Quillon PRO/Selections"));
    EXPECT_FALSE(exists("A Quillon PRO/Selections2"));
}

} // namespace quillon
