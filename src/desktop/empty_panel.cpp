#include "desktop/empty_panel.h"

namespace quillon {

EmptyPanel::EmptyPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {}

void EmptyPanel::refresh() {}

} // namespace quillon
