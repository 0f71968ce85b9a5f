#include "card/race_card.h"

#include "card/fields.h"
#include "core/failure.h"

#include <algorithm>
#include <string>
#include <utility>

namespace quillon {

RaceCard card;
LineCursor cursor;

namespace {

std::size_t columnAt(int column) {
    if (column < 0 || column >= lineCellColumns) fail("column " + std::to_string(column) + " is no cell's");
    return static_cast<std::size_t>(column);
}

} // namespace

PastLineTable::PastLineTable() = default;

bool PastLineTable::isFilled(int race, int entry, int line) const {
    const bool rated = race >= 1 && race <= ratedRaces && entry >= 1 && entry <= ratedEntries;
    return rated && line < filledLines_;
}

const PastLine& PastLineTable::read(int race, int entry, int line) const {
    static const PastLine none;
    if (const auto& kept = lines_(race, entry, line)) return *kept;
    return isFilled(race, entry, line) ? blankLine_ : none;
}

PastLine& PastLineTable::write(int race, int entry, int line) {
    if (entry >= entryExtent) fail("entry " + std::to_string(entry) + " has no past lines");
    return writeWide(race, entry, line);
}

PastLine& PastLineTable::writeWide(int race, int entry, int line) {
    auto& kept = lines_(race, entry, line);
    if (!kept) {
        kept = std::make_unique<PastLine>();
        if (isFilled(race, entry, line)) *kept = blankLine_;
    }
    return *kept;
}

bool PastLineTable::has(int race, int entry, int line) const { return lines_(race, entry, line) != nullptr; }

void PastLineTable::fillRatedEntries(int lines, const PastLine& blankLine) {
    blankLine_ = blankLine;
    filledLines_ = lines;
}

void PastLineTable::clear() {
    lines_.clear();
    filledLines_ = 0;
}

TextView LineCellTable::read(int lineNumber, int column) const {
    const std::size_t at = columnAt(column);
    const auto& line = lines_(lineNumber);
    if (!line) return {};
    const std::size_t begin = at == 0 ? 0 : line->ends[at - 1];
    return TextView{line->joined}.substr(begin, line->ends[at] - begin);
}

void LineCellTable::writeLine(int lineNumber, std::span<const TextView, lineCellColumns> cells) {
    auto line = std::make_unique<Line>();
    std::size_t length = 0;
    for (const TextView cell : cells) length += cell.size();
    line->joined.resize(length);
    char* end = line->joined.data();
    for (std::size_t at = 0; at < cells.size(); ++at) {
        end = std::copy(cells[at].begin(), cells[at].end(), end);
        line->ends[at] = static_cast<std::uint32_t>(end - line->joined.data());
    }
    lines_(lineNumber) = std::move(line);
}

void LineCellTable::clear() { lines_.clear(); }

void RaceCard::clear() {
    forEachField(cardScalars, *this, [](TextView, auto& value) { value = std::decay_t<decltype(value)>{}; });
    unreadFile.clear();
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
