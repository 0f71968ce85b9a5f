// Which slots of the store are heats.
#pragma once

namespace quillon {

/// True for a race above the card's last one, and for a slot that a horse was entered in: its button counts
/// as a race's when the selection sheet counts the card's races anew.
bool isHeat(int race);

/// True where one of the race's own selections has a text.
bool hasSelections(int race);

} // namespace quillon
