#include "desktop/changes_dock.h"

#include "desktop/cell_table_view.h"
#include "desktop/changes_panel.h"

#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

namespace quillon {

ChangesDock::ChangesDock(CommandRunner& runner, Appearance& appearance, QMainWindow& window)
    : QDockWidget{tr("Changes"), &window},
      appearance_{appearance}, window_{window}, panel_{new ChangesPanel{runner, appearance, this}} {
    setObjectName("ChangesDock");
    setWidget(panel_);
    window_.addDockWidget(Qt::RightDockWidgetArea, this);
    hide();
}

void ChangesDock::refresh() { panel_->refresh(); }

void ChangesDock::open(bool wanted) {
    constexpr int roomForBoth = 22000; // twips
    if (wanted) setFloating(window_.width() < appearance_.pixels(roomForBoth));
    if (wanted && isFloating()) putBeside();
    setVisible(wanted);
    if (wanted) panel_->setFocus();
}

// Right of the window where the desktop has room, else over its lower right corner, where the past lines are.
void ChangesDock::putBeside() {
    const QRect desktop = window_.screen()->availableGeometry();
    const QRect window = window_.frameGeometry();
    const QSize size = sizeHint();
    const int right = std::min(window.right() + 1, desktop.right() - size.width());
    const bool covers = right <= window.right();
    const int top = covers ? window.bottom() - size.height() : window.top();
    setGeometry(QRect{QPoint{right, std::max(top, desktop.top())}, size});
}

void ChangesDock::leaveKeyTo(CellTableView& table) { table.installEventFilter(this); }

bool ChangesDock::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) return QDockWidget::eventFilter(watched, event);
    const auto* table = qobject_cast<CellTableView*>(watched);
    const bool isEdit = static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2;
    if (isEdit && table && table->currentIndex().flags() & Qt::ItemIsEditable) event->accept();
    return QDockWidget::eventFilter(watched, event);
}

} // namespace quillon
