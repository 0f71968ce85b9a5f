#include "desktop/why_pointer.h"

#include "desktop/cell_table_view.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

#include <utility>

namespace quillon {

WhyPointer::WhyPointer(CellTableView& table, int ratingColumn, TargetOf targetOf)
    : QObject{&table}, table_{table}, ratingColumn_{ratingColumn}, targetOf_{std::move(targetOf)} {
    table_.installEventFilter(this);
    table_.viewport()->installEventFilter(this);
    connect(table_.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& cell) {
                if (std::exchange(toldBySpace_, false)) QToolTip::hideText();
                if (const auto target = targetOf_(table_.tableRow(cell))) emit pointedAt(*target);
            });
}

bool WhyPointer::isRating(const QModelIndex& cell) const {
    return cell.isValid() && table_.cells().tableColumn(cell) == ratingColumn_;
}

QString WhyPointer::tipOf(const QModelIndex& cell) const {
    if (!isRating(cell)) return {};
    const auto target = targetOf_(table_.tableRow(cell));
    return target ? whyTip(*target) : QString{};
}

// A tip goes when the mouse moves on; one that Space brought goes with the current cell, too.
void WhyPointer::tellAt(const QModelIndex& cell, const QPoint& place) {
    QToolTip::showText(place, tipOf(cell), table_.viewport(), table_.visualRect(cell));
}

// The kind of event is asked first: others come while the table is taken apart, which has no viewport then.
bool WhyPointer::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip && watched == table_.viewport()) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex cell = table_.indexAt(help->pos());
        if (!isRating(cell)) return false;
        tellAt(cell, help->globalPos());
        return true;
    }
    if (event->type() == QEvent::KeyPress && watched == &table_) {
        const auto* press = static_cast<QKeyEvent*>(event);
        const QModelIndex cell = table_.currentIndex();
        if (press->key() != Qt::Key_Space || press->modifiers() != Qt::NoModifier || !isRating(cell))
            return false;
        const QRect place = table_.visualRect(cell);
        tellAt(cell, table_.viewport()->mapToGlobal(place.bottomLeft()));
        toldBySpace_ = true;
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillon
