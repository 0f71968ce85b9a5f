#include "desktop/cell_search.h"

#include <QElapsedTimer>

namespace quillon {

CellSearch::CellSearch(QTableView& view, const QString& text, bool backwards, bool fromCurrent)
    : view_{&view}, text_{text},
      backwards_{backwards}, rows_{view.model()->rowCount()}, columns_{view.model()->columnCount()} {
    const QModelIndex current = view.currentIndex();
    start_ = current.isValid() ? static_cast<qint64>(current.row()) * columns_ + current.column()
             : backwards       ? 0
                               : -1;
    if (fromCurrent && current.isValid()) start_ += backwards ? 1 : -1;
}

QModelIndex CellSearch::indexOf(qint64 cell) const {
    return view_->model()->index(static_cast<int>(cell / columns_), static_cast<int>(cell % columns_));
}

bool CellSearch::isAt(const QModelIndex& index) const {
    if (view_->isColumnHidden(index.column()) || view_->isRowHidden(index.row())) return false;
    return index.data().toString().contains(text_, Qt::CaseInsensitive);
}

CellSearch::State CellSearch::lookOn(int milliseconds) {
    constexpr int cellsPerLook = 256; // at the clock
    if (!view_ || view_->model()->rowCount() != rows_ || view_->model()->columnCount() != columns_)
        return State::notThere;
    if (text_.isEmpty()) return State::notThere;
    QElapsedTimer clock;
    clock.start();
    while (step_ < cells()) {
        ++step_;
        const QModelIndex index = indexOf((start_ + (backwards_ ? -step_ : step_) + 2 * cells()) % cells());
        if (isAt(index)) {
            view_->setCurrentIndex(index);
            view_->scrollTo(index);
            return State::found;
        }
        if (step_ % cellsPerLook == 0 && clock.elapsed() >= milliseconds) return State::goesOn;
    }
    return State::notThere;
}

int CellSearch::percent() const { return cells() == 0 ? 100 : static_cast<int>(100 * step_ / cells()); }

} // namespace quillon
