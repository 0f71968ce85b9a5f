// Two consoles at work in one folder.
#include "console_run.h"
#include "race_day.h"

#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <set>
#include <sstream>
#include <thread>

namespace faults {
namespace {

namespace fs = std::filesystem;

std::string repeated(const std::string& text, int times) {
    std::string all;
    for (int at = 0; at < times; ++at) all += text;
    return all;
}

std::string bytesOf(const fs::path& path) {
    std::ifstream file{path, std::ios::binary};
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

std::multiset<std::string> linesOf(const std::string& text) {
    std::multiset<std::string> lines;
    std::istringstream in{text};
    for (std::string line; std::getline(in, line);)
        if (line != "\r") lines.insert(line);
    return lines;
}

class TwoPrograms : public testing::Test {
protected:
    TwoPrograms() { copyFolder(raceDay(), work); }

    std::string afterOne(const std::string& script, const char* path) {
        const fs::path alone = folder / "alone";
        copyFolder(raceDay(), alone);
        EXPECT_EQ(0, runConsole(alone, script).status);
        return bytesOf(alone / path);
    }

    TemporaryFolder folder;
    fs::path work = folder / "work";
};

TEST_F(TwoPrograms, SavingTheSameCardNeverTearsIt) {
    const char* const cardPath = "A Quillon PRO/Race Cards/MVR_20260315.pmd";
    const char* const archivePath = "A Quillon PRO/Archives/MVR_20260315.pmx";
    const std::string one = std::string{recall} + "Box 4 1\nSave\n";
    const std::string two = std::string{recall} + "Box 4 2\nBox 5 12\nSave\n";
    const std::set<std::string> whole{bytesOf(work / cardPath), afterOne(one, cardPath),
                                      afterOne(two, cardPath)};
    ASSERT_EQ(3u, whole.size());
    const std::string archive = bytesOf(work / archivePath);

    constexpr int saves = 30;
    ConsoleProcess first{work, one + repeated("Save\n", saves) + lastCommand};
    ConsoleProcess second{work, two + repeated("Save\n", saves) + lastCommand};
    int looks = 0;
    std::atomic<bool> working = true;
    Outcome firstEnd, secondEnd;
    std::thread wait{[&] {
        firstEnd = first.wait();
        secondEnd = second.wait();
        working = false;
    }};
    std::set<std::string> seen;
    while (working) {
        seen.insert(bytesOf(work / cardPath));
        seen.insert(bytesOf(work / archivePath));
        ++looks;
    }
    wait.join();
    for (const std::string& content : seen)
        EXPECT_TRUE(content == archive || whole.contains(content)) << content.size() << " bytes";
    EXPECT_GT(looks, 10);
    for (const Outcome* end : {&firstEnd, &secondEnd}) {
        EXPECT_TRUE(reachesItsEnd(end->transcript));
        EXPECT_EQ(std::string::npos, end->transcript.find("error: ")) << end->transcript;
    }
    for (const auto& [path, content] : filesBelow(work))
        EXPECT_EQ(std::string::npos, path.find(".quillon-")) << path << " is left";
}

TEST_F(TwoPrograms, RecordsNeverMerge) {
    const char* const log = "A Quillon PRO/RACE(20).txt";
    constexpr int entries = 100;
    const auto scriptOf = [](const char* post) {
        const std::string entry = std::string{"Answer 20\nAnswer 1\nAnswer "} + post + "\nHeatChoice 2\n";
        return std::string{recall} + "HeatWinner\n" + repeated(entry, entries) + lastCommand;
    };
    const auto once = linesOf(afterOne(scriptOf("6"), log));
    const auto twice = linesOf(afterOne(scriptOf("7"), log));
    ASSERT_EQ(1u * entries, once.count(*once.begin()));
    ASSERT_EQ(1u * entries, twice.count(*twice.begin()));

    ConsoleProcess first{work, scriptOf("6")};
    ConsoleProcess second{work, scriptOf("7")};
    first.wait();
    second.wait();
    auto all = once;
    all.insert(twice.begin(), twice.end());
    EXPECT_EQ(all, linesOf(bytesOf(work / log)));
}

} // namespace
} // namespace faults
