#include "results/heat_slots.h"

#include "card/columns.h"
#include "card/race_card.h"

namespace quillon {

bool isHeat(int race) {
    if (race > card.raceCount) return true;
    for (int entry = 1; entry < entryExtent; ++entry)
        if (card.heatPost(race, entry) > 0) return true;
    return false;
}

bool hasSelections(int race) {
    for (int cell = OutcomeCell::s1; cell <= OutcomeCell::s4; ++cell)
        if (!card.raceOutcome(race, cell).empty()) return true;
    return false;
}

} // namespace quillon
