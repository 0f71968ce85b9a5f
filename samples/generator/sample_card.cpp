#include "sample_card.h"

#include "card_generator.h"
#include "card_tables.h"
#include "file_bytes.h"
#include "results_text.h"
#include "tracks.h"

#include <utility>

namespace samples {

namespace {

// Races and entries that are out of the ordinary, counted from 0.
constexpr std::size_t coupledRace = 3;
constexpr std::size_t coupledMate = 4;
constexpr std::size_t maidenRace = 9;
constexpr std::size_t firstStarter = 5;

} // namespace

Card sampleCard() {
    Card card = generateCard({.seed = 470,
                              .races = 12,
                              .entries = {7, 10},
                              .lines = {5, 8},
                              .track = "MVR",
                              .circuit = {"NFLD", "NFLD", "DTN", "MEA", "HOP", "SCD", "M1"},
                              .odd = {.qualifiers = true, .otherDistances = true, .breaks = true}});
    coupleEntries(card.races[coupledRace], 0, coupledMate);
    card.races[maidenRace].entries[firstStarter].lines.clear();
    card.races[maidenRace].entries[firstStarter].age = 3;
    makeAlsoEligible(card.races[maidenRace]);
    return card;
}

std::vector<RaceResult> sampleResults(const Card& card) {
    // A night without a payoff wider than a reader of the word layout expects beside a two-digit number.
    return runCard(card, {.seed = 395, .deadHeatRace = 7, .scratchRace = 6});
}

std::string crossOverText(const Card& card) {
    // Track and day in seven characters, then five that tell the breed and the kind of file.
    const std::string file = card.track.substr(0, 3) + dateText(card.date).substr(4) + "H.EXE";
    return "Last card taken over:\r\nTrackMaster " + file + "\r\n";
}

std::string webPageText() {
    return "The last line is the address of the vendor's download page.\r\n"
           "https://www.trackmaster.com/\r\n";
}

bool writeSample(const std::filesystem::path& workingFolder) {
    const Card card = sampleCard();
    const auto results = sampleResults(card);
    const std::string resultsName = "results/" + card.track + "_" + dateText(card.date);
    const std::pair<std::string, std::string> files[] = {
        {"TrackEditor.ini", trackEditorText()},
        {"CrossOver.ini", crossOverText(card)},
        {"Webpage.ini", webPageText()},
        {resultsName + "-columns.txt", columnLayout(card, results)},
        {resultsName + "-words.txt", wordLayout(card, results)},
    };
    for (const auto& [name, text] : files)
        if (!writeFile(workingFolder / name, text)) return false;
    return writeCard(card, workingFolder);
}

} // namespace samples
