// States that were packed and unpacked are as they were, cost little in one file, and garbage is none.
#include "day/packing.h"

#include "app/start_up.h"
#include "core/journal.h"
#include "everything_shown.h"
#include "random_night.h"
#include "tables/load_state.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace quillon {
namespace {

Text packedStates(const std::vector<Snapshot>& states) {
    Packer out;
    pack(out, states);
    return out.bytes();
}

std::optional<std::vector<Snapshot>> unpackedStates(TextView bytes) {
    Unpacker in{bytes};
    std::vector<Snapshot> states;
    if (!unpack(in, states) || !in.atEnd()) return std::nullopt;
    return states;
}

class PackingTest : public RandomNightTest {
protected:
    /// The card as loaded, and after each of some changes.
    std::vector<Snapshot> statesOfADay() {
        std::vector<Snapshot> states{Snapshot::taken()};
        const auto then = [&](TextView command, const Arguments& arguments = {}) {
            answers = {"Yes"};
            press(command, arguments);
            states.push_back(Snapshot::taken());
            states.back().shareWith(states[states.size() - 2]);
        };
        then("Command4", {{2}, ""});
        then("RaceButton", {{2}, ""});
        then("EntryButton", {{1}, ""});
        then("Command3", {{2}, ""});
        then("Box", {{4}, "3"});
        then("Tote", {{1}, "8.80"});
        then("Next");
        then("Cell", {{1, 2, 6}, "typed"});
        then("EBET");
        then("SelectionResults");
        return states;
    }
};

TEST_F(PackingTest, AStateShowsEverythingAsItStood) {
    for (std::uint64_t seed = 1; seed <= 3 * static_cast<std::uint64_t>(propertyScale()); ++seed) {
        SCOPED_TRACE("card " + std::to_string(seed));
        start(randomCard(seed, seed % 2 == 0), seed);
        const std::vector<Snapshot> states = statesOfADay();
        const auto again = unpackedStates(packedStates(states));
        ASSERT_TRUE(again.has_value());
        ASSERT_EQ(states.size(), again->size());
        EXPECT_TRUE(packedStates(states) == packedStates(*again)) << "all that is packed comes back";
        for (const std::size_t i : {std::size_t{0}, std::size_t{3}, states.size() - 1}) {
            states[i].putBack();
            const std::string before = everythingShown();
            resetAll();
            (*again)[i].putBack();
            ASSERT_EQ(before, everythingShown()) << i;
        }
    }
}

TEST_F(PackingTest, CommandsDoTheSameAfterwards) {
    for (std::uint64_t seed = 1; seed <= 2; ++seed) {
        start(randomCard(seed, seed % 2 == 0), seed);
        const auto again = unpackedStates(packedStates({Snapshot::taken()}));
        ASSERT_TRUE(again.has_value());
        statesOfADay();
        const std::string after = everythingShown();
        resetAll();
        again->front().putBack();
        statesOfADay();
        ASSERT_EQ(after, everythingShown()) << seed;
    }
}

TEST_F(PackingTest, AnEmptyProgramComesBackToo) {
    StartUp();
    const std::string fresh = everythingShown();
    const auto again = unpackedStates(packedStates({Snapshot::taken()}));
    ASSERT_TRUE(again.has_value());
    resetAll();
    again->front().putBack();
    EXPECT_EQ(fresh, everythingShown());
}

TEST_F(PackingTest, UnpackingTellsNoFaults) {
    start(randomCard(2, true), 2);
    const Text bytes = packedStates({Snapshot::taken()});
    const auto faults = journal.count();
    ASSERT_TRUE(unpackedStates(bytes).has_value());
    EXPECT_EQ(faults, journal.count());
}

TEST_F(PackingTest, TablesThatWereOneAreOneAgain) {
    start(randomCard(1, false), 1);
    auto again = unpackedStates(packedStates(statesOfADay()));
    ASSERT_TRUE(again.has_value());
    again->front().putBack();
    const auto serial = load.lineRows.serial();
    const auto* const line = &card.pastLine.read(1, 1, 1);
    again->back().putBack();
    EXPECT_EQ(serial, load.lineRows.serial());
    EXPECT_EQ(line, &card.pastLine.read(1, 1, 1));
}

TEST_F(PackingTest, FiftyStatesCostLessThanTwo) {
    samples::CardOptions options;
    options.races = 10;
    options.entries = {8, 10};
    options.lines = {5, 8};
    start(samples::generateCard(options), 1);
    std::vector<Snapshot> states{Snapshot::taken()};
    const std::size_t one = packedStates(states).size();
    std::mt19937 random{1};
    const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most)) + 1; };
    for (int i = 1; i < 50; ++i) {
        answers = {"Yes"};
        if (i % 2 == 0)
            press("RaceButton", {{upTo(10)}, ""});
        else
            press("Command4", {{upTo(8)}, ""});
        states.push_back(Snapshot::taken());
        states.back().shareWith(states[states.size() - 2]);
    }
    const std::size_t fifty = packedStates(states).size();
    EXPECT_LT(fifty, 2 * one);
}

TEST_F(PackingTest, AnalysisViewsWithMadeRowsAreNotOnShowAfterwards) {
    start(randomCard(1, false), 1);
    screen.profile.layOut(2, 3);
    screen.profile.showRows(2, {5, [](int, std::span<Cell> cells) { cells[1].text = "made"; }});
    screen.profileVisible = true;
    screen.racePanelsVisible = false;
    const auto again = unpackedStates(packedStates({Snapshot::taken()}));
    ASSERT_TRUE(again.has_value());
    EXPECT_TRUE(screen.profileVisible); // of the program that goes on nothing is changed
    again->front().putBack();
    EXPECT_EQ(0, screen.profile.rows());
    EXPECT_FALSE(screen.profileVisible);
    EXPECT_TRUE(screen.racePanelsVisible);
}

// Damage in the midst of the bytes gives a state or nothing, and what it gives can be looked at.
TEST_F(PackingTest, DamagedBytesDoNoHarm) {
    start(randomCard(3, true), 3);
    const Text whole = packedStates(statesOfADay());
    std::mt19937 random{3};
    int looks = 5;
    const int tries = 40 * propertyScale();
    for (int i = 0; i < tries; ++i) {
        Text damaged = whole;
        for (unsigned flips = random() % 4 + 1; flips > 0; --flips)
            damaged[random() % damaged.size()] = static_cast<char>(random());
        if (const auto again = unpackedStates(damaged)) {
            again->back().putBack();
            if (looks-- > 0) {
                EXPECT_NE("", everythingShown());
            }
        }
        EXPECT_FALSE(unpackedStates(TextView{whole}.substr(0, random() % whole.size())).has_value());
    }
}

} // namespace
} // namespace quillon
