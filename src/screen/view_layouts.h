// How a front end shows the tables of the screen: which columns and rows, and what is special in them.
#pragma once

#include "card/columns.h"
#include "screen/screen.h"

#include <limits>
#include <span>

namespace quillon {

/// What becomes of rows without any text.
enum class EmptyRows {
    shown,
    hiddenAtEnd, ///< after the last row with a text
    hidden       ///< wherever they stand; all rows are looked at, so for short tables
};

/// From the first to the last row of a table; none as it comes.
struct RowRange {
    int first = Grid::firstRow;
    int last = Grid::headRow;
    constexpr bool contains(int row) const { return row >= first && row <= last; }
};

struct ViewLayout {
    std::span<const ViewColumn>
        columns{};       ///< from the table's column 0 on; what comes after them is not shown
    int firstColumn = 0; ///< those before it are another view's
    int lastRow = std::numeric_limits<int>::max();
    EmptyRows emptyRows = EmptyRows::shown;
    RowRange boldRows{};
    bool firstFrozen = false; ///< the first column stays in sight while the others are scrolled
    bool fitted = false;      ///< columns give up spare room where the view is too narrow
    bool roomForBold = false; ///< columns have room for bold texts below the rows that are measured
    bool sortable = false;    ///< the order of the rows means nothing
    int rowOrderColumns = 0;  ///< the first columns sort by the order of the table's rows
};

ViewLayout raceLayout();
ViewLayout raceLinesLayout();  ///< the past lines of all entries
ViewLayout entryLinesLayout(); ///< the past lines of one entry
ViewLayout summaryLayout();
ViewLayout profileLayout();
ViewLayout tracksLayout();
ViewLayout sizesLayout();
ViewLayout picksLayout();
ViewLayout starsLayout();

} // namespace quillon
