#include "random_night.h"

#include "app/start_up.h"
#include "card_tables.h"
#include "file_bytes.h"
#include "race_results.h"
#include "results_text.h"
#include "tracks.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>

namespace quillon {

namespace fs = std::filesystem;

int propertyScale() {
    const char* const scale = std::getenv("QUILLON_PROPERTIES");
    return scale == nullptr ? 1 : std::max(1, std::atoi(scale));
}

samples::Card randomCard(std::uint64_t seed, bool odd) {
    samples::Random random{seed * 7919};
    const int fewest = random.pick(std::array{1, 2, 3, 6, 7, 8});
    samples::CardOptions options{
        .seed = seed,
        .races = random.between(2, 6),
        .entries = {fewest, random.between(fewest, 12)},
        .lines = {1, random.between(2, 6)},
        .track = std::string{random.pick(samples::allTracks()).key},
    };
    if (odd)
        options.odd = {.alsoEligibles = random.chance(50),
                       .firstTimeStarters = random.chance(50),
                       .qualifiers = random.chance(50),
                       .otherDistances = random.chance(50),
                       .breaks = random.chance(50),
                       .coupledEntries = random.chance(50),
                       .letteredRaces = random.chance(25),
                       .partialCard = random.chance(25),
                       .missingTimes = random.chance(50),
                       .blankCells = random.chance(50)};
    return samples::generateCard(options);
}

void layNight(const samples::Card& card, std::uint64_t seed) {
    EXPECT_TRUE(samples::writeCard(card, "."));
    constexpr std::size_t fewest = 6; // that four of them finish, whatever is scratched or has no post
    for (const samples::Race& race : card.races)
        if (race.entries.size() < fewest) return;
    const auto results = samples::runCard(card, {.seed = seed});
    const std::string name = card.track + "_" + samples::dateText(card.date) + ".pmr";
    EXPECT_TRUE(samples::writeFile("A Quillon PRO/Results/" + name, samples::wordLayout(card, results)));
}

bool press(TextView name, const Arguments& arguments) {
    const Command* const command = findCommand(name);
    EXPECT_NE(nullptr, command) << name;
    if (command == nullptr || !isAvailable(*command, arguments)) return false;
    runCommand(*command, arguments);
    return true;
}

std::map<std::string, std::string> writtenFiles() {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator{"."})
        if (entry.is_regular_file() && entry.path().extension() != ".DBF")
            files[entry.path().string()] = samples::readFile(entry.path()).value_or("");
    return files;
}

RandomNightTest::RandomNightTest() { put("TrackEditor.ini", samples::trackEditorText()); }

void RandomNightTest::start(const samples::Card& drawn, std::uint64_t seed) {
    fs::remove_all("A Quillon PRO");
    layNight(drawn, seed);
    StartUp();
    journal.clear();
    shown.clear();
    answers.clear();
    EXPECT_TRUE(press("Start"));
}

} // namespace quillon
