// The list of the card's entries.
#pragma once

namespace quillon {

/// Writes the entries list of the open card (".txt") and shows it. Posts 1 to 12 of races 1 to 23 are listed.
/// Stops with no card open, else resumes at failures.
void Entries();

} // namespace quillon
