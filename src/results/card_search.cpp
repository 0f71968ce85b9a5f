#include "results/card_search.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "results/on_show.h"
#include "screen/race_views.h"

#include <algorithm>

namespace quillon {

std::vector<CardPlace> placesInCard(TextView text) {
    std::vector<CardPlace> places;
    const Text wanted = upperCase(trimmed(text));
    if (wanted.empty()) return places;
    const int races = std::min<int>(card.raceCount, ratedRaces);
    for (int race = 1; race <= races; ++race)
        for (int row = Grid::firstRow; row <= ratedEntries; ++row) {
            const Text horse = horseIn(race, row);
            if (horse.empty()) continue;
            const auto look = [&](CardPlace::Kind kind, TextView name) {
                if (upperCase(name).find(wanted) != Text::npos)
                    places.push_back({race, row, kind, Text{trimmed(name)}});
            };
            look(CardPlace::Kind::horse, horse);
            look(CardPlace::Kind::driver, raceViewOf(race).text(row, RaceColumn::driver));
            look(CardPlace::Kind::trainer, card.entry[{race, row}].trainerName);
        }
    return places;
}

} // namespace quillon
