// How far the top selection of a race stands out, and the bet that it is worth.
#pragma once

#include "core/text.h"

namespace quillon {

/// What S1's rating is below that of S2, cut to four characters as the selection sheet takes it. Fails
/// outside the bounds of the selections.
Text marginOf(int race);

/// The mark of a margin, filled with blanks to nine characters.
TextView betMark(double margin);

} // namespace quillon
