#include "results/card_search.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "results/card_notes.h"
#include "results/on_show.h"
#include "screen/race_views.h"

#include <algorithm>

namespace quillon {
namespace {

using Kind = CardPlace::Kind;

class Search {
public:
    explicit Search(Text wanted) : wanted_(std::move(wanted)) {}

    void look(int race, int row, Kind kind, TextView text) {
        if (upperCase(text).find(wanted_) == Text::npos) return;
        CardPlace place{race, row, kind, Text{trimmed(text)}};
        const auto before = std::find_if(places_.rbegin(), places_.rend(), [&](const CardPlace& other) {
            return other.race != race || other.row != row;
        });
        // Two notes of the same words are one place to go to.
        if (std::find(places_.rbegin(), before, place) == before) places_.push_back(std::move(place));
    }

    void lookInNotes(int race, int row, const std::vector<NoteLine>& found) {
        for (const NoteLine& note : found) look(race, row, Kind::note, note.text);
    }

    std::vector<CardPlace> places() { return std::move(places_); }

private:
    Text wanted_; ///< in capitals
    std::vector<CardPlace> places_;
};

void lookAtRace(Search& search, int race) {
    bool isFirst = true;
    for (int row = Grid::firstRow; row <= ratedEntries; ++row) {
        const Text horse = horseIn(race, row);
        if (horse.empty()) continue;
        if (isFirst) search.lookInNotes(race, row, notes.onRace(race));
        isFirst = false;
        search.look(race, row, Kind::horse, horse);
        search.look(race, row, Kind::driver, raceViewOf(race).text(row, RaceColumn::driver));
        search.look(race, row, Kind::trainer, card.entry[{race, row}].trainerName);
        search.lookInNotes(race, row, notesOnEntry(race, row));
    }
}

} // namespace

std::vector<CardPlace> placesInCard(TextView text) {
    const Text wanted = upperCase(trimmed(text));
    if (wanted.empty()) return {};
    notes.takeUp();
    Search search{wanted};
    const int races = std::min<int>(card.raceCount, ratedRaces);
    for (int race = 1; race <= races; ++race) lookAtRace(search, race);
    return search.places();
}

} // namespace quillon
