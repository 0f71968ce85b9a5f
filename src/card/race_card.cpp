#include "card/race_card.h"

#include "core/failure.h"
#include "core/journal.h"

#include <algorithm>
#include <string>
#include <utility>

namespace quillon {

RaceCard card;
LineCursor cursor;

namespace {

// "race 3, entry 5, line 2" of the cursor, as far as it stands anywhere.
Text placeOnCard() {
    Text place;
    const auto append = [&](const char* name, int index) {
        if (index == 0) return;
        place += place.empty() ? "" : ", ";
        place += name;
        place += ' ';
        place += std::to_string(index);
    };
    append("race", cursor.race);
    append("entry", cursor.entry);
    append("line", cursor.line);
    return place;
}

[[maybe_unused]] const bool placeIsTold = (placeOfFaults = placeOnCard, true);

std::size_t columnAt(int column) {
    if (column < 0 || column >= lineCellColumns) fail("column " + std::to_string(column) + " is no cell's");
    return static_cast<std::size_t>(column);
}

} // namespace

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
    if (entry >= entryExtent) lines_.failOutside({race, entry, line});
    return writeWide(race, entry, line);
}

PastLine& PastLineTable::writeWide(int race, int entry, int line) {
    auto& kept = lines_(race, entry, line);
    if (!kept)
        kept = std::make_shared<PastLine>(isFilled(race, entry, line) ? blankLine_ : PastLine{});
    else if (kept.use_count() > 1)
        kept = std::make_shared<PastLine>(*kept);
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
    auto line = std::make_shared<Line>();
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

} // namespace quillon
