#include "desktop/board_panel.h"

namespace quillon {

BoardPanel::BoardPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {}

void BoardPanel::refresh() {}

} // namespace quillon
