#include "desktop/cell_copying.h"

#include <QStringList>

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

/// The columns in sight from the first to the last that is selected anywhere.
std::vector<int> copiedColumns(const QItemSelection& ranges, const QTableView& table) {
    int first = table.model()->columnCount();
    int last = -1;
    for (const QItemSelectionRange& range : ranges) {
        first = std::min(first, range.left());
        last = std::max(last, range.right());
    }
    std::vector<int> columns;
    for (int column = first; column <= last; ++column)
        if (!table.isColumnHidden(column)) columns.push_back(column);
    return columns;
}

QString headsOf(const std::vector<int>& columns, const QTableView& table) {
    QStringList heads;
    for (const int column : columns)
        heads += table.model()->headerData(column, Qt::Horizontal).toString().trimmed();
    return heads.join('\t');
}

QItemSelection wholeTable(const QAbstractItemModel& cells) {
    if (cells.rowCount() == 0 || cells.columnCount() == 0) return {};
    return {cells.index(0, 0), cells.index(cells.rowCount() - 1, cells.columnCount() - 1)};
}

} // namespace

// Goes by the ranges of the selection: a list of all cells of a million rows would not fit into memory.
CopiedCells copiedCells(const QTableView& table, int most) {
    const QAbstractItemModel& cells = *table.model();
    const bool anySelected = table.selectionModel() && table.selectionModel()->hasSelection();
    const QItemSelection ranges = anySelected ? table.selectionModel()->selection() : wholeTable(cells);
    int firstRow = cells.rowCount();
    int lastRow = -1;
    for (const QItemSelectionRange& range : ranges) {
        firstRow = std::min(firstRow, range.top());
        lastRow = std::max(lastRow, range.bottom());
    }
    const std::vector<int> columns = copiedColumns(ranges, table);
    CopiedCells copied;
    if (columns.empty()) return copied;
    copied.text = headsOf(columns, table);
    int count = 0;
    for (int row = firstRow; row <= lastRow && count < most; ++row) {
        if (table.isRowHidden(row)) continue;
        const std::vector<int> selected = columnsIn(ranges, row, table);
        if (selected.empty()) continue;
        ++copied.rows;
        copied.text += '\n';
        auto next = selected.begin();
        for (const int column : columns) {
            if (column != columns.front()) copied.text += '\t';
            if (next == selected.end() || *next != column) continue;
            copied.text += cells.index(row, column).data().toString().trimmed();
            ++next;
            ++count;
        }
        copied.isCut = row < lastRow;
    }
    return copied;
}

} // namespace quillon
