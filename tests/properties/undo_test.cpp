// Whatever the user does on a card, taking it all back gives the card, the screen and the files as they were,
// and doing it all again gives the end.
#include "random_night.h"

#include "day/changes.h"
#include "random.h"

#include <gtest/gtest.h>

#include <array>
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

class UndoTest : public RandomNightTest {
protected:
    /// One press of a random button that changes the card, or walks through it.
    void pressAnything(samples::Random& random) {
        const int race = random.between(1, 6);
        const int entry = random.between(1, 12);
        answers = {random.chance(80) ? "Yes" : "No", "1", "4"};
        switch (random.between(1, 13)) {
        case 1: press("Command4", {{entry}, ""}); break;
        case 2: press("Command4", {{0}, ""}); break;
        case 3: press("EntryButton", {{entry}, ""}); break;
        case 4: press("Command3", {{random.between(1, 6)}, ""}); break;
        case 5: press("Next"); break;
        case 6: press("Previous"); break;
        case 7: press("RaceButton", {{race}, ""}); break;
        case 8: press("Box", {{random.between(0, 7)}, std::to_string(entry)}); break;
        case 9: press("Tote", {{random.between(1, 11)}, "0" + std::to_string(entry) + ".40"}); break;
        case 10: press("Cell", {{race, entry, 6}, "typed"}); break;
        case 11: press(random.chance(50) ? "EBET" : "TakeAllIn"); break;
        case 12: press("Refunds", {{}, "3 4"}); break;
        default: changeDriver(entry, random); break;
        }
    }

    static void changeDriver(int entry, samples::Random& random) {
        press("DriverColumn", {{entry}, ""});
        const auto& lines = std::as_const(screen).driverList.lines;
        if (lines.empty()) return;
        const auto last = static_cast<int>(lines.size()) - 1;
        press("DriverChoice", {{}, lines[static_cast<std::size_t>(random.between(0, last))]});
    }
};

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
