#pragma once

#include "card_model.h"
#include "random.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace samples {

// Both ends included.
struct Span {
    int low = 0;
    int high = 0;
};

// What may be out of the ordinary on a card. Each switched on occurs here and there by chance.
struct Oddities {
    bool alsoEligibles = false;     // entries without a post
    bool firstTimeStarters = false; // entries without past lines
    bool qualifiers = false;        // past lines in qualifying races
    bool otherDistances = false;    // past lines over and under a mile
    bool breaks = false;            // past lines with a break of stride
    bool coupledEntries = false;    // entries 1 and 1A
    bool letteredRaces = false;     // the first races carry a card letter
    bool partialCard = false;       // the first race's number is above 1
    bool missingTimes = false;      // the vendor has no time, or no calls
    bool blankCells = false;        // cells of any kind left empty
};
Oddities allOddities();

struct CardOptions {
    std::uint64_t seed = 1;
    int races = 12;
    Span entries{7, 10};                // a race
    Span lines{5, 8};                   // an entry
    std::string track{};                // key of the card's track; empty: any
    std::vector<std::string> circuit{}; // keys of other tracks that the horses come from; empty: any
    Day date{std::chrono::year{2026} / 3 / 14};
    std::size_t drivers = 0; // 0: as many as suit the card
    std::size_t trainers = 0;
    Oddities odd{};
};

// The largest card that Quillon holds: 25 races of 20 entries, 6 lines each; 300 drivers, 200 trainers.
CardOptions largestCard();

// A card beyond every limit: more races, entries, lines, drivers and trainers than Quillon holds.
CardOptions oversizedCard();

// An invented card. The same options give the same card on every system.
Card generateCard(const CardOptions& options);

// The race's last entry becomes an also-eligible: without a post, AE beside its number.
void makeAlsoEligible(Race& race);

// The two entries (counted from 0, in order) run as 1 and 1A; the others are numbered from 2.
void coupleEntries(Race& race, std::size_t first, std::size_t second);

} // namespace samples
