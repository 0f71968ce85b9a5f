#include "analysis/stars_profile.h"

#include "core/failure.h"
#include "profile_test.h"

#include <random>

namespace quillon {
namespace {

/// A race of the stars file, as it is recorded: margin, odds and payoff in their own forms.
struct StarRace {
    Text race = "1";
    Text margin = "5.2";
    Text decimalOdds = "2.50";
    Text odds = " 5/2";
    Text payoff{}; ///< of $12 to win; none for a race that S1 did not win
};

Text lineOf(const StarRace& race) {
    Text line(15, ' ');
    line += field(race.race + " ", 3) + Text(5, ' ');         // "## " in three places
    line += field(" " + race.margin + " ", 6) + Text(4, ' '); // " ##.# " in six
    line += field(race.decimalOdds, 5) + "  " + race.odds + Text(6, ' ') + "12.00";
    if (!race.payoff.empty()) line += Text(4, ' ') + field(" " + race.payoff + "  ", 8) + "1";
    return line + "\r\n";
}

class StarsProfileTest : public ProfileTest {
protected:
    static void choose(const Text& margin, const Text& odds) {
        MarginChoice(margin);
        OddsChoice(odds);
        attempt([] { MaxOddsChoice("1/1"); }); // takes no part in the filter
    }

    static constexpr std::size_t heads = 8;

    static Text cell(int row, int column) { return screen.stars.text(row, column); }
    static std::vector<Text> row(int row) {
        std::vector<Text> texts(heads);
        for (int column = 0; column < static_cast<int>(heads); ++column)
            texts[static_cast<std::size_t>(column)] = cell(row, column);
        return texts;
    }
    static std::vector<Text> fields() { return {screen.starsFields.begin() + 1, screen.starsFields.end()}; }
};

TEST(StarFiguresTest, FlatBetsAreSetAgainstTheirReturns) {
    const StarFigures shown = starFigures({.races = 25, .wins = 1, .returned = 36});
    EXPECT_EQ("25", shown[1]);
    EXPECT_EQ("1", shown[2]);
    EXPECT_EQ("  8.0%", shown[3]);     // 4 per cent, doubled
    EXPECT_EQ("$   300.00", shown[4]); // 25 x 12
    EXPECT_EQ("$    36.00", shown[5]);
    EXPECT_EQ("$  -264.00", shown[6]);
    EXPECT_EQ("-88.0%", shown[7]); // -264 of 300
    EXPECT_EQ("$36.00", shown[8]);
}

TEST(StarFiguresTest, NothingIsDividedByNothing) {
    const StarFigures shown = starFigures({});
    EXPECT_EQ("0", shown[1]);
    for (const std::size_t divided : {3, 7, 8}) EXPECT_FALSE(shown[divided]) << divided;
}

TEST(StarFiguresTest, ARecordPassesByItsWholePointsAndItsOdds) {
    const Text record = lineOf(StarRace{.margin = "2.9", .odds = " 5/2"});
    EXPECT_TRUE(passes(record, {2, "5/2"}));
    EXPECT_FALSE(passes(record, {3, "5/2"}));
    EXPECT_FALSE(passes(record, {2, "7/2"}));
    EXPECT_TRUE(passes(record, {50, "ALL Odds"}));
}

TEST_F(StarsProfileTest, OpeningShowsEveryLineOfTheFile) {
    put("Stars5.ini", "M1_20260314\r\n" + lineOf({.race = "1", .payoff = "43.20"}) +
                          lineOf({.race = "2", .margin = ".5", .decimalOdds = "10.00", .odds = "10/1"}) +
                          "YR_20260315\r\n");
    Star();
    EXPECT_EQ((std::vector<Text>{"Track/Date", "Race", "Margin", "Odds $", "Odds", "Bet", "PayOff", "Win"}),
              row(0));
    // A heading has no other fields; the win mark before it stays, at first none.
    EXPECT_EQ((std::vector<Text>{"M1_20260314", "", "", "", "", "", "0", ""}), row(1));
    EXPECT_EQ((std::vector<Text>{Text(15, ' '), "1", "5.2", "2.50 ", "5/2", "12.00", " 43.20", "1"}), row(2));
    EXPECT_EQ((std::vector<Text>{Text(15, ' '), "2", ".5", "0.00 ", "10/1", "12.00", "0", "0"}), row(3));
    EXPECT_EQ((std::vector<Text>{"YR_20260315", "", "", "", "", "", "0", "0"}), row(4));
    EXPECT_EQ(5, screen.stars.rows());
    EXPECT_TRUE(screen.starsVisible);
    EXPECT_TRUE(screen.item(CommandId::MainScreen).visible);
    EXPECT_EQ("Stars Profile", starsCaption);
}

struct FieldRow {
    const char* what;
    StarRace race;
    int column;
    const char* shown;
};

TEST_F(StarsProfileTest, FieldsAreReadAtTheirPlaces) {
    const FieldRow rows[] = {
        {"a race of one digit", {.race = "9"}, 1, "9"},
        {"of two the last", {.race = "12"}, 1, "2"},
        {"a whole margin keeps its point", {.margin = "5."}, 2, "5."},
        {"a margin of two digits loses the first", {.margin = "10.3"}, 2, ".3"},
        {"a level pair's trace is a point", {.margin = "."}, 2, "  . "}, // in place 28
        {"odds below one", {.decimalOdds = ".80"}, 3, " .80 "},          // in places 36 to 38
        {"morning line", {.odds = "10/1"}, 4, "10/1"},
        {"the bet", {}, 5, "12.00"},
        {"no payoff", {}, 6, "0"},
        {"a payoff below ten", {.payoff = "9.60"}, 6, "  9.60"},
        {"a payoff above a hundred is cut", {.payoff = "123.60"}, 6, " 123.0"},
        {"a winner's mark after a cut payoff", {.payoff = "123.60"}, 7, "1"},
        {"the last digit of the bet", {}, 7, "0"},
    };
    for (const FieldRow& row : rows) {
        put("Stars5.ini", lineOf(row.race));
        Star();
        EXPECT_EQ(row.shown, cell(1, row.column)) << row.what;
    }
}

TEST_F(StarsProfileTest, AShortLineKeepsTheWinMarkBefore) {
    const Text winner = lineOf({.payoff = "43.20"});
    put("Stars5.ini", winner + Text(50, 'x') + "\r\n" + Text(50, 'x') + "y\r\n");
    Star();
    EXPECT_EQ("1", cell(2, 7)); // 50 characters are short
    EXPECT_EQ("y", cell(3, 7)); // 51 are not
}

TEST_F(StarsProfileTest, ListsOpenOneAfterAnother) {
    put("Stars5.ini", "");
    Star();
    EXPECT_EQ((std::vector<Text>{"$", "$$", "$$$", "$$$$", "$$$$$", "ALL Margins", "EXIT"}),
              screen.marginList.lines);
    const std::vector<Text> odds{"1/1", "6/5", "7/5", "8/5", "9/5", "2/1", "5/2",  "3/1",      "7/2", "4/1",
                                 "9/2", "5/1", "6/1", "7/1", "8/1", "9/1", "10/1", "ALL Odds", "EXIT"};
    EXPECT_EQ(odds, screen.oddsList.lines);
    EXPECT_EQ(odds, screen.maxOddsList.lines);
    const auto open = [] {
        return std::array{screen.marginList.visible, screen.oddsList.visible, screen.maxOddsList.visible};
    };
    EXPECT_EQ((std::array{true, false, false}), open());
    MarginChoice("$$");
    EXPECT_EQ((std::array{true, true, false}), open());
    OddsChoice("7/2");
    EXPECT_EQ((std::array{true, true, true}), open());
    MaxOddsChoice("ALL Odds");
    EXPECT_EQ("$$", screen.marginList.caption);
    EXPECT_EQ("7/2", screen.oddsList.caption);
    EXPECT_EQ("ALL Odds", screen.maxOddsList.caption);
    EXPECT_EQ(2, screen.marginChoice);
    EXPECT_EQ("7/2", screen.oddsChoice);
}

TEST_F(StarsProfileTest, ExitClosesAListAndNamesItsButton) {
    put("Stars5.ini", "");
    Star();
    MarginChoice("$$$");
    OddsChoice("3/1");
    MaxOddsChoice("3/1");
    const std::vector<Text> before = fields();
    put("Stars5.ini", lineOf(StarRace{}));
    MarginChoice("EXIT");
    OddsChoice("EXIT");
    MaxOddsChoice("EXIT");
    for (const ChoiceList* list : {&screen.marginList, &screen.oddsList, &screen.maxOddsList})
        EXPECT_FALSE(list->visible);
    EXPECT_EQ("Margin", screen.marginList.caption);
    EXPECT_EQ("Odds", screen.oddsList.caption);
    EXPECT_EQ("Max Odds", screen.maxOddsList.caption);
    EXPECT_EQ(3, screen.marginChoice); // the choices stay
    EXPECT_EQ("3/1", screen.oddsChoice);
    EXPECT_EQ(before, fields()); // and no profile is run
}

TEST_F(StarsProfileTest, ATextThatIsNoRowDoesNothing) {
    put("Stars5.ini", "");
    Star();
    MarginChoice("$$$$$$");
    OddsChoice("11/1");
    MaxOddsChoice("11/1");
    EXPECT_EQ("Margin", screen.marginList.caption);
    EXPECT_EQ(0, screen.marginChoice);
    EXPECT_EQ("", screen.oddsChoice);
    EXPECT_FALSE(screen.oddsList.visible);
    EXPECT_EQ("", screen.starsFields[1]);
}

TEST_F(StarsProfileTest, OpeningAgainStartsAfresh) {
    put("Stars5.ini", lineOf(StarRace{.payoff = "43.20"}));
    Star();
    choose("ALL Margins", "ALL Odds");
    EXPECT_EQ("1", screen.starsFields[1]);
    Star();
    EXPECT_EQ(std::vector<Text>(8), fields());
    EXPECT_EQ(0, screen.marginChoice);
    EXPECT_EQ("", screen.oddsChoice);
    EXPECT_EQ("Margin", screen.marginList.caption);
}

struct MarginCase {
    const char* choice;
    const char* margin;
    bool passes;
};

TEST_F(StarsProfileTest, AMarginTakesItsWholePointUpToTheNext) {
    const MarginCase rows[] = {
        {"$", "1.", true},
        {"$", "1.9", true},
        {"$", ".9", false},
        {"$", "2.", false},
        {"$$", "2.", true},
        {"$$", "2.9", true},
        {"$$", "1.9", false},
        {"$$", "3.", false},
        {"$$$", "3.5", true},
        {"$$$$", "4.5", true},
        {"$$$$$", "5.", true},
        {"$$$$$", "5.9", true},
        {"$$$$$", "6.", false},  // five dollars are no more than five points
        {"$$$$$", "15.3", true}, // read as 5.3
        {"$$", "12.3", true},    // read as 2.3
        {"$", "9.9", false},
        {"$$$$$", "9.9", false}, // a text of 9.9 is as good as level
        {"ALL Margins", "9.9", true},
        {"ALL Margins", ".", true},
        {"ALL Margins", "12.", true},
    };
    for (const MarginCase& row : rows) {
        put("Stars5.ini", lineOf(StarRace{.margin = row.margin}));
        Star();
        choose(row.choice, "ALL Odds");
        EXPECT_EQ(row.passes ? "1" : "0", screen.starsFields[1]) << row.choice << ' ' << row.margin;
        EXPECT_EQ(row.passes ? 2 : 1, screen.stars.rows()) << row.choice << ' ' << row.margin;
    }
}

struct OddsCase {
    const char* choice;
    const char* odds;
    bool passes;
};

TEST_F(StarsProfileTest, OddsAreThoseOfTheRecord) {
    for (const OddsCase& row :
         {OddsCase{"5/2", " 5/2", true}, OddsCase{"5/2", "15/2", false}, OddsCase{"10/1", "10/1", true},
          OddsCase{"1/1", "10/1", false}, OddsCase{"ALL Odds", "20/1", true}}) {
        put("Stars5.ini", lineOf(StarRace{.odds = row.odds}));
        Star();
        choose("ALL Margins", row.choice);
        EXPECT_EQ(row.passes ? "1" : "0", screen.starsFields[1]) << row.choice << ' ' << row.odds;
    }
}

TEST_F(StarsProfileTest, MaxOddsTakeNoPartInTheFilter) {
    put("Stars5.ini", lineOf(StarRace{.odds = " 5/2"}));
    Star();
    MarginChoice("ALL Margins");
    OddsChoice("5/2");
    for (const char* odds : {"1/1", "10/1", "ALL Odds"}) {
        MaxOddsChoice(odds);
        EXPECT_EQ("1", screen.starsFields[1]) << odds;
    }
}

// The label of a card stands in the first of its rows that passes.
TEST_F(StarsProfileTest, ACardIsNamedOnceInItsFirstRow) {
    put("Stars5.ini", "M1_20260314\r\n" + lineOf({.race = "1", .margin = "7."}) +
                          lineOf({.race = "2", .margin = "2."}) + lineOf({.race = "3", .margin = "2.5"}) +
                          "YR_20260315\r\n" + lineOf({.race = "4", .margin = "2.1"}));
    Star();
    choose("$$", "ALL Odds");
    ASSERT_EQ(4, screen.stars.rows());
    EXPECT_EQ("M1_20260314", cell(1, 0));
    EXPECT_EQ("2", cell(1, 1));
    EXPECT_EQ("", cell(2, 0));
    EXPECT_EQ("3", cell(2, 1));
    EXPECT_EQ("YR_20260315", cell(3, 0));
}

// A label that already stands in the row above waits for the row after.
TEST_F(StarsProfileTest, ACardRecordedTwiceIsNamedARowLater) {
    put("Stars5.ini", "M1_20260314\r\n" + lineOf({.race = "1"}) + "M1_20260314\r\n" + lineOf({.race = "2"}) +
                          lineOf({.race = "3"}));
    Star();
    choose("ALL Margins", "ALL Odds");
    EXPECT_EQ("M1_20260314", cell(1, 0));
    EXPECT_EQ("", cell(2, 0));
    EXPECT_EQ("M1_20260314", cell(3, 0));
}

TEST_F(StarsProfileTest, RowsThatPassShowTheirRecord) {
    put("Stars5.ini", "M1_20260314\r\n" + lineOf({.race = "7", .payoff = "43.20"}) + lineOf({.race = "8"}));
    Star();
    choose("ALL Margins", "ALL Odds");
    EXPECT_EQ((std::vector<Text>{"Track/Date", "Race", "Margin", "Odds $", "Odds", "Bet", "PayOff", "Win"}),
              row(0));
    EXPECT_EQ((std::vector<Text>{"M1_20260314", "7", "5.2", "2.50 ", "5/2", "12.00", " 43.20", "1"}), row(1));
    EXPECT_EQ((std::vector<Text>{"", "8", "5.2", "2.50 ", "5/2", "12.00", "0", "0"}), row(2));
}

// Races of which the first so many were won at 43.20.
Text racesWon(int races, int wins) {
    Text lines = "M1_20260314\r\n";
    for (int race = 0; race < races; ++race) lines += lineOf(StarRace{.payoff = race < wins ? "43.20" : ""});
    return lines;
}

// 4 races, 48.00 bet; 43.20 and 9.60 are 52.80 returned, 4.80 net: 10 per cent; 26.40 a win.
TEST_F(StarsProfileTest, FieldsAddUpTheRacesThatPass) {
    put("Stars5.ini", lineOf(StarRace{.payoff = "43.20"}) + lineOf(StarRace{.payoff = "9.60"}) +
                          lineOf(StarRace{}) + lineOf(StarRace{}) +
                          lineOf(StarRace{.odds = " 3/1", .payoff = "48.00"}));
    Star();
    choose("$$$$$", "5/2");
    EXPECT_EQ(
        (std::vector<Text>{"4", "2", " 50.0%", "$    48.00", "$    52.80", "$     4.80", " 10.0%", "$26.40"}),
        fields());
}

// A payoff of 123.60 is read in six characters, 123.6 of them.
TEST_F(StarsProfileTest, APayoffAboveAHundredCountsToTheTenth) {
    put("Stars5.ini", lineOf(StarRace{.payoff = "123.60"}) + lineOf(StarRace{}));
    Star();
    choose("ALL Margins", "ALL Odds");
    EXPECT_EQ("$   123.60", screen.starsFields[5]);
    EXPECT_EQ("$123.60", screen.starsFields[8]);
    EXPECT_EQ("415.0%", screen.starsFields[7]); // 99.60 of 24.00
}

struct PercentageCase {
    const char* what;
    int races;
    int wins;
    const char* shown;
};

TEST_F(StarsProfileTest, TheWinPercentageHasItsCaps) {
    const PercentageCase rows[] = {
        {"all won", 2, 2, " 95.0%"},
        {"99 of 100", 100, 99, " 95.0%"},
        {"98 of 100", 100, 98, " 98.0%"},
        {"none won", 3, 0, "   .0%"},
        {"4 of 100 are doubled", 100, 4, "  8.0%"},
        {"5 of 100 are doubled", 100, 5, " 10.0%"},
        {"6 of 100 are not", 100, 6, "  6.0%"},
        {"a third is cut to 33.3", 3, 1, " 33.3%"},
        {"two thirds are cut to 66.6", 3, 2, " 66.6%"},
        {"1 of 16 is 6.25, cut to four characters, then 6.3", 16, 1, "  6.3%"},
    };
    for (const PercentageCase& row : rows) {
        put("Stars5.ini", racesWon(row.races, row.wins));
        Star();
        choose("ALL Margins", "ALL Odds");
        EXPECT_EQ(row.shown, screen.starsFields[3]) << row.what;
        EXPECT_EQ(std::to_string(row.races), screen.starsFields[1]);
        EXPECT_EQ(std::to_string(row.wins), screen.starsFields[2]);
    }
}

// 7 races bet 84.00, nothing returned: -100 per cent. Cut to five characters, -100 stays whole.
TEST_F(StarsProfileTest, WithoutAWinnerTheAverageKeepsItsText) {
    put("Stars5.ini", racesWon(4, 2));
    Star();
    choose("ALL Margins", "ALL Odds");
    EXPECT_EQ("$43.20", screen.starsFields[8]);
    put("Stars5.ini", racesWon(7, 0));
    MaxOddsChoice("1/1");
    EXPECT_EQ((std::vector<Text>{"7", "0", "   .0%", "$    84.00", "$      .00", "$   -84.00", "-100.0%",
                                 "$43.20"}),
              fields());
}

TEST_F(StarsProfileTest, WithoutARaceTheFieldsThatDivideKeepTheirText) {
    put("Stars5.ini", racesWon(4, 2));
    Star();
    choose("ALL Margins", "ALL Odds");
    // 2 of 4; 86.40 less 48.00 are 38.40, 80 per cent
    EXPECT_EQ(
        (std::vector<Text>{"4", "2", " 50.0%", "$    48.00", "$    86.40", "$    38.40", " 80.0%", "$43.20"}),
        fields());
    choose("$", "ALL Odds");
    EXPECT_EQ(
        (std::vector<Text>{"0", "0", " 50.0%", "$      .00", "$      .00", "$      .00", " 80.0%", "$43.20"}),
        fields());
    EXPECT_EQ(1, screen.stars.rows());
}

// A return on bets is cut, not rounded: 3 races, 43.20 of 36.00 are 20 per cent; 7 races, 43.20 - 84.00 =
// -40.80, -48.57 per cent, in five characters -48.5.
TEST_F(StarsProfileTest, TheReturnOnBetsIsCut) {
    put("Stars5.ini", racesWon(3, 1));
    Star();
    choose("ALL Margins", "ALL Odds");
    EXPECT_EQ(" 20.0%", screen.starsFields[7]);
    put("Stars5.ini", racesWon(7, 1));
    MaxOddsChoice("1/1");
    EXPECT_EQ("-48.5%", screen.starsFields[7]);
}

TEST_F(StarsProfileTest, EveryMarginAndLineAddsUpItsRaces) {
    std::mt19937 random{11};
    const Text odds[] = {" 1/1", " 5/2", " 3/1", "10/1"};
    struct Race {
        int tenths;
        std::size_t odds;
        int cents; ///< paid for $12; 0 for a loser
    };
    std::vector<Race> races;
    Text content;
    for (int card = 0; card < 30; ++card) {
        content += "M1_202601" + std::to_string(10 + card) + "\r\n";
        for (int race = 1; race <= 9; ++race) {
            races.push_back(
                {static_cast<int>(random() % 70), random() % 4,
                 random() % 3 == 0 ? static_cast<int>(12 * (100 + random() % 600) / 10 * 10) : 0});
            const auto& [tenths, line, cents] = races.back();
            const Text margin = (tenths >= 10 ? std::to_string(tenths / 10) : "") + "." +
                                (tenths % 10 > 0 ? std::to_string(tenths % 10) : "");
            char payoff[32];
            std::snprintf(payoff, sizeof payoff, "%d.%02d", cents / 100, cents % 100);
            content += lineOf({.race = std::to_string(race),
                               .margin = margin,
                               .odds = odds[line],
                               .payoff = cents > 0 ? payoff : ""});
        }
    }
    put("Stars5.ini", content);
    Star();
    const Text margins[] = {"$", "$$", "$$$", "$$$$", "$$$$$", "ALL Margins"};
    const Text lines[] = {"1/1", "5/2", "3/1", "10/1", "ALL Odds"};
    for (int margin = 1; margin <= 6; ++margin) {
        for (std::size_t line = 0; line < 5; ++line) {
            int count = 0, wins = 0, cents = 0;
            for (const Race& race : races) {
                if (margin < 6 && race.tenths / 10 != margin) continue;
                if (line < 4 && race.odds != line) continue;
                ++count;
                if (race.cents == 0) continue;
                ++wins;
                cents += race.cents;
            }
            ASSERT_GT(wins, 0);
            choose(margins[margin - 1], lines[line]);
            char returned[32], net[32];
            std::snprintf(returned, sizeof returned, "$%9.2f", cents / 100.0);
            std::snprintf(net, sizeof net, "$%9.2f", cents / 100.0 - count * 12);
            EXPECT_EQ(std::to_string(count), screen.starsFields[1]);
            EXPECT_EQ(std::to_string(wins), screen.starsFields[2]);
            EXPECT_EQ(returned, screen.starsFields[5]);
            EXPECT_EQ(net, screen.starsFields[6]);
            EXPECT_EQ(count + 1, screen.stars.rows());
        }
    }
}

TEST_F(StarsProfileTest, WithoutAFileTheWindowOpensEmpty) {
    EXPECT_FALSE(attempt(Star));
    EXPECT_TRUE(screen.starsVisible);
    EXPECT_TRUE(screen.marginList.visible);
    EXPECT_EQ(1, screen.stars.rows());
    EXPECT_TRUE(journalTells("Stars5.ini"));
    choose("ALL Margins", "ALL Odds");
    EXPECT_EQ("", screen.starsFields[1]);
}

TEST_F(StarsProfileTest, AMillionLinesAreRowsWhenTheyAreLookedAt) {
    Text content;
    for (int line = 0; line < 1000000; ++line) content += "\r\n";
    content += lineOf(StarRace{.race = "7"});
    put("Stars5.ini", content);
    Star();
    EXPECT_EQ(1000002, screen.stars.rows());
    EXPECT_EQ("7", cell(1000001, 1));
}

TEST_F(StarsProfileTest, ACancelledWalkClearsTheView) {
    Text content;
    for (int line = 0; line < 150000; ++line) content += lineOf(StarRace{});
    put("Stars5.ini", content);
    cancelAt(1);
    Star();
    EXPECT_EQ(1, screen.stars.rows());
    reports.clear();
    MarginChoice("ALL Margins");
    OddsChoice("ALL Odds");
    MaxOddsChoice("ALL Odds");
    EXPECT_EQ(1, screen.stars.rows());
    EXPECT_EQ("", screen.starsFields[1]);
    ASSERT_EQ(1u, reports.size());
    EXPECT_NEAR(2.0 / 3, reports[0], 1e-9);
    EXPECT_EQ(content.size(), contentOf("Stars5.ini").size());
}

TEST_F(StarsProfileTest, NoContentStopsAProfile) {
    std::mt19937 random{20260314};
    constexpr char likely[] = " \r\n\t0123456789./-MA\x80\xFF";
    for (int round = 0; round < 100; ++round) {
        Text bytes(random() % 3000, '\0');
        for (char& byte : bytes)
            byte = random() % 8 == 0 ? static_cast<char>(random() % 256)
                                     : likely[random() % (sizeof likely - 1)];
        put("Stars5.ini", bytes);
        Star();
        choose(random() % 2 == 0 ? "$" : "ALL Margins", "ALL Odds");
        for (int row = 0; row < screen.stars.rows(); ++row)
            for (int column = 0; column < screen.stars.columns(); ++column) cell(row, column);
        ASSERT_EQ(bytes, contentOf("Stars5.ini"));
    }
}

} // namespace
} // namespace quillon
