// Which selections and bets of a card hit, and what they paid: a value in, a value out.
#pragma once

#include "card/race_card.h"
#include "screen/view_columns.h"

#include <array>

namespace quillon {

constexpr int judgedRaces = 24; ///< races that the bets are decided for

/// What is known of a race when it is over. The texts stand in the store.
struct RaceResults {
    std::array<TextView, OutcomeCell::count> outcome{};
    std::array<TextView, PayoffCell::count> payoff{};
    Integer winHeat = 0; ///< finishers that share the win, where more than one was told
};

struct CardResults {
    std::array<RaceResults, raceExtent> races{};
    int lastRace = 0;
};

/// What hit in a race.
struct RaceHits {
    std::array<TextView, SummaryColumn::count> paid{}; ///< by column of the bet
    std::array<bool, OutcomeCell::s4 + 1> won{};       ///< by selection
};

struct CardHits {
    std::array<RaceHits, raceExtent> races{};
    std::array<Integer, OutcomeCell::s4 + 1> wins{}; ///< by selection
    std::array<double, SummaryColumn::count> sums{}; ///< what each column's bet paid on the card
    std::array<Integer, raceExtent> winHeat{};       ///< as they stand when the dead heats are told
    Integer superfectaRaces = 0;                     ///< races of the card that paid a superfecta
};

CardHits hitsOf(const CardResults& results);

} // namespace quillon
