// The program's own input, as the system knows it.
#pragma once

#include <chrono>

namespace quillon {

/// Waits so long for something to be read from the standard input; false when nothing has come. True at its
/// end, and where the system can't tell.
bool waitForStandardInput(std::chrono::milliseconds atMost);

} // namespace quillon
