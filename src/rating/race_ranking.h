// The ranking of a race by rating, the lower the better, and the selections that come out of it.
//
// A ranking runs in stages: stage 1 finds S1, stages 2 to 4 find S2 to S4, stage 5 the fifth horse. Each
// later stage first takes the last entry that is worse than all found so far as its seed, then picks among
// those not found yet. How the picks compare with the best so far ("at most", so that the later of equals
// wins, or "below", so that the earlier does) and how many stages run is what the rankings of the system
// differ in.
#pragma once

#include "card/race_card.h"

#include <array>
#include <vector>

namespace quillon {

enum class Pick { atMost, below };

/// A ranking as data.
struct Ranking {
    int stages;
    std::array<Pick, rankedPlaces> pick; ///< by stage, from stage 1; those beyond `stages` don't count
    double start = 99.9;                 ///< what the first pick compares with
};

// clang-format off
/// At the end of a load and after a scratch.
inline constexpr Ranking fullRanking{5, {Pick::atMost, Pick::atMost, Pick::atMost, Pick::below, Pick::below}};
/// After a line taken by number and a driver change; a heat.
inline constexpr Ranking fourStages{4, {Pick::atMost, Pick::atMost, Pick::atMost, Pick::below}};
/// After a line button, and at the start of every line choice.
inline constexpr Ranking strictStages{4, {Pick::below, Pick::below, Pick::below, Pick::below}};
// clang-format on

/// What is ranked, by entry: ratings of a race, or heat ratings. Only the empty text is no rating. Blanks
/// count as 0, but as the best so far they give way to any rating that comes, being no number to compare
/// with. Entry 0 is never ranked; its value counts where a place was not filled yet.
using RatingTexts = std::array<TextView, ratedEntries + 1>;

/// Entries by place: 1 to 4 for S1 to S4, 5 for the fifth horse.
using RankedEntries = std::array<Integer, rankedPlaces + 1>;

/// One comparison of a ranking, for a user who asks why.
struct RankingNote {
    int stage = 0;
    int entry = 0; ///< that was looked at
    int best = 0;  ///< the best so far before it, 0 for none
    bool taken = false;
    bool asSeed = false; ///< it is worse than all found before; the best so far wasn't asked
};
using RankingNotes = std::vector<RankingNote>;

/// The entries by place. A stage that finds nobody leaves the place as it was `before`. Notes, where they are
/// asked for, take up every comparison in order.
RankedEntries ranked(const Ranking& ranking, const RatingTexts& ratings, RankedEntries before,
                     RankingNotes* notes = nullptr);

/// Ranks these values into `card.rankEntry`: for a heat, with `fourStages` and the slot's heat ratings.
void rankValues(const Ranking& ranking, const RatingTexts& ratings);

/// Ranks the entries 1 to 12 of a race by their `rating` into `card.rankEntry`.
void rankRace(int race, const Ranking& ranking);

/// The entry of this race that stands at a place of the last ranking.
RaceEntry& rankedEntry(int race, int place);

/// The driver as a selection names him: right-aligned to 15, a blank, and his rating. On a recalled card,
/// which has no `driverName`, he is the one shown for today.
Text driverText(const RaceEntry& entry);

/// Counts the filled rows of the data view of the cursor's race, ranks it as a load does, and fills its
/// selections. Reads and pads the ranked entries' cells. Resumes at failures.
void RankRace();

/// After a new ranking a selection has its entry's name (cut to 25 characters), driver and rating (width 5).
void renewSelection(Selection& selection, const RaceEntry& entry);

enum class Posts { renewed, kept };

/// The same, with odds and posts, for the places 1 to `last` of the last ranking.
void renewSelections(int race, int last, Posts posts);

} // namespace quillon
