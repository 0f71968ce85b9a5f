// The cards of a betting profile: their bets, and the rows of the view that show them. A view may have a
// million cards, so a row is made of its line in the working copy HRA.txt when it is looked at.
#pragma once

#include "analysis/archive_scan.h"
#include "screen/screen.h"
#include "screen/view_columns.h"

#include <span>

namespace quillon {

/// What is bet on each race of a card, whatever the bet type.
constexpr double raceBet = 12;

/// A bet type of the profile. The archive has sums of $2 payoffs; the factor makes one the return of $12
/// spread evenly over the tickets of the bet.
struct ProfileBet {
    ProfileColumn::Number column;
    double factor;
};

// clang-format off
/// In the order of the archive's sums. The last three are the superfectas, whose cards show the plain $2 sums and
/// whose bets count only the races that had a superfecta.
inline constexpr std::array profileBets{
    ProfileBet{ProfileColumn::win,                6},
    ProfileBet{ProfileColumn::place,              6},
    ProfileBet{ProfileColumn::show,               6},
    ProfileBet{ProfileColumn::exacta1With2,       6},
    ProfileBet{ProfileColumn::exactaBox12,        3},
    ProfileBet{ProfileColumn::exacta1With23,      3},
    ProfileBet{ProfileColumn::exactaBox123,       1},
    ProfileBet{ProfileColumn::exactaBox1234,      0.5},
    ProfileBet{ProfileColumn::trifecta1With23,    3},
    ProfileBet{ProfileColumn::trifecta1With234,   1},
    ProfileBet{ProfileColumn::trifectaBox123,     1},
    ProfileBet{ProfileColumn::superfecta1With234, 1},
    ProfileBet{ProfileColumn::superfectaBox1234,  0.25},
    ProfileBet{ProfileColumn::superfecta2With134, 0.5},
};
// clang-format on

inline constexpr std::size_t firstSuperfecta = 11; ///< of the bets before these all races count
static_assert(profileBets.size() == archivePlaces::sums.size());

/// What a card returned on a bet type, and whether that is more than was bet; not asked of superfectas.
inline double returnOf(const ArchivedCard& card, std::size_t bet) {
    return card.sums[bet] * profileBets[bet].factor;
}
inline bool wonItsBets(const ArchivedCard& card, std::size_t bet) {
    return returnOf(card, bet) > card.races * raceBet;
}

/// The cells of a card's row, without those that won.
void fillCard(std::span<Cell> cells, TextView line);

inline FilePlace workingCopy() { return {Folder::working, "HRA.txt"}; }

/// The rows of the cards by their lines in the working copy.
class CardRows {
public:
    /// Adds the copy's next line. An empty one has no row: it is written over the row before it.
    void add(TextView line);

    int count() const { return static_cast<int>(starts_.size()); }

    /// True when the copy begins with an empty line, which is written over the row above the cards.
    bool emptyAhead() const { return emptyAhead_; }

    /// Makes a row of the view; an empty one where the copy can't be read any more.
    void make(int row, std::span<Cell> cells);

private:
    void fill(std::size_t card, std::span<Cell> cells); ///< fails where the copy can't be read

    std::vector<std::uint64_t> starts_; ///< of the cards' lines in the copy
    std::uint64_t end_ = 0;             ///< of the copy
    bool emptyAhead_ = false;
    PiecesAhead copy_{workingCopy()};
};

} // namespace quillon
