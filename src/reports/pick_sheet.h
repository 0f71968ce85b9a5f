// The tickets of the multi-race and five-place wagers on offer.
#pragma once

#include "core/text.h"

#include <vector>

namespace quillon {

/// A ticket of the sheet: a set of program numbers for each leg, or for each of the first five places.
struct SheetTicket {
    Text heading{}; ///< "PICK4"
    int race = 0;   ///< the first leg, or the race of the five places
    bool overRaces = false;
    std::vector<std::vector<Text>> sets{}; ///< trimmed

    bool operator==(const SheetTicket&) const = default;
};

/// Finds each race's wagers in its wagering text and writes the ".pmr2" sheet of the tickets that
/// `card.keyPicks` and the selections make for them. Reads `card.raceCount`. Resumes at failures.
void KeyHorses();

/// The same tickets as values, those over two to six races and those of five places, in the sheet's order.
std::vector<SheetTicket> pickSheetTickets();

} // namespace quillon
