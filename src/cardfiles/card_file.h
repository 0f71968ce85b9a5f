// The two files of a saved card, by position: nothing but its line tells what a value is.
//
// The card file (".pmd") holds races 1 to 23 with their entries 1 to 12: the entry and its chosen line, the
// race's conditions, the finish, the payoffs and the selections. Its archive (".pmx") holds the past lines of
// the card. One value a line; a text stands between quotes, a number without them, a cell that was never
// given a value is an empty line. Quotes inside a text are not doubled: the first and the last character of
// the line are the text's own.
#pragma once

#include "card/race_card.h"
#include "core/text.h"
#include "screen/screen.h"

#include <optional>

namespace quillon {

constexpr int cardFileLines = 13'179;
constexpr int archiveRows = 2300; ///< lines of the card beyond them are not saved
constexpr int archiveColumns = 39;
constexpr int archiveLines = archiveRows * archiveColumns;

/// The files as they are written. A line feed inside a text would move all values after it by a line, so
/// line ends inside a text are written as blanks.
Text cardFileContent(const RaceCard& card);
Text archiveContent(const RaceCard& card);

/// Takes a card file into the card. What a file that ends early doesn't hold, and what stands on a line that
/// is no such value, leaves the card as it was; the journal names such a line.
void takeCardFile(TextView content, RaceCard& card);

/// Takes an archive into the card's line cells; cells that the file doesn't hold are empty afterwards.
void takeArchive(TextView content, RaceCard& card);

/// An entry's row of its race view: all values that the view shows.
void fillRaceViewRow(Grid& view, int row, const RaceEntry& entry);

/// The cells of a race view's row that a user may have changed, back into the entry: the chosen line but for
/// its track and purse, the favourite's mark and the rating.
void takeBackRaceViewRow(const Grid& view, int row, RaceEntry& entry);

struct LabelAndDistance {
    Text label;
    Text distance;
};

/// Takes a race's joined label and distance apart by length and slash; nothing where they don't tell. A
/// distance over a mile keeps its fraction alone.
std::optional<LabelAndDistance> splitLabelAndDistance(TextView joined);

} // namespace quillon
