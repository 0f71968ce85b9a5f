// A folder of tables through Start, and from there to the reports, the races and the saved card. A part
// "RACESHR.DBF" is a table's bytes, "RACESHR" a table as readable text, "tracks" the track table, and
// "script" what a user does before Start.
#include "core/race_card.h"
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

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::beginInput();
    bool saves = false;
    for (const fuzz::Part& part : fuzz::partsOf(fuzz::textOf(data, size))) {
        putPart(part);
        saves = saves || part.name == "save";
    }
    fuzz::press("Diagnostic"); // the log of the ratings is written as well
    fuzz::press("Start");
    for (const int race : {1, 2, ratedRaces}) {
        fuzz::press("RaceButton", {.numbers = {race}});
        for (const int entry : {1, 2, ratedEntries}) fuzz::press("EntryButton", {.numbers = {entry}});
    }
    fuzz::press("Entries");
    fuzz::press("Pick3Selections");
    fuzz::press("SelectionResults");
    fuzz::press("MainScreen");
    if (saves) fuzz::press("Save");
    fuzz::lookAtScreen();
    return 0;
}
