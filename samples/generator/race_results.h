#pragma once

#include "card_model.h"

#include <cstdint>
#include <string>
#include <vector>

namespace samples {

using Cents = int; // what a two-dollar bet gets back

// A finisher with its payoffs; 0 where none is paid.
struct Placing {
    const Entry* entry = nullptr;
    Cents win = 0, place = 0, show = 0;
};

// Numbers joined by "-", in the order of the finish.
struct ExoticPayoff {
    std::string numbers{};
    Cents payoff = 0;
};

// The winners of the legs, joined by "/"; those of a dead heat by ",".
struct PoolPayoff {
    int firstLeg = 0; // race number
    int legs = 0;
    std::string winners{};
    Cents payoff = 0;
};

// How a race came out. Points into the card that it was run from.
struct RaceResult {
    const Race* race = nullptr;
    bool deadHeat = false;           // the first two share the win
    std::vector<Placing> placings{}; // the first four
    std::vector<ExoticPayoff> exactas{}, trifectas{}, superfectas{};
    std::vector<PoolPayoff> pools{};    // that end with this race
    std::vector<std::string> refunds{}; // program numbers of late scratches
};

struct ResultOptions {
    std::uint64_t seed = 1;
    int deadHeatRace = 0; // count of the race in the card, from 1; 0: none
    int scratchRace = 0;  // where the entry on the worst morning line is scratched; 0: none
};

// Runs the card. The better and shorter-priced a horse the oftener it comes in front.
std::vector<RaceResult> runCard(const Card& card, const ResultOptions& options);

} // namespace samples
