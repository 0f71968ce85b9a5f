// A snapshot put back is the state as it stood, whatever came between, and costs next to nothing.
#include "everything_shown.h"
#include "random_night.h"

#include "app/start_up.h"
#include "day/snapshot.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

class SnapshotTest : public RandomNightTest {
protected:
    void changeTheCard() {
        answers = {"Yes"};
        press("Command4", {{2}, ""});
        press("RaceButton", {{2}, ""});
        press("EntryButton", {{1}, ""});
        press("Command3", {{2}, ""});
        press("Box", {{4}, "3"});
        press("Tote", {{1}, "8.80"});
        press("Next");
        press("Cell", {{1, 2, 6}, "typed"});
        press("EBET");
        press("SelectionResults");
    }
};

TEST_F(SnapshotTest, PuttingBackShowsEverythingAsItStood) {
    for (std::uint64_t seed = 1; seed <= 4; ++seed) {
        SCOPED_TRACE("card " + std::to_string(seed));
        start(randomCard(seed, seed % 2 == 0), seed);
        const std::string before = everythingShown();
        const Snapshot snapshot = Snapshot::taken();
        changeTheCard();
        const std::string after = everythingShown();
        ASSERT_NE(before, after);
        Snapshot changed = Snapshot::taken();
        changed.shareWith(snapshot);
        snapshot.putBack();
        ASSERT_EQ(before, everythingShown());
        changed.putBack();
        ASSERT_EQ(after, everythingShown());
        snapshot.putBack();
        changeTheCard(); // writes nothing into the snapshots
        snapshot.putBack();
        ASSERT_EQ(before, everythingShown());
    }
}

TEST_F(SnapshotTest, ResettingIsAFreshProgram) {
    StartUp();
    const std::string fresh = everythingShown();
    start(randomCard(3, false), 3);
    changeTheCard();
    resetAll();
    StartUp();
    EXPECT_EQ(fresh, everythingShown());
}

} // namespace
} // namespace quillon
