#include "day/program_and_mine.h"

#include "card/columns.h"

namespace quillon {
namespace {

constexpr std::array selectionCells{OutcomeCell::s1, OutcomeCell::s2, OutcomeCell::s3, OutcomeCell::s4,
                                    OutcomeCell::fifth};
static_assert(selectionCells.size() == rankedPlaces);

PlacedHorse placedHorse(const RaceCard& card, int race, int cell) {
    PlacedHorse placed{.programNumber = Text{trimmed(card.raceOutcome[{race, cell}])}};
    if (placed.programNumber.empty()) return placed;
    for (int index = 1; index <= ratedEntries; ++index) {
        const RaceEntry& entry = card.entry[{race, index}];
        if (trimmed(entry.programNumber) != placed.programNumber) continue;
        placed.horse = Text{trimmed(entry.horseName)};
        placed.rating = Text{trimmed(entry.rating)};
        break;
    }
    return placed;
}

} // namespace

std::array<ComparedPlace, rankedPlaces> programAndMine(const RaceCard& loaded, const RaceCard& now,
                                                       int race) {
    std::array<ComparedPlace, rankedPlaces> places;
    if (race < 1 || race > ratedRaces) return places;
    for (std::size_t at = 0; at < places.size(); ++at)
        places[at] = {placedHorse(loaded, race, selectionCells[at]),
                      placedHorse(now, race, selectionCells[at])};
    return places;
}

} // namespace quillon
