// Each command of the system is used in a scenario, told of in the manual page and known to the fuzzer.
#include "app/commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
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

// The words of all lines of a file that begin so, without quotes.
std::set<std::string> wordsOf(const fs::path& file, const std::string& beginning) {
    std::set<std::string> words;
    std::ifstream text{file, std::ios::binary};
    for (std::string line; std::getline(text, line);) {
        if (!line.starts_with(beginning)) continue;
        std::erase(line, '"');
        std::istringstream rest{line};
        for (std::string word; rest >> word;) words.insert(word);
    }
    return words;
}

TEST(ManualPage, TellsOfEachCommand) {
    const auto words = wordsOf(MANUAL_PAGE, ".It Ic");
    for (const Command& command : commandTable())
        EXPECT_TRUE(words.count(command.name) > 0) << command.name << " is not in " << MANUAL_PAGE;
}

TEST(FuzzWords, HaveEachCommand) {
    const auto words = wordsOf(FUZZ_WORDS, "\"");
    for (const Command& command : commandTable())
        EXPECT_TRUE(words.count(command.name) > 0) << command.name << " is not in " << FUZZ_WORDS;
}

TEST(Scenarios, UseEachCommand) {
    const auto names = namesInScripts();
    for (const Command& command : commandTable())
        EXPECT_TRUE(names.count(command.name) > 0) << command.name << " is in no script";
}

} // namespace
} // namespace quillon
