#include "desktop/past_lines_panel.h"

namespace quillon {

PastLinesPanel::PastLinesPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {}

void PastLinesPanel::refresh() {}

} // namespace quillon
