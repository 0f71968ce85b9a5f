// The results board of the race on show: selections, finish and payoffs.
//
// Boxes 0 to 3 are the selections, 4 to 7 the finish; the fifth horse has no box. The "Tote Board" boxes have
// the numbers of their payoff cells, but for box 10: it shows what a dead heat paid the other horse, and is
// taken back into a cell of its own. The "Refunds:" box only shows its cell.
#pragma once

#include "card/columns.h"
#include "core/text.h"

#include <array>

namespace quillon {

/// Boxes of the "Tote Board", from win to daily double by the numbers of their payoff cells. Two are no cells.
struct ToteBox {
    enum Number {
        heading,
        first = PayoffCell::win,
        deadHeat = PayoffCell::refunds, ///< the number alone: the refunds have a box of their own
        last = PayoffCell::dailyDouble
    };
};

constexpr int selectionBoxes = 4; ///< boxes 0 to 3: S1 to S4
constexpr int firstFinishBox = 4; ///< boxes 4 to 7: first to fourth

/// The outcome cell of a selection or finish box.
constexpr int cellOfBox(int box) { return OutcomeCell::s1 + box; }

/// The payoff cells that stand in the tote boxes of their numbers.
inline constexpr std::array cellsOfTheirBoxes{
    PayoffCell::win,        PayoffCell::place1,      PayoffCell::show1,  PayoffCell::place2,
    PayoffCell::show2,      PayoffCell::show3,       PayoffCell::exacta, PayoffCell::trifecta,
    PayoffCell::superfecta, PayoffCell::dailyDouble,
};

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

/// What the user types, each by the command of its box: selection or finish box 0 to 7, "Tote Board" box 1 to
/// 11, the "Refunds:" box (which is only shown), and a cell below the head of a race view. A box or cell that
/// isn't there fails.
void TypeBox(int box, const Text& text);
void TypeTote(int box, const Text& text);
void TypeRefunds(const Text& text);
void TypeCell(int race, int row, int column, const Text& text);

} // namespace quillon
