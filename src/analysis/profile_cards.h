// The cards of a betting profile: their bets, and the rows of the view that show them. A view may have a
// million cards, so a row is made of its line in the working copy HRA.txt when it is looked at.
#pragma once

#include "analysis/archive_scan.h"
#include "screen/screen.h"

#include <span>

namespace quillon {

constexpr int profileColumns = 21;

namespace profileRow {
constexpr int heads = 0;
constexpr int winAmount = 2;
constexpr int adjustedWin = 3;
constexpr int totalBet = 4;
constexpr int netProfit = 5;
constexpr int roi = 6;
constexpr int winningCards = 8;
constexpr int counts = 9;
constexpr int percentages = 10;
constexpr int firstCard = 11;
} // namespace profileRow

namespace profileColumn {
constexpr int card = 0; ///< its key; the labels of the rows above the cards
constexpr int races = 1;
constexpr int firstWins = 2; ///< of S1, then S2 to S4
constexpr int superfectaRaces = 20;
} // namespace profileColumn

/// What is bet on each race of a card, whatever the bet type.
constexpr double raceBet = 12;

/// A bet type of the profile. The archive has sums of $2 payoffs; the factor makes one the return of $12
/// spread evenly over the tickets of the bet.
struct ProfileBet {
    int column;
    TextView head;
    double factor;
};

// clang-format off
/// In the order of the archive's sums. The last three are the superfectas, whose cards show the plain $2 sums and
/// whose bets count only the races that had a superfecta.
inline constexpr std::array profileBets{
    ProfileBet{ 6, "Win",      6},
    ProfileBet{ 7, "Place",    6},
    ProfileBet{ 8, "Show",     6},
    ProfileBet{ 9, "E1/2",     6},
    ProfileBet{10, "E1-2",     3},
    ProfileBet{11, "E1/2-3",   3},
    ProfileBet{12, "E1-2-3",   1},
    ProfileBet{13, "E1-2-3-4", 0.5},
    ProfileBet{14, "T1/2-3",   3},
    ProfileBet{15, "T1/2-3-4", 1},
    ProfileBet{16, "T1-2-3",   1},
    ProfileBet{17, "S1/2-3-4", 1},
    ProfileBet{19, "S1-2-3-4", 0.25},
    ProfileBet{18, "S2-1/3-4", 0.5},
};
// clang-format on

inline constexpr std::size_t firstSuperfecta = 11; ///< of the bets in front all races count
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
    std::vector<std::uint64_t> starts_; ///< of the cards' lines in the copy
    std::uint64_t end_ = 0;             ///< of the copy
    bool emptyAhead_ = false;
    PiecesAhead copy_{workingCopy()};
};

} // namespace quillon
