// Showing a race: its heading, its board, its race view, and the past lines of one of its entries.
//
// Results that were typed on the board are taken into the store by the arrows alone; a race button or a
// double click in the race list drops them. Everything here resumes at failures.
#pragma once

#include "core/text.h"
#include "screen/screen.h"

namespace quillon {

constexpr int lastButtonRace = 20; ///< race buttons and the race list reach no further; the arrows do
constexpr int lineButtons = 13;    ///< past lines of an entry that have a button to take them by

/// The race label and the heading: purse, conditions, class rating, wagers, post time, gait, track, distance.
/// A heat has no track of its own and keeps the card's, under which the card is saved.
void showRaceHeader(int race);

/// The eight boxes, the "Tote Board" and the refunds as they stand in the store, the tint of S1 and S2, and
/// what a dead heat changes. The race's label must stand. A heat without selections shows its ranking.
void showBoard(int race);

/// The number that a heading ends with, blanks after it aside; 0 without one.
double numberAtEnd(TextView text);

/// Race `race` whole: label, heading, race view, buttons and board; the past lines of an entry close. Nothing
/// is stored. Races 1 to 30; for others nothing happens.
void showRace(int race);

/// Race button n shows race n, at most race 20.
void RaceButton(int n);

/// The arrows store the board, then show the race after or before the one on show. At the last race
/// Next stores nothing.
void Next();
void Previous();

/// Stores the board and shows every race as Next does, then the race that was on show again: every board is
/// taken into the store. With no race on show nothing happens.
void TakeAllIn();

/// Double click on a line of the race list: the number at its end is the race, held between 1 and 20.
void RaceList(const Text& line);

/// Fills the race list: a line "RACE 1", "RACE 2" ... for each race of the card.
void FillRaceList();

/// Program-number button i, 1 to 12: shows the entry's past lines in their frame and lights its row of the
/// race view; the same button again closes the frame.
void EntryButton(int i);

/// The line that speaks for the entry whose past lines are shown, as a row of theirs.
struct LineInUse {
    int row = 0;         ///< 0 when none is in use, or it is not known
    bool byUser = false; ///< taken by the user in place of the program's
    int programsRow = 0; ///< the row of the program's own choice; 0 unknown
};

/// A recalled card does not know which lines the program chose.
LineInUse lineInUse();

/// Whether a row of a race's past lines is the line of the card with this number.
bool isKeptLine(const Grid& lines, int line, int keptLine);

/// Closes the frame of past lines and takes the light off the entry's row.
void ClosePastPerformances();

/// Takes the light off the row of the entry shown last.
void ClearLastIndex();

} // namespace quillon
