#include "desktop/analysis_panel.h"

namespace quillon {

AnalysisPanel::AnalysisPanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {}

void AnalysisPanel::refresh() {}

} // namespace quillon
