#include "desktop/side_dock.h"

#include <QScreen>

#include <algorithm>

namespace quillon {

SideDock::SideDock(const QString& title, const char* name, Appearance& appearance, QMainWindow& window)
    : QDockWidget{title, &window}, appearance_{appearance}, window_{window} {
    setObjectName(name);
    window_.addDockWidget(Qt::RightDockWidgetArea, this);
    hide();
}

void SideDock::open(bool wanted) {
    constexpr int roomForBoth = 22000; // twips
    if (wanted) setFloating(window_.width() < appearance_.pixels(roomForBoth));
    if (wanted && isFloating()) putBeside();
    setVisible(wanted);
    if (wanted && widget()) widget()->setFocus();
}

// Right of the window where the desktop has room, else over its lower right corner, where the past lines are.
void SideDock::putBeside() {
    const QRect desktop = window_.screen()->availableGeometry();
    const QRect window = window_.frameGeometry();
    const QSize size = sizeHint();
    const int right = std::min(window.right() + 1, desktop.right() - size.width());
    const bool covers = right <= window.right();
    const int top = covers ? window.bottom() - size.height() : window.top();
    setGeometry(QRect{QPoint{right, std::max(top, desktop.top())}, size});
}

} // namespace quillon
