// What is done with all fields and tables of the store.
#include "card/fields.h"

#include <tuple>
#include <type_traits>

namespace quillon {

void RaceCard::clear() {
    const auto empty = [](TextView, auto& value) { value = std::decay_t<decltype(value)>{}; };
    forEachField(cardScalars, *this, empty);
    forEachField(furtherScalars, *this, empty);
    forEachField(cardTables, *this, [](TextView, auto& table) { table.clear(); });
}

void RaceCard::shareWith(const RaceCard& other) {
    std::apply([&](const auto&... table) { ((this->*table.member).shareWith(other.*table.member), ...); },
               cardTables);
}

} // namespace quillon
