// Each command of the system is used in a scenario.
#include "app/commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <string_view>

namespace quillon {
namespace {

namespace fs = std::filesystem;
using std::string_view_literals::operator""sv;

// Commands that no scenario uses yet. A name leaves the list with its first scenario; none comes in.
// clang-format off
constexpr std::array notYetInScenarios{
    "NewRC"sv, "Exit_QL"sv, "MainScreen"sv, "CloseWindow"sv, "Entries"sv, "ViewSummary"sv,
    "Pick3Selections"sv, "ViewCondensedProgram"sv, "PrintCondensedProgram"sv, "DriverList"sv, "NotePad"sv,
    "PrintSummary"sv, "Print2"sv, "TestResults"sv, "ArchivesEditor"sv, "TrackEditor"sv, "EXE"sv, "ALL"sv,
    "HALF"sv, "FIVE"sv, "Seven"sv, "MILE"sv, "QUARTER"sv, "Select"sv, "SelectTrack"sv, "Star"sv,
    "MarginChoice"sv, "OddsChoice"sv, "MaxOddsChoice"sv, "Track_Profile"sv, "Pick3Results"sv, "About"sv,
    "Version"sv, "Reset"sv, "USTA"sv, "RTN"sv, "Weather"sv, "TRC"sv, "QLR"sv,
};
// clang-format on

// The first word of every line of every script.
std::set<std::string> namesInScripts() {
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator{SCENARIO_FOLDER}) {
        const std::string file = entry.path().filename().string();
        if (!file.starts_with("script") || entry.path().extension() != ".txt") continue;
        std::ifstream script{entry.path(), std::ios::binary};
        for (std::string line; std::getline(script, line);)
            names.insert(line.substr(0, std::min(line.find_first_of(" \r"), line.size())));
    }
    return names;
}

bool isListed(std::string_view name) {
    return std::find(notYetInScenarios.begin(), notYetInScenarios.end(), name) != notYetInScenarios.end();
}

TEST(Scenarios, UseEachCommand) {
    const auto names = namesInScripts();
    for (const Command& command : commandTable())
        EXPECT_TRUE(names.count(command.name) > 0 || isListed(command.name))
            << command.name << " is in no script";
}

TEST(Scenarios, UseNoCommandThatIsListedAsUnused) {
    const auto names = namesInScripts();
    for (const std::string_view name : notYetInScenarios)
        EXPECT_EQ(0U, names.count(std::string{name})) << name << " is in a script: take it off the list";
}

} // namespace
} // namespace quillon
