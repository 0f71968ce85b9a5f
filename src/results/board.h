// The results board of the race on show: selections, finish and payoffs.
//
// Cells 1 to 8 of `card.raceOutcome` are the selection boxes 0 to 3 and the finish boxes 4 to 7; cell 9 is
// the fifth horse and has no box. Cells 1 to 9 and 11 of `card.payoffRecord` are the "Tote Board" boxes of
// the same number. Box 10 shows cell 20 (what a dead heat paid the other horse) and is taken back into cell
// 12; cell 10 is the text of the "Refunds:" box, which only shows it.
#pragma once

#include "core/text.h"

namespace quillon {

constexpr int selectionBoxes = 4;    ///< boxes 0 to 3: S1 to S4
constexpr int firstFinishBox = 4;    ///< boxes 4 to 7: first to fourth
constexpr int boxTenCell = 20;       ///< the payoff cell that tote box 10 shows
constexpr int boxTenEchoCell = 12;   ///< the payoff cell that takes what stood in it
constexpr int refundCell = 10;       ///< the payoff cell of the "Refunds:" box
constexpr int dailyDoubleCell = 11;  ///< the payoff cell of a daily-double line
constexpr int toteBoxesOfCells = 11; ///< tote boxes 1 to 11, of which 10 is a special one

/// The race whose board is on show: the number that its label begins with ("1A" is race 1); 0 when none is.
int raceOnShow();

/// True when a box that leaving the race would store holds something else than the store does: results that a
/// race button or the race list would drop. Box 10 and the refunds are no such boxes, what is typed there
/// does not come back either way.
bool boardHasUnkeptTyping();

/// A step's way to write one of the boxes 0 to 7: a text that becomes another brings the board in line with a
/// dead heat. A box that isn't there fails.
void setBox(int box, TextView text);

/// Moves what the board shows into the store, for the race that the board shows. Resumes at failures.
void Get_Textbox_Data();

/// Brings the board in line with a dead heat of the race on show: box 10 is visible for one, and the payoff
/// of the first or the second becomes what S1 paid. The labels above the payoffs repeat the finish. Resumes
/// at failures.
void TEXT_56();

/// Tints the boxes of S1 and S2 by the gap between their ratings; all other boxes go white.
void DeadHeat();

/// Takes the highlight off the last entry's row.
void ClearLastIndex();

/// What the user types, each by the command of its box: selection or finish box 0 to 7, "Tote Board" box 1 to
/// 11, the "Refunds:" box (which is only shown), and a cell below the head of a race view. A box or cell that
/// isn't there fails.
void TypeBox(int box, const Text& text);
void TypeTote(int box, const Text& text);
void TypeRefunds(const Text& text);
void TypeCell(int race, int row, int column, const Text& text);

} // namespace quillon
