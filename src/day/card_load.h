// The load of a card: the Start button walks the vendor's tables side by side into the store, rates every
// past line, and hands on to line selection, ranking and the reports.
#pragma once

namespace quillon {

/// The Start button. Loads the card of the source folder: resumes at every failure, and what can be read is
/// there. Without a race table, or with an empty one, nothing changes and Start stays enabled. On a recalled
/// card ("View Races") it reads no table and changes nothing.
void Start();

/// Takes and rates every row of the running-line table, from the first on, with the horses and races that they
/// belong to. Runs after FrameCard() and ReadEntries(). Resumes at failures.
void LoadLines();

/// A new entry begins with the running line at work: its horse, and its race where that is a new one, become
/// current. Reads `load.line`; moves the horse and race cursors. Resumes at failures.
void ChangeHorseName();

/// Copies the running line's cells 1 to 39 into `card.lineCells` under its line number.
void GetTextboxData2();

} // namespace quillon
