// Whatever the user does on a card, taking it all back gives the card, the screen and the files as they were,
// and doing it all again gives the end.
#include "random_night.h"

#include "day/changes.h"
#include "random.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace quillon {
namespace {

struct State {
    std::string shown;
    std::map<std::string, std::string> files;

    bool operator==(const State&) const = default;
};

State stateNow() { return {everythingShown(), writtenFiles()}; }

using UndoTest = RandomNightTest;

TEST_F(UndoTest, TakingAllBackGivesTheCardAsLoadedAndDoingAllAgainTheEnd) {
    const std::uint64_t days = 6u * static_cast<unsigned>(propertyScale());
    for (std::uint64_t seed = 1; seed <= days; ++seed) {
        SCOPED_TRACE("day " + std::to_string(seed));
        start(randomCard(seed, seed % 2 == 0), seed);
        const State loaded = stateNow();
        samples::Random random{seed};
        for (int presses = random.between(1, 40); presses > 0; --presses) pressAnything(random);
        const State end = stateNow();
        const std::size_t made = changes.standing().size();

        if (made == 0) continue;

        ASSERT_TRUE(press("UndoTo", {{0}, ""}));
        ASSERT_EQ(loaded, stateNow());
        while (press("Redo")) {
        }
        ASSERT_EQ(made, changes.standing().size());
        ASSERT_EQ(end, stateNow());
    }
}

TEST_F(UndoTest, EachStepBackIsTheStepForwardAgain) {
    for (std::uint64_t seed = 101; seed <= 102; ++seed) {
        SCOPED_TRACE("day " + std::to_string(seed));
        start(randomCard(seed, false), seed);
        samples::Random random{seed};
        for (int presses = 0; presses < 12; ++presses) pressAnything(random);
        std::vector<State> onTheWayBack{stateNow()};
        while (press("Undo")) onTheWayBack.push_back(stateNow());
        while (press("Redo")) {
            onTheWayBack.pop_back();
            ASSERT_EQ(onTheWayBack.back(), stateNow());
        }
        ASSERT_EQ(1U, onTheWayBack.size());
    }
}

} // namespace
} // namespace quillon
