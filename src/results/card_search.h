// Looking for a horse, a driver or a trainer in all races of the card.
#pragma once

#include "core/text.h"

#include <vector>

namespace quillon {

struct CardPlace {
    enum class Kind { horse, driver, trainer, note };
    int race = 0;
    int row = 0; ///< of the race view
    Kind kind = Kind::horse;
    Text text{}; ///< the name that holds what was looked for; of a note its words
    bool operator==(const CardPlace&) const = default;
};

/// Where names and notes hold this text, whatever its case: race by race, row by row, in each the horse before its
/// driver and its trainer, and then the notes on them; those on a race are with its first horse. None for a text of
/// blanks.
std::vector<CardPlace> placesInCard(TextView text);

} // namespace quillon
