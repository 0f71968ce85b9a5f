// The table of the window: columns that can be resized, copying as tab-separated text, find, zoom, and
// sorting where the order of rows carries no meaning.
#pragma once

#include "card/columns.h"
#include "desktop/appearance.h"
#include "desktop/cell_table_model.h"

#include <QPointer>
#include <QSortFilterProxyModel>
#include <QTableView>

#include <optional>
#include <span>
#include <vector>

namespace quillon {

/// Sorts numbers as numbers ("$ 12.60", "45.5%", " 9"), other texts by the number that they begin with ("2A"
/// before "10A") and then as text.
class NumberSortProxy : public QSortFilterProxyModel {
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    /// The first `count` columns sort by the order of the table's rows: times of day, race labels.
    void setRowOrderColumns(int count) { rowOrderColumns_ = count; }

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    int rowOrderColumns_ = 0;
};

class CellTableView;

/// A search through the cells of a table for a text, whatever its case, behind the current cell (or from it
/// on) and round the end. It is made in steps, so that a table of a million rows can be searched while the
/// window lives on.
class CellSearch {
public:
    enum class State { goesOn, found, notThere };

    CellSearch(CellTableView& view, const QString& text, bool backwards, bool fromCurrent = false);

    /// Looks on for about so long; goes to the cell once it is found. A table that changed meanwhile ends it.
    State lookOn(int milliseconds);

    int percent() const; ///< of the table that was looked through

private:
    bool isAt(qint64 cell) const;

    QPointer<CellTableView> view_;
    QString text_;
    bool backwards_;
    int rows_;
    int columns_;
    qint64 start_;
    qint64 step_ = 0;
};

class CellTableView : public QTableView {
    Q_OBJECT

public:
    /// Cells that are copied at most: as much as another program takes up without trouble.
    static constexpr int mostCopied = 200000;

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

    /// Where the view is a little too narrow for all columns, they give up what their texts do not need.
    void setFitted();

    void setRowHeight(int twips); ///< of all rows, head aside
    int rowPixels() const;

    /// A click on a head sorts by that column; the first `rowOrderColumns` give the order of the rows back.
    void setSortable(int rowOrderColumns = 0);

    /// The table's row of a cell of the view, sorted or not; -1 of none.
    int tableRow(const QModelIndex& index) const;

    /// The first column stays in sight while the others are scrolled.
    void setFirstColumnFrozen();

    /// Rows without any text are left away, wherever they stand. For short tables: all rows are looked at.
    void setEmptyRowsHidden();

    /// Columns are measured as if every text were bold: bold ones may stand behind the rows that are
    /// measured.
    void setRoomForBold();

    /// Takes up what has changed in the table on show.
    void refresh();
    void show(const Grid* grid, const CellRange& range = {});

    /// Takes up the text of a cell that is still being typed in.
    void takeUpEdit();

    /// The selected cells, a line a row, a tab between two cells. Whole rows, until about `mostCopied` cells.
    QString selectionText() const;
    /// Puts them on the clipboard, and tells where they are not all.
    void copySelection();

    /// Goes to the next cell that holds the text, whatever its case, behind the current one and round the
    /// end. False where there is none.
    bool find(const QString& text, bool backwards = false);

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

protected:
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    struct CopiedRows {
        QString text{};
        int rows = 0;
        bool isCut = false; ///< there was more than is copied at once
    };

    void lay();
    int roomBesideText() const;
    QFont fontOf(const QModelIndex& cell) const;
    std::vector<int> textWidths() const;
    struct ColumnWidth {
        int wanted = 0;
        int needed = 0; ///< by the texts and the head
    };

    ColumnWidth widthFor(int column, int textWidth) const;
    void fit(std::vector<ColumnWidth>& widths) const;
    void layFrozen();
    CopiedRows copiedRows() const;

    Appearance& appearance_;
    CellTableModel model_;
    NumberSortProxy sorted_;
    QTableView* frozen_ = nullptr; ///< lies over the first column, where that is frozen
    int headPoints_ = 9;
    int bodyPoints_ = 9;
    bool bodyBold_ = false;
    int rowTwips_ = 285;
    std::vector<int> twips_;
    std::vector<std::optional<int>> dragged_; ///< in twips, by view column
    bool laying_ = false;
    bool emptyRowsHidden_ = false;
    bool roomForBold_ = false;
    bool fitted_ = false;
};

} // namespace quillon
