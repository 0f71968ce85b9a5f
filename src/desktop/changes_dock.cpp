#include "desktop/changes_dock.h"

#include "desktop/cell_table_view.h"
#include "desktop/changes_panel.h"

#include <QKeyEvent>

namespace quillon {

ChangesDock::ChangesDock(CommandRunner& runner, Appearance& appearance, QMainWindow& window)
    : SideDock{tr("Changes"), "ChangesDock", appearance, window}, panel_{new ChangesPanel{runner, appearance,
                                                                                          this}} {
    setWidget(panel_);
}

void ChangesDock::refresh() { panel_->refresh(); }

void ChangesDock::leaveKeyTo(CellTableView& table) { table.installEventFilter(this); }

bool ChangesDock::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) return QDockWidget::eventFilter(watched, event);
    const auto* table = qobject_cast<CellTableView*>(watched);
    const bool isEdit = static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2;
    if (isEdit && table && table->currentIndex().flags() & Qt::ItemIsEditable) event->accept();
    return QDockWidget::eventFilter(watched, event);
}

} // namespace quillon
