// One past line speaks for each entry: its rating becomes the entry's, its figures the entry's row in the
// race view.
//
// Lines of the last 33 days are searched for the lowest rating. An entry without a usable line there gets
// older ones, one by one, as far as 50 days back; then its latest line stands, good or bad.
#pragma once

#include "core/text.h"

#include <vector>

namespace quillon {

/// For races 1 to 23, up to the card's last: chooses the line of entries 1 to 12, then ranks the race.
/// Reads the past lines, their counts and the running-line table; writes `rating`, `chosen`,
/// `chosenLineNumber` and `chosenDriver` of the entries, their counts of lines where these grow, and the race
/// views. Resumes at failures.
void SelectLines();

/// A cell of a race view as a load writes it.
struct LoadedCell {
    int column = 0;
    Text text{};
};

/// The cells that a load writes of this line of the card, by its number; 0 for an entry without a line. Cells
/// that the table can't give are left out.
std::vector<LoadedCell> loadedCells(int line);

} // namespace quillon
