#include "desktop/stars_window.h"

namespace quillon {

StarsWindow::StarsWindow(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent, Qt::Window}, runner_{runner}, appearance_{appearance} {}

void StarsWindow::refresh() {}

} // namespace quillon
