// `show notes NAME`: what was noted on a horse, driver or trainer.
#pragma once

#include "console/transcript.h"
#include "core/text.h"

namespace quillon {

/// Prints a line a note, in the order of the file: date, tab, card, tab, text. A usage line without a name.
void showNotes(TextView name, Transcript& transcript);

} // namespace quillon
