// Whether tables belong together, and which card they are.
#pragma once

#include "import/vendor_tables.h"

namespace quillon {

struct CheckedCard {
    Text track{};
    Text date{}; ///< yyyymmdd
    int races = 0;
    std::vector<Text>
        remarks{};  ///< sentences on what is missing or damaged; the card can be loaded all the same
    Text refusal{}; ///< a sentence that says why these are no card; empty where they are one

    bool isRefused() const { return !refusal.empty(); }
};

/// Reads the tables: the race table must be there, of one track and one day; the others must be tables, and
/// most of their rows must fit those that they refer to, which tables of another day don't.
CheckedCard checkedCard(const std::vector<VendorTable>& tables);

} // namespace quillon
