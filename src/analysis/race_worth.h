// The entries of a race of the open card and what they are worth.
#pragma once

#include "core/text.h"

#include <optional>
#include <vector>

namespace quillon {

struct WorthRow {
    int entry = 0;
    Text programNumber{};
    Text horse{};
    Text morningLine{};
    std::optional<double> rating{};
    std::optional<double> chance{}; ///< none of an entry without a usable rating

    bool operator==(const WorthRow&) const = default;
};

/// The race's entries but for those that the user scratched or removed, with their chances at this scale among
/// those that have a rating. Reads the store; a race that there is not has none.
std::vector<WorthRow> worthOf(int race, double perPoint);

} // namespace quillon
