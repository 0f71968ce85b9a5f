// A search through the cells of a table.
#pragma once

#include <QPointer>
#include <QString>
#include <QTableView>

namespace quillon {

/// Looks for a text, whatever its case, after the current cell (or from it on) and round the end. It is made
/// in steps, so that a table of a million rows can be searched while the window lives on.
class CellSearch {
public:
    enum class State { goesOn, found, notThere };

    CellSearch(QTableView& view, const QString& text, bool backwards, bool fromCurrent = false);

    /// Looks on for about so long; goes to the cell once it is found. A table that changed meanwhile ends it.
    State lookOn(int milliseconds);

    int percent() const; ///< of the table that was looked through

private:
    qint64 cells() const { return static_cast<qint64>(rows_) * columns_; }
    QModelIndex indexOf(qint64 cell) const; ///< cells are counted row by row
    bool isAt(const QModelIndex& index) const;

    QPointer<QTableView> view_;
    QString text_;
    bool backwards_;
    int rows_;
    int columns_;
    qint64 start_;
    qint64 step_ = 0;
};

} // namespace quillon
