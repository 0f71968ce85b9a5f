// Taking a snapshot of the largest card, and putting it back.
#include "card/race_card.h"
#include "day/snapshot.h"
#include "loaded_card.h"
#include "working_folder.h"

#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

// A command between two snapshots has touched every race, so that nothing is shared any more.
void touchEveryRace() {
    for (int race = 1; race <= ratedRaces; ++race) {
        card.entry[{race, 1}].rating = " 60.0";
        screen.raceView[static_cast<std::size_t>(race)](1, 1).text = "5/2";
    }
}

void SnapshotOfTheLargestCard(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadCard(largestRaces)) return state.SkipWithError("the card can't be loaded");
    Snapshot before = Snapshot::taken();
    for ([[maybe_unused]] auto run : state) {
        touchEveryRace();
        Snapshot after = Snapshot::taken();
        after.shareWith(before);
        before = std::move(after);
        before.putBack();
    }
}
BENCHMARK(SnapshotOfTheLargestCard)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench
