// `show`: prints a part of the state and changes nothing. What is empty is not printed, so that a difference
// between two outputs is a difference that a user could see.
#pragma once

#include "app/commands.h"
#include "console/transcript.h"
#include "core/text.h"

#include <span>

namespace quillon {

/// Prints the part named, "header" or "raceview 3", or a usage line. A view of a number that no view has
/// prints nothing. The commands give the menu its lines and their order.
void show(TextView part, std::span<const Command> commands, Transcript& transcript);

} // namespace quillon
