// The archive of recorded cards: a line a card in "HRA.ini", and a line a race in "Stars5.ini" under a
// heading for each card. Both files lie in the working folder and only grow; their lines are read by place.
#pragma once

#include "core/text.h"

namespace quillon {

/// The key that a card's archive line begins with: the card's name without its four-character extension,
/// right-aligned in 14 places, so that the track ends at place 5 and the date stands at places 7 to 14. Fails
/// for a name of fewer than four characters.
Text archiveKey(TextView cardFileName);

/// Whether "HRA.ini" has a line of this card. Fails as archiveKey() does.
bool isArchived(TextView cardFileName);

/// Appends the card's totals, as the summary shows them, to "HRA.ini" and its races to "Stars5.ini". `Record`
/// is unavailable as soon as the card's line is written. Stops at a failure; what was appended stays.
void Record();

} // namespace quillon
