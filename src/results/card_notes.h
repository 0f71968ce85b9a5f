// The notes that concern the open card.
#pragma once

#include "cardfiles/notes.h"
#include "core/text.h"

#include <vector>

namespace quillon {

/// Whom of an entry a note may be on.
struct EntryNames {
    Text horse{};
    Text driver{};
    Text trainer{};
};

/// Of a row of a race view; empty where it has no horse.
EntryNames entryNames(int race, int row);

/// The notes on a horse, then those on its driver and its trainer.
std::vector<NoteLine> notesOnEntry(int race, int row);

/// Prints the notes on the card's races, horses, drivers and trainers on a page of their own; nothing without any.
void PrintCardNotes();

} // namespace quillon
