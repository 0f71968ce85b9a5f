// `show store`: every field of the store that is neither empty nor 0.
#pragma once

#include "console/transcript.h"

namespace quillon {

/// Prints a line a field: name, tab, value; the card's own fields first, then table by table.
void showStore(Transcript& transcript);

} // namespace quillon
