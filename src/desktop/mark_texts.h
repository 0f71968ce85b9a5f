// What the window says of an entry's marks: signs of letters and shapes, and the same in words.
#pragma once

#include "cardfiles/notes.h"
#include "results/entry_marks.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace quillon {

/// "S1", "Scr", a pointer for a line taken, "D" for another driver, a pencil's "*" for typed cells, "N" for notes.
QString signOf(const EntryMarks& marks, bool hasNotes = false);

/// The longest that signOf() can give.
QString longestSign();

/// A line a mark, and a line a note.
QString wordsOf(const EntryMarks& marks, const std::vector<NoteLine>& found = {});

/// "Roe, C, 14 March 2026 (MVR_20260314): wants the rail".
QString wordsOf(const NoteLine& note);

/// Which races the user has changed. Races whose views stand as they stood are not looked through again.
class ChangedRaces {
public:
    bool isChanged(int race);

private:
    struct Known {
        std::uint64_t version = 0; ///< of the race's view
        int mode = 0;
        bool changed = false;
    };
    std::vector<Known> races_;
};

} // namespace quillon
