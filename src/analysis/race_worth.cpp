#include "analysis/race_worth.h"

#include "analysis/saved_races.h"
#include "card/race_card.h"
#include "results/entry_marks.h"

namespace quillon {

std::vector<WorthRow> worthOf(int race, double perPoint) {
    std::vector<WorthRow> rows;
    if (race < 1 || race > ratedRaces) return rows;
    std::vector<double> ratings;
    for (int at = 1; at <= ratedEntries; ++at) {
        const RaceEntry& entry = card.entry[{race, at}];
        if (trimmed(entry.horseName).empty() || entryMarks(race, at).isOut()) continue;
        rows.push_back({.entry = at,
                        .programNumber = Text{trimmed(entry.programNumber)},
                        .horse = Text{trimmed(entry.horseName)},
                        .morningLine = Text{trimmed(entry.morningOdds)},
                        .rating = usableRating(entry.rating)});
        if (rows.back().rating) ratings.push_back(*rows.back().rating);
    }
    const auto chances = chancesOf(ratings, perPoint);
    auto next = chances.begin();
    for (WorthRow& row : rows)
        if (row.rating) row.chance = *next++;
    return rows;
}

} // namespace quillon
