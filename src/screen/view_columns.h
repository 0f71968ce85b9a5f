// The columns of the analysis views: what each is called, and how it is shown.
#pragma once

#include "card/columns.h"

#include <span>

namespace quillon {

/// Columns of the summary of a card; rows are races by their index.
struct SummaryColumn {
    enum Number {
        label,
        s1,
        s2,
        s3,
        s4,
        afterSelections,
        r1,
        r2,
        r3,
        r4,
        afterFinishers,
        win,
        place,
        show,
        afterStraight,
        exacta1With2,  ///< E1/2
        exactaBox12,   ///< E1-2
        exacta1With23, ///< E1/2-3
        exactaBox123,  ///< E1-2-3
        exactaBox1234, ///< E1-2-3-4
        afterExactas,
        beforeTrifectas,
        trifecta1With23,  ///< T1/2-3
        trifecta1With234, ///< T1/2-3-4
        trifectaBox123,   ///< T1-2-3
        afterTrifectas,
        superfecta1With234, ///< S1/2-3-4
        superfecta2With134, ///< S2-1/3-4
        superfectaBox1234,  ///< S1-2-3-4
        pick3,              ///< a head without values
        count
    };
};

/// Rows of the summary's totals. They write over races 21 and 22 of a longer card.
struct SummaryRow {
    enum Number { totals = 21, percentages = 22 };
};

/// Columns of a betting profile; a row below the totals is a card.
struct ProfileColumn {
    enum Number {
        card, ///< its key; the labels of the rows above the cards
        races,
        s1Wins,
        s2Wins,
        s3Wins,
        s4Wins,
        win,
        place,
        show,
        exacta1With2,
        exactaBox12,
        exacta1With23,
        exactaBox123,
        exactaBox1234,
        trifecta1With23,
        trifecta1With234,
        trifectaBox123,
        superfecta1With234,
        superfecta2With134,
        superfectaBox1234,
        superfectaRaces, ///< figures without a head
        count
    };
};

/// Rows of a betting profile.
struct ProfileRow {
    enum Number {
        heads,
        winAmount = 2,
        adjustedWin,
        totalBet,
        netProfit,
        roi,
        winningCards = 8,
        counts,
        percentages,
        firstCard
    };
};

/// Columns of the tracks profile: a table of tracks and beside it one of course sizes.
struct TrackColumn {
    enum Number { track, races, wins, percentage, size = 6, sizeRaces, sizeWins, sizePercentage, count };
};

/// Columns of the pick results; rows are races by their index.
struct PickColumn {
    enum Number {
        race,
        s1,
        s2,
        s3,
        s4,
        afterPicks,
        firstWinner, ///< of the leg; the others shared the win
        secondWinner,
        thirdWinner,
        fourthWinner,
        afterWinners,
        dailyDouble,
        pick3,
        pick4,
        pick5,
        pick6,
        pick10, ///< the last column that is shown
        count = 20
    };
};

/// Columns of the stars profile; a row is a recorded race.
struct StarColumn {
    enum Number { card, race, margin, decimalOdds, odds, bet, payoff, win, count };
};

/// Heads, widths and alignments by column.
std::span<const ViewColumn> summaryColumns();
std::span<const ViewColumn> profileColumns();
std::span<const ViewColumn> trackColumns();
std::span<const ViewColumn> pickColumns();
std::span<const ViewColumn> starColumns();

} // namespace quillon
