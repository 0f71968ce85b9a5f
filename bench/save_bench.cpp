// Saving a card and recalling it: two files of about a hundred thousand lines.
#include "app/start_up.h"
#include "card_generator.h"
#include "card_tables.h"
#include "core/race_card.h"
#include "source/card_load.h"
#include "store/recall.h"
#include "store/save.h"
#include "tracks.h"
#include "working_folder.h"

#include <benchmark/benchmark.h>

#include <fstream>

namespace quillon::bench {
namespace {

// Loads the largest card into the store.
bool loadLargestCard() {
    if (!samples::writeCard(samples::generateCard(samples::largestCard()), ".")) return false;
    std::ofstream{"TrackEditor.ini", std::ios::binary} << samples::trackEditorText();
    StartUp();
    Start();
    return true;
}

void SaveOfTheLargestCard(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadLargestCard()) return state.SkipWithError("the tables can't be written");
    for ([[maybe_unused]] auto run : state) Save();
}
BENCHMARK(SaveOfTheLargestCard)->Unit(benchmark::kMillisecond);

void RecallOfTheLargestCard(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadLargestCard()) return state.SkipWithError("the tables can't be written");
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
