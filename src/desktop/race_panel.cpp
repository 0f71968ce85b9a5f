#include "desktop/race_panel.h"

namespace quillon {

RacePanel::RacePanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {}

void RacePanel::refresh() {}

} // namespace quillon
