#include "reports/pick_sheet.h"

#include "sheet_test.h"

namespace quillon {
namespace {

constexpr const char* sheetPath = "A Quillon PRO/Selections2/M1_20260314.pmr2";

const std::string head = "QUILLON Pick 3-4-5-6 Selections\r\n"
                         "Tarnbeck Software\r\n"
                         "Handicapping for harness racing, trot and pace\r\n"
                         "Questions and ideas: the Quillon desk at Tarnbeck Software\r\n"
                         "M1 Meadowlands  1.M\r\n"
                         "03-14-2026\r\n"
                         "\r\n";
const std::string rule(40, '=');

std::string noPicks(const std::string& race) {
    return "Race:   " + race + ":            -  -  -\r\n"; // ten blanks, then three times "  -"
}

std::string total(const std::string& text) {
    return "\r\r\nTotal Bets: " + text + "\r\n" + rule + "\r\n\r\r\n";
}

} // namespace

class PickSheetTest : public SheetTest {
protected:
    static void pick(int race, const std::vector<Text>& programNumbers) {
        int place = 0;
        for (const Text& programNumber : programNumbers) card.keyPicks(race, ++place) = programNumber;
    }

    /// What the sheet holds after its head.
    static std::string sheet() {
        KeyHorses();
        const std::string content = contentOf(sheetPath);
        EXPECT_TRUE(content.starts_with(head)) << content;
        return content.substr(std::min(head.size(), content.size()));
    }

    /// The heading of the wager that a race with this text offers, "" for none.
    static std::string headingOf(const Text& wagering) {
        card.raceCount = 1;
        card.raceInfo(1).wagering = wagering;
        const std::string content = sheet();
        return content.empty() ? content : content.substr(2, content.find("\r\n", 2) - 2);
    }
};

TEST_F(PickSheetTest, WritesTheHeadAloneWithNoWagers) {
    card.raceCount = 2;
    card.raceInfo(1).wagering = "Exacta Trifecta Superfecta";
    EXPECT_EQ("", sheet());
}

TEST_F(PickSheetTest, WritesTheLegsOfAWagerAndItsTickets) {
    card.raceCount = 4;
    card.raceInfo(2).wagering = "Exacta, Pick 3 (Races 2-4)";
    pick(2, {"  7", "  3", "  1"});
    pick(3, {"  4"});
    pick(4, {"  2", " 10"});
    EXPECT_EQ("\r\n"
              "PICK3\r\n"
              "Race:    2:            7  -  3  -  1  -\r\n"
              "Race:    3:            4  -  -  -\r\n"
              "Race:    4:            2  - 10  -  -\r\n" +
                  total(" 6 "), // 3 times 1 times 2
              sheet());
}

TEST_F(PickSheetTest, TellsAWagerByTheFirstOfItsWords) {
    struct Row {
        const char* wagering;
        const char* heading;
    };
    constexpr Row rows[] = {
        {"Pk5 (5-9)", "PK5"},
        {"Pk 6", "PK6"},
        {"Pk  6", "PK0"}, // after "Pk" only two characters count
        {"Pk10", "PK10"},
        {"PICK 4 (Races 5-8)", "PICK4"},
        {"PICK4", "PICK4"},
        {"Pick 3 (Races 2-4)", "PICK3"},
        {"Pick         3", "PICK3"},  // nine blanks and the number: ten characters
        {"Pick          3", "PICK0"}, // ten blanks: the number is after them
        {"PIC 4", "PIC4"},
        {"Pic 4", "PIC4"},
        {"Single 3", "SINGLE3"},
        {"Win 4", "WIN4"},
        {"Win", "WIN0"},
        {"WIN 4", ""}, // capitals are not looked for
        {"PK 5", ""},
        {"pick 3", ""},
        {"Double (Races 1-2)", "DOUBLE"},
        {"DOUBLE", "DOUBLE"},
        {"Daily double", ""},
        {"Double, Pick 3", "PICK3"}, // the order of the words decides, not that of the text
        {"Win 5, Pick 3", "PICK3"},
        {"Pick 3, PICK 4", "PICK4"},
        {"Pick 3, Pk4", "PK4"},
        {"Pick 3, Pick 4", "PICK3"}, // and of one word twice the first
        {"PICK THREE", "PICK3"},
        {"PICK FOUR", "PICK4"},
        {"PICK FIVE", "PICK5"},
        {"PICK SIX", "PICK6"},
        {"PICK SIX, THREE ways", "PICK6"}, // the later test decides
        {"FIVE horses; PICK FOUR", "PICK5"},
        {"Pick Three", "PICK0"},
        {"Pick 4 FIVE", "PICK4"}, // a number goes before words
        {"Pick 99999 THREE", "PICK3"},
        {"Pick -2", "PICK-2"},
    };
    for (const Row& row : rows) EXPECT_EQ(row.heading, headingOf(row.wagering)) << row.wagering;
}

TEST_F(PickSheetTest, ADoubleHasTwoLegs) {
    card.raceCount = 2;
    card.raceInfo(1).wagering = "Double (Races 1-2)";
    pick(1, {"1", "2"});
    pick(2, {"3", "4", "5", "6"});
    EXPECT_EQ("\r\nDOUBLE\r\n"
              "Race:    1:          1  -2  -  -\r\n"
              "Race:    2:          3  -4  -5  -6\r\n" +
                  total(" 8 "),
              sheet());
}

TEST_F(PickSheetTest, AWagerWithoutLegsHasNoTotal) {
    card.raceCount = 1;
    card.raceInfo(1).wagering = "Win Place Show";
    EXPECT_EQ("\r\nWIN0\r\n", sheet());
}

TEST_F(PickSheetTest, ALegAfterTheLastRaceIsEmptyAndLeavesNoTickets) {
    card.raceCount = 25;
    card.raceInfo(25).wagering = "Pick 3";
    pick(25, {"1"});
    EXPECT_EQ("\r\nPICK3\r\n"
              "Race:   25:          1  -  -  -\r\n" +
                  noPicks("26") + noPicks("27") + total(" 0 "),
              sheet());
}

TEST_F(PickSheetTest, CountsPicksWithANumberAlone) {
    card.raceCount = 2;
    card.raceInfo(1).wagering = "Double";
    pick(1, {" 1A", "  0", "AE1", "   "}); // of these only 1A
    pick(2, {"  2", "  3"});
    EXPECT_NE(std::string::npos, sheet().find("Total Bets:  2 \r\n"));
}

TEST_F(PickSheetTest, AWagerBeyondSixLegsTotalsNothingAndZeroAfterAnotherWager) {
    card.raceCount = 2;
    const auto seven = [](int from) {
        std::string legs;
        for (int race = from; race < from + 7; ++race)
            legs += noPicks((race < 10 ? " " : "") + std::to_string(race));
        return "\r\nPICK7\r\n" + legs;
    };
    card.raceInfo(1).wagering = "Pick 7";
    card.raceInfo(2).wagering = "Pick 7";
    const std::string expected = seven(1) + total("") + seven(2) + total(" 0 ");
    EXPECT_EQ(expected, sheet());
    EXPECT_EQ(expected, sheet()); // each run starts afresh

    card.raceInfo(1).wagering = "Double";
    pick(1, {"1"});
    pick(2, {"1", "2"});
    const std::string behind = sheet();
    EXPECT_NE(std::string::npos, behind.find("Total Bets:  2 "));
    EXPECT_TRUE(behind.ends_with(total(" 0 "))) << behind;
}

TEST_F(PickSheetTest, TotalsTwoToSixLegs) {
    card.raceCount = 1;
    for (int race = 1; race <= 7; ++race) pick(race, {"1", "2"});
    struct Row {
        const char* wagering;
        const char* total;
    };
    // two picks a leg
    constexpr Row rows[] = {{"Pick 1", ""},     {"Pick 2", " 4 "},  {"Pick 3", " 8 "},
                            {"Pick 4", " 16 "}, {"Pick 5", " 32 "}, {"Pick 6", " 64 "}};
    for (const Row& row : rows) {
        card.raceInfo(1).wagering = row.wagering;
        EXPECT_TRUE(sheet().ends_with(total(row.total))) << row.wagering;
    }
}

TEST_F(PickSheetTest, WritesFivePlacesWithEachPickOnTop) {
    card.raceCount = 4;
    card.raceInfo(4).wagering = "Superfecta High 5";
    rank(4, {{.pn = "  7"}, {.pn = "  3"}, {.pn = "  1"}, {.pn = " 10"}, {.pn = "  5"}});
    const std::string first = "\r\nHIGH 5\r\n"
                              "Race:     4 :             7 -  3 -  1 - 10 -  5\r\n";
    pick(4, {"  7"});
    EXPECT_EQ(first, sheet());
    pick(4, {"  7", "  3", "  1", " 10"});
    EXPECT_EQ(first + "Race:     4 :             3 -  7 -  1 - 10 -  5\r\n"
                      "Race:     4 :             1 -  7 -  3 - 10 -  5\r\n"
                      "Race:     4 :            10 -  7 -  3 -  1 -  5\r\n",
              sheet());
    pick(4, {"  7", "", "  1", "0"});
    EXPECT_EQ(first + "Race:     4 :             1 -  7 -  3 - 10 -  5\r\n", sheet());
}

TEST_F(PickSheetTest, TellsFivePlacesByTheFirstOfItsWords) {
    struct Row {
        const char* wagering;
        const char* heading;
    };
    constexpr Row rows[] = {
        {"Hi-5", "HI-5"},
        {"HI 5", "HI 5"},
        {"HI FIVE", "HI FIVE"},
        {"Hi Five", "HI FIVE"},
        {"High 5", "HIGH 5"},
        {"HIGH 5", "HIGH 5"},
        {"(High-5)", "HIGH-5)"},
        {"High-5", ""}, // looked for with its parenthesis alone
        {"HIGH FIVE", "HIGH FIVE"},
        {"(High Five)", "HIGH FIVE)"},
        {"High Five", ""},
        {"PENTAFECTA", "PENTAFECTA"},
        {"Pentafecta", "PENTAFECTA"},
        {"pentafecta", ""},
        {"HI-5", ""},
        {"Pentafecta Hi-5", "HI-5"},
    };
    for (const Row& row : rows) EXPECT_EQ(row.heading, headingOf(row.wagering)) << row.wagering;
}

TEST_F(PickSheetTest, WritesTheFivePlacesAfterAllLegs) {
    card.raceCount = 2;
    card.raceInfo(1).wagering = "Pentafecta";
    card.raceInfo(2).wagering = "Double, Pentafecta";
    const std::string content = sheet();
    EXPECT_LT(content.find("DOUBLE"), content.find("PENTAFECTA"));
    EXPECT_NE(std::string::npos, content.find("Race:     1 :            -"));
    EXPECT_NE(std::string::npos, content.find("Race:     2 :            -"));
}

TEST_F(PickSheetTest, LooksAtTheCardsRacesAlone) {
    card.raceCount = 1;
    card.raceInfo(2).wagering = "Pick 3 Pentafecta";
    EXPECT_EQ("", sheet());
}

} // namespace quillon
