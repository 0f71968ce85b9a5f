// The numbered cells of a card: columns of its lines and entries, and cells of a race's outcome and payoffs.
// Each has its name here and nowhere else.
#pragma once

#include "core/text.h"

#include <span>

namespace quillon {

enum class Align { left, right, centre };

/// A column of a view: its head, its width in twips (0 hides it), where its texts stand, and what they are in
/// plain words.
struct ViewColumn {
    TextView head{};
    int width = 0;
    Align align = Align::left;
    TextView hint{};
};

/// Columns of a race's data view (a row a past line), and of the card's kept line cells.
struct DataColumn {
    enum Number {
        entry, ///< name, driver and morning line beside an entry's first three lines
        date,
        todaysRace,
        program,
        post,  ///< post position of the entry that the line belongs to
        horse, ///< HN, the number of the horse in the tables
        spare,
        track,
        distance,
        condition,
        purse, ///< the first of those that a race view has in the same order
        classText,
        classRating,
        leaderQuarter,
        leaderHalf,
        leaderThreeQuarters,
        leaderFinish,
        linePost,
        firstBefore,
        firstCall,
        firstPark,
        firstAfter,
        secondBefore,
        secondCall,
        secondPark,
        secondAfter,
        thirdBefore,
        thirdCall,
        thirdPark,
        thirdAfter,
        stretch,
        finish,
        lastQuarter,
        finalTime,
        favourite, ///< the last of those columns
        odds,
        driverNumber,
        driver,
        rating,
        lineNumber, ///< number of the line in its race
        count
    };
};

/// Columns of a race view, where row e is entry e.
struct RaceColumn {
    enum Number {
        horseName,
        morningOdds,
        programNumber,
        post, ///< the entry's index
        track,
        purse,
        classText,
        classRating,
        leaderQuarter,
        leaderHalf,
        leaderThreeQuarters,
        leaderFinish,
        linePost,
        firstBefore,
        firstCall,
        firstPark,
        firstAfter,
        secondBefore,
        secondCall,
        secondPark,
        secondAfter,
        thirdBefore,
        thirdCall,
        thirdPark,
        thirdAfter,
        stretch,
        finish,
        lastQuarter,
        finalTime,
        favourite,
        driver,
        udr,
        rating,
        count,
        ratingTaken = 38, ///< out of sight: the rating that a line choice took
        last = 39
    };
};

/// From purse to favourite both views have the same columns in the same order, so many places apart.
constexpr int dataColumnShift = int{DataColumn::purse} - int{RaceColumn::purse};
static_assert(dataColumnShift == int{DataColumn::favourite} - int{RaceColumn::favourite});

/// Cells of a race's outcome, program numbers all.
struct OutcomeCell {
    enum Number {
        none,
        s1,
        s2,
        s3,
        s4,
        r1, ///< first to fourth at the finish
        r2,
        r3,
        r4,
        fifth, ///< the fifth horse
        count
    };
};

/// Cells of a race's payoffs, money text but for the refunds.
struct PayoffCell {
    enum Number {
        none,
        win,
        place1,
        show1,
        place2,
        show2,
        show3,
        exacta,
        trifecta,
        superfecta,
        refunds,       ///< program numbers of the scratched, or a refund line of a results text
        dailyDouble,   ///< the daily-double line of a results text
        boxTenEcho,    ///< what stood in tote box 10 when the race was left
        deadHeat = 20, ///< what a dead heat paid the other horse: tote box 10 shows it
        last = 21,
        count
    };
};

/// Heads, widths and alignments by column.
std::span<const ViewColumn> dataColumns();
std::span<const ViewColumn> raceColumns();

} // namespace quillon
