// Packing a day of changes on the largest card, as it is kept against a crash, and unpacking it.
#include "app/commands.h"
#include "day/packing.h"
#include "loaded_card.h"
#include "screen/ports.h"
#include "working_folder.h"

#include <benchmark/benchmark.h>

namespace quillon::bench {
namespace {

// The card as loaded, and after each of so many scratches, all over the races.
std::vector<Snapshot> statesOfADay(int changes) {
    ports.question = [](auto&, auto&) { return true; };
    std::vector<Snapshot> states{Snapshot::taken()};
    const Command* const show = findCommand("RaceButton");
    const Command* const scratch = findCommand("Command4");
    constexpr int races = 20;
    for (int change = 0; change < changes; ++change) {
        runCommand(*show, {{change % races + 1}, ""});
        runCommand(*scratch, {{change / races + 1}, ""});
        states.push_back(Snapshot::taken());
        states.back().shareWith(states[states.size() - 2]);
    }
    return states;
}

Text packed(const std::vector<Snapshot>& states) {
    Packer out;
    pack(out, states);
    return sealed(out.bytes());
}

void PackingADayOfTheLargestCard(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadCard(largestRaces)) return state.SkipWithError("the card can't be loaded");
    const auto states = statesOfADay(static_cast<int>(state.range(0)));
    std::size_t size = 0;
    for ([[maybe_unused]] auto run : state) size = packed(states).size();
    state.counters["bytes"] = static_cast<double>(size);
}
BENCHMARK(PackingADayOfTheLargestCard)->Arg(0)->Arg(50)->Arg(200)->Unit(benchmark::kMillisecond);

void UnpackingADayOfTheLargestCard(benchmark::State& state) {
    const WorkingFolder folder;
    if (!loadCard(largestRaces)) return state.SkipWithError("the card can't be loaded");
    const Text bytes = packed(statesOfADay(static_cast<int>(state.range(0))));
    for ([[maybe_unused]] auto run : state) {
        const auto whole = opened(bytes);
        if (!whole) return state.SkipWithError("the bytes are damaged");
        Unpacker in{*whole};
        std::vector<Snapshot> states;
        if (!unpack(in, states)) return state.SkipWithError("the states can't be unpacked");
        benchmark::DoNotOptimize(states);
    }
}
BENCHMARK(UnpackingADayOfTheLargestCard)->Arg(0)->Arg(50)->Arg(200)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quillon::bench
