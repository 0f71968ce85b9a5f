#include "reports/ranked_row.h"

#include "card/race_card.h"

namespace quillon {

RankedRow rankedRow(int race, int place) {
    constexpr int fifthOutcome = 9; // the cells between belong to the finish
    const Selection& row = card.selection(race, place);
    return {.pn = card.raceOutcome(race, place == fifthPlace ? fifthOutcome : place),
            .pp = row.selectionPost,
            .ml = row.selectionOdds,
            .name = row.selectionName,
            .driverText = row.selectionDriver,
            .pr = row.selectionRating};
}

} // namespace quillon
