// What of the card is on show, for any front end: which views, which rows, and what may be done there.
#pragma once

#include "results/race_display.h"
#include "screen/screen.h"

#include <optional>

namespace quillon {

/// The race whose entries are on show; 1 before any is. A way of showing a race may leave views 22 and 23 up
/// beside it.
int raceViewOnShow();

/// The race whose past lines are on show; 0 where the race on show has no view of them.
int raceLinesOnShow();

/// How many horses the card has in a race; only the first twelve are shown and rated.
int horsesIn(int race);

/// The name of the horse in a row of a race view; empty where the row only holds its place.
Text horseIn(int race, int row);

/// Whether a cell of a race view may be typed in: one that a save takes back and no rating hangs on, from Class
/// to F, where the entry has a line.
bool mayTypeCell(int race, int row, int column);

/// Whether a row of a race view is that of an entry without a past line: its cells hold the fields' names.
bool isFirstStart(int race, int row);

/// The entry that the driver list was opened for, as the race on show has it: a change goes to that race.
struct DriverChange {
    int race = 0;
    Text horse{};
    Text driver{};
};
std::optional<DriverChange> driverChange();

/// The number that a past line of the entry on show is taken by; empty where there is no line.
Text lineNumberIn(int row);

/// What a past line of the entry on show is to its rating.
enum class LineUse {
    none,
    inUse,     ///< chosen by the program
    taken,     ///< by the user, in place of the program's
    passedOver ///< the program's, where the user took another
};
LineUse useOf(int row, const LineInUse& used);

/// Whether any past line of a view is shaded by its age.
bool hasShadedLines(const Grid& lines);

} // namespace quillon
