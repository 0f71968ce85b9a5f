// What a command changed, in the words of the list of changes.
#pragma once

#include "app/arguments.h"
#include "screen/command_id.h"

namespace quillon {

/// The race that a command works on, before it runs; 0 for the card as a whole.
int raceOfChange(CommandId id, const Arguments& arguments);

/// What the command did to that race, after it ran: "5 Oughta Be Famous scratched".
Text changeWords(CommandId id, const Arguments& arguments, int race);

} // namespace quillon
