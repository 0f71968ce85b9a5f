#pragma once

#include <array>
#include <string>
#include <string_view>

namespace samples {

// A wager on the winners of several races in a row, as a card offers it from one of its races on.
struct MultiRaceWager {
    int firstLeg; // race, counted from 1 through the card
    int legs;
    std::string_view words; // in the wagering text of the first leg
    int lastLeg() const { return firstLeg + legs - 1; }
};

// A wager is offered where the card has all of its legs. The words vary from track to track.
inline constexpr std::array multiRaceWagers{
    MultiRaceWager{1, 2, "Double"}, //
    MultiRaceWager{2, 3, "Pick 3"}, //
    MultiRaceWager{5, 4, "PICK 4"}, //
    MultiRaceWager{8, 5, "Pk5"},    //
    MultiRaceWager{9, 2, "DOUBLE"},
};

// The wagering text of the card's n-th race, whose number is n + offset.
std::string wagersOf(int race, int raceCount, int offset);

} // namespace samples
