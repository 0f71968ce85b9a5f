// Buttons that stand beside the rows of a table and stay with them at every zoom and while it is scrolled.
#pragma once

#include "desktop/appearance.h"
#include "desktop/cell_table_view.h"

#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include <vector>

namespace quillon {

/// Stands at the left of its table in the same layout row, without a gap. Tab stops once in each column; the
/// arrow keys walk the buttons.
class RowButtons : public QWidget {
    Q_OBJECT

public:
    RowButtons(CellTableView& table, Appearance& appearance, QWidget* parent = nullptr);

    /// A column of buttons of this width in twips after those there are; its number.
    int addColumn(int twips);
    void setColumnVisible(int column, bool visible);

    /// A button beside a row of the table as shown, counted from 1; 0 stands beside the head.
    QPushButton* add(int column, int row);

    /// Brings the buttons in line with the rows. To be called when rows or states of buttons have changed.
    void align();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Column {
        int twips;
        bool visible = true;
    };
    struct Place {
        QPushButton* button;
        int column;
        int row;
    };

    void place(const Place& place, int x, int width);
    void keepOneTabStop(int column, const QPushButton* wanted);
    bool canFocus(const Place& place) const;
    bool walk(const Place& from, int key);
    const Place* placeOf(const QObject* button) const;

    CellTableView& table_;
    QPointer<QWidget> tableAsWidget_{&table_}; ///< may end before the buttons, and give them the focus
    Appearance& appearance_;
    QWidget* rows_; ///< as high as the table's rows, so that buttons are cut off where the rows are
    std::vector<Column> columns_;
    std::vector<Place> places_;
};

} // namespace quillon
