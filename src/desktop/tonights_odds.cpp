#include "desktop/tonights_odds.h"

namespace quillon {

Text OddsInMemory::odds(const OddsPlace& place) const {
    const auto found = odds_.find(place);
    return found == odds_.end() ? Text{} : found->second;
}

void OddsInMemory::keep(const OddsPlace& place, const Text& odds) { odds_[place] = odds; }

} // namespace quillon
