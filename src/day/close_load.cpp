#include "day/close_load.h"

#include "card/line_fields.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/formats.h"
#include "day/new_ranking.h"
#include "reports/condensed_program.h"
#include "reports/pick_sheet.h"
#include "reports/selection_sheet.h"
#include "results/board.h"
#include "results/race_display.h"
#include "screen/ports.h"
#include "screen/screen.h"

namespace quillon {
namespace {

constexpr int widenedSlots = 10; ///< slots 0 to 9 of each entry

// Right-aligned in place: there are some sixty thousand of these cells.
void widen(Text& cell, std::size_t width) {
    if (cell.size() < width) cell.insert(0, width - cell.size(), blank);
}

void giveWidths(PastLine& line) {
    constexpr std::size_t classCharacters = 12;
    for (const LineField& field : lineFields)
        if (field.widened != Widened::never) widen(line.*field.cell, field.width);
    attempt([&] { line.PURSE = numberText(lenientNumber(line.PURSE) * 1000); });
    if (lenientNumber(line.HRSE_TM_4Q) <= 0) {
        line.HRSE_TM_4Q = blanks(4);
        line.HRSE_TM_FN = blanks(4);
    }
    if (line.CLASS.size() > classCharacters) line.CLASS.resize(classCharacters);
}

PastLine blankLine() {
    PastLine line;
    giveWidths(line);
    return line;
}

void hideViews() {
    screen.raceViewVisible.fill(false);
    for (std::size_t view = 0; view < screen.raceView.size(); ++view) screen.dataViewVisible[view] = false;
}

// The first race of a lettered card shows as "1A".
void headWithRaceOne() {
    cursor.race = 1;
    cursor.entry = 0;
    attempt([&] { showRaceHeader(1); });
    screen.header.race = card.labelledRaces > 0 ? "1A" : "1";
    screen.tote[0] = "RACE:  1";
}

void captionEntryButtons() {
    for (int entry = 1; entry <= ratedEntries; ++entry) {
        const TextView programNumber = trimmed(card.entry[{1, entry}].programNumber);
        if (!programNumber.empty())
            screen.entryButtons[static_cast<std::size_t>(entry)].caption = aligned("@@@", programNumber);
    }
}

// The eight characters after the first "_" of the card's file name.
Text dateOfCard() { return Text{midOf(card.cardFileName, placeOf("_", card.cardFileName) + 1, 8)}; }

void tellHowToGoOn() {
    ports.message("Select the 'PPP' button to view an entry's Past Performance."
                  "  To view another race select from the 'Race' buttons at the top of the screen.",
                  "");
}

void markAsLoaded() {
    screen.start.enabled = false;
    screen.offer(StartOffer::selectRace);
    screen.mode = CardMode::loaded;
    screen.item(CommandId::NewRC).enabled = false;
    screen.item(CommandId::RecallRaceCard).enabled = false;
}

void showSelectionsOfRaceOne() {
    const auto number = [](int place) { return card.raceOutcome[{1, place}]; };
    showSelections({number(1), number(2), number(3), number(4)});
}

void captionFirstRace() {
    const Text& label = card.raceInfo[{1}].label;
    screen.raceButtons[1].caption = label;
    screen.raceChecks[1].caption = label;
    screen.raceChecks[1].visible = true;
}

} // namespace

void PrintWidths() {
    const Step step{"PrintWidths"};
    for (int race = 1; race <= ratedRaces; ++race)
        for (int entry = 1; entry <= ratedEntries; ++entry)
            for (int slot = 0; slot < widenedSlots; ++slot)
                if (card.pastLine.has(race, entry, slot)) giveWidths(card.pastLine.write(race, entry, slot));
    card.pastLine.fillRatedEntries(widenedSlots, blankLine());
}

void CloseLoad() {
    const Step step{"CloseLoad"};
    hideViews();
    headWithRaceOne();
    captionEntryButtons();
    card.cardDate = dateOfCard();
    tellHowToGoOn();
    screen.raceViewVisible[1] = true;
    attempt(DeadHeat);
    markAsLoaded();
    attempt(Condensed_PPP);
    attempt([&] { showSelectionsOfRaceOne(); });
    attempt(SelectionSheet);
    captionFirstRace();
    FillRaceList();
    attempt(KeyHorses);
}

} // namespace quillon
