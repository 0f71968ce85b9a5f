// A folder of tables through Start, and from there to the reports, the races and the saved card. A part
// "RACESHR.DBF" is a table's bytes, "RACESHR" a table as readable text, "tracks" the track table, and
// "script" what a user does before Start.
#include "app/start_up.h"
#include "card/race_card.h"
#include "support/fuzz_target.h"
#include "support/parts.h"
#include "support/table_part.h"

#include <array>

using namespace quillon;

namespace {

void putPart(const fuzz::Part& part) {
    constexpr std::array tables{"RACESHR", "HORSEHR", "RUNLINHR", "DRIVERHR", "TRAINRHR"};
    for (const char* table : tables) {
        const Text file = Text{table} + ".DBF";
        if (part.name == file) fuzz::put(fuzz::sourceFolder / file, part.content);
        if (part.name == table) fuzz::put(fuzz::sourceFolder / file, fuzz::tableOfText(part.content));
    }
    if (part.name == "tracks") fuzz::put("TrackEditor.ini", part.content);
}

void workThroughCard() {
    fuzz::press("Diagnostic"); // the log of the ratings is written as well
    fuzz::press("Start");
    for (const int race : {1, 2, ratedRaces}) {
        fuzz::press("RaceButton", {.numbers = {race}});
        for (const int entry : {1, 2, ratedEntries}) fuzz::press("EntryButton", {.numbers = {entry}});
    }
    for (const char* name : {"Entries", "Pick3Selections", "SelectionResults", "MainScreen"})
        fuzz::press(name);
}

// A card that was open before leaves nothing behind in the next one.
void workThroughAgain() {
    const Text store = fuzz::storeText();
    StartUp();
    workThroughCard();
    fuzz::ensure(fuzz::storeText() == store, "the same card is loaded the same");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::beginInput();
    const auto parts = fuzz::partsOf(fuzz::textOf(data, size));
    for (const fuzz::Part& part : parts) putPart(part);
    workThroughCard();
    for (const fuzz::Part& part : parts) {
        if (part.name == "save") fuzz::press("Save");
        if (part.name == "again") workThroughAgain();
    }
    fuzz::lookAtScreen();
    return 0;
}
