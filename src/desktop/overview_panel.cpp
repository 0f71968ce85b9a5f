#include "desktop/overview_panel.h"

namespace quillon {

OverviewPanel::OverviewPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {}

void OverviewPanel::refresh() {}

} // namespace quillon
