#include "analysis/fair_odds.h"

#include "analysis/worth_texts.h"
#include "support/season.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <numeric>

namespace quillon {
namespace {

constexpr double close = 1e-8;

JudgedRace twoHorses(bool betterWon, std::size_t card = 0) {
    return {.card = card, .winner = betterWon ? 0U : 1U, .ratings = {58, 59}};
}

// --- The scale ----------------------------------------------------------------------------------------------

// One point apart, the better one won three of four. Its chance is 1 / (1 + exp(-s)) = 3/4, so s = ln 3. A race
// tells p (1 - p) = 3/16, four of them 3/4: the error is 1 / sqrt(3/4) = 2 / sqrt(3).
TEST(Scale, OfFourRacesOfTwo) {
    const std::vector<JudgedRace> races{twoHorses(true), twoHorses(true), twoHorses(false), twoHorses(true)};
    const auto scale = fittedScale(races);
    ASSERT_TRUE(scale);
    EXPECT_NEAR(std::log(3.0), scale->perPoint, close);
    EXPECT_NEAR(2 / std::sqrt(3.0), scale->error, close);
}

// Three horses, 0, 1 and 2 points after the best; the first won twice, the second twice. With x = exp(-s) the
// mean of the points, (x + 2xx) / (1 + x + xx), is that of the winners, 1/2: 3xx + x - 1 = 0, so
// x = (sqrt(13) - 1) / 6 = 0.434259 and s = 0.834115. A race tells (x + 4xx) / (1 + x + xx) - 1/4 =
// 1.188582 / 1.622840 - 0.25 = 0.482409, four of them 1.929637: the error is 0.719887.
TEST(Scale, OfFourRacesOfThree) {
    std::vector<JudgedRace> races(4, {.ratings = {57.5, 58.5, 59.5}});
    races[1].winner = races[2].winner = 1;
    const auto scale = fittedScale(races);
    ASSERT_TRUE(scale);
    EXPECT_NEAR(-std::log((std::sqrt(13.0) - 1) / 6), scale->perPoint, close);
    EXPECT_NEAR(0.834115, scale->perPoint, 1e-5);
    EXPECT_NEAR(0.719887, scale->error, 1e-5);
}

TEST(Scale, IsBelowZeroWhereTheWorseRatedWin) {
    const std::vector<JudgedRace> races{twoHorses(false), twoHorses(false), twoHorses(true)};
    EXPECT_NEAR(-std::log(2.0), fittedScale(races).value_or(RatingScale{}).perPoint, close); // p = 1/3
}

TEST(Scale, IsNoneWhereNothingBoundsIt) {
    EXPECT_FALSE(fittedScale({})) << "no race";
    EXPECT_FALSE(fittedScale(std::vector{twoHorses(true), twoHorses(true)})) << "the better always won";
    EXPECT_FALSE(fittedScale(std::vector{twoHorses(false)})) << "the worse always won";
    const std::vector<JudgedRace> level(3, {.ratings = {58, 58, 58}});
    EXPECT_FALSE(fittedScale(level)) << "no race tells anything";
}

TEST(Scale, StandsFarFromZeroAndAtFarRatings) {
    // 40 points apart and one upset in two: exp(-40 s) = 1, s = 0, from far out on the other side as well.
    const std::vector<JudgedRace> apart{{.winner = 0, .ratings = {20, 60}},
                                        {.winner = 1, .ratings = {20, 60}}};
    EXPECT_NEAR(0, fittedScale(apart).value_or(RatingScale{9, 9}).perPoint, close);
    // A tenth apart, nine of ten: 0.1 s = ln 9.
    std::vector<JudgedRace> near(10, {.ratings = {58, 58.1}});
    near[4].winner = 1;
    EXPECT_NEAR(10 * std::log(9.0), fittedScale(near).value_or(RatingScale{}).perPoint, 1e-6);
}

// The chance of so many or fewer of `runs` where each comes with this probability.
double upTo(int count, int runs, double probability) {
    double sum = 0;
    for (int k = 0; k <= count; ++k)
        sum += std::exp(std::lgamma(runs + 1) - std::lgamma(k + 1) - std::lgamma(runs - k + 1) +
                        k * std::log(probability) + (runs - k) * std::log(1 - probability));
    return sum;
}

// An interval of 95% holds the truth in 95% of seasons: as many of 300 as a binomial leaves with a chance of
// one in two thousand on either side (about 271 to 297).
TEST(Scale, IntervalHoldsTheTruthAsOftenAsItSays) {
    constexpr int seasons = 300;
    for (const double truth : {0.0, 0.15, 0.4, 1.0}) {
        int held = 0;
        for (std::uint32_t seed = 1; seed <= seasons; ++seed) {
            const auto scale = fittedScale(judgedSeason(seed, truth, 12, 10));
            ASSERT_TRUE(scale);
            held += std::abs(scale->perPoint - truth) <= 1.96 * scale->error;
        }
        EXPECT_GT(upTo(held, seasons, 0.95), 0.0005) << "too few at " << truth << ": " << held;
        EXPECT_GT(1 - upTo(held - 1, seasons, 0.95), 0.0005) << "too many at " << truth << ": " << held;
    }
}

// --- Chances ------------------------------------------------------------------------------------------------

// One point is worth a factor of 2 at s = ln 2: 1, 1/2 and 1/4 of 7/4.
TEST(Chances, FallWithTheRating) {
    const std::vector<double> ratings{58, 59, 60};
    const auto chances = chancesOf(ratings, std::log(2.0));
    ASSERT_EQ(3U, chances.size());
    EXPECT_NEAR(4.0 / 7, chances[0], close);
    EXPECT_NEAR(2.0 / 7, chances[1], close);
    EXPECT_NEAR(1.0 / 7, chances[2], close);
    EXPECT_NEAR(0.75, fairOdds(chances[0]), close); // 3/7 over 4/7
    EXPECT_NEAR(6, fairOdds(chances[2]), close);
    EXPECT_TRUE(chancesOf({}, 1).empty());
}

TEST(Chances, SumToOneAtAnyScale) {
    const std::vector<double> ratings{31.2, 58, 58, 63.9, 89.9};
    for (const double perPoint : {-40.0, -0.3, 0.0, 0.3, 7.0, 90.0}) {
        const auto chances = chancesOf(ratings, perPoint);
        EXPECT_NEAR(1, std::accumulate(chances.begin(), chances.end(), 0.0), close) << perPoint;
        for (const double chance : chances) EXPECT_TRUE(chance >= 0 && chance <= 1) << perPoint;
    }
}

// --- Log loss -----------------------------------------------------------------------------------------------

// Card 0: the better of two won three of four. Card 1: two of four. Card 0 is judged by card 1's scale, 0: each
// race loses ln 2. Card 1 by card 0's, ln 3: (2 (-ln 3/4) + 2 (-ln 1/4)) / 4.
TEST(CrossValidation, JudgesEachCardByTheOthers) {
    std::vector<JudgedRace> races;
    for (const bool better : {true, true, true, false}) races.push_back(twoHorses(better, 0));
    for (const bool better : {true, true, false, false}) races.push_back(twoHorses(better, 1));
    const LogLoss loss = crossValidated(races);
    const double first = std::log(2.0);
    const double second = -(std::log(0.75) + std::log(0.25)) / 2;
    EXPECT_EQ(8U, loss.races);
    EXPECT_NEAR((first + second) / 2, loss.fitted, close);
    EXPECT_NEAR(std::log(2.0), loss.allEqual, close);
    EXPECT_EQ(0U, loss.lineRaces);
}

// A race without a whole morning line is not in the line's mean, nor in the mean beside it.
TEST(CrossValidation, ComparesTheLineOnItsOwnRaces) {
    std::vector<JudgedRace> races;
    for (const bool better : {true, false}) races.push_back(twoHorses(better, 0)); // a scale of 0
    races.push_back(twoHorses(true, 1));
    races.push_back({.card = 1, .winner = 1, .ratings = {58, 59, 60}, .lineChances = {0.5, 0.3, 0.2}});
    const LogLoss loss = crossValidated(races);
    EXPECT_EQ(4U, loss.races);
    EXPECT_EQ(1U, loss.lineRaces);
    EXPECT_NEAR(-std::log(0.3), loss.line, close);
    EXPECT_NEAR(std::log(3.0), loss.fittedThere, close);
    EXPECT_NEAR((3 * std::log(2.0) + std::log(3.0)) / 4, loss.allEqual, close);
}

TEST(CrossValidation, TellsRatingsThatKnowFromThoseThatDoNot) {
    const LogLoss knowing = crossValidated(judgedSeason(7, 0.6, 60, 10));
    EXPECT_LT(knowing.fitted, knowing.allEqual - 0.1);
    const LogLoss blind = crossValidated(judgedSeason(7, 0, 60, 10));
    EXPECT_GT(blind.fitted, blind.allEqual); // a scale out of noise costs a little
    EXPECT_LT(blind.fitted, blind.allEqual + 0.01);
}

TEST(FitOf, NeedsAHundredRaces) {
    auto races = judgedSeason(3, 0.4, 10, 10);
    const Fit enough = fitOf(races);
    EXPECT_EQ(100U, enough.races);
    EXPECT_EQ(10U, enough.cards);
    EXPECT_TRUE(enough.scale);
    EXPECT_EQ(100U, enough.loss.races);
    races.pop_back();
    const Fit few = fitOf(races);
    EXPECT_EQ(99U, few.races);
    EXPECT_FALSE(few.isEnough());
    EXPECT_FALSE(few.scale);
    EXPECT_EQ(0U, few.loss.races);
}

// --- Odds ---------------------------------------------------------------------------------------------------

TEST(Odds, AreReadAsPeopleWriteThem) {
    const auto odds = [](TextView text) { return oddsToOne(text).value_or(-1); };
    EXPECT_DOUBLE_EQ(2.5, odds(" 5/2"));
    EXPECT_DOUBLE_EQ(2.5, odds("5-2"));
    EXPECT_DOUBLE_EQ(2.5, odds("2.5"));
    EXPECT_DOUBLE_EQ(0.2, odds("1/5"));
    EXPECT_DOUBLE_EQ(12, odds("12"));
    EXPECT_DOUBLE_EQ(0, odds("0"));
    EXPECT_DOUBLE_EQ(4.5, odds("45/10"));
    for (const TextView text : {"", " ", "/", "5/", "/2", "5/0", "5/-2", "-2", "5//2", "x", "5/2x", "SCR",
                                "1e999", "nan", "inf", "-"})
        EXPECT_DOUBLE_EQ(-1, odds(text)) << text;
}

// A margin of 20% on 3 to one asks for more than 3.6.
TEST(Odds, AreAnOverlayAboveTheMargin) {
    EXPECT_FALSE(isOverlay(3.0, 3.0, 0));
    EXPECT_TRUE(isOverlay(3.1, 3.0, 0));
    EXPECT_FALSE(isOverlay(3.6, 3.0, 20));
    EXPECT_TRUE(isOverlay(3.7, 3.0, 20));
}

TEST(Odds, OfCoupledEntriesShareANumber) {
    EXPECT_EQ(1, bettingNumber("1"));
    EXPECT_EQ(1, bettingNumber("  1A"));
    EXPECT_EQ(12, bettingNumber("12"));
    for (const TextView text : {"", "A", "0", "-1", "100", "99999999999"})
        EXPECT_EQ(0, bettingNumber(text)) << text;
}

TEST(WorthTexts, RoundAtTheirLastPlace) {
    EXPECT_EQ("23.5", percentText(0.23456));
    EXPECT_EQ("0.0", percentText(0));
    EXPECT_EQ("100.0", percentText(1));
    EXPECT_EQ("3.4", oddsText(3.4499));
    EXPECT_EQ("0.8", oddsText(0.75));
    EXPECT_EQ("9999.9", oddsText(fairOdds(0))); // no chance at all
    EXPECT_EQ("0.304", scaleText(0.3041));
    EXPECT_EQ("-0.050", scaleText(-0.05));
    EXPECT_EQ("1.61", lossText(1.6094));
}

} // namespace
} // namespace quillon
