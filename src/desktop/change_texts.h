// A change of the card in words, as the window shows it.
#pragma once

#include "day/changes.h"

#include <QString>

namespace quillon {

/// "Race 1: 5 Oughta Be Famous scratched, S1 5 -> 7", with a real arrow.
QString wordsOf(const Change& change);

} // namespace quillon
