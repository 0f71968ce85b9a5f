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

/// Heads, widths and alignments by column.
std::span<const ViewColumn> summaryColumns();

} // namespace quillon
