// The end of a load: print widths, the first race on show, and the reports that a new card writes at once.
#pragma once

namespace quillon {

/// Gives the past lines of races 1 to 23, entries 1 to 12, slots 0 to 9 their print widths, those that no
/// line was read into too; `PURSE` becomes dollars. Runs once a card: a second run multiplies purses again.
void PrintWidths();

/// Heads the screen with race 1, tells the user how to go on, and writes the condensed program, the selection
/// sheet and the pick sheet. Runs after PrintWidths(). Resumes at failures.
void CloseLoad();

} // namespace quillon
