// The columns of a race view (row e is entry e) and of a data view (a row a past line) that the ratings read
// and write.
#pragma once

#include "app/screen.h"

namespace quillon {

namespace raceColumn {
constexpr int horseName = 0;
constexpr int morningOdds = 1;
constexpr int programNumber = 2;
constexpr int post = 3; ///< the entry's index
constexpr int track = 4;
constexpr int purse = 5; ///< the first of the columns that stand in the order of a data view
constexpr int favourite = 29;
constexpr int driver = 30;
constexpr int udr = 31;
constexpr int rating = 32;
constexpr int ratingTaken = 38; ///< the rating that a line choice took
} // namespace raceColumn

namespace dataColumn {
constexpr int date = 1;
constexpr int post = 4;  ///< post position of the entry that the line belongs to
constexpr int horse = 5; ///< HN, the number of the horse in the tables
constexpr int track = 7;
constexpr int purse = 10; ///< columns 10 to 34 are a race view's 5 to 29
constexpr int rating = 38;
constexpr int lineNumber = 39; ///< number of the line in its race
} // namespace dataColumn

/// The view of a race's entries. Fails for a race that has none.
Grid& raceViewOf(int race);

/// The view of a race's past lines. Fails for a race that has none.
Grid& dataViewOf(int race);

} // namespace quillon
