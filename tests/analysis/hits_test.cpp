#include "analysis/hits.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillon {
namespace {

using Texts = std::array<TextView, 4>;

/// A race told by its selections, its finish and three of its payoffs.
RaceResults raceOf(const Texts& selections, const Texts& finish, Integer winHeat = 0) {
    RaceResults race{.winHeat = winHeat};
    for (std::size_t at = 0; at < 4; ++at) {
        race.outcome[OutcomeCell::s1 + at] = selections[at];
        race.outcome[OutcomeCell::r1 + at] = finish[at];
    }
    race.payoff[PayoffCell::win] = "6.00";
    race.payoff[PayoffCell::place1] = "4.20";
    race.payoff[PayoffCell::place2] = "3.10";
    race.payoff[PayoffCell::exacta] = "10.00";
    race.payoff[PayoffCell::superfecta] = "100.50";
    return race;
}

CardResults cardOf(const std::vector<RaceResults>& races) {
    CardResults card{.lastRace = static_cast<int>(races.size())};
    for (std::size_t race = 0; race < races.size(); ++race) card.races[race + 1] = races[race];
    return card;
}

constexpr Texts inOrder{"1", "2", "3", "4"};

TEST(HitsTest, NothingHitsOnACardWithoutRaces) {
    const CardHits hits = hitsOf({});
    for (const double sum : hits.sums) EXPECT_EQ(0, sum);
    for (const Integer wins : hits.wins) EXPECT_EQ(0, wins);
}

TEST(HitsTest, SumsAddWhatEveryRacePaid) {
    const CardHits hits = hitsOf(cardOf({raceOf(inOrder, {"1", "2", "8", "9"}),    // S1 and S2
                                         raceOf(inOrder, {"2", "1", "8", "9"}),    // S2 and S1
                                         raceOf(inOrder, {"9", "8", "7", "6"})})); // nobody
    EXPECT_EQ(1, hits.wins[OutcomeCell::s1]);
    EXPECT_EQ(1, hits.wins[OutcomeCell::s2]);
    EXPECT_TRUE(hits.races[1].won[OutcomeCell::s1]);
    EXPECT_FALSE(hits.races[2].won[OutcomeCell::s1]);
    EXPECT_DOUBLE_EQ(6, hits.sums[SummaryColumn::win]);
    EXPECT_DOUBLE_EQ(7.3, hits.sums[SummaryColumn::place]); // 4.20 of the first, 3.10 of the second
    EXPECT_DOUBLE_EQ(10, hits.sums[SummaryColumn::exacta1With2]);
    EXPECT_DOUBLE_EQ(20, hits.sums[SummaryColumn::exactaBox12]); // either order
    EXPECT_EQ("10.00", hits.races[2].paid[SummaryColumn::exactaBox12]);
    EXPECT_EQ("", hits.races[2].paid[SummaryColumn::exacta1With2]);
    EXPECT_EQ(3, hits.superfectaRaces); // all three paid one
}

TEST(HitsTest, ASuperfectaShowsUnderEveryBetThatHoldsIt) {
    struct Row {
        const char* what;
        Texts finish;
        double s1With234, s2With134, box; ///< sums
        bool shownUnder1With234, shownUnder2With134;
    };
    const Row rows[]{
        {"S1 in front", {"1", "4", "2", "3"}, 100.5, 100.5, 100.5, true, true},
        {"S2 in front", {"2", "1", "4", "3"}, 0, 100.5, 100.5, false, true},
        {"S3 in front", {"3", "1", "2", "4"}, 0, 0, 100.5, false, false},
        {"one stranger", {"1", "2", "3", "9"}, 0, 0, 0, false, false},
    };
    for (const Row& row : rows) {
        const CardHits hits = hitsOf(cardOf({raceOf(inOrder, row.finish)}));
        EXPECT_DOUBLE_EQ(row.s1With234, hits.sums[SummaryColumn::superfecta1With234]) << row.what;
        EXPECT_DOUBLE_EQ(row.s2With134, hits.sums[SummaryColumn::superfecta2With134]) << row.what;
        EXPECT_DOUBLE_EQ(row.box, hits.sums[SummaryColumn::superfectaBox1234]) << row.what;
        const auto& paid = hits.races[1].paid;
        EXPECT_EQ(row.shownUnder1With234, !paid[SummaryColumn::superfecta1With234].empty()) << row.what;
        EXPECT_EQ(row.shownUnder2With134, !paid[SummaryColumn::superfecta2With134].empty()) << row.what;
    }
}

TEST(HitsTest, ADeadHeatIsToldOnceAndPaysS1AsTheSecond) {
    const CardHits hits = hitsOf(cardOf({raceOf(inOrder, {"9", "1", "8", "7"}, 2)}));
    EXPECT_EQ(1, hits.winHeat[1]);
    EXPECT_EQ(1, hits.wins[OutcomeCell::s1]);
    EXPECT_DOUBLE_EQ(7.3, hits.sums[SummaryColumn::place]);      // as the winner 4.20, as the second 3.10
    EXPECT_EQ("3.10", hits.races[1].paid[SummaryColumn::place]); // the later pass writes over
}

TEST(HitsTest, ADeadHeatAfterTheCardStaysAndEndsTheWinsOfS2) {
    CardResults card = cardOf({raceOf(inOrder, {"2", "9", "8", "7"})});
    card.races[2] = raceOf(inOrder, {"2", "9", "8", "7"}, 2);
    card.races[3] = raceOf(inOrder, {"2", "9", "8", "7"});
    const CardHits hits = hitsOf(card);
    EXPECT_EQ(2, hits.winHeat[2]);
    EXPECT_EQ(1, hits.wins[OutcomeCell::s2]); // race 1; the pass ends before races 2 and 3
}

} // namespace
} // namespace quillon
