#include "summary_test.h"

#include "analysis/archive_records.h"

#include <sstream>
#include <vector>

namespace quillon {
namespace {

/// The columns of bets on the order of finish that show a payoff in a row: "15 16 28".
std::string shownBets(int row) {
    std::string columns;
    for (int column = 15; column <= 28; ++column)
        if (!screen.summary.read(row, column).text.empty())
            columns += (columns.empty() ? "" : " ") + std::to_string(column);
    return columns;
}

/// The texts of columns 11 to 13 of a row.
std::string shownPlaces(int row) {
    std::string texts;
    for (int column = 11; column <= 13; ++column) texts += screen.summary.read(row, column).text + "|";
    return texts;
}

bool coloured(int row, int column) {
    return screen.summary.read(row, column).background == std::optional<Colour>{{255, 255, 100}};
}

} // namespace

// ---- The view

TEST_F(SummaryTest, HeadsItsThirtyColumns) {
    SelectionResults();

    // clang-format off
    const std::vector<std::string> heads{
        "", "S1", "S2", "S3", "S4", "", "R1", "R2", "R3", "R4",
        "", "Win", "Place", "Show", "", "E1/2", "E1-2", "E1/2-3", "E1-2-3", "E1-2-3-4",
        "", "", "T1/2-3", "T1/2-3-4", "T1-2-3", "", "S1/2-3-4", "S2-1/3-4", "S1-2-3-4", "Pick 3"};
    // clang-format on
    ASSERT_EQ(30, screen.summary.columns());
    for (int column = 0; column < 30; ++column) EXPECT_EQ(heads.at(column), cell(0, column)) << column;
}

TEST_F(SummaryTest, LabelsARowForEachRaceOfTheCard) {
    card.raceCount = 10;
    SelectionResults();
    EXPECT_EQ("Race 1", cell(1, 0));
    EXPECT_EQ("Race 10", cell(10, 0));
    EXPECT_EQ("", cell(11, 0));
}

TEST_F(SummaryTest, LabelsGoOnAfterACardThatStartsAboveRaceOne) {
    card.raceOffset = 12;
    card.raceCount = 3;
    SelectionResults();
    EXPECT_EQ("Race 15", cell(15, 0)); // 12 + 3
    EXPECT_EQ("", cell(16, 0));
}

TEST_F(SummaryTest, TheRowOfPercentagesHasNoLabel) {
    card.raceCount = 23;
    SelectionResults();
    EXPECT_EQ("Race 21", cell(21, 0));
    EXPECT_EQ("", cell(22, 0));
    EXPECT_EQ("Race 23", cell(23, 0));
}

TEST_F(SummaryTest, LabelsEndWithTheRacesThatACardCanHave) {
    card.raceOffset = 25;
    card.raceCount = 10;
    race(10, {"1", "2", "3", "4"}, {"1", "2", "3", "4"}, {.winPay = "4.20"});
    SelectionResults();
    EXPECT_EQ("Race 30", cell(30, 0)); // 35 would be the last; the failure ends the labels and nothing else
    EXPECT_EQ("4.20", cell(10, 11));
}

TEST_F(SummaryTest, ShowsSelectionsAndFinishOfRacesWithASelection) {
    card.raceCount = 23;
    race(1, {"  4", "  1", " 1A", "  7"}, {"4", "1A", "3", "9"});
    race(2, {"", "2", "3", "4"}, {"5", "6", "7", "8"});
    race(23, {"1", "2", "3", "4"}, {"5", "6", "7", "8"});
    SelectionResults();
    EXPECT_EQ("  4", cell(1, 1)); // as they are stored
    EXPECT_EQ("  1", cell(1, 2));
    EXPECT_EQ(" 1A", cell(1, 3));
    EXPECT_EQ("  7", cell(1, 4));
    EXPECT_EQ("", cell(1, 5));
    EXPECT_EQ("4", cell(1, 6));
    EXPECT_EQ("1A", cell(1, 7));
    EXPECT_EQ("3", cell(1, 8));
    EXPECT_EQ("9", cell(1, 9));
    for (int column = 1; column <= 9; ++column) EXPECT_EQ("", cell(2, column)) << column;
    EXPECT_EQ("1", cell(23, 1));
    EXPECT_EQ("8", cell(23, 9));
}

TEST_F(SummaryTest, RacesAfterTheLastRatedOneAreNotShown) {
    card.raceCount = 25;
    race(24, {"1", "2", "3", "4"}, {"5", "6", "7", "8"});
    SelectionResults();
    EXPECT_EQ("", cell(24, 1));
    EXPECT_EQ("", cell(24, 6));
}

TEST_F(SummaryTest, StoresTheBoardFirst) {
    race(1, {"9", "9", "9", "9"}, {"8", "8", "8", "8"});
    screen.header.race = "1";
    const char* texts[] = {"4", "1", "2", "7", " 4", "3", "1", "2"};
    for (std::size_t box = 0; box < screen.boxes.size(); ++box) screen.boxes[box].text = texts[box];
    screen.tote[1] = " 6.80";
    SelectionResults();
    EXPECT_EQ("4", cell(1, 1));
    EXPECT_EQ("2", cell(1, 9));
    EXPECT_EQ("6.80", cell(1, 11)); // 4 won
}

TEST_F(SummaryTest, TrimsThePayoffs) {
    race(1, {"1", "2", "3", "4"}, {"1", "2", "3", "4"}, {.winPay = "  5.40 ", .superfectaPay = " 150.40  "});
    SelectionResults();
    EXPECT_EQ("5.40", cell(1, 11));
    EXPECT_EQ("150.40", cell(1, 26));
    EXPECT_EQ("5.40", card.payoffRecord(1, 1));
    EXPECT_EQ("150.40", card.payoffRecord(1, 9));
}

TEST_F(SummaryTest, TrimsThePayoffsOfRacesThatNoBetIsDecidedForToo) {
    for (const int at : {24, 25, 30})
        race(at, {"1", "2", "3", "4"}, {"1", "2", "3", "4"},
             {.winPay = "  5.40 ", .superfectaPay = " 150.40  "});
    SelectionResults();
    for (const int at : {24, 25, 30}) {
        EXPECT_EQ("5.40", card.payoffRecord(at, 1)) << at;
        EXPECT_EQ("150.40", card.payoffRecord(at, 9)) << at;
    }
}

TEST_F(SummaryTest, ASecondRunKeepsNothingOfTheFirst) {
    race(1, {"1", "2", "3", "4"}, {"1", "2", "3", "4"}, {.winPay = "5.40", .exactaPay = "12.60"});
    SelectionResults();
    race(1, {"1", "2", "3", "4"}, {"8", "7", "6", "5"}, {.winPay = "9.40", .exactaPay = "82.60"});
    SelectionResults();
    EXPECT_EQ("|||", shownPlaces(1));
    EXPECT_EQ("", shownBets(1));
    EXPECT_FALSE(coloured(1, 1));
    EXPECT_EQ("0", total(1));
    EXPECT_EQ(".00", total(11));
    EXPECT_EQ(".00", total(15));
}

TEST_F(SummaryTest, ACardWithoutResultsLeavesTheJournalEmpty) {
    card.raceCount = 12;
    for (int r = 1; r <= 12; ++r) race(r, {"1", "2", "3", "4"}, {"", "", "", ""});
    SelectionResults();
    EXPECT_EQ(0U, journal.count());
    for (int r = 1; r <= 12; ++r) EXPECT_EQ("", shownBets(r)) << r;
}

// ---- Opening

TEST_F(SummaryTest, TakesThePlaceOfTheRacePanels) {
    screen.item(CommandId::MainScreen).visible = screen.item(CommandId::PrintSummary).visible = false;
    screen.profileVisible = true;
    SelectionResults();
    EXPECT_TRUE(screen.summaryVisible);
    EXPECT_FALSE(screen.profileVisible);
    EXPECT_FALSE(screen.racePanelsVisible);
    EXPECT_TRUE(screen.item(CommandId::MainScreen).visible);
    EXPECT_TRUE(screen.item(CommandId::PrintSummary).visible);
    EXPECT_FALSE(screen.item(CommandId::NewRC).enabled);
    EXPECT_FALSE(screen.item(CommandId::RecallRaceCard).enabled);
}

TEST_F(SummaryTest, CaptionTellsTrackAndDateByPlace) {
    const struct {
        const char* cardFileName;
        const char* caption;
    } rows[]{
        {"M1_20260314.pmd", "M1 03-14-2026"},
        {"PcDwn_20260314.pmd", "PcDwn 03-14-2026"},
        // One place off: "0260314." is cut as month "31", day "4." and year "0260".
        {"M1_20260314.pmd2", "M1 31-4.-0260"},
        {"", "as before"},
    };
    for (const auto& row : rows) {
        card.cardFileName = row.cardFileName;
        screen.caption = "as before";
        SelectionResults();
        EXPECT_EQ(row.caption, screen.caption) << row.cardFileName;
    }
}

TEST_F(SummaryTest, RaceCursorIsPutBackOnTheCard) {
    const struct {
        int cursor, offset, count, expected;
    } rows[]{
        // clang-format off
        {-1, 0, 9, 1},
        {0, 0, 9, 1},
        {1, 0, 9, 1},
        {9, 0, 9, 9},
        {10, 0, 9, 9},
        {12, 3, 9, 12}, // 3 + 9 is not exceeded
        {13, 3, 9, 9},  // 13 is above 12: the count, not the last number
        // clang-format on
    };
    for (const auto& row : rows) {
        cursor.race = static_cast<Integer>(row.cursor);
        card.raceOffset = static_cast<Integer>(row.offset);
        card.raceCount = static_cast<Integer>(row.count);
        SelectionResults();
        EXPECT_EQ(row.expected, cursor.race) << row.cursor << " on " << row.offset << "+" << row.count;
    }
}

TEST_F(SummaryTest, RecordIsAvailableForACardThatIsNotArchived) {
    SelectionResults();
    EXPECT_TRUE(screen.record.enabled);
    put("HRA.ini", "   M1_20260313  9\r\n  M10_20260314  9\r\n");
    SelectionResults();
    EXPECT_TRUE(screen.record.enabled);
    put("HRA.ini", "   M1_20260313  9\r\n   M1_20260314  9\r\n");
    SelectionResults();
    EXPECT_FALSE(screen.record.enabled);
}

// ---- Wins and places of the selections

TEST_F(SummaryTest, WinAndPlacePassesCompareNumbers) {
    const Payoffs payoffs{.winPay = "10.00",
                          .placePay1 = "5.00",
                          .showPay1 = "3.00",
                          .placePay2 = "4.00",
                          .showPay2 = "2.80",
                          .showPay3 = "2.20"};
    const struct {
        const char* what;
        Four selections;
        Four finish;
        const char* places; ///< Win, Place, Show
        const char* wins;   ///< of S1 to S4
    } rows[]{
        // clang-format off
        {"S1 first",              {"1", "2", "3", "4"},   {"1", "8", "9", "5"},  "10.00|5.00|3.00|", "1000"},
        {"S1 first, padded",      {"  1", "2", "3", "4"}, {"1", "8", "9", "5"},  "10.00|5.00|3.00|", "1000"},
        {"S1 first, coupled",     {"1", "2", "3", "4"},   {"1A", "8", "9", "5"}, "10.00|5.00|3.00|", "1000"},
        {"S1 second",             {"1", "2", "3", "4"},   {"8", "1", "9", "5"},  "|4.00|2.80|",      "0000"},
        {"S1 third",              {"1", "2", "3", "4"},   {"8", "9", "1", "5"},  "||2.20|",          "0000"},
        {"S1 fourth",             {"1", "2", "3", "4"},   {"8", "9", "5", "1"},  "|||",              "0000"},
        {"S1 unplaced",           {"1", "2", "3", "4"},   {"8", "9", "5", "6"},  "|||",              "0000"},
        {"S2 first",              {"1", "2", "3", "4"},   {"2", "9", "5", "6"},  "|||",              "0100"},
        {"S2 first, padded",      {"1", " 2", "3", "4"},  {"2", "9", "5", "6"},  "|||",              "0100"},
        {"S3 first",              {"1", "2", "3", "4"},   {"3", "9", "5", "6"},  "|||",              "0010"},
        {"S4 first",              {"1", "2", "3", "4"},   {"4", "9", "5", "6"},  "|||",              "0001"},
        {"S4 first, S1 second",   {"1", "2", "3", "4"},   {"4", "1", "5", "6"},  "|4.00|2.80|",      "0001"},
        {"S1 and S2 coupled",     {"1", "1A", "3", "4"},  {"1", "9", "5", "6"},  "10.00|5.00|3.00|", "1100"},
        // The later pass writes over the columns of the earlier one.
        {"S1 first and second",   {"1", "2", "3", "4"},   {"1", "1A", "5", "6"}, "10.00|4.00|2.80|", "1000"},
        {"no results",            {"1", "2", "3", "4"},   {"", "", "", ""},      "|||",              "0000"},
        // A selection without a number is level with a finisher without one: paid, but no win.
        {"nothing and nothing",   {"AE", "", "", ""},     {"", "8", "9", "5"},   "10.00|5.00|3.00|", "0000"},
        // clang-format on
    };
    for (const auto& row : rows) {
        race(1, row.selections, row.finish, payoffs);
        SelectionResults();
        EXPECT_EQ(row.places, shownPlaces(1)) << row.what;
        EXPECT_EQ(row.wins, total(1) + total(2) + total(3) + total(4)) << row.what;
        for (int place = 1; place <= 4; ++place)
            EXPECT_EQ(row.wins[place - 1] == '1', coloured(1, place)) << row.what << ", S" << place;
    }
}

TEST_F(SummaryTest, AddsUpWhatS1Paid) {
    card.raceCount = 4;
    const Payoffs payoffs{.winPay = "10.00",
                          .placePay1 = "5.00",
                          .showPay1 = "3.00",
                          .placePay2 = "4.00",
                          .showPay2 = "2.80",
                          .showPay3 = "2.20"};
    race(1, {"1", "2", "3", "4"}, {"1", "8", "9", "5"}, payoffs);
    race(2, {"1", "2", "3", "4"}, {"8", "1", "9", "5"}, payoffs);
    race(3, {"1", "2", "3", "4"}, {"8", "9", "1", "5"}, payoffs);
    race(4, {"1", "2", "3", "4"}, {"1", "9", "8", "5"}, payoffs);
    SelectionResults();
    EXPECT_EQ("20.00", total(11)); // 10.00 + 10.00
    EXPECT_EQ("14.00", total(12)); // 5.00 + 4.00 + 5.00
    EXPECT_EQ("11.00", total(13)); // 3.00 + 2.80 + 2.20 + 3.00
    EXPECT_EQ(2, card.s1Wins);
}

TEST_F(SummaryTest, PlacePassesGoOnAfterTheCardWhereTheWinOfS1DoesNot) {
    race(1, {"1", "2", "3", "4"}, {"5", "6", "7", "8"});
    race(2, {"1", "2", "3", "4"}, {"1", "6", "7", "8"}, {.winPay = "10.00"});
    race(3, {"1", "2", "3", "4"}, {"2", "6", "7", "8"});
    race(4, {"1", "2", "3", "4"}, {"3", "1", "7", "8"}, {.placePay2 = "4.00", .showPay2 = "2.80"});
    race(24, {"1", "2", "3", "4"}, {"4", "6", "1", "8"}, {.showPay3 = "2.20"});
    race(25, {"1", "2", "3", "4"}, {"4", "6", "1", "8"}, {.showPay3 = "2.20"});
    SelectionResults();
    EXPECT_EQ("0", total(1)); // race 2 is after the card's one race
    EXPECT_EQ("1", total(2));
    EXPECT_EQ("1", total(3));
    EXPECT_EQ("1", total(4)); // race 24, but not race 25
    EXPECT_EQ(".00", total(11));
    EXPECT_EQ("4.00", total(12));
    EXPECT_EQ("5.00", total(13)); // 2.80 + 2.20
}

// ---- Dead heats

TEST_F(SummaryTest, ADeadHeatPaysS1AsTheSecondHorse) {
    race(
        1, {"1", "2", "3", "4"}, {"8", "1", "9", "5"},
        {.winPay = "6.00", .placePay1 = "5.00", .showPay1 = "3.00", .placePay2 = "4.00", .showPay2 = "2.80"});
    card.winHeat(1) = 2;
    SelectionResults();
    EXPECT_EQ(1, card.s1Wins);
    EXPECT_TRUE(coloured(1, 1));
    EXPECT_EQ("6.00", cell(1, 11));
    // He is second too: that pass shows its own payoffs and adds them to what the win added.
    EXPECT_EQ("4.00", cell(1, 12));
    EXPECT_EQ("2.80", cell(1, 13));
    EXPECT_EQ("6.00", total(11));
    EXPECT_EQ("9.00", total(12)); // 5.00 + 4.00
    EXPECT_EQ("5.80", total(13)); // 3.00 + 2.80
    EXPECT_EQ(1, card.winHeat(1));
}

TEST_F(SummaryTest, ASecondRunTakesTheDeadHeatForAPlainRace) {
    race(
        1, {"1", "2", "3", "4"}, {"8", "1", "9", "5"},
        {.winPay = "6.00", .placePay1 = "5.00", .showPay1 = "3.00", .placePay2 = "4.00", .showPay2 = "2.80"});
    card.winHeat(1) = 2;
    SelectionResults();
    SelectionResults();
    EXPECT_EQ(0, card.s1Wins);
    EXPECT_FALSE(coloured(1, 1));
    EXPECT_EQ("|4.00|2.80|", shownPlaces(1));
    EXPECT_EQ(".00", total(11));
    EXPECT_EQ("4.00", total(12));
}

TEST_F(SummaryTest, ADeadHeatPaysS1AsTheFirstHorseInBothRuns) {
    race(1, {"1", "2", "3", "4"}, {"1", "8", "9", "5"}, {.winPay = "6.00"});
    card.winHeat(1) = 2;
    SelectionResults();
    EXPECT_EQ(1, card.s1Wins);
    SelectionResults();
    EXPECT_EQ(1, card.s1Wins);
}

TEST_F(SummaryTest, EveryDeadHeatIsToldOnceWhoeverSharedIt) {
    card.raceCount = 2;
    race(1, {"1", "2", "3", "4"}, {"2", "8", "9", "5"});
    race(2, {"1", "2", "3", "4"}, {"2", "8", "9", "5"});
    card.winHeat(1) = 2;
    SelectionResults();
    EXPECT_EQ(1, card.winHeat(1));
    EXPECT_EQ(2, card.s2Wins); // none is left to end the pass
}

TEST_F(SummaryTest, ATripleDeadHeatHasNoWinOfS1AndEndsTheWinsOfS2) {
    card.raceCount = 3;
    for (const int r : {1, 3}) race(r, {"1", "2", "3", "4"}, {"2", "8", "9", "5"});
    race(2, {"1", "2", "3", "4"}, {"1", "8", "9", "5"}, {.winPay = "6.00"});
    card.winHeat(2) = 3;
    SelectionResults();
    EXPECT_EQ(3, card.winHeat(2));
    EXPECT_EQ(0, card.s1Wins);
    EXPECT_EQ("|||", shownPlaces(2));
    EXPECT_EQ(1, card.s2Wins); // race 1; the pass does not reach race 3
}

TEST_F(SummaryTest, ADeadHeatAfterTheCardEndsTheWinsOfS2Alone) {
    race(1, {"1", "2", "3", "4"}, {"2", "8", "9", "5"});
    race(3, {"1", "2", "3", "4"}, {"2", "8", "9", "5"});
    race(4, {"1", "2", "3", "4"}, {"3", "8", "9", "5"});
    card.winHeat(2) = 2;
    SelectionResults();
    EXPECT_EQ(2, card.winHeat(2)); // the first pass covers the card's one race
    EXPECT_EQ(1, card.s2Wins);
    EXPECT_EQ(1, card.s3Wins);
}

// ---- Bets on the order of finish

TEST_F(SummaryTest, BetsHitByTheExactTextsOfTheFinish) {
    const struct {
        const char* what;
        Four finish;
        const char* columns;
    } rows[]{
        // clang-format off
        // Exactas: 15 E1/2, 16 E1-2, 17 E1/2-3, 18 E1-2-3, 19 E1-2-3-4.
        {"1-2",                   {"1", "2", "8", "9"},  "15 16 17 18 19"},
        {"2-1 boxes alone",       {"2", "1", "8", "9"},  "16 18 19"},
        {"1-3",                   {"1", "3", "8", "9"},  "17 18 19"},
        {"3-1",                   {"3", "1", "8", "9"},  "18 19"},
        {"2-3",                   {"2", "3", "8", "9"},  "18 19"},
        {"1-4",                   {"1", "4", "8", "9"},  "19"},
        {"4-3",                   {"4", "3", "8", "9"},  "19"},
        {"first alone",           {"1", "8", "2", "3"},  ""},
        {"second alone",          {"8", "1", "2", "3"},  ""},
        {"padded second",         {"1", " 2", "8", "9"}, ""},
        {"padded first",          {" 1", "2", "8", "9"}, ""},
        {"coupled first",         {"1A", "2", "8", "9"}, ""},
        // Trifectas: 22 T1/2-3, 23 T1/2-3-4, 24 T1-2-3.
        {"1-2-3",                 {"1", "2", "3", "9"},  "15 16 17 18 19 22 23 24"},
        {"1-3-2",                 {"1", "3", "2", "9"},  "17 18 19 22 23 24"},
        {"1-2-4",                 {"1", "2", "4", "9"},  "15 16 17 18 19 23"},
        {"1-4-3",                 {"1", "4", "3", "9"},  "19 23"},
        {"2-1-3 boxes alone",     {"2", "1", "3", "9"},  "16 18 19 24"},
        {"3-2-1",                 {"3", "2", "1", "9"},  "18 19 24"},
        {"third of another",      {"1", "2", "8", "3"},  "15 16 17 18 19"},
        {"padded third",          {"1", "2", "  3", "9"}, "15 16 17 18 19"},
        {"2 twice after 1",      {"1", "2", "2", "9"},  "15 16 17 18 19 23 24"},
        // Superfectas: 26 S1/2-3-4, 27 S2-1/3-4, 28 S1-2-3-4.
        {"1-2-3-4",               {"1", "2", "3", "4"},  "15 16 17 18 19 22 23 24 26 27 28"},
        {"1-4-3-2",               {"1", "4", "3", "2"},  "19 23 26 27 28"},
        {"2-1-4-3",               {"2", "1", "4", "3"},  "16 18 19 27 28"},
        {"2-4-3-1",               {"2", "4", "3", "1"},  "19 27 28"},
        {"3-4-1-2 boxes alone",   {"3", "4", "1", "2"},  "19 28"},
        {"4-3-2-1",               {"4", "3", "2", "1"},  "19 28"},
        {"fourth of another",     {"4", "3", "2", "9"},  "19"},
        {"padded fourth",         {"1", "2", "3", " 4"}, "15 16 17 18 19 22 23 24"},
        {"padded first of four",  {"  1", "2", "3", "4"}, ""},
        {"one horse four times",  {"1", "1", "1", "1"},  "16 18 19 24 28"},
        {"2 first and fourth",    {"2", "1", "3", "2"},  "16 18 19 24 28"},
        {"no results",            {"", "", "", ""},      ""},
        // clang-format on
    };
    for (const auto& row : rows) {
        race(1, {"1", "2", "3", "4"}, row.finish,
             {.exactaPay = "12.60", .trifectaPay = "45.20", .superfectaPay = "150.40"});
        SelectionResults();
        EXPECT_EQ(row.columns, shownBets(1)) << row.what;
    }
}

TEST_F(SummaryTest, APaddedSelectionMatchesAPaddedFinisherAlone) {
    race(1, {"  1", "  2", "  3", "  4"}, {"1", "2", "3", "4"}, {.winPay = "5.00", .exactaPay = "12.60"});
    SelectionResults();
    EXPECT_EQ("", shownBets(1));
    EXPECT_EQ("5.00", cell(1, 11)); // numbers are equal all the same
    race(1, {"  1", "  2", "  3", "  4"}, {"  1", "  2", "9", "8"}, {.exactaPay = "12.60"});
    SelectionResults();
    EXPECT_EQ("15 16 17 18 19", shownBets(1));
}

TEST_F(SummaryTest, EachBetShowsAndAddsItsOwnPayoff) {
    card.raceCount = 2;
    // 1-2-3-4 hits all bets; the superfecta counts for columns 26 and 27, and by the box of four for 28.
    race(1, {"1", "2", "3", "4"}, {"1", "2", "3", "4"},
         {.exactaPay = "10.00", .trifectaPay = "100.00", .superfectaPay = "1000.00"});
    // 2-1-3-4 hits E1-2, E1-2-3, E1-2-3-4, T1-2-3, S2-1/3-4 and S1-2-3-4.
    race(2, {"1", "2", "3", "4"}, {"2", "1", "3", "4"},
         {.exactaPay = "20.50", .trifectaPay = "200.50", .superfectaPay = "2000.50"});
    SelectionResults();
    for (const int column : {15, 16, 17, 18, 19}) EXPECT_EQ("10.00", cell(1, column)) << column;
    for (const int column : {22, 23, 24}) EXPECT_EQ("100.00", cell(1, column)) << column;
    for (const int column : {26, 27, 28}) EXPECT_EQ("1000.00", cell(1, column)) << column;
    EXPECT_EQ("", cell(1, 29));
    EXPECT_EQ("10.00", total(15));
    EXPECT_EQ("30.50", total(16)); // 10.00 + 20.50
    EXPECT_EQ("10.00", total(17));
    EXPECT_EQ("30.50", total(18));
    EXPECT_EQ("30.50", total(19));
    EXPECT_EQ("100.00", total(22));
    EXPECT_EQ("100.00", total(23));
    EXPECT_EQ("300.50", total(24)); // 100.00 + 200.50
    EXPECT_EQ("1000.00", total(26));
    EXPECT_EQ("3000.50", total(27)); // 1000.00 + 2000.50
    EXPECT_EQ("3000.50", total(28));
    EXPECT_EQ("", total(29));
}

TEST_F(SummaryTest, BothOrdersOfATrifectaAreOneBet) {
    // S2 and S3 without numbers: 1, nothing, nothing is 1-2-3 and 1-3-2 at once, and paid once.
    race(1, {"1", "", "", "4"}, {"1", "", "", "9"}, {.trifectaPay = "45.20"});
    SelectionResults();
    EXPECT_EQ("45.20", total(22));
}

TEST_F(SummaryTest, BetsGoOnAfterTheCard) {
    race(24, {"1", "2", "3", "4"}, {"1", "2", "8", "9"}, {.exactaPay = "12.60"});
    race(25, {"1", "2", "3", "4"}, {"1", "2", "8", "9"}, {.exactaPay = "12.60"});
    SelectionResults();
    EXPECT_EQ("12.60", total(15)); // race 24 alone
}

TEST_F(SummaryTest, AThousandsCommaEndsTheNumberThatIsAdded) {
    race(1, {"1", "2", "3", "4"}, {"1", "2", "8", "9"}, {.exactaPay = "1,204.60"});
    SelectionResults();
    EXPECT_EQ("1,204.60", cell(1, 15));
    EXPECT_EQ("1.00", total(15));
}

// ---- Totals

TEST_F(SummaryTest, TotalsShowTwoDecimalsAndNoLeadingZero) {
    race(1, {"1", "2", "3", "4"}, {"1", "2", "8", "9"}, {.winPay = ".5", .exactaPay = "7"});
    SelectionResults();
    EXPECT_EQ(".50", total(11));
    EXPECT_EQ(".00", total(12));
    EXPECT_EQ("7.00", total(15));
    EXPECT_EQ(".00", total(22));
    EXPECT_EQ(".00", total(26));
    EXPECT_EQ("", total(14));
    EXPECT_EQ("", total(20));
    EXPECT_EQ("", total(25));
}

TEST_F(SummaryTest, PercentagesAreOfTheRacesOfTheCard) {
    const struct {
        int races, wins;
        const char* percentage;
    } rows[]{
        // clang-format off
        {3,  1, " 33%"}, // 33.3
        {3,  2, " 67%"}, // 66.7
        {8,  1, " 13%"}, // 12.5, the half away from zero
        {4,  4, "100%"},
        {12, 1, "  8%"}, // 8.3
        {5,  0, "   %"}, // a zero has no digit to show
        // clang-format on
    };
    for (const auto& row : rows) {
        card.raceCount = static_cast<Integer>(row.races);
        for (int r = 1; r <= 12; ++r)
            race(r, {"1", "2", "3", "4"}, {r <= row.wins ? "1" : "9", "8", "7", "6"});
        SelectionResults();
        EXPECT_EQ(row.percentage, cell(SummaryRow::percentages, 1)) << row.wins << " of " << row.races;
        EXPECT_EQ(std::to_string(row.wins), total(1));
    }
}

TEST_F(SummaryTest, ACardOfNoRacesHasTotalsWithoutPercentages) {
    card.raceCount = 0;
    SelectionResults();
    EXPECT_EQ("0", total(1));
    EXPECT_EQ(".00", total(11));
    for (int column = 0; column <= 4; ++column)
        EXPECT_EQ("", cell(SummaryRow::percentages, column)) << column;
    EXPECT_TRUE(shown.empty());
}

TEST_F(SummaryTest, TotalsWriteOverTheRaceOnTheirRow) {
    card.raceCount = 21;
    race(21, {"5", "6", "7", "8"}, {"5", "1", "2", "3"}, {.winPay = "10.00", .placePay1 = "4.00"});
    SelectionResults();
    EXPECT_EQ("1", total(1)); // the win, no longer program number 5
    EXPECT_EQ("0", total(2));
    EXPECT_EQ("5", total(6)); // the finish stays
    EXPECT_EQ("10.00", total(11));
}

TEST_F(SummaryTest, CountsTheRacesOfTheCardThatPaidASuperfecta) {
    card.raceCount = 4;
    race(1, {"1", "2", "3", "4"}, {"9", "8", "7", "6"}, {.superfectaPay = "150.40"});
    race(2, {"1", "2", "3", "4"}, {"9", "8", "7", "6"}, {.superfectaPay = "0"});
    race(3, {"1", "2", "3", "4"}, {"9", "8", "7", "6"}, {.superfectaPay = "none"});
    race(4, {"1", "2", "3", "4"}, {"1", "2", "3", "4"}, {.superfectaPay = " 12.00"});
    race(5, {"1", "2", "3", "4"}, {"9", "8", "7", "6"}, {.superfectaPay = "99.00"});
    card.superfectaRaces = 7;
    SelectionResults();
    EXPECT_EQ(2, card.superfectaRaces); // races 1 and 4; race 5 is after the card's last
}

TEST_F(SummaryTest, NoCountOfRacesLeadsOutsideTheStore) {
    for (const int count : {-5, 30, 31, 32767}) {
        card.raceCount = static_cast<Integer>(count);
        for (const int offset : {-7, 0, 32767}) {
            card.raceOffset = static_cast<Integer>(offset);
            SelectionResults();
            EXPECT_LE(screen.summary.rows(), 31);
            EXPECT_EQ(".00", total(11));
        }
    }
}

} // namespace quillon
