// Each command of the system is used in a scenario.
#include "app/commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace quillon {
namespace {

namespace fs = std::filesystem;

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

TEST(Scenarios, UseEachCommand) {
    const auto names = namesInScripts();
    for (const Command& command : commandTable())
        EXPECT_EQ(1U, names.count(command.name)) << command.name << " is in no script";
}

} // namespace
} // namespace quillon
