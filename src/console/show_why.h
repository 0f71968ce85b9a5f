// `show why` and `show whyline`: how a past line came to its rating, and what the line selection made of each.
#pragma once

#include "console/transcript.h"
#include "core/text.h"

namespace quillon {

/// Prints what the words name, "why 1 5 1" or "whyline 1 5", or a usage line. False where they name neither.
bool showWhy(TextView words, Transcript& transcript);

} // namespace quillon
