// Bringing a saved card back from its two files, without the tables it was loaded from.
#pragma once

#include "core/text.h"

namespace quillon {

/// Turns recall mode on and shows the list of saved cards.
void RecallRaceCard();

/// Picks a saved card: reads its files, shows its races and heads the screen with race 1. Nothing on disk
/// changes. Resumes at failures: of a missing or damaged file what can be read is read.
void ChooseFile(const Text& fileName);

/// Shows the card in the store: race buttons, race views, race 1 in heading and board. Resumes at failures.
void Recall();

} // namespace quillon
