// A results text as a user pastes it, through the three passes over a card of twelve races.
#include "card/race_card.h"
#include "core/failure.h"
#include "core/journal.h"
#include "results/auto_record.h"
#include "results/race_display.h"
#include "support/fuzz_target.h"

#include <string>

using namespace quillon;

namespace {

void openCard() {
    fuzz::beginInput();
    fuzz::put("TrackEditor.ini", "MVR         Miami Valley Raceway    5/8   540'   54.2           9\r\n");
    card.cardFileName = "MVR_20260314.pmd";
    card.raceCount = 12;
    screen.header.track.caption = "MVR";
    for (int race = 1; race <= card.raceCount; ++race) {
        for (int entry = 1; entry <= 9; ++entry) {
            card.entry(race, entry).horseName = "Horse " + std::to_string(entry);
            card.entry(race, entry).programNumber = "  " + std::to_string(entry);
        }
        for (int place = 1; place <= 4; ++place) card.raceOutcome(race, place) = std::to_string(place);
    }
}

void forgetResults() {
    card.payoffRecord.clear();
    card.pickPayoff.clear();
    card.pickLegs.clear();
    card.keyPicks.clear();
    card.winHeat.clear();
    card.placeHeat.clear();
    card.poolText.clear();
    card.poolLegs = 0;
    card.recallMode.clear();
    for (int race = 1; race <= card.raceCount; ++race)
        for (int cell = 5; cell <= 9; ++cell) card.raceOutcome(race, cell).clear();
    showRace(1);
}

using Pass = void (*)();

void runOver(Pass pass) {
    forgetResults();
    attempt(pass);
}

Text told() {
    Text all;
    const auto add = [&](const Text& text) {
        all += text;
        all += '\n';
    };
    for (int race = 1; race <= card.raceCount; ++race) {
        for (int cell = 1; cell <= 9; ++cell) add(card.raceOutcome(race, cell));
        for (int cell = 1; cell <= 21; ++cell) add(card.payoffRecord(race, cell));
        for (int cell = 1; cell <= 20; ++cell) add(card.pickLegs(race, cell));
    }
    return all;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static bool opened = false;
    if (!opened) openCard();
    opened = true;

    journal.clear();
    fuzz::put("A Quillon PRO/Results/MVR_20260314.pmr", fuzz::textOf(data, size));
    for (const Pass pass : {AutoRecord, AutoRecord2, EBET}) {
        runOver(pass);
        const Text first = told();
        for (int n = 0; n < card.raceCount; ++n) attempt(Next);
        attempt(pass); // upon what it left
        runOver(pass);
        fuzz::ensure(told() == first, "the same results are read the same");
    }
    return 0;
}
