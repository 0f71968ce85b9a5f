// The passes over the card's results text that fill the board of every race.
//
// Two layouts are read. The column layout has a heading "PRG", three finishers below it and exotics with a
// keyword at column 7; the word layout has lines that begin "1st", "2nd" ... and exotics told by a word.
// Nothing in a line is checked, and a bad line never stops a pass; a text of another day or track does, with
// a message. A pass that a user runs ends with race 1 on show. Nothing is saved.
#pragma once

namespace quillon {

/// "Auto Record Payoffs": the column layout, then the refunds. Run twice, it lists the refunds twice. Without
/// a results file it shows race 1 and nothing else.
void AutoRecord();

/// The word layout, quietly, as a recall runs it. It goes on with the dead heats that the run before counted.
void AutoRecord2();

/// "TRC Auto Record": the word layout with the daily doubles and picks, its dead heats counted afresh.
void EBET();

} // namespace quillon
