// One model for every view: it passes on the cells of a table of the screen and knows nothing of races.
#pragma once

#include "screen/screen.h"
#include "screen/view_layouts.h"

#include <QAbstractTableModel>

#include <functional>
#include <vector>

namespace quillon {

/// What stands at a row besides its cells.
struct RowMark {
    QString sign{};     ///< at the row's start
    QString words{};    ///< what the sign means
    bool isOut = false; ///< the row counts no more: faint, and struck through
    QString note{};     ///< in place of the texts of some columns of the view
    int noteFrom = 0;
    int noteColumns = 0;
    bool operator==(const RowMark&) const = default;
};

class CellTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit CellTableModel(QObject* parent = nullptr) : QAbstractTableModel{parent} {}

    /// Which cells are shown, and where they stand. The columns must live as long as the model.
    void setViewLayout(const ViewLayout& layout);

    /// Shows another table; none is an empty one. It must live as long as it is shown.
    void show(const Grid* grid);

    /// Takes up what has changed since the last call; true where there was something.
    bool refresh();

    /// Whether no cell of a row of the view holds a text.
    bool isEmptyRow(int row) const;

    /// Makes cells editable: `mayEdit(row, column)`, `edit(row, column, text)` with the numbers of the table.
    void setEditing(std::function<bool(int, int)> mayEdit, std::function<void(int, int, const Text&)> edit);

    int tableRow(const QModelIndex& index) const { return tableRow(index.row()); }
    int tableColumn(const QModelIndex& index) const { return tableColumn(index.column()); }

    /// Marks of the table's rows, by their numbers. True where one is another than before.
    bool setRowMarks(std::vector<RowMark> marks);
    const std::vector<RowMark>& rowMarks() const { return marks_; }

    /// The width in twips that a column of the view is described with; 0 hides it.
    int widthOf(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    static int tableRow(int row) { return Grid::firstRow + row; }
    int tableColumn(int column) const { return layout_.firstColumn + column; }
    int rowsOnShow() const;
    const ViewColumn* described(int tableColumn) const;
    Align alignOf(int tableColumn) const;
    QString shownText(int row, int column) const;
    const RowMark& markOf(int tableRow) const;
    QVariant signOfRow(int row, int role) const;
    QVariant font(int row, const Cell& cell) const;
    bool isBold(int row, const Cell& cell) const { return cell.bold || layout_.boldRows.contains(row); }

    const Grid* grid_ = nullptr;
    std::vector<RowMark> marks_;
    ViewLayout layout_{};
    std::uint64_t version_ = 0;
    int rows_ = 0;
    std::function<bool(int, int)> mayEdit_;
    std::function<void(int, int, const Text&)> edit_;
};

} // namespace quillon
