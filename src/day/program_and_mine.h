// The selections of a race as the program made them, beside those that stand now.
#pragma once

#include "card/race_card.h"

#include <array>

namespace quillon {

/// A horse at a place, with its rating; empty where the place has none.
struct PlacedHorse {
    Text programNumber{};
    Text horse{};
    Text rating{};

    bool operator==(const PlacedHorse&) const = default;
};

struct ComparedPlace {
    PlacedHorse program{};
    PlacedHorse mine{};

    bool isMoved() const { return program.programNumber != mine.programNumber; }
};

/// S1 to S5 of a race of the card as loaded, and of the card as it stands. Nothing for a race not there.
std::array<ComparedPlace, rankedPlaces> programAndMine(const RaceCard& loaded, const RaceCard& now, int race);

} // namespace quillon
