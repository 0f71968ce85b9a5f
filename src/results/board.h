// The results board of the race on show: selections, finish and payoffs.
#pragma once

namespace quillon {

/// Moves what the board shows into the store, for the race that the board shows. Resumes at failures.
void Get_Textbox_Data();

/// Brings the board in line with a dead heat of the race on show. Resumes at failures.
void TEXT_56();

/// Tints the boxes of S1 and S2 by the gap between their ratings; all other boxes go white.
void DeadHeat();

/// Takes the highlight off the last entry's row.
void ClearLastIndex();

} // namespace quillon
