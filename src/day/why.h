// Why an entry is rated and placed as it is: the load's own steps run once more over the tables that it keeps, with
// notes taken, and everything is put back. Only a loaded card has its tables; a recalled one tells nothing.
#pragma once

#include "core/text.h"
#include "rating/line_road.h"
#include "rating/search_notes.h"

#include <vector>

namespace quillon {

/// A past line of an entry.
struct WhyLine {
    LineRoad road{};
    LineNote note{}; ///< what became of it when the entry's line was chosen
    Text rating{};   ///< as stored
};

/// The past lines of an entry, from the latest on: line N stands at N - 1.
std::vector<WhyLine> whyLines(int race, int entry);

/// The roads of all lines of the card, in the order of the table.
std::vector<LineRoad> roadsOfCard();

/// How an entry came to its place: a sentence a stage, up to the stage that it won. The first names the place.
std::vector<Text> whyPlace(int race, int entry);

} // namespace quillon
