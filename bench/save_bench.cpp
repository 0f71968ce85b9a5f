// Saving a card and recalling it: two files of about a hundred thousand lines.
#include "app/start_up.h"
#include "card/race_card.h"
#include "day/recall.h"
#include "day/save.h"
#include "loaded_card.h"
#include "working_folder.h"

#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

void SaveOfTheLargestCard(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadCard(largestRaces)) return state.SkipWithError("the tables can't be written");
    for ([[maybe_unused]] auto run : state) Save();
}
BENCHMARK(SaveOfTheLargestCard)->Unit(benchmark::kMillisecond);

void RecallOfTheLargestCard(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadCard(largestRaces)) return state.SkipWithError("the tables can't be written");
    Save();
    const Text file = card.cardFileName;
    for ([[maybe_unused]] auto run : state) {
        state.PauseTiming();
        StartUp();
        RecallRaceCard();
        state.ResumeTiming();
        ChooseFile(file);
    }
}
BENCHMARK(RecallOfTheLargestCard)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench
