// The tracks that the user keeps in TrackEditor.ini.
//
// A row of the file is a track, in fixed columns counted from 1. The list ends at the first empty line.
#pragma once

#include "core/numbers.h"
#include "core/text.h"

#include <cstddef>
#include <vector>

namespace quillon {

struct TrackRecord {
    Text trackKey{};           ///< columns 1 to 5, trimmed: the track's code
    Text trackLine{};          ///< column 11 on: the description that a load shows
    Text trackName{};          ///< columns 13 to 65: the description of today's track
    Text courseSize{};         ///< columns 37 to 39, trimmed: "1/2", "5/8", "3/4", "7/8", "1.M", "1.Q"
    Integer stretchLength = 0; ///< columns 42 to 45, feet; 0 where they are blank
    Text stretchFlag{};        ///< column 46
    Integer maxPosts = 12;     ///< the last two characters; 12 where they say 0 or less

    // A running line counts the columns from the row's first character that is no blank.
    Text lineCourseSize{}; ///< columns 37 to 39, trimmed
    Text linePar{};        ///< columns 50 to 53: seconds, trimmed; a par below 10 has its 60 added
};

struct TrackTable {
    std::vector<TrackRecord> rows{}; ///< in the order of the file

    /// The first and the last row of a track, nullptr where it has none: a track that is listed twice shows
    /// its first row as the card's track, and its last as the track of a running line. Case counts.
    const TrackRecord* first(TextView trackKey) const;
    const TrackRecord* last(TextView trackKey) const;

    std::vector<std::size_t> byKey{}; ///< numbers of the rows, sorted by key, rows of one key in file order
};

/// The table of a file's content.
TrackTable trackTableOf(TextView content);

/// A track code as the tables carry it: trimmed, and "M" made "M1".
Text trackKeyOf(TextView track);

} // namespace quillon
