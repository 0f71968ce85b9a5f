// What the cards of a betting profile add up to, and the figures that are shown of it: values in, values out.
#pragma once

#include "analysis/profile_cards.h"

#include <array>
#include <optional>

namespace quillon {

/// The superfectas' account when a card was read: it has the races of that card, but not yet its returns.
struct SuperfectaAccount {
    std::array<double, profileBets.size() - firstSuperfecta> sums{};
    double races = 0;
};

/// The running sums over the cards, in the order of the working copy.
struct ProfileTotals {
    int lines = 0;
    ArchivedCard card{}; ///< all cards as if they were one
    std::array<int, firstSuperfecta> winningCards{};
    SuperfectaAccount account{};
    SuperfectaAccount dividedAccount{}; ///< the last one that had a race to divide by

    void add(const ArchivedCard& next);
};

/// A bet's cells in the rows of the totals; nothing for a cell that stays empty.
struct BetFigures {
    std::optional<Text> winAmount{};
    std::optional<Text> adjustedWin{};
    std::optional<Text> totalBet{};
    std::optional<Text> netProfit{};
    std::optional<Text> roi{};
    std::optional<Text> winningCards{};
};

/// The figures of one of the profile's bets.
BetFigures betFigures(const ProfileTotals& totals, std::size_t bet);

/// Wins of S1 to S4 in per cent of all races, and after them the sum of the percentages as shown.
std::array<Text, archivePlaces::wins.size() + 1> winPercentages(const ArchivedCard& card);

} // namespace quillon
