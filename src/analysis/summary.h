// What the selections of the open card earned: hits and payoffs by race and bet, with their totals.
#pragma once

namespace quillon {

/// Stores the board, fills and shows `screen.summary`, counts the wins of S1 to S4, and writes the summary's
/// report. `Record` becomes available unless the card is archived already. A dead heat for the win is told
/// once: a second run takes its race for a plain one. Resumes at failures.
void SelectionResults();

} // namespace quillon
