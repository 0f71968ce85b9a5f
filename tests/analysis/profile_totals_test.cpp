#include "analysis/profile_totals.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr std::size_t winBet = 0;
constexpr std::size_t s1With234 = firstSuperfecta;

ArchivedCard cardOf(double races, double winSum, double superfectaSum, double superfectaRaces) {
    ArchivedCard card{.races = races, .superfectaRaces = superfectaRaces};
    card.sums[winBet] = winSum;
    card.sums[s1With234] = superfectaSum;
    return card;
}

TEST(ProfileTotalsTest, ABetOnEveryRaceIsSetAgainstItsReturn) {
    ProfileTotals totals;
    totals.add(cardOf(10, 25, 0, 0)); // 25 x 6 = 150 for 120: won
    totals.add(cardOf(10, 20, 0, 0)); // 20 x 6 = 120 for 120: not more than was bet
    const BetFigures win = betFigures(totals, winBet);
    EXPECT_EQ("     45.00", win.winAmount);
    EXPECT_EQ("    270.00", win.adjustedWin); // 45 x 6
    EXPECT_EQ("240", win.totalBet);           // 20 x 12
    EXPECT_EQ("     30.00", win.netProfit);
    EXPECT_EQ(" 12.5%", win.roi); // 30 of 240
    EXPECT_EQ("1", win.winningCards);
}

TEST(ProfileTotalsTest, NoRacesHaveNoReturnOnTheirBets) {
    const BetFigures win = betFigures({}, winBet);
    EXPECT_EQ("0", win.totalBet);
    EXPECT_FALSE(win.roi);
    EXPECT_FALSE(win.winningCards);
}

TEST(ProfileTotalsTest, ASuperfectasNetLeavesOutTheLastCardsReturn) {
    ProfileTotals totals;
    totals.add(cardOf(10, 0, 100, 2));
    totals.add(cardOf(10, 0, 500, 3));
    const BetFigures figures = betFigures(totals, s1With234);
    EXPECT_EQ("    600.00", figures.winAmount);
    EXPECT_EQ("    600.00", figures.adjustedWin); // factor 1
    EXPECT_EQ("   60.00", figures.totalBet);      // 5 races with a superfecta x 12
    EXPECT_EQ("   40.00", figures.netProfit);     // 100 less 60
    EXPECT_EQ("66.66%", figures.roi);             // 66.6666... cut to five characters
    EXPECT_FALSE(figures.winningCards);
}

TEST(ProfileTotalsTest, TheLastAccountThatCanBeDividedGivesTheRoi) {
    EXPECT_FALSE(betFigures({}, s1With234).roi);
    ProfileTotals totals;
    totals.add(cardOf(10, 0, 50, 1));
    EXPECT_EQ("-100%", betFigures(totals, s1With234).roi); // nothing returned for 12 so far
}

TEST(ProfileTotalsTest, WinPercentagesAreCutAndAddedAsShown) {
    const auto shown = winPercentages({.races = 3, .wins = {1, 2, 0, 0}});
    EXPECT_EQ("33.3%", shown[0]); // 33.333
    EXPECT_EQ("66.6%", shown[1]); // 66.666
    EXPECT_EQ("0%", shown[2]);
    EXPECT_EQ("99.9%", shown[4]); // 33.3 + 66.6
    EXPECT_EQ("", winPercentages({})[0]);
    EXPECT_EQ("0%", winPercentages({})[4]);
}

} // namespace
} // namespace quillon
