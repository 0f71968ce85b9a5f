#include "desktop/race_list_panel.h"

namespace quillon {

RaceListPanel::RaceListPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {}

void RaceListPanel::refresh() {}

} // namespace quillon
