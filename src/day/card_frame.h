// What the load knows of the card before its first line: races, labels, track, drivers, trainers and entries.
#pragma once

#include "card/race_card.h"
#include "core/numbers.h"
#include "core/text.h"

namespace quillon {

/// A field of the current race row, without trailing blanks.
Text raceField(TextView name);

/// A horse's entry index: its post position, 0 for post 99. Fails beyond 16 bits.
Integer entryIndex(TextView post);

/// The current horse row's cells in an entry's forms, with its driver and trainer by name. A cell that fails
/// stays as it was.
void takeHorseRow(RaceEntry& entry);

/// The race index of a horse's RACE or a line's TODAYSRACE. Fails beyond 16 bits.
Integer raceIndex(TextView race);

/// The race index of the current race row: the first row is race 1, and rows count on from there by their
/// numbers; where the numbers begin again after a card's lettered races, the index goes on by one. Fails
/// after the last row.
Integer currentRaceIndex();

/// Whether the race table has a row of this index after the current one.
bool laterRaceRow(Integer race);

/// Reads `TRACK` of the race table's row and the track table; writes the track's size, stretch and post limit
/// to `card`, its key and description to race `raceCount` (0 becomes 1), and race 1's to the screen's
/// heading. A track that is not in the table leaves all but the key as it was. Stops at a failure.
void TrackData();

/// Labels, offset, file name, number of races and track of the card. Leaves the race and line cursors on
/// their first rows. Resumes at failures.
void FrameCard();

/// Reads the conditions of the current race row into the store under its index, and shows its button.
void ReadConditions();

/// Drivers with their ratings, and the two files that list them. Resumes at failures.
void ReadDrivers();

void ReadTrainers();

/// Every row of the horse table into its entry; the horse cursor ends on the first row. Resumes at failures.
void ReadEntries();

} // namespace quillon
