#include "analysis/analysis_view.h"

namespace quillon {

void showAnalysisView(bool Screen::*view) {
    for (bool Screen::*const other : {&Screen::summaryVisible, &Screen::profileVisible,
                                      &Screen::tracksVisible, &Screen::picksVisible, &Screen::starsVisible})
        screen.*other = other == view;
    screen.racePanelsVisible = false;
    screen.item(MenuItem::MainScreen).visible = true;
}

} // namespace quillon
