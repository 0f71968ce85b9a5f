// The table of the window: columns that can be resized, copying as tab-separated text, find, zoom, and
// sorting where the order of rows carries no meaning.
#pragma once

#include "desktop/appearance.h"
#include "desktop/cell_table_model.h"
#include "desktop/number_sort_proxy.h"

#include <QTableView>

#include <optional>
#include <vector>

namespace quillon {

class FrozenColumn;

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

    void setRowHeight(int twips); ///< of all rows, head aside
    int rowPixels() const;

    /// What is shown of the table, and how. A column is made wider where a text of its first rows would not
    /// fit, and keeps what the user drags it to. A click on a head sorts where the layout lets it.
    void setViewLayout(const ViewLayout& layout);

    /// Shows marks at the start of the rows, in a column with room for this text whatever stands there.
    void showRowMarks(const QString& longestSign);
    void setRowMarks(std::vector<RowMark> marks);

    /// The table's row of a cell of the view, sorted or not; -1 of none.
    int tableRow(const QModelIndex& index) const;

    /// The widths that the user dragged columns to, for another run; empty where he dragged none.
    QStringList draggedWidths() const;
    void setDraggedWidths(const QStringList& widths);

    /// Takes up what has changed in the table on show.
    void refresh();
    void show(const Grid* grid);

    /// Takes up the text of a cell that is still being typed in.
    void takeUpEdit();

    /// The selected cells, all where none is selected, below their heads: a line a row, a tab between two
    /// cells. Whole rows, until about `mostCopied` cells.
    QString selectionText() const;
    /// Puts them on the clipboard, and tells where they are not all.
    void copySelection();

    /// Goes to the next cell that holds the text, whatever its case, after the current one and round the
    /// end. False where there is none.
    bool find(const QString& text, bool backwards = false);

    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

protected:
    void updateGeometries() override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void makeSortable();
    void takeStyle();
    void keepDragged(int column, int pixels);
    void lay();
    void layColumns();
    void hideEmptyRows();
    void layMarks();
    void layNotes();

    Appearance& appearance_;
    CellTableModel model_;
    NumberSortProxy sorted_;
    ViewLayout layout_{};
    FrozenColumn* frozen_ = nullptr;
    int headPoints_ = 9;
    int bodyPoints_ = 9;
    bool bodyBold_ = false;
    int rowTwips_ = 285;
    QString styleName_;                       ///< of the style that ours leans on
    QString longestSign_;                     ///< empty: no column of marks
    std::vector<std::optional<int>> dragged_; ///< in twips, by view column
    bool laying_ = false;
};

} // namespace quillon
