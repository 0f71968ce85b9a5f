#include "reports/card_overview.h"

#include "core/failure.h"
#include "reports/bet_mark.h"
#include "reports/selection_sheet.h"
#include "sheet_test.h"

namespace quillon {
namespace {

class CardOverviewTest : public SheetTest {
protected:
    static std::vector<Text> rowOf(const Grid& overview, int row) {
        std::vector<Text> texts;
        texts.reserve(static_cast<std::size_t>(overview.columns()));
        for (int column = 0; column < overview.columns(); ++column)
            texts.push_back(overview.text(row, column));
        return texts;
    }

    /// Margin and mark of a race with these ratings of S1 and S2.
    static std::vector<Text> marginAndMark(const Text& s1, const Text& s2) {
        card.raceCount = 1;
        rankByRatings(1, {s1, s2});
        const Grid overview = cardOverview();
        return {overview.text(1, OverviewColumn::margin), overview.text(1, OverviewColumn::betMark)};
    }
};

using Texts = std::vector<Text>;

TEST_F(CardOverviewTest, ARaceIsARowOfItsConditionsItsSelectionsAndItsBet) {
    card.raceCount = 2;
    card.raceInfo(2) = {.label = "2A",
                        .purse = "12000",
                        .todaysCr = " 82",
                        .postTime = "7:15 PM",
                        .gait = "Pace ",
                        .distance = "1"};
    rank(2, {{.pn = "  3", .name = "Quick Silver        ", .pr = " 58.0"},
             {.pn = "  7", .name = "Northern Light      ", .pr = " 61.5"},
             {.pn = "  1", .name = "Oak", .pr = " 62.0"},
             {.pn = " 1A", .name = "Elm", .pr = " 63.0"},
             {.pn = "  4", .name = "Fir", .pr = "99.9"}});
    const Grid overview = cardOverview();
    ASSERT_EQ(3, overview.rows()); // the heads and two races
    EXPECT_EQ(
        (Texts{"Race", "Post Time", "Gait", "Dis", "CR", "Purse", "S1", "S2", "S3", "S4", "Margin", "Bet"}),
        rowOf(overview, 0));
    // 61.5 less 58.0 is 3.5: three dollar signs.
    EXPECT_EQ((Texts{"2A", "7:15 PM", "Pace", "1", "82", "12000", "3  Quick Silver", "7  Northern Light",
                     "1  Oak", "1A  Elm", "3.5", "$$$"}),
              rowOf(overview, 2));
}

TEST_F(CardOverviewTest, TheMarginIsTheSheetsWithItsMark) {
    EXPECT_EQ((Texts{"0.0", "DEAD HEAT"}), marginAndMark(" 60.0", " 60.0"));
    EXPECT_EQ((Texts{"0.1", "DEAD HEAT"}), marginAndMark(" 60.0", " 60.1"));
    EXPECT_EQ((Texts{"0.9", "VDH"}), marginAndMark(" 60.0", " 60.9"));
    EXPECT_EQ((Texts{"1.0", "$"}), marginAndMark(" 60.0", " 61.0"));
    EXPECT_EQ((Texts{"2.9", "$$"}), marginAndMark(" 60.0", " 62.9"));
    EXPECT_EQ((Texts{"4.0", "$$$$"}), marginAndMark(" 60.0", " 64.0"));
    EXPECT_EQ((Texts{"10.3", "$$$$$"}), marginAndMark(" 60.0", " 70.3"));
    // The sheet takes a margin of 9.9 for a level pair.
    EXPECT_EQ((Texts{"0.0", "DEAD HEAT"}), marginAndMark(" 60.0", " 69.9"));
}

TEST_F(CardOverviewTest, AMarginOfThreeStandsOut) {
    marginAndMark(" 60.0", " 62.9");
    EXPECT_FALSE(cardOverview().read(1, OverviewColumn::betMark).bold);
    marginAndMark(" 60.0", " 63.0");
    EXPECT_TRUE(cardOverview().read(1, OverviewColumn::margin).bold);
    EXPECT_TRUE(cardOverview().read(1, OverviewColumn::betMark).bold);
}

TEST_F(CardOverviewTest, ARaceWithoutRatingsHasNoMarginAndNoMark) {
    card.raceCount = 1;
    rank(1, {{.pn = "  3", .name = "Quick Silver"}});
    EXPECT_EQ((Texts{"", "", "", "", "", "", "3  Quick Silver", "", "", "", "", ""}),
              rowOf(cardOverview(), 1));
}

TEST_F(CardOverviewTest, NoCardIsHeadsAloneAndACountBeyondTheStoreStopsAtIt) {
    card.raceCount = 0;
    EXPECT_EQ(1, cardOverview().rows());
    card.raceCount = 99;
    EXPECT_EQ(31, cardOverview().rows()); // races 1 to 30
    card.raceCount = -1;
    EXPECT_EQ(1, cardOverview().rows());
}

TEST_F(CardOverviewTest, LookingAtTheOverviewLeavesTheJournalAlone) {
    card.raceCount = 23;
    for (int race = 1; race <= 23; ++race) rankByRatings(race, {"99.9", "-99999", "x", ""});
    const auto before = journal.kept().size();
    cardOverview();
    EXPECT_EQ(before, journal.kept().size());
}

} // namespace
} // namespace quillon
