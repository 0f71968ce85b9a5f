// One model for every view: it passes on the cells of a table of the screen and knows nothing of races.
#pragma once

#include "screen/screen.h"

#include <QAbstractTableModel>

#include <functional>
#include <utility>
#include <vector>

namespace quillon {

/// The part of a table that a view shows; -1 stands for all there are.
struct CellRange {
    int firstRow = 1; ///< row 0 is the head
    int lastRow = -1;
    int firstColumn = 0;
    int lastColumn = -1;
};

class CellTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit CellTableModel(QObject* parent = nullptr) : QAbstractTableModel{parent} {}

    /// Shows another table; none is an empty one. It must live as long as it is shown.
    void show(const Grid* grid, const CellRange& range = {});

    /// Takes up what has changed since the last call; true where there was something.
    bool refresh();

    /// Rows behind the last one with a text are left away.
    void setTailHidden(bool hidden) { tailHidden_ = hidden; }

    /// Columns whose heads and cells stand at the right, beside those named before.
    void setRightAligned(int first, int last);

    /// Rows of the table that are drawn bold, whatever their cells say.
    void setBoldRows(int first, int last);

    /// Whether no cell of a row of the view holds a text.
    bool isEmptyRow(int row) const;

    /// Makes cells editable: `mayEdit(row, column)`, `edit(row, column, text)` with the numbers of the table.
    void setEditing(std::function<bool(int, int)> mayEdit, std::function<void(int, int, const Text&)> edit);

    int tableRow(const QModelIndex& index) const { return range_.firstRow + index.row(); }
    int tableColumn(const QModelIndex& index) const { return tableColumn(index.column()); }
    int tableColumn(int column) const { return range_.firstColumn + column; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    int rowsOnShow() const;
    bool isBold(int row, const Cell& cell) const;
    bool isRightAligned(int column) const;

    const Grid* grid_ = nullptr;
    CellRange range_;
    std::uint64_t version_ = 0;
    int rows_ = 0;
    bool tailHidden_ = false;
    std::vector<std::pair<int, int>> rightAligned_; ///< first and last column
    int firstBold_ = 0;
    int lastBold_ = -1;
    std::function<bool(int, int)> mayEdit_;
    std::function<void(int, int, const Text&)> edit_;
};

} // namespace quillon
