// One past line speaks for each entry: its rating becomes the entry's, its figures the entry's row in the
// race view.
//
// Lines of the last 33 days are searched for the lowest rating. An entry without a usable line there gets
// older ones, one by one, as far as 50 days back; then its latest line stands, good or bad.
#pragma once

namespace quillon {

/// For races 1 to 23, up to the card's last: chooses the line of entries 1 to 12, then ranks the race.
/// Reads the past lines, their counts and the running-line table; writes `rating`, `chosen`,
/// `chosenLineNumber` and `chosenDriver` of the entries, their counts of lines where these grow, and the race
/// views. Resumes at failures.
void SelectLines();

} // namespace quillon
