// The open card in words.
#pragma once

#include "core/text.h"

#include <QString>

namespace quillon {

/// "MVR, Saturday 14 March 2026"; the file's name where it tells no day.
QString cardTitle();
QString cardTitle(TextView fileName);

/// Races whose results were read and whose boards were not taken in since, and what that means.
int boardsPending();
QString pendingWords(int boards);

/// Races of the card that have a finish.
int racesWithResults();

} // namespace quillon
