// What the window says of an entry's marks: signs of letters and shapes, and the same in words.
#pragma once

#include "results/entry_marks.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace quillon {

/// "S1", "Scr", a pointer for a line taken, "D" for another driver, a pencil's "*" for typed cells.
QString signOf(const EntryMarks& marks);

/// The longest that signOf() can give.
QString longestSign();

/// A line a mark.
QString wordsOf(const EntryMarks& marks);

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
