// The condensed program: the card's entries with their last running lines and the selections, race by race.
#pragma once

#include <functional>

namespace quillon {

/// Writes the ".ppp" program; called once, when a load has rated the card. Widens `horseName` to 30
/// characters in the entries it prints. Resumes at failures.
void Condensed_PPP();

/// Prints the ".ppp" program of the open card, a page a race. With no card open, or no such file, it stops
/// after its first message.
void PrintCondensedProgram();

/// The same, with further pages before the end of the print.
void printCondensedProgram(const std::function<void()>& lastPages);

} // namespace quillon
