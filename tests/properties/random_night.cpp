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
        if (entry.is_regular_file() && entry.path().extension() != ".DBF" &&
            entry.path().parent_path().filename() != "Recovery")
            files[entry.path().string()] = samples::readFile(entry.path()).value_or("");
    return files;
}

namespace {

void changeDriver(int entry, samples::Random& random) {
    press("DriverColumn", {{entry}, ""});
    const auto& lines = std::as_const(screen).driverList.lines;
    if (lines.empty()) return;
    const auto last = static_cast<int>(lines.size()) - 1;
    press("DriverChoice", {{}, lines[static_cast<std::size_t>(random.between(0, last))]});
}

} // namespace

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

void RandomNightTest::pressAnything(samples::Random& random) {
    const int race = random.between(1, 6);
    const int entry = random.between(1, 12);
    answers = {random.chance(80) ? "Yes" : "No", "1", "4"};
    switch (random.between(1, 13)) {
    case 1: press("Command4", {{entry}, ""}); break;
    case 2: press("Command4", {{0}, ""}); break;
    case 3: press("EntryButton", {{entry}, ""}); break;
    case 4: press("Command3", {{random.between(1, 6)}, ""}); break;
    case 5: press("Next"); break;
    case 6: press("Previous"); break;
    case 7: press("RaceButton", {{race}, ""}); break;
    case 8: press("Box", {{random.between(0, 7)}, std::to_string(entry)}); break;
    case 9: press("Tote", {{random.between(1, 11)}, "0" + std::to_string(entry) + ".40"}); break;
    case 10: press("Cell", {{race, entry, 6}, "typed"}); break;
    case 11: press(random.chance(50) ? "EBET" : "TakeAllIn"); break;
    case 12: press("Refunds", {{}, "3 4"}); break;
    default: changeDriver(entry, random); break;
    }
}

} // namespace quillon
