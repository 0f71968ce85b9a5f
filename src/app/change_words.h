// What a command changed, in the words of the list of changes.
#pragma once

#include "app/arguments.h"
#include "day/changes.h"
#include "screen/command_id.h"

#include <vector>

namespace quillon {

/// The race that a command works on, before it runs; 0 for the card as a whole.
int raceOfChange(CommandId id, const Arguments& arguments);

/// What the command did to that race, after it ran: "5 Oughta Be Famous scratched".
Text changeWords(CommandId id, const Arguments& arguments, int race);

/// A selection that became another horse: the first is S1.
struct MovedPlace {
    int place = 0;
    Text before{};
    Text after{};
};

/// The selections of its race that a change moved; none for a change of the card as a whole.
std::vector<MovedPlace> movedPlaces(const Change& change);

} // namespace quillon
