#pragma once

#include "race_results.h"

#include <span>
#include <string>

namespace samples {

// The text that a user copies from a page of results, lines ended by CR LF.

// Layout in columns: the number of a finisher in columns 1 and 2, its payoffs after its name, the wagers
// from column 7 on. Refunds stand at the end, since a line with a colon names a race.
std::string columnLayout(const Card& card, std::span<const RaceResult> results);

// Layout in words: "1st", "2nd", ... begin the lines of the finishers, each wager is told by a word.
std::string wordLayout(const Card& card, std::span<const RaceResult> results);

} // namespace samples
