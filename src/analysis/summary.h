// What the selections of the open card earned: hits and payoffs by race and bet, with their totals.
#pragma once

namespace quillon {

// Rows of `screen.summary` are races by their index. Totals and percentages have rows of their own, and write
// over races 21 and 22 of a longer card.
constexpr int summaryColumns = 30;
constexpr int totalsRow = 21;
constexpr int percentagesRow = 22;

// The first of each four columns: program numbers of S1 to S4 (in the totals row their wins) and of the first
// four finishers.
constexpr int firstSelectionColumn = 1;
constexpr int firstFinisherColumn = 6;

/// Stores the board, fills and shows `screen.summary`, counts the wins of S1 to S4, and writes the summary's
/// report. `Record` becomes available unless the card is archived already. A dead heat for the win is told
/// once: a second run takes its race for a plain one. Resumes at failures.
void SelectionResults();

} // namespace quillon
