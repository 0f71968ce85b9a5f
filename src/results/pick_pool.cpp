#include "results/pick_pool.h"

#include "card/race_card.h"
#include "core/failure.h"

#include <array>

namespace quillon {
namespace {

/// How far before its last leg a wager begins. A pick ten isn't taken back: its legs are filed from the
/// race of its line on.
struct FirstLeg {
    int legs;
    int racesBack;
};
constexpr std::array firstLegs{
    FirstLeg{2, 1}, FirstLeg{3, 2}, FirstLeg{4, 3}, FirstLeg{5, 4}, FirstLeg{6, 5},
};

int racesBack(int legs) {
    for (const FirstLeg& row : firstLegs)
        if (row.legs == legs) return row.racesBack;
    return 0;
}

constexpr bool startsNumber(char c) { return c >= '1' && c <= '9'; }

constexpr bool endsNumber(char c) { return c == ',' || c == '/'; }

/// The number at the start of the text: one character, or two where the second is no separator. A blank
/// after a number of one figure stays with it.
TextView numberAt(TextView text) { return text.substr(0, text.size() > 1 && !endsNumber(text[1]) ? 2 : 1); }

} // namespace

void Pick3() {
    const Step step{"Pick3"};
    int race = cursor.race - racesBack(card.poolLegs);
    int slot = 1;
    for (TextView rest = card.poolText; !rest.empty();) {
        TextView taken = rest.substr(0, 1);
        if (startsNumber(taken[0])) {
            taken = numberAt(rest);
            attempt([&] { card.pickLegs(race, slot) = taken; });
        } else if (taken == ",") {
            ++slot;
        } else if (taken == "/") {
            slot = 1;
            ++race;
        }
        rest.remove_prefix(taken.size());
    }
    attempt([&] { cursor.race = toInteger(race); });
    card.poolLegs = 0;
}

} // namespace quillon
