// One model for every view: it passes on the cells of a table of the screen and knows nothing of races.
#pragma once

#include "app/screen.h"

#include <QAbstractTableModel>

#include <functional>

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

    /// Columns whose cells stand at the right.
    void setRightAligned(int first, int last);

    /// Makes cells editable: `mayEdit(row, column)`, `edit(row, column, text)` with the numbers of the table.
    void setEditing(std::function<bool(int, int)> mayEdit, std::function<void(int, int, const Text&)> edit);

    int tableRow(const QModelIndex& index) const { return range_.firstRow + index.row(); }
    int tableColumn(const QModelIndex& index) const { return range_.firstColumn + index.column(); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    int rowsOnShow() const;

    const Grid* grid_ = nullptr;
    CellRange range_;
    std::uint64_t version_ = 0;
    int rows_ = 0;
    bool tailHidden_ = false;
    int firstRight_ = 0;
    int lastRight_ = -1;
    std::function<bool(int, int)> mayEdit_;
    std::function<void(int, int, const Text&)> edit_;
};

} // namespace quillon
