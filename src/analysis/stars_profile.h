// The stars profile: how S1 did as a flat $12 win bet at a margin and a morning line, over every race that
// was recorded in Stars5.ini. It has a window of its own, with three lists to go through one by one.
#pragma once

#include "core/numbers.h"
#include "core/text.h"

#include <array>
#include <optional>

namespace quillon {

inline constexpr TextView starsCaption = "Stars Profile";

/// Which races are asked for: the whole points from which S1 stood out, 50 for any, and his morning line.
struct StarChoice {
    Integer margin = 0;
    TextView odds{};
};

/// Whether a record of Stars5.ini is of such a race.
bool passes(TextView record, const StarChoice& choice);

/// What the races that pass add up to.
struct StarSums {
    int races = 0;
    int wins = 0;
    double returned = 0;
};

/// The texts of fields 1 to 8. Where there is nothing to divide by, a field has none and keeps its own.
using StarFigures = std::array<std::optional<Text>, 9>;
StarFigures starFigures(const StarSums& sums);

/// Opens the window, its first list, and all recorded lines in `screen.stars`. Stops at a failure, and when
/// the user cancels.
void Star();

// A row of a list is picked: its text goes on the list's button, and the next list opens. "EXIT" closes the
// list and gives the button its own name back. A text that is no row of the list does nothing.
void MarginChoice(const Text& row);
void OddsChoice(const Text& row);
void MaxOddsChoice(const Text& row); ///< runs the profile; the odds picked here take no part in it

/// Fills `screen.stars` with the races of `screen.marginChoice` and `screen.oddsChoice`, and the result
/// fields. Stops when the file can't be read and when the user cancels.
void Profile5();

} // namespace quillon
