// What tells an entry from the others of its race: its place among the selections, and what the user did to it.
#pragma once

#include "core/text.h"

#include <vector>

namespace quillon {

struct EntryMarks {
    int place = 0; ///< 1 to 4 for S1 to S4, 5 for the fifth horse; 0 none
    bool scratched = false;
    bool removed = false;
    bool lineTaken = false;          ///< by the user, in place of the program's
    bool driverChanged = false;      ///< he is not the one of the card
    Text driverBefore{};             ///< the one of the card, where he was changed
    std::vector<int> typedColumns{}; ///< of the race view

    bool isOut() const { return scratched || removed; }
    bool isChanged() const { return isOut() || lineTaken || driverChanged || !typedColumns.empty(); }
    bool operator==(const EntryMarks&) const = default;
};

/// The marks of an entry as the race view shows it; none of a row without a horse. A recalled card no longer
/// knows its lines, drivers and cells as they were loaded, nor who was removed; its scratched are those with
/// a refund.
EntryMarks entryMarks(int race, int entry);

/// Whether the user changed any entry of a race.
bool isChanged(int race);

} // namespace quillon
