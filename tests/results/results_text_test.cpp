#include "results/results_text.h"

#include "results/pick_pool.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using ResultsTextTest = CardTest;

TEST_F(ResultsTextTest, TheResultsFileHasTheCardsNameUpToItsFirstPoint) {
    put("A Quillon PRO/Results/M1_20260314.pmr", "Results\r\n");
    card.cardFileName = "M1_20260314.pmd2";
    EXPECT_EQ("Results\r\n", resultsText());
    card.cardFileName = "M1_20260315.pmd";
    EXPECT_FALSE(resultsText().has_value());
    card.cardFileName.clear(); // no card is open
    EXPECT_FALSE(resultsText().has_value());
}

struct TrackRow {
    const char* what;
    const char* cardFileName;
    const char* key;
};
constexpr std::array trackRows{
    TrackRow{"a code alone in its row", "PCD_20260314.pmd", "PCD"},
    TrackRow{"a code that begins an earlier row's code finds that one", "M_20260314.pmd", "MR"},
    TrackRow{"the first of two rows", "MR_20260314.pmd", "MR"},
    TrackRow{"a code with blanks in the name", " NOR _20260314.pmd", "NOR"},
    TrackRow{"case counts", "nor_20260314.pmd", ""},
    TrackRow{"nothing after an empty row is read", "YR_20260314.pmd", ""},
    TrackRow{"a row's key is its first five characters", "ABCDE_20260314.pmd", "ABCDE"},
    TrackRow{"no track in the name", "_20260314.pmd", ""},
};

TEST_F(ResultsTextTest, TheTrackIsLookedUpByTheBeginningOfARow) {
    put("TrackEditor.ini", "MR        Monticello Raceway\r\n"
                           "M1        The Meadowlands\r\n"
                           "PCD       Pocono\r\n"
                           "NOR       Northfield\r\n"
                           "ABCDEFGH\r\n"
                           "\r\n"
                           "YR        Yonkers\r\n");
    for (const TrackRow& row : trackRows) {
        card.cardFileName = row.cardFileName;
        EXPECT_EQ(row.key, resultsTrackKey()) << row.what;
    }
}

TEST_F(ResultsTextTest, WithoutATrackTableThereIsNoKey) {
    card.cardFileName = "M1_20260314.pmd";
    EXPECT_EQ("", resultsTrackKey());
}

TEST_F(ResultsTextTest, ATextOfTheCardsDayAndTrackOrOfNoDayPasses) {
    card.cardFileName = "M1_20260314.pmd";
    EXPECT_TRUE(isOfThisCard("M1", {"2026", "03", "14"}));
    EXPECT_TRUE(isOfThisCard("", {}));
    EXPECT_TRUE(shown.empty());
}

TEST_F(ResultsTextTest, AnotherDayOrTrackIsToldInTwoBoxes) {
    card.cardFileName = "M1_20260314.pmd";
    EXPECT_FALSE(isOfThisCard("M1", {"2026", "03", "15"}));
    EXPECT_EQ((std::vector<std::string>{
                  "beep",
                  "message: Active File and Results File do not match!  Record Results cannot continue! "
                  "Check TRC file for correct date and track.",
                  "message: M1_20260314M1_20260315"}),
              shown);
    EXPECT_FALSE(isOfThisCard("MR", {"2026", "03", "14"}));
    EXPECT_FALSE(isOfThisCard("M1", {"", "", "14"})); // one part is enough to be a day
    EXPECT_EQ("message: M1_20260314M1_14", shown.back());
}

struct CommaRow {
    const char* payoff;
    std::optional<Text> plain;
};

TEST(ResultsFigures, AFirstCommaGoesWithSixCharactersAfterIt) {
    const std::vector<CommaRow> rows{
        {"1,234.60", "1234.60"},
        {"12,345.60", "12345.60"},
        {"1,234,567.80", "1234,56"}, // six characters after the first: "234,56"
        {",", ""},
        {"24.60", std::nullopt},
        {"", std::nullopt},
    };
    for (const CommaRow& row : rows) EXPECT_EQ(row.plain, withoutComma(row.payoff)) << row.payoff;
}

struct TextRow {
    const char* what;
    const char* text;
    const char* cut;
};

TEST(ResultsFigures, AnExoticsPayoffIsWhatStandsAfterTheDollarInTheLastTenCharacters) {
    constexpr std::array rows{
        TextRow{"", "      EXACTA 5-2 paid $24.60", "24.60"},           // "aid $24.60"
        TextRow{"", "      TRIFECTA 5-2-7 paid $1,234.60", "1,234.60"}, // " $1,234.60"
        TextRow{"a dollar in front of the ten is not seen", "$  12,345,678.90", "345,678.90"},
        TextRow{"none", "      EXACTA  24.60", "CTA  24.60"}, // 19 characters: from the 10th on
        TextRow{"short", "EX $1", "1"},
        TextRow{"at the end", "         $", ""},
        TextRow{"the first of two", "  $2 $4.60", "2 $4.60"},
        TextRow{"empty", "", ""},
    };
    for (const TextRow& row : rows) EXPECT_EQ(row.cut, exoticPayoff(row.text)) << row.text;
}

TEST(ResultsFigures, AfterADollarBlanksAtTheEndGo) {
    EXPECT_EQ("38.20", afterDollar("id $38.20 ", 4, 10));
    EXPECT_EQ("38", afterDollar("id $38.20 ", 4, 2));
    EXPECT_EQ("id 38.20  ", afterDollar("id 38.20  ", 0, 10)); // as it stands
    EXPECT_EQ("", afterDollar("id", 30, 10));
}

TEST(ResultsFigures, APoolEndsAtTheFirstBracketOrElseAtPaid) {
    constexpr std::array rows{
        TextRow{"bracket", "      DD 3/5 (5-2) paid $38.20", " 3/5 "},
        TextRow{"paid", "      DD 3/5 paid $38.20", " 3/5 "},
        TextRow{"a bracket after paid still counts", "      DD 3/5 paid $38.20 (2)", " 3/5 paid $38.20 "},
        TextRow{"a bracket in front of the pool doesn't", "  (R) DD 3/5 paid", " 3/5 "},
        TextRow{"neither", "      DD 3/5", ""},
        TextRow{"short", "      DD", ""},
    };
    for (const TextRow& row : rows) EXPECT_EQ(row.cut, poolFrom(row.text, 9)) << row.what;
}

TEST(ResultsFigures, AFinishersPayoffsBeginAtTheFirstFigureAboveZero) {
    EXPECT_EQ(5, figurePlace("  0.5"));
    EXPECT_EQ(1, figurePlace("9"));
    EXPECT_EQ(0, figurePlace("no 00.0"));
    EXPECT_EQ(0, figurePlace(""));
}

TEST(ResultsFigures, AWinnersNameIsDroppedUpToABlankWithoutALetterAfterIt) {
    constexpr std::array rows{
        TextRow{"small letters", "llie  4.40  5.20", "  4.40  5.20"},
        TextRow{"capitals and their blanks", "N Z  4.40", "  4.40"},
        TextRow{"a blank and a capital", " A 12.40", " 12.40"},
        TextRow{"three figures go with the name", "100.40 25.20 10.10", " 25.20 10.10"},
        TextRow{"a blank and figures stay", " 100.40 25.20", " 100.40 25.20"},
        TextRow{"an apostrophe is after a blank", "'s  4.40", "  4.40"},
        TextRow{"nothing but a name", "Nellie", ""},
        TextRow{"a blank and small letters", " nellie 4", " 4"},
        TextRow{"bytes above the letters", "\xE9\xFF 4", " 4"},
        TextRow{"a control character is in front of a blank", "\t4", "\t4"},
        TextRow{"empty", "", ""},
    };
    for (const TextRow& row : rows) EXPECT_EQ(row.cut, afterName(row.text)) << row.what;
}

TEST(ResultsFigures, OfTheSecondsAndThirdsNamesSmallLettersAloneAreDropped) {
    constexpr std::array rows{
        TextRow{"small letters", "ll  4.60  2.80", "  4.60  2.80"},
        TextRow{"a capital stays", "N  4.60", "N  4.60"},
        TextRow{"a blank ends it", "l ll 2.80", " ll 2.80"},
        TextRow{"three figures stay", "100.40 25.20", "100.40 25.20"},
        TextRow{"bytes above the letters", "\xE9 4", " 4"},
        TextRow{"nothing but a name", "ellie", ""},
    };
    for (const TextRow& row : rows) EXPECT_EQ(row.cut, afterSmallLetters(row.text)) << row.what;
}

// ---- pools

struct Leg {
    int race;
    int slot;
    const char* winner;
};

struct PoolRow {
    const char* what;
    const char* pool;
    Integer legs;
    Integer raceAfter; ///< from race 8
    std::vector<Leg> winners;
};

class PickPoolTest : public CardTest {
protected:
    // The legs as the table has them, those that are empty aside.
    static std::vector<std::string> filed() {
        std::vector<std::string> all;
        for (int race = 0; race < raceExtent; ++race)
            for (int slot = 0; slot <= 20; ++slot)
                if (const Text& winner = card.pickLegs(race, slot); !winner.empty())
                    all.push_back(std::to_string(race) + "," + std::to_string(slot) + "=" + winner);
        return all;
    }
    static std::vector<std::string> named(const std::vector<Leg>& legs) {
        std::vector<std::string> all;
        all.reserve(legs.size());
        for (const Leg& leg : legs)
            all.push_back(std::to_string(leg.race) + "," + std::to_string(leg.slot) + "=" + leg.winner);
        return all;
    }
};

TEST_F(PickPoolTest, WinnersAreFiledByLegAndSlot) {
    const std::vector<PoolRow> rows{
        {"a double is filed in the race before and its own", "3/5", 2, 8, {{7, 1, "3"}, {8, 1, "5"}}},
        {"a pick three begins two races back", "3/5/1", 3, 8, {{6, 1, "3"}, {7, 1, "5"}, {8, 1, "1"}}},
        {"a pick four three", "3/5/1/2", 4, 8, {{5, 1, "3"}, {6, 1, "5"}, {7, 1, "1"}, {8, 1, "2"}}},
        {"a pick five four", "3////4", 5, 8, {{4, 1, "3"}, {8, 1, "4"}}},
        {"a pick six five", "3/////4", 6, 8, {{3, 1, "3"}, {8, 1, "4"}}},
        {"a pick ten begins at its line's race", "3/////////4", 10, 17, {{8, 1, "3"}, {17, 1, "4"}}},
        {"no count, no way back", "3/4", 0, 9, {{8, 1, "3"}, {9, 1, "4"}}},
        {"a count of seven none either", "3", 7, 8, {{8, 1, "3"}}},
        {"a dead heat in the first leg", "3,4/5", 2, 8, {{7, 1, "3"}, {7, 2, "4"}, {8, 1, "5"}}},
        {"and in the last", "3/4,5,6", 2, 8, {{7, 1, "3"}, {8, 1, "4"}, {8, 2, "5"}, {8, 3, "6"}}},
        {"two figures are one number", "10/12", 2, 8, {{7, 1, "10"}, {8, 1, "12"}}},
        {"a third figure is the next number's", "123/4", 2, 8, {{7, 1, "3"}, {8, 1, "4"}}},
        {"a blank after a number stays with it", " 3 /5 ", 2, 8, {{7, 1, "3 "}, {8, 1, "5 "}}},
        {"a nought at the start of a number is passed over", "05/0", 2, 8, {{7, 1, "5"}}},
        {"words are passed over", "THREE 3/ALL/5", 3, 8, {{6, 1, "3"}, {8, 1, "5"}}},
        {"too few slashes leave the cursor short", "3", 3, 6, {{6, 1, "3"}}},
        {"an empty pool as well", "", 6, 3, {}},
    };
    for (const PoolRow& row : rows) {
        card.pickLegs.clear();
        cursor.race = 8;
        card.poolText = row.pool;
        card.poolLegs = row.legs;
        Pick3();
        EXPECT_EQ(named(row.winners), filed()) << row.what;
        EXPECT_EQ(row.raceAfter, cursor.race) << row.what;
        EXPECT_EQ(0, card.poolLegs) << row.what;
    }
}

TEST_F(PickPoolTest, LegsAndSlotsThatTheTableHasNotAreLostAndTheRestStands) {
    cursor.race = 1;
    card.poolText = "3/5/1"; // races -1, 0 and 1
    card.poolLegs = 3;
    Pick3();
    EXPECT_EQ((std::vector<std::string>{"0,1=5", "1,1=1"}), filed());

    card.pickLegs.clear();
    cursor.race = 30;
    card.poolText = "3/5/1"; // races 30, 31 and 32
    Pick3();
    EXPECT_EQ((std::vector<std::string>{"30,1=3"}), filed());
}

TEST_F(PickPoolTest, APoolOfAnyLengthEnds) {
    cursor.race = 8;
    card.poolText.clear();
    for (int leg = 0; leg < 50'000; ++leg) card.poolText += "1/";
    Pick3();
    EXPECT_EQ("1", card.pickLegs(30, 1));
    EXPECT_EQ(8, cursor.race); // beyond any race: the cursor stays
}

TEST_F(ResultsTextTest, TheLayoutIsToldByTheLinesThatThePassesLookFor) {
    EXPECT_EQ(ResultsLayout::columns, layoutOf("Results\r\nRace: 1\r\nPRG HORSE\r\n 1 ALPHA\r\n"));
    EXPECT_EQ(ResultsLayout::words, layoutOf("Results\n1st 3 Alpha 4.20\n2nd 5 Beta\n"));
    EXPECT_EQ(ResultsLayout::unknown, layoutOf("REFUNDS:   1  3\r\n"));
    EXPECT_EQ(ResultsLayout::unknown, layoutOf("PRG\n1st\n"));
    EXPECT_EQ(ResultsLayout::unknown, layoutOf(""));
    EXPECT_EQ(ResultsLayout::unknown, layoutOf(" 1st after a blank is no finisher\n"));
}

} // namespace
} // namespace quillon
