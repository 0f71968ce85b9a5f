// The reports of a loaded card, and what a user does to one race of it, over cards of growing size.
#include "analysis/pick_results.h"
#include "analysis/summary.h"
#include "day/re_calculation.h"
#include "day/scratch.h"
#include "loaded_card.h"
#include "reports/condensed_program.h"
#include "reports/entries_list.h"
#include "reports/selection_sheet.h"
#include "results/race_display.h"
#include "screen/ports.h"
#include "working_folder.h"

#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

template <void (*step)()>
void onACardOfSoManyRaces(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadCard(static_cast<int>(state.range(0))))
        return state.SkipWithError("the tables can't be written");
    for ([[maybe_unused]] auto run : state) step();
}

void ScratchTheFourth() { Command4(4); }
void TakeTheSecondLine() { Command3(2); }
void OpenAnEntry() { EntryButton(3); }
void ShowTheLastRace() { RaceButton(20); }

constexpr auto atGrowingSizes = [](benchmark::internal::Benchmark* bench) {
    bench->Arg(3)->Arg(6)->Arg(12)->Arg(24)->Unit(benchmark::kMicrosecond);
};
BENCHMARK(onACardOfSoManyRaces<SelectionSheet>)->Name("SelectionAndPickSheet")->Apply(atGrowingSizes);
BENCHMARK(onACardOfSoManyRaces<Condensed_PPP>)->Name("CondensedProgram")->Apply(atGrowingSizes);
BENCHMARK(onACardOfSoManyRaces<PrintCondensedProgram>)->Name("PrintedProgram")->Apply(atGrowingSizes);
BENCHMARK(onACardOfSoManyRaces<Entries>)->Name("EntriesList")->Apply(atGrowingSizes);
BENCHMARK(onACardOfSoManyRaces<SelectionResults>)->Name("Summary")->Apply(atGrowingSizes);
BENCHMARK(onACardOfSoManyRaces<Pick3Results>)->Name("PickResults")->Apply(atGrowingSizes);
BENCHMARK(onACardOfSoManyRaces<ShowTheLastRace>)->Name("ShowARace")->Apply(atGrowingSizes);
BENCHMARK(onACardOfSoManyRaces<OpenAnEntry>)->Name("OpenAnEntry")->Apply(atGrowingSizes);

// The same line taken again and again: each time the race is ranked and the sheet written.
void TakeALine(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadCard(static_cast<int>(state.range(0))))
        return state.SkipWithError("the tables can't be written");
    EntryButton(3);
    for ([[maybe_unused]] auto run : state) TakeTheSecondLine();
}
BENCHMARK(TakeALine)->Apply(atGrowingSizes);

void Scratch(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadCard(static_cast<int>(state.range(0))))
        return state.SkipWithError("the tables can't be written");
    ports.question = [](auto&, auto&) { return true; };
    for ([[maybe_unused]] auto run : state) ScratchTheFourth();
    ports = {};
}
BENCHMARK(Scratch)->Apply(atGrowingSizes)->Iterations(50); // each one lengthens the results text

} // namespace
} // namespace quillon::bench
