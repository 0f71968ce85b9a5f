// What the open card offers to tickets: who runs in its races, and the tickets of its pick sheet.
#pragma once

#include "analysis/tickets.h"

#include <vector>

namespace quillon {

/// Everyone on the program of a race, with those taken out; nobody of a race that there is not.
Field fieldOf(int race);

/// The fields of a ticket's sets: of its race, or of its legs from this race on. None where the race has nobody.
std::vector<Field> fieldsOf(Pool pool, int race);

/// A ticket on a race, or from it on.
struct CardTicket {
    int race = 0;
    Ticket ticket{};

    bool operator==(const CardTicket&) const = default;
};

/// The tickets of the pick sheet at this stake in cents.
std::vector<CardTicket> sheetTickets(std::int64_t stake);

} // namespace quillon
