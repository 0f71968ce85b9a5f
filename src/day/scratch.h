// Scratches: an entry goes out, and those outside it start closer to the rail.
#pragma once

namespace quillon {

/// Whether the button of the "Scr" column is there to be pressed: entry 1 to 12 of the race on show has a
/// name. Button 0 always is.
bool canScratch(int button);

/// Button of the "Scr" column. Button 0 switches the column between "Scr" and "X"; an entry's button asks,
/// then scratches its entry (with a refund) or removes it (without a trace in the results), re-rates those
/// outside, ranks the race on show again and rewrites the selection sheet. Nothing takes a scratch back.
/// Resumes at failures.
void Command4(int button);

/// What an entry starting from post `cursor.scratchPost` gains on the card's track when one inside it goes
/// out: the number to take off its rating, as text in `cursor.scratchAdjust`; "0" where there is none.
void Scr_adj();

} // namespace quillon
