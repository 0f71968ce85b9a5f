// A saved card through the recall: parts "card", "archive", "results" and "tracks". A card file is long and
// says little, so a line "~40 TEXT" stands for forty lines of that text. A part "save" saves the card, and
// "again" recalls it twice more.
#include "card/card_files.h"
#include "app/start_up.h"
#include "card/race_card.h"
#include "cardfiles/card_file.h"
#include "core/failure.h"
#include "core/numbers.h"
#include "screen/ports.h"
#include "support/fuzz_target.h"
#include "support/parts.h"

#include <algorithm>

using namespace quillon;

namespace {

struct Repeated {
    double count = 1;
    TextView line;
};

Repeated repeatedIn(TextView line) {
    const auto textPlace = line.find(blank);
    if (!line.starts_with('~') || textPlace == TextView::npos) return {.line = line};
    return {lenientNumber(line.substr(1)), line.substr(textPlace + 1)};
}

Text expanded(TextView content) {
    constexpr std::size_t longest = 120'000;
    Text text;
    LineReader lines{content};
    while (const auto line = lines.next()) {
        const auto [count, repeated] = repeatedIn(*line);
        for (double i = 0; i < count && text.size() < longest; ++i) {
            text += repeated;
            text += crLf;
        }
    }
    return text;
}

void putPart(const fuzz::Part& part) {
    const std::filesystem::path program = "A Quillon PRO";
    if (part.name == "card") fuzz::put(program / "Race Cards/MVR_20260314.pmd", expanded(part.content));
    if (part.name == "archive") fuzz::put(program / "Archives/MVR_20260314.pmx", expanded(part.content));
    if (part.name == "results") fuzz::put(program / "Results/MVR_20260314.pmr", part.content);
    if (part.name == "tracks") fuzz::put("TrackEditor.ini", part.content);
}

std::size_t linesIn(Folder folder, TextView extension) {
    const Text content = readFile(cardFile(folder, extension));
    return static_cast<std::size_t>(std::count(content.begin(), content.end(), '\n'));
}

// Whatever was typed and read, a value of a saved card stands on its own line.
void save() {
    bool told = false;
    ports.error = [&](const Text&) { told = true; };
    fuzz::press("Save");
    ports.error = [](const Text&) {};
    if (told || card.cardFileName.empty()) return;
    attempt([] { fuzz::ensure(linesIn(Folder::raceCards, "pmd") == cardFileLines, "a card file's lines"); });
    attempt([] { fuzz::ensure(linesIn(Folder::archives, "pmx") == archiveLines, "an archive's lines"); });
}

// As on another day, with nothing in the store.
void recallAgain() {
    StartUp();
    fuzz::press("RecallRaceCard");
    fuzz::press("ChooseFile", {.text = "MVR_20260314.pmd"});
}

void compareRecalls() {
    recallAgain();
    const Text store = fuzz::storeText();
    recallAgain();
    fuzz::ensure(fuzz::storeText() == store, "the same card is recalled the same");
}

void workThroughCard() {
    fuzz::press("Start");
    for (const int race : {1, 2, ratedRaces}) {
        fuzz::press("RaceButton", {.numbers = {race}});
        for (const int entry : {1, 2, ratedEntries}) fuzz::press("EntryButton", {.numbers = {entry}});
        fuzz::press("Command4", {.numbers = {1}});
        fuzz::press("Command3", {.numbers = {1}});
    }
    for (const char* name : {"Next", "SelectionResults", "Record", "MainScreen", "Pick3Selections",
                             "Pick3Results", "MainScreen", "Entries"})
        fuzz::press(name);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::beginInput();
    const auto parts = fuzz::partsOf(fuzz::textOf(data, size));
    for (const fuzz::Part& part : parts) putPart(part);
    recallAgain();
    workThroughCard();
    for (const fuzz::Part& part : parts) {
        if (part.name == "save") save();
        if (part.name == "again") compareRecalls();
    }
    fuzz::lookAtScreen();
    return 0;
}
