#include "core/race_card.h"

#include "core/fields.h"

namespace quillon {

RaceCard card;
LineCursor cursor;

PastLineTable::PastLineTable() = default;

const PastLine& PastLineTable::read(int race, int entry, int line) const {
    static const PastLine none;
    const auto& kept = lines_(race, entry, line);
    return kept ? *kept : none;
}

PastLine& PastLineTable::write(int race, int entry, int line) {
    auto& kept = lines_(race, entry, line);
    if (!kept) kept = std::make_unique<PastLine>();
    return *kept;
}

bool PastLineTable::has(int race, int entry, int line) const { return lines_(race, entry, line) != nullptr; }

void PastLineTable::clear() { lines_.clear(); }

void RaceCard::clear() {
    forEachField(cardScalars, *this, [](TextView, auto& value) { value = std::decay_t<decltype(value)>{}; });
    starPercentage.clear();
    raceInfo.clear();
    entry.clear();
    pastLine.clear();
    driverTable.clear();
    trainerTable.clear();
    lineCells.clear();
    rankEntry.clear();
    selection.clear();
    raceOutcome.clear();
    payoffRecord.clear();
    pickPayoff.clear();
    pickLegs.clear();
    keyPicks.clear();
    winHeat.clear();
    placeHeat.clear();
    heatPost.clear();
    heatRating.clear();
}

} // namespace quillon
