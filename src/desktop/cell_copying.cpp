#include "desktop/cell_copying.h"

#include <algorithm>
#include <vector>

namespace quillon {
namespace {

/// The selected columns of a row that are in sight, from left to right.
std::vector<int> columnsIn(const QItemSelection& ranges, int row, const QTableView& table) {
    std::vector<int> columns;
    for (const QItemSelectionRange& range : ranges) {
        if (row < range.top() || row > range.bottom()) continue;
        for (int column = range.left(); column <= range.right(); ++column) columns.push_back(column);
    }
    std::sort(columns.begin(), columns.end());
    columns.erase(std::unique(columns.begin(), columns.end()), columns.end());
    std::erase_if(columns, [&](int column) { return table.isColumnHidden(column); });
    return columns;
}

} // namespace

// Goes by the ranges of the selection: a list of all cells of a million rows would not fit into memory.
CopiedCells copiedCells(const QTableView& table, int most) {
    const QAbstractItemModel& cells = *table.model();
    const QItemSelection ranges =
        table.selectionModel() ? table.selectionModel()->selection() : QItemSelection{};
    int firstRow = cells.rowCount();
    int lastRow = -1;
    int firstColumn = cells.columnCount();
    for (const QItemSelectionRange& range : ranges) {
        firstRow = std::min(firstRow, range.top());
        lastRow = std::max(lastRow, range.bottom());
        firstColumn = std::min(firstColumn, range.left());
    }
    CopiedCells copied;
    int count = 0;
    for (int row = firstRow; row <= lastRow && count < most; ++row) {
        if (table.isRowHidden(row)) continue;
        const std::vector<int> columns = columnsIn(ranges, row, table);
        if (columns.empty()) continue;
        if (copied.rows++ > 0) copied.text += '\n';
        int column = firstColumn;
        for (const int selected : columns) {
            for (; column < selected; ++column)
                if (!table.isColumnHidden(column)) copied.text += '\t';
            copied.text += cells.index(row, selected).data(Qt::EditRole).toString();
            ++count;
        }
        copied.isCut = row < lastRow;
    }
    return copied;
}

} // namespace quillon
