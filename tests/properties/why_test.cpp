// A road told step by step is the road that was rated, on every line, and telling it leaves no trace.
#include "everything_shown.h"
#include "random_night.h"

#include "core/journal.h"
#include "core/numbers.h"
#include "day/why.h"
#include "rating/race_ranking.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

namespace quillon {
namespace {

class WhyProperties : public RandomNightTest {
protected:
    static bool isArithmetic(TextView step) {
        return step != "LastQuarterCalc" && step != "RangeTest" && step != "CloseLine";
    }

    /// Each step begins with what the step before left, and adds its points; between steps a figure is rounded to
    /// one decimal, by half of one at most.
    void expectChained(const LineRoad& road) {
        ASSERT_EQ(17U, road.steps.size());
        Text figure;
        for (const RoadStep& step : road.steps) {
            ASSERT_EQ(figure, step.before) << step.name;
            ASSERT_FALSE(step.reason.empty()) << step.name;
            figure = step.after;
            const auto before = numberIn(step.before);
            const auto after = numberIn(step.after);
            if (!isArithmetic(step.name)) continue;
            ASSERT_EQ(before.has_value(), after.has_value()) << step.name;
            if (!before) continue;
            ASSERT_NEAR(*before + step.points(), *after, 0.0501) << step.name;
            if (!step.terms.empty()) stepsSeen.insert(Text{step.name});
        }
    }

    /// The sum ends at the rating in the store: at the figure, or at the 99.9 of a line that can't be rated.
    void expectStored(const LineRoad& road) {
        const PastLine& stored = card.pastLine.read(road.race, road.entry, road.line);
        if (stored.lineNumber != road.lineNumber) return; // horses without a post share their lines
        ++linesSeen;
        ASSERT_EQ(lenientNumber(stored.rating), lenientNumber(road.steps.back().after));
        const auto figure = numberIn(road.steps.back().before);
        if (!figure || lenientNumber(stored.rating) == *figure) return;
        ASSERT_EQ("99.9", road.steps.back().after);
    }

    int linesSeen = 0;
    std::set<Text> stepsSeen; ///< that added something on some line
};

TEST_F(WhyProperties, EveryRoadEndsAtTheRatingInTheStore) {
    const std::uint64_t cards = 120u * static_cast<unsigned>(propertyScale());
    for (std::uint64_t seed = 1; seed <= cards && !HasFatalFailure(); ++seed) {
        SCOPED_TRACE("card " + std::to_string(seed));
        start(randomCard(seed, seed % 2 == 0), seed);
        const auto roads = roadsOfCard();
        ASSERT_EQ(static_cast<std::size_t>(card.totalLines), roads.size());
        for (const LineRoad& road : roads) {
            SCOPED_TRACE("line " + std::to_string(road.lineNumber));
            expectChained(road);
            expectStored(road);
            if (HasFatalFailure()) return;
        }
    }
    EXPECT_GT(linesSeen, 5000);
    const std::set<Text> all{"ClassChange",  "FavouriteCredit", "Last_PP",         "LeadHorse", "ParkOuts",
                             "ParkOutsWind", "PostPosition",    "QualifierCredit", "Tracks",    "WPS"};
    for (const Text& step : all) EXPECT_TRUE(stepsSeen.count(step) > 0) << step;
}

TEST_F(WhyProperties, TheChosenLineIsTheOneThatSpeaksForItsEntry) {
    const std::uint64_t cards = 40u * static_cast<unsigned>(propertyScale());
    int chosen = 0;
    for (std::uint64_t seed = 1; seed <= cards && !HasFailure(); ++seed) {
        start(randomCard(seed, seed % 2 == 0), seed);
        for (int race = 1; race <= card.raceCount; ++race)
            for (int entry = 1; entry <= ratedEntries; ++entry) {
                SCOPED_TRACE("card " + std::to_string(seed) + ", race " + std::to_string(race) + ", entry " +
                             std::to_string(entry));
                int here = 0;
                for (const WhyLine& line : whyLines(race, entry)) {
                    EXPECT_FALSE(line.note.reason.empty());
                    if (line.note.verdict != Verdict::chosen) continue;
                    ++here;
                    EXPECT_EQ(card.entry(race, entry).chosenLineNumber, line.road.lineNumber);
                    EXPECT_EQ(lenientNumber(card.entry(race, entry).rating),
                              lenientNumber(line.road.steps.back().after));
                }
                EXPECT_EQ(card.entry(race, entry).chosenLineNumber > 0 ? 1 : 0, here);
                chosen += here;
            }
    }
    EXPECT_GT(chosen, 500);
}

TEST_F(WhyProperties, AskingLeavesNoTrace) {
    for (std::uint64_t seed = 1; seed <= 6; ++seed) {
        SCOPED_TRACE("card " + std::to_string(seed));
        start(randomCard(seed, seed % 2 == 0), seed);
        samples::Random random{seed};
        for (int press = 0; press < 12; ++press) pressAnything(random);
        const std::string before = everythingShown();
        const auto files = writtenFiles();
        const auto faults = journal.count();
        const auto expected = journal.expected();
        const auto told = shown.size();
        for (int entry = 0; entry <= 13; ++entry) {
            whyLines(1, entry);
            whyPlace(1, entry);
        }
        roadsOfCard();
        EXPECT_EQ(before, everythingShown());
        EXPECT_EQ(files, writtenFiles());
        EXPECT_EQ(faults, journal.count());
        EXPECT_EQ(expected, journal.expected());
        EXPECT_EQ(told, shown.size());
    }
}

// Of entries that a load has placed each tells the place that it has, and the others that they have none.
TEST_F(WhyProperties, EveryPlaceIsTold) {
    const std::uint64_t cards = 60u * static_cast<unsigned>(propertyScale());
    for (std::uint64_t seed = 1; seed <= cards && !HasFailure(); ++seed) {
        start(randomCard(seed, false), seed);
        const int race = card.raceCount; // the race ranked last: its places are those of the store
        for (int place = 1; place <= rankedPlaces; ++place) {
            const int entry = card.rankEntry(place);
            if (entry == 0 || card.entry(race, entry).rating.empty()) continue;
            int first = place;
            for (int before = rankedPlaces; before >= 1; --before)
                if (card.rankEntry(before) == entry) first = before;
            const auto told = whyPlace(race, entry);
            ASSERT_FALSE(told.empty());
            EXPECT_EQ(first <= 4 ? "Ranked S" + std::to_string(first) : "Ranked the fifth horse",
                      told.front());
            EXPECT_EQ(static_cast<std::size_t>(first) + 1, told.size());
        }
    }
}

} // namespace
} // namespace quillon
