// What a ticket costs: the combinations that its numbers make. Pure figures; nothing is bet.
//
// A ticket has a set of program numbers for each place (or, over several races, for each leg). One number a
// place is a straight ticket; all that run on some places make a wheel, several a part wheel; a box is one set
// that takes every place in every order. Coupled entries (1 and 1A) are one horse to bet on.
#pragma once

#include "core/text.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace quillon {

enum class Pool {
    win,
    place,
    show,
    exacta,
    trifecta,
    superfecta,
    highFive,
    dailyDouble,
    pick3,
    pick4,
    pick5,
    pick6,
    count
};

struct PoolRow {
    Pool pool;
    TextView name;
    int sets;       ///< places or legs, a set of numbers each
    bool overRaces; ///< legs
};

// clang-format off
inline constexpr std::array pools{
    PoolRow{Pool::win,         "win",          1, false},
    PoolRow{Pool::place,       "place",        1, false},
    PoolRow{Pool::show,        "show",         1, false},
    PoolRow{Pool::exacta,      "exacta",       2, false},
    PoolRow{Pool::trifecta,    "trifecta",     3, false},
    PoolRow{Pool::superfecta,  "superfecta",   4, false},
    PoolRow{Pool::highFive,    "high five",    5, false},
    PoolRow{Pool::dailyDouble, "daily double", 2, true},
    PoolRow{Pool::pick3,       "pick 3",       3, true},
    PoolRow{Pool::pick4,       "pick 4",       4, true},
    PoolRow{Pool::pick5,       "pick 5",       5, true},
    PoolRow{Pool::pick6,       "pick 6",       6, true},
};
// clang-format on
static_assert(pools.size() == static_cast<std::size_t>(Pool::count));

constexpr const PoolRow& rowOf(Pool pool) { return pools[static_cast<std::size_t>(pool)]; }

/// Only orders of finish of a race can be boxed.
constexpr bool canBeBoxed(Pool pool) { return !rowOf(pool).overRaces && rowOf(pool).sets > 1; }

using Numbers = std::vector<Text>; ///< program numbers as they are on the program: "1A"

struct Ticket {
    Pool pool = Pool::win;
    bool boxed = false;
    std::vector<Numbers> sets{}; ///< of a boxed ticket one
    std::int64_t stake = 0;      ///< cents a combination

    bool operator==(const Ticket&) const = default;
};

/// How many sets a ticket of this kind has.
constexpr std::size_t setsOf(Pool pool, bool boxed) {
    return boxed ? 1 : static_cast<std::size_t>(rowOf(pool).sets);
}

struct Runner {
    Text programNumber{};
    bool scratched = false;

    bool operator==(const Runner&) const = default;
};
using Field = std::vector<Runner>;

/// A number that counts on no combination.
struct DroppedNumber {
    std::size_t set = 0; ///< counted from 0
    Text programNumber{};

    bool operator==(const DroppedNumber&) const = default;
};

struct TicketCost {
    std::int64_t combinations = 0;
    std::int64_t cents = 0;
    std::vector<DroppedNumber> scratched{}; ///< in the order of the ticket

    bool operator==(const TicketCost&) const = default;
};

/// The combinations and what they cost. A field a set tells who is scratched; where there are fewer fields
/// than sets, the last one stands for the rest, and without any everyone runs. A number that is not in its
/// field counts: the card may not know it.
TicketCost costOf(const Ticket& ticket, const std::vector<Field>& fields = {});

} // namespace quillon
