#include "race_day.h"

#include "card_generator.h"
#include "card_tables.h"
#include "console_run.h"
#include "file_bytes.h"
#include "race_results.h"
#include "results_text.h"
#include "tracks.h"

#include <stdexcept>
#include <string>

namespace faults {

namespace fs = std::filesystem;

namespace {

void need(bool done) {
    if (!done) throw std::runtime_error("the race day can't be laid out");
}

void layNight(const fs::path& folder, std::uint64_t seed, unsigned day, const std::string& script) {
    const samples::Card card = samples::generateCard({
        .seed = seed,
        .races = 3,
        .entries = {5, 6},
        .lines = {2, 3},
        .track = "MVR",
        .circuit = {"NFLD", "DTN"},
        .date = std::chrono::year{2026} / 3 / static_cast<int>(day),
    });
    const auto results = samples::runCard(card, {.seed = seed});
    const std::string name = "MVR_202603" + std::to_string(day) + ".pmr";
    need(samples::writeCard(card, folder));
    need(samples::writeFile(folder / "A Quillon PRO/Results" / name, samples::wordLayout(card, results)));
    need(runConsole(folder, script).status == 0);
}

struct RaceDay {
    TemporaryFolder folder;

    RaceDay() {
        need(samples::writeFile(folder / "TrackEditor.ini", samples::trackEditorText()));
        const std::string shown = "EBET\nNext\nNext\nSave\n";
        layNight(folder.path(), 7, 14, "Start\n" + shown + "SelectionResults\nRecord\n");
        layNight(folder.path(), 8, 15, "Start\n" + shown);
        need(fs::exists(folder / "A Quillon PRO/Race Cards/MVR_20260315.pmd"));
    }
};

} // namespace

const fs::path& raceDay() {
    static const RaceDay day;
    return day.folder.path();
}

bool reachesItsEnd(const std::string& transcript) {
    return transcript.find("> Version\n") != std::string::npos;
}

} // namespace faults
