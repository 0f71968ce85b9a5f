// Start, from the vendor's tables to the written reports.
#include "app/start_up.h"
#include "core/journal.h"
#include "day/card_load.h"
#include "loaded_card.h"
#include "working_folder.h"

#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

void start(benchmark::State& state, int races) {
    const WorkingFolder folder;
    if (!writeTables(races)) return state.SkipWithError("the tables can't be written");
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

void StartOnTheLargestCard(benchmark::State& state) { start(state, largestRaces); }
BENCHMARK(StartOnTheLargestCard)->Unit(benchmark::kMillisecond);

void StartOnACardOfSoManyRaces(benchmark::State& state) { start(state, static_cast<int>(state.range(0))); }
BENCHMARK(StartOnACardOfSoManyRaces)->Arg(3)->Arg(6)->Arg(12)->Arg(24)->Unit(benchmark::kMillisecond);

void ProgramStartUp(benchmark::State& state) {
    const WorkingFolder folder;
    for ([[maybe_unused]] auto run : state) StartUp();
}
BENCHMARK(ProgramStartUp)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench
