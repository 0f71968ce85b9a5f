// Saving and closing a card.
#pragma once

namespace quillon {

/// Saves the open card; without one it does nothing.
void Save();

/// Stores the board, takes back what the race views show, names the card by the track and date on show, and
/// replaces the card file and its archive, both or neither. A save that can't write tells so by the plain
/// file error, leaves both files as they were, and stops, with the command that asked for it; so does one of
/// a recalled card whose files couldn't be read, which it would write over with next to nothing.
void Save_It();

/// Saves the open card and clears views, heading and board; the store stays as it is. Without a card it only
/// clears. When the save fails the card stays open, but one that couldn't be read is put away unsaved.
void CloseRC();

} // namespace quillon
