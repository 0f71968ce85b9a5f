// The fields of a past line that the vendor's table carries: a row a field, with all that anybody asks of it.
// Loading, storing, showing, choosing, saving, recalling and clearing a line loop over this table.
#pragma once

#include "card/columns.h"
#include "card/race_card.h"

#include <array>
#include <cstddef>

namespace quillon {

constexpr int noColumn = -1;

/// What a scratch does to the field of the chosen line.
enum class Scratched {
    stays,
    emptied,
    emptiedTwice ///< a position, which goes at the crossed index as well
};

/// What becomes of a field's width.
enum class Widened {
    never,
    atTheEnd,   ///< of the load, in the card's past lines
    whenRanked, ///< too, in the chosen lines of S1 to S4
};

struct LineField {
    const char* name; ///< in the vendor's table, and in the store
    Text PastLine::*cell;
    int dataColumn; ///< of a data view, or noColumn
    int raceColumn; ///< of a race view, or noColumn: such a field is part of a chosen line
    std::size_t width;
    Widened widened;
    int fileValue; ///< place among an entry's values in the card file, 0 for none
    Scratched scratched;
    bool wide; ///< has room for entries beyond the others
};

// clang-format off
inline constexpr std::array lineFields = [] {
    using P = PastLine;
    using D = DataColumn;
    using R = RaceColumn;
    using enum Scratched;
    using enum Widened;
    return std::array{
        //        name          cell             data view               race view               width            file  scratch       wide
        LineField{"DATE",       &P::DATE,        D::date,                noColumn,                0, never,         0, stays,        false},
        LineField{"TRACK",      &P::TRACK,       D::track,               R::track,                5, whenRanked,    4, emptied,      false},
        LineField{"COND",       &P::COND,        D::condition,           noColumn,                0, never,         0, stays,        false},
        LineField{"PURSE",      &P::PURSE,       D::purse,               R::purse,                0, never,         5, emptied,      false},
        LineField{"CLASS",      &P::CLASS,       D::classText,           R::classText,            0, never,         6, emptied,      false},
        LineField{"CR",         &P::CR,          D::classRating,         R::classRating,          3, whenRanked,    7, emptied,      false},
        LineField{"DIST_MILES", &P::DIST_MILES,  D::distance,            noColumn,                0, never,         0, stays,        false},
        LineField{"LEAD_TM_1Q", &P::LEAD_TM_1Q,  D::leaderQuarter,       R::leaderQuarter,        6, atTheEnd,      8, emptied,      false},
        LineField{"LEAD_TM_2Q", &P::LEAD_TM_2Q,  D::leaderHalf,          R::leaderHalf,           6, atTheEnd,      9, emptied,      false},
        LineField{"LEAD_TM_3Q", &P::LEAD_TM_3Q,  D::leaderThreeQuarters, R::leaderThreeQuarters,  6, atTheEnd,     10, emptied,      false},
        LineField{"LEAD_TM_FN", &P::LEAD_TM_FN,  D::leaderFinish,        R::leaderFinish,         6, atTheEnd,     11, emptied,      false},
        LineField{"POST",       &P::POST,        D::linePost,            R::linePost,             2, whenRanked,   12, emptiedTwice, false},
        LineField{"CALL_1Q_BF", &P::CALL_1Q_BF,  D::firstBefore,         R::firstBefore,          2, atTheEnd,     19, stays,        false},
        LineField{"CALL_1Q_PO", &P::CALL_1Q_PO,  D::firstCall,           R::firstCall,            2, whenRanked,   13, emptiedTwice, false},
        LineField{"CALL_1Q_PK", &P::CALL_1Q_PK,  D::firstPark,           R::firstPark,            2, whenRanked,   16, stays,        false},
        LineField{"CALL_1Q_AF", &P::CALL_1Q_AF,  D::firstAfter,          R::firstAfter,           2, atTheEnd,     20, stays,        false},
        LineField{"CALL_2Q_BF", &P::CALL_2Q_BF,  D::secondBefore,        R::secondBefore,         2, atTheEnd,     21, stays,        true},
        LineField{"CALL_2Q_PO", &P::CALL_2Q_PO,  D::secondCall,          R::secondCall,           2, whenRanked,   14, emptiedTwice, false},
        LineField{"CALL_2Q_PK", &P::CALL_2Q_PK,  D::secondPark,          R::secondPark,           2, whenRanked,   17, stays,        false},
        LineField{"CALL_2Q_AF", &P::CALL_2Q_AF,  D::secondAfter,         R::secondAfter,          2, atTheEnd,     22, stays,        true},
        LineField{"CALL_3Q_BF", &P::CALL_3Q_BF,  D::thirdBefore,         R::thirdBefore,          2, atTheEnd,     23, stays,        true},
        LineField{"CALL_3Q_PO", &P::CALL_3Q_PO,  D::thirdCall,           R::thirdCall,            2, whenRanked,   15, emptiedTwice, false},
        LineField{"CALL_3Q_PK", &P::CALL_3Q_PK,  D::thirdPark,           R::thirdPark,            2, whenRanked,   18, stays,        false},
        LineField{"CALL_3Q_AF", &P::CALL_3Q_AF,  D::thirdAfter,          R::thirdAfter,           2, atTheEnd,     24, stays,        true},
        LineField{"CALL_ST_PO", &P::CALL_ST_PO,  D::stretch,             R::stretch,              2, whenRanked,   25, emptiedTwice, false},
        LineField{"CALL_FN_PO", &P::CALL_FN_PO,  D::finish,              R::finish,               2, whenRanked,   26, emptiedTwice, false},
        LineField{"HRSE_TM_4Q", &P::HRSE_TM_4Q,  D::lastQuarter,         R::lastQuarter,          4, whenRanked,   27, emptied,      false},
        LineField{"HRSE_TM_FN", &P::HRSE_TM_FN,  D::finalTime,           R::finalTime,            0, never,        28, emptied,      false},
    };
}();
// clang-format on

constexpr bool isChosen(const LineField& field) { return field.raceColumn != noColumn; }

} // namespace quillon
