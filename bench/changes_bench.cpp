// A change of the largest card taken back and done again, with the files that it wrote.
#include "app/commands.h"
#include "day/changes.h"
#include "loaded_card.h"
#include "screen/ports.h"
#include "working_folder.h"

#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

void runById(CommandId id, int number = 0) { runCommand(command(id), {{number}, ""}); }

// After a long evening: 200 changes stand.
void scratchAllOver() {
    ports.question = [](auto&, auto&) { return true; };
    constexpr int races = 20;
    constexpr int scratches = 10; // a race
    for (int at = 0; at < races * scratches; ++at) {
        runById(CommandId::RaceButton, at % races + 1);
        runById(CommandId::Command4, at / races + 1);
    }
}

void UndoAndRedoOnTheLargestCard(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadCard(largestRaces)) return state.SkipWithError("the card can't be loaded");
    changes.begin();
    scratchAllOver();
    if (changes.standing().size() < 200) return state.SkipWithError("there are too few changes");
    for ([[maybe_unused]] auto run : state) {
        runById(CommandId::Undo);
        runById(CommandId::Redo);
    }
}
BENCHMARK(UndoAndRedoOnTheLargestCard)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench
