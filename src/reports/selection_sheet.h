// The selection sheet of the card and the short sheet of its star races.
#pragma once

namespace quillon {

/// Writes the ".pms" sheet and "Stars.txt" from the selections as they stand, fills `card.keyPicks`, and ends
/// with the pick sheet. Counts `card.raceCount` anew from the race buttons that show; makes the sheet's viewer
/// available. Resumes at failures.
void SelectionSheet();

} // namespace quillon
