// The views of the analysis take the place of the race panels, one at a time.
#pragma once

#include "screen/screen.h"

namespace quillon {

/// Shows this view and the way back to the main screen.
void showAnalysisView(bool Screen::*view);

/// Back from an analysis view to the race panels.
void MainScreen();

} // namespace quillon
