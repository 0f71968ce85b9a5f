// The files that belong to the open card.
#pragma once

#include "core/files.h"
#include "core/text.h"

namespace quillon {

/// The card's file of one kind: the card's name up to and including its first point, and this extension
/// ("pms"). Fails when no card is open.
FilePlace cardFile(Folder folder, TextView extension);

} // namespace quillon
