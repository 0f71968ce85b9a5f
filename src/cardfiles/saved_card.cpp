#include "cardfiles/saved_card.h"

#include "card/columns.h"
#include "card/fields.h"
#include "cardfiles/card_file.h"
#include "core/files.h"

#include <tuple>
#include <type_traits>

namespace quillon {
namespace {

// The place of a field among an entry's values, counted from 0.
template <class Value>
constexpr std::size_t placeOfField(Value RaceEntry::*member) {
    std::size_t place = 0;
    const auto look = [&](const auto& field) {
        if constexpr (std::is_same_v<decltype(field.member), Value RaceEntry::*>)
            if (field.member == member) place = static_cast<std::size_t>(field.places.fileValue) - 1;
    };
    std::apply([&](const auto&... field) { (look(field), ...); }, raceEntryFields);
    return place;
}

constexpr std::size_t namePlace = placeOfField(&RaceEntry::horseName);
constexpr std::size_t numberPlace = placeOfField(&RaceEntry::programNumber);
constexpr std::size_t oddsPlace = placeOfField(&RaceEntry::morningOdds);
constexpr std::size_t ratingPlace = placeOfField(&RaceEntry::rating);

constexpr std::size_t valuesOfEntry = 44;
constexpr std::size_t outcomesOfRace = OutcomeCell::r4;
constexpr std::size_t payoffsOfRace = PayoffCell::last;
constexpr std::size_t selectionValuesOfRace = 16;
constexpr std::size_t outcomesBegin = ratedRaces * ratedEntries * valuesOfEntry;
constexpr std::size_t payoffsBegin = outcomesBegin + ratedRaces * outcomesOfRace;
static_assert(payoffsBegin + ratedRaces * (payoffsOfRace + selectionValuesOfRace) == cardFileLines);

std::size_t entryBegin(int race, int entry) {
    return static_cast<std::size_t>((race - 1) * ratedEntries + entry - 1) * valuesOfEntry;
}

// Of a block with so many values a race.
std::size_t placeIn(std::size_t block, std::size_t values, int race, int cell) {
    return block + static_cast<std::size_t>(race - 1) * values + static_cast<std::size_t>(cell - 1);
}

} // namespace

SavedCard::SavedCard(TextView content) {
    constexpr std::size_t lastNeeded = payoffsBegin + ratedRaces * payoffsOfRace;
    lines_.reserve(lastNeeded);
    LineReader reader{content};
    while (lines_.size() < lastNeeded) {
        const auto line = reader.next();
        if (!line) break;
        lines_.push_back(*line);
    }
}

TextView SavedCard::valueAt(std::size_t line) const {
    if (line >= lines_.size()) return {};
    const TextView text = lines_[line];
    if (!text.starts_with('"')) return text;
    return text.size() < 2 || !text.ends_with('"') ? TextView{} : text.substr(1, text.size() - 2);
}

TextView SavedCard::horseName(int race, int entry) const {
    return valueAt(entryBegin(race, entry) + namePlace);
}

TextView SavedCard::programNumber(int race, int entry) const {
    return valueAt(entryBegin(race, entry) + numberPlace);
}

TextView SavedCard::morningOdds(int race, int entry) const {
    return valueAt(entryBegin(race, entry) + oddsPlace);
}

TextView SavedCard::rating(int race, int entry) const {
    return valueAt(entryBegin(race, entry) + ratingPlace);
}

TextView SavedCard::outcome(int race, int cell) const {
    return valueAt(placeIn(outcomesBegin, outcomesOfRace, race, cell));
}

TextView SavedCard::payoff(int race, int cell) const {
    return valueAt(placeIn(payoffsBegin, payoffsOfRace, race, cell));
}

} // namespace quillon
