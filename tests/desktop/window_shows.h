// Whether the window shows what the screen holds: texts, colours, and what can be seen and pressed.
#pragma once

#include "desktop/main_window.h"

#include <QString>

#include <vector>

namespace quillon {

/// What the window shows otherwise than the screen has it, a line each. Boxes that are being typed in are
/// left out: their texts are handed in with the next command.
std::vector<std::string> differencesFromScreen(MainWindow& window);

/// Fails the test with all of them.
void expectShowsScreen(MainWindow& window);

} // namespace quillon
