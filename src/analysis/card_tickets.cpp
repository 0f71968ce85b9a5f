#include "analysis/card_tickets.h"

#include "card/race_card.h"
#include "reports/pick_sheet.h"
#include "results/entry_marks.h"

#include <algorithm>

namespace quillon {

Field fieldOf(int race) {
    Field field;
    if (race < 1 || race > ratedRaces) return field;
    for (int at = 1; at <= ratedEntries; ++at) {
        const RaceEntry& entry = card.entry[{race, at}];
        const TextView number = trimmed(entry.programNumber);
        if (!number.empty() && !trimmed(entry.horseName).empty())
            field.push_back({Text{number}, entryMarks(race, at).isOut()});
    }
    return field;
}

std::vector<Field> fieldsOf(Pool pool, int race) {
    const PoolRow& row = rowOf(pool);
    std::vector<Field> fields{fieldOf(race)};
    if (fields.front().empty()) return {};
    for (int leg = 1; row.overRaces && leg < row.sets; ++leg) fields.push_back(fieldOf(race + leg));
    return fields;
}

std::vector<CardTicket> sheetTickets(std::int64_t stake) {
    std::vector<CardTicket> tickets;
    for (SheetTicket& sheet : pickSheetTickets()) {
        const auto row = std::find_if(pools.begin(), pools.end(), [&](const PoolRow& pool) {
            return pool.overRaces == sheet.overRaces && pool.sets == static_cast<int>(sheet.sets.size());
        });
        if (row == pools.end()) continue;
        tickets.push_back({sheet.race, {.pool = row->pool, .sets = std::move(sheet.sets), .stake = stake}});
    }
    return tickets;
}

} // namespace quillon
