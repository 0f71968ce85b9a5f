// The views of the analysis take the place of the race panels, one at a time.
#pragma once

#include "card/columns.h"
#include "screen/screen.h"

#include <span>

namespace quillon {

/// Shows this view and the way back to the main screen.
void showAnalysisView(bool Screen::*view);

/// Empties a view: so many rows below its heads.
void layOut(Grid& view, int rows, std::span<const ViewColumn> columns);

/// Back from an analysis view to the race panels.
void MainScreen();

} // namespace quillon
