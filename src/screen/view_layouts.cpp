#include "screen/view_layouts.h"

#include "card/race_card.h"
#include "screen/view_columns.h"

namespace quillon {

ViewLayout raceLayout() { return {.columns = raceColumns(), .lastRow = ratedEntries, .fitted = true}; }

ViewLayout raceLinesLayout() {
    return {.columns = dataColumns(), .emptyRows = EmptyRows::hiddenAtEnd, .fitted = true};
}

// The entry's name stands above its lines.
ViewLayout entryLinesLayout() {
    ViewLayout layout = raceLinesLayout();
    layout.firstColumn = DataColumn::date;
    return layout;
}

// A full card's rows between the last race and the totals are empty on most cards.
ViewLayout summaryLayout() {
    return {.columns = summaryColumns(),
            .emptyRows = EmptyRows::hidden,
            .boldRows = {SummaryRow::totals, SummaryRow::percentages},
            .firstFrozen = true,
            .fitted = true};
}

// Any card may have won.
ViewLayout profileLayout() {
    return {.columns = profileColumns(), .firstFrozen = true, .fitted = true, .roomForBold = true};
}

ViewLayout tracksLayout() {
    return {.columns = trackColumns().first(TrackColumn::percentage + 1),
            .emptyRows = EmptyRows::hiddenAtEnd,
            .sortable = true};
}

ViewLayout sizesLayout() {
    return {.columns = trackColumns(),
            .firstColumn = TrackColumn::size,
            .emptyRows = EmptyRows::hiddenAtEnd,
            .sortable = true};
}

ViewLayout picksLayout() {
    return {.columns = pickColumns().first(PickColumn::pick10 + 1), .emptyRows = EmptyRows::hidden};
}

ViewLayout starsLayout() { return {.columns = starColumns()}; }

} // namespace quillon
