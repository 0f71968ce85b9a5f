#include "support/small_card.h"

#include "card_generator.h"
#include "card_tables.h"
#include "race_results.h"
#include "results_text.h"
#include "support/fuzz_target.h"
#include "tracks.h"

#include <array>
#include <filesystem>
#include <utility>
#include <vector>

namespace quillon::fuzz {
namespace {

struct SmallCard {
    Text file;
    std::vector<std::pair<std::filesystem::path, Text>> files;
};

samples::Oddities odditiesOf(std::size_t which) {
    switch (which) {
    case 1: return samples::allOddities();
    case 2: return {.alsoEligibles = true, .partialCard = true};
    case 3: return {.firstTimeStarters = true, .letteredRaces = true};
    default: return {};
    }
}

// Both layouts of the results one after the other, so that each pass finds its lines.
SmallCard makeCard(std::size_t which) {
    constexpr std::array tracks{"DTN", "MVR", "M1", "BANG"};
    const samples::Card card = samples::generateCard({.seed = 11 + which,
                                                      .races = 4,
                                                      .entries = {5, 7},
                                                      .lines = {1, 3},
                                                      .track = tracks[which],
                                                      .odd = odditiesOf(which)});
    const auto results = samples::runCard(card, {.seed = 5, .deadHeatRace = 2, .scratchRace = 3});
    const Text name = card.track + "_" + samples::dateText(card.date);
    SmallCard small{name + ".pmd", {}};
    for (const samples::NamedTable& table : samples::cardTables(card))
        small.files.emplace_back(sourceFolder / (Text{table.name} + ".DBF"),
                                 samples::tableBytes(table.table));
    small.files.emplace_back("TrackEditor.ini", samples::trackEditorText());
    small.files.emplace_back("A Quillon PRO/Results/" + name + ".pmr",
                             samples::columnLayout(card, results) + samples::wordLayout(card, results));
    return small;
}

const SmallCard& smallCard(std::size_t which) {
    static const std::array<SmallCard, smallCards> made{makeCard(0), makeCard(1), makeCard(2), makeCard(3)};
    return made[which];
}

} // namespace

void putSmallCard(std::size_t which) {
    for (const auto& [path, content] : smallCard(which).files) put(path, content);
}

Text smallCardFile(std::size_t which) { return smallCard(which).file; }

} // namespace quillon::fuzz
