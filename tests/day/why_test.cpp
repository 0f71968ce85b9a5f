// Why an entry has its place: which stage and which comparison decided.
#include "day/why.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "rating/race_ranking.h"
#include "screen/screen.h"
#include "support/card_test.h"

#include <array>
#include <string>
#include <vector>

namespace quillon {
namespace {

class WhyPlaceTest : public CardTest {
protected:
    /// Entries 1, 2, ... of race 1 with these ratings and their own numbers, ranked and on the board.
    static void rank(const Ranking& ranking, const std::vector<const char*>& ratings) {
        int index = 0;
        for (const char* rating : ratings) {
            RaceEntry& entry = card.entry(1, ++index);
            entry.horseName = Text{"Horse "} + static_cast<char>('A' + index - 1);
            entry.programNumber = "  " + std::to_string(index);
            entry.rating = rating;
        }
        rankRace(1, ranking);
        constexpr std::array cells{OutcomeCell::s1, OutcomeCell::s2, OutcomeCell::s3, OutcomeCell::s4,
                                   OutcomeCell::fifth};
        for (int place = 1; place <= ranking.stages; ++place)
            card.raceOutcome(1, cells.at(static_cast<std::size_t>(place - 1))) =
                rankedEntry(1, place).programNumber;
    }

    static std::vector<Text> why(int entry) { return whyPlace(1, entry); }
};

using Told = std::vector<Text>;

TEST_F(WhyPlaceTest, EveryStageTellsWhatDecided) {
    rank(fullRanking, {"61.0", "60.0", "62.0", "64.0", "63.0", "65.0"});
    EXPECT_EQ((Told{"Ranked S1", "Stage 1, won: 60.0 against the 61.0 of number 1, Horse A"}), why(2));
    EXPECT_EQ((Told{"Ranked S2", "Stage 1: 61.0 against the 60.0 of number 2, Horse B",
                    "Stage 2, won: 61.0 against the 62.0 of number 3, Horse C"}),
              why(1));
    EXPECT_EQ((Told{"Ranked the fifth horse", "Stage 1: 64.0 against the 60.0 of number 2, Horse B",
                    "Stage 2: 64.0 against the 61.0 of number 1, Horse A",
                    "Stage 3: 64.0 against the 62.0 of number 3, Horse C",
                    "Stage 4: 64.0 against the 63.0 of number 5, Horse E",
                    "Stage 5, won: 64.0 against the 65.0 of number 6, Horse F"}),
              why(4));
    EXPECT_EQ("Not among the first five", why(6).front());
    EXPECT_EQ(6U, why(6).size());
    EXPECT_EQ("Stage 5: 65.0 against the 64.0 of number 4, Horse D", why(6).back());
}

// After a load the first three stages take the later of equals.
TEST_F(WhyPlaceTest, OfEqualsTheLaterIsTakenAfterALoad) {
    rank(fullRanking, {"60.0", "60.0", "62.0", "63.0", "64.0"});
    EXPECT_EQ(
        (Told{"Ranked S1", "Stage 1, won: level at 60.0 with number 1, Horse A: of equals the one further "
                           "outside is taken"}),
        why(2));
    EXPECT_EQ("Stage 1: level at 60.0 with number 2, Horse B: of equals the one further outside is taken",
              why(1)[1]);
    EXPECT_EQ("Ranked S2", why(1).front());
}

// From the fourth stage on the earlier stays, but the seed is the last that is worse than all before: of entries 4 and
// 5, level at 63.0, the seed is 6 at 64.0, and then 4 is below it and 5 is not below 4.
TEST_F(WhyPlaceTest, OfEqualsTheEarlierStaysForTheFourthPlace) {
    rank(fullRanking, {"60.0", "61.0", "62.0", "63.0", "63.0", "64.0"});
    EXPECT_EQ("Ranked S4", why(4).front());
    EXPECT_EQ("Stage 4, won: level at 63.0 with number 5, Horse E: of equals the one further inside stays",
              why(4).back());
    EXPECT_EQ("Stage 4: level at 63.0 with number 4, Horse D: of equals the one further inside stays",
              why(5)[4]);
}

// A line button ranks strictly: the earlier stays at every stage.
TEST_F(WhyPlaceTest, OfEqualsTheEarlierStaysAfterALineButton) {
    rank(strictStages, {"60.0", "60.0", "61.0", "62.0", "63.0"});
    EXPECT_EQ(
        (Told{"Ranked S1", "Stage 1, won: level at 60.0 with number 2, Horse B: of equals the one further "
                           "inside stays"}),
        why(1));
    EXPECT_EQ("Not among the first four", why(5).front());
}

// A line taken by number: the later for the first three, and no fifth horse.
TEST_F(WhyPlaceTest, FourStagesTakeTheLaterOfEquals) {
    rank(fourStages, {"60.0", "60.0", "61.0", "62.0", "63.0"});
    EXPECT_EQ("Ranked S1", why(2).front());
    EXPECT_EQ("Not among the first four", why(5).front());
    EXPECT_EQ(5U, why(5).size());
}

TEST_F(WhyPlaceTest, AnEntryAloneIsComparedWithTheStart) {
    rank(fullRanking, {"60.0"});
    EXPECT_EQ((Told{"Ranked S1", "Stage 1, won: 60.0 against the 99.9 that it starts from"}), why(1));
}

TEST_F(WhyPlaceTest, TheLastOneLeftHasNobodyToCompareWith) {
    rank(fullRanking, {"60.0", "61.0"});
    // Entry 2 is what the second stage starts from, and meets itself.
    EXPECT_EQ("Ranked S2", why(2).front());
    EXPECT_EQ("Stage 2, won: 61.0, with nobody left to compare", why(2).back());
}

TEST_F(WhyPlaceTest, SelectionsTypedByHandAreNotTheRatings) {
    rank(fullRanking, {"60.0", "61.0", "62.0", "63.0", "64.0"});
    card.raceOutcome(1, OutcomeCell::s1) = "5";
    EXPECT_EQ(Told{"The selections on show are not those that the ratings give"}, why(1));
}

TEST_F(WhyPlaceTest, NobodyWithoutARatingIsRanked) {
    rank(fullRanking, {"60.0", "", "62.0"});
    EXPECT_EQ(Told{"No rating: not ranked"}, why(2));
    EXPECT_EQ(Told{}, why(12)); // nobody there
    EXPECT_EQ(Told{}, why(13));
    EXPECT_EQ(Told{}, whyPlace(24, 1));
    EXPECT_EQ(Told{}, whyPlace(0, 1));
}

TEST_F(WhyPlaceTest, OnlyALoadedCardTellsItsLines) {
    EXPECT_TRUE(whyLines(1, 1).empty());
    EXPECT_TRUE(roadsOfCard().empty());
    screen.mode = CardMode::recalled;
    EXPECT_TRUE(whyLines(1, 1).empty());
}

} // namespace
} // namespace quillon
