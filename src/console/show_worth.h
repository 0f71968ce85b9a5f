// `show fair` and `show ticket`: what a race's entries are worth, and what a ticket costs.
#pragma once

#include "console/transcript.h"
#include "core/text.h"

#include <optional>

namespace quillon {

/// Prints the fit of the saved cards and the race's chances and fair odds, or a usage line.
void showFair(std::optional<TextView> words, Transcript& transcript);

/// Prints a ticket's combinations and cost, and who of its numbers is scratched, or a usage line.
void showTicket(std::optional<TextView> words, Transcript& transcript);

} // namespace quillon
