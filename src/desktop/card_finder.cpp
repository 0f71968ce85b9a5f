#include "desktop/card_finder.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "desktop/shown_text.h"
#include "results/board.h"
#include "results/on_show.h"
#include "results/race_display.h"
#include "screen/race_views.h"

#include <algorithm>

namespace quillon {
namespace {

// The first place of a new search, or the one after the last that was shown.
std::size_t nextOf(const std::vector<CardPlace>& places, const std::optional<CardPlace>& last,
                   bool backwards) {
    const auto known = last ? std::find(places.begin(), places.end(), *last) : places.end();
    if (known != places.end()) {
        const auto at = static_cast<std::size_t>(known - places.begin());
        return (at + (backwards ? places.size() - 1 : 1)) % places.size();
    }
    const auto first = std::find_if(places.begin(), places.end(),
                                    [](const CardPlace& place) { return place.race >= raceViewOnShow(); });
    return first == places.end() ? 0 : static_cast<std::size_t>(first - places.begin());
}

QString inWords(const CardPlace& place) {
    const QString number = shown(trimmed(raceViewOf(place.race).text(place.row, RaceColumn::programNumber)));
    const QString horse = shown(horseIn(place.race, place.row));
    const QString entry = CardFinder::tr("Race %1, %2 %3").arg(place.race).arg(number, horse);
    switch (place.kind) {
    case CardPlace::Kind::driver: return CardFinder::tr("%1: driver %2").arg(entry, shown(place.text));
    case CardPlace::Kind::trainer: return CardFinder::tr("%1: trainer %2").arg(entry, shown(place.text));
    case CardPlace::Kind::note: return CardFinder::tr("%1: note \"%2\"").arg(entry, shown(place.text));
    case CardPlace::Kind::horse: break;
    }
    return entry;
}

} // namespace

// The buttons end before the last races, and the arrows go on from there.
bool CardFinder::show(int race) {
    if (raceOnShow() != race &&
        !runner_.run(CommandId::RaceButton, numberArgument(std::min(race, lastButtonRace))))
        return false;
    while (raceOnShow() < race)
        if (const int before = raceOnShow(); !runner_.run(CommandId::Next) || raceOnShow() == before)
            return false;
    return raceOnShow() == race;
}

QString CardFinder::find(const QString& text, bool backwards) {
    const std::vector<CardPlace> places = placesInCard(typed(text));
    if (places.empty()) return {};
    if (text != text_) last_.reset();
    text_ = text;
    const std::size_t at = nextOf(places, last_, backwards);
    const CardPlace& place = places[at];
    last_ = place;
    if (!show(place.race)) return {};
    emit reached(place.row,
                 place.kind == CardPlace::Kind::driver ? RaceColumn::driver : RaceColumn::horseName);
    return tr("%1 (%2 of %3)").arg(inWords(place)).arg(at + 1).arg(places.size());
}

} // namespace quillon
