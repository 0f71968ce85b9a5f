// A card file read by its places without the store, for those who look through many cards beside the open one.
#pragma once

#include "core/text.h"

#include <vector>

namespace quillon {

/// The texts of a card file, pieces of its content, which must outlive them. What a file that ends early or a
/// damaged line doesn't hold is empty. Races 1 to 23, entries 1 to 12.
class SavedCard {
public:
    explicit SavedCard(TextView content);

    TextView horseName(int race, int entry) const;
    TextView programNumber(int race, int entry) const;
    TextView morningOdds(int race, int entry) const;
    TextView rating(int race, int entry) const;
    TextView outcome(int race, int cell) const; ///< a cell of OutcomeCell, s1 to r4
    TextView payoff(int race, int cell) const;  ///< a cell of PayoffCell

private:
    TextView valueAt(std::size_t line) const;

    std::vector<TextView> lines_;
};

/// Files larger than this hold no card: forty times what a card takes.
constexpr std::size_t largestSavedCard = 8U << 20;

} // namespace quillon
