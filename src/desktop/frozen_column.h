// The first column of a table, laid over it, so that it stays in sight while the others are scrolled.
#pragma once

#include <QTableView>

namespace quillon {

class FrozenColumn : public QTableView {
    Q_OBJECT

public:
    explicit FrozenColumn(QTableView& table);

    /// Takes up the faces and heights of the table.
    void takeUp(int rowPixels);

    /// Stands over the table's first column.
    void place();

    /// Scrolls the table to the right until this cell is not covered.
    void uncover(const QModelIndex& index);

private:
    void follow();

    QTableView& table_;
};

} // namespace quillon
