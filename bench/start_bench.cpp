// Start, from the vendor's tables to the written reports.
#include "app/start_up.h"
#include "card_generator.h"
#include "card_tables.h"
#include "core/journal.h"
#include "source/card_load.h"
#include "tracks.h"
#include "working_folder.h"

#include <benchmark/benchmark.h>

#include <fstream>

namespace quillon::bench {
namespace {

void StartOnTheLargestCard(benchmark::State& state) {
    const WorkingFolder folder;
    if (!samples::writeCard(samples::generateCard(samples::largestCard()), ".")) {
        state.SkipWithError("the tables can't be written");
        return;
    }
    std::ofstream{"TrackEditor.ini", std::ios::binary} << samples::trackEditorText();
    for ([[maybe_unused]] auto run : state) {
        state.PauseTiming();
        journal.clear();
        StartUp();
        state.ResumeTiming();
        Start();
    }
    state.counters["faults"] = static_cast<double>(journal.count());
    state.counters["expected"] = static_cast<double>(journal.expected());
}
BENCHMARK(StartOnTheLargestCard)->Unit(benchmark::kMillisecond);

void ProgramStartUp(benchmark::State& state) {
    const WorkingFolder folder;
    for ([[maybe_unused]] auto run : state) StartUp();
}
BENCHMARK(ProgramStartUp)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench
