// The table of the window: columns that can be resized, copying as tab-separated text, find, zoom, and
// sorting where the order of rows carries no meaning.
#pragma once

#include "app/start_up.h"
#include "desktop/appearance.h"
#include "desktop/cell_table_model.h"

#include <QSortFilterProxyModel>
#include <QTableView>

#include <optional>
#include <span>
#include <vector>

namespace quillon {

/// Sorts numbers as numbers ("$ 12.60", "45.5%", " 9"), other texts as text.
class NumberSortProxy : public QSortFilterProxyModel {
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};

class CellTableView : public QTableView {
    Q_OBJECT

public:
    /// `name` is what a screen reader says of the table.
    CellTableView(Appearance& appearance, const QString& name, QWidget* parent = nullptr);

    CellTableModel& cells() { return model_; }
    const CellTableModel& cells() const { return model_; }

    /// Fonts of the head and of the body, in points.
    void setFonts(int headPoints, int bodyPoints, bool bodyBold);

    /// Widths in twips from the table's column 0; 0 hides a column. A column is made wider where a text of
    /// its first rows would not fit, and keeps what the user drags it to.
    void setColumnWidths(std::vector<int> twips);
    void setColumnWidths(std::span<const ViewColumn> columns);

    void setRowHeight(int twips); ///< of all rows, head aside
    int rowPixels() const;

    /// A click on a head sorts by that column.
    void setSortable();

    /// Takes up what has changed in the table on show.
    void refresh();
    void show(const Grid* grid, const CellRange& range = {});

    /// Takes up the text of a cell that is still being typed in.
    void takeUpEdit();

    /// The selected cells, a line a row, a tab between two cells.
    QString selectionText() const;
    void copySelection() const;

    /// Goes to the next cell that holds the text, whatever its case, behind the current one and round the
    /// end. False where there is none.
    bool find(const QString& text, bool backwards = false);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void lay();
    int widthFor(int column) const;

    Appearance& appearance_;
    CellTableModel model_;
    NumberSortProxy sorted_;
    int headPoints_ = 9;
    int bodyPoints_ = 9;
    bool bodyBold_ = false;
    int rowTwips_ = 285;
    std::vector<int> twips_;
    std::vector<std::optional<int>> dragged_; ///< in twips, by view column
    bool laying_ = false;
};

} // namespace quillon
