#include "analysis/tickets.h"

#include "analysis/fair_odds.h"

#include <algorithm>
#include <bitset>
#include <span>

namespace quillon {
namespace {

using Horses = std::bitset<100>; // by the number that they are bet under

bool runs(const Field& field, TextView number) {
    bool known = false;
    for (const Runner& runner : field) {
        if (bettingNumber(runner.programNumber) != bettingNumber(number)) continue;
        if (!runner.scratched) return true; // a coupled entry runs on for both
        known = true;
    }
    return !known;
}

const Field* fieldOf(const std::vector<Field>& fields, std::size_t set) {
    return fields.empty() ? nullptr : &fields[std::min(set, fields.size() - 1)];
}

Horses runningOf(const Numbers& numbers, std::size_t set, const std::vector<Field>& fields,
                 std::vector<DroppedNumber>& dropped) {
    Horses horses;
    const Field* const field = fieldOf(fields, set);
    for (const Text& number : numbers) {
        const int horse = bettingNumber(number);
        if (horse == 0) continue;
        if (field && !runs(*field, number))
            dropped.push_back({set, number});
        else
            horses.set(static_cast<std::size_t>(horse));
    }
    return horses;
}

// The ways to fill the places in turn, no horse twice.
std::int64_t orders(std::span<const Horses> places, const Horses& used) {
    const Horses free = places.front() & ~used;
    if (places.size() == 1) return static_cast<std::int64_t>(free.count());
    std::int64_t ways = 0;
    for (std::size_t horse = 1; horse < free.size(); ++horse)
        if (free[horse]) ways += orders(places.subspan(1), Horses{used}.set(horse));
    return ways;
}

// n (n - 1) (n - 2) ...
std::int64_t boxOrders(std::int64_t horses, int places) {
    std::int64_t ways = 1;
    for (int place = 0; place < places; ++place) ways *= std::max<std::int64_t>(horses - place, 0);
    return ways;
}

std::int64_t product(std::span<const Horses> legs) {
    std::int64_t ways = 1;
    for (const Horses& leg : legs) ways *= static_cast<std::int64_t>(leg.count());
    return ways;
}

bool areAlike(std::span<const Horses> places) {
    return std::all_of(places.begin(), places.end(),
                       [&](const Horses& place) { return place == places.front(); });
}

} // namespace

TicketCost costOf(const Ticket& ticket, const std::vector<Field>& fields) {
    TicketCost cost;
    std::vector<Horses> sets;
    for (std::size_t set = 0; set < ticket.sets.size(); ++set)
        sets.push_back(runningOf(ticket.sets[set], set, fields, cost.scratched));
    if (sets.size() != setsOf(ticket.pool, ticket.boxed)) return cost;
    const PoolRow& pool = rowOf(ticket.pool);
    if (pool.overRaces)
        cost.combinations = product(sets);
    else if (areAlike(sets)) // a box has one set, and a ticket of everyone everywhere is counted at once
        cost.combinations = boxOrders(static_cast<std::int64_t>(sets.front().count()), pool.sets);
    else
        cost.combinations = orders(sets, {});
    cost.cents = cost.combinations * ticket.stake;
    return cost;
}

} // namespace quillon
