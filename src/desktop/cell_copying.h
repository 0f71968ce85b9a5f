// The selected cells of a table as text.
#pragma once

#include <QString>
#include <QTableView>

namespace quillon {

struct CopiedCells {
    QString text{};     ///< the heads and a line a row, a tab between two cells, no blanks round them
    int rows = 0;       ///< without the heads
    bool isCut = false; ///< there was more than is copied at once
};

/// The selected cells as they are shown, all where none is selected, those out of sight left out: whole rows,
/// until about `most` cells.
CopiedCells copiedCells(const QTableView& table, int most);

} // namespace quillon
