// Every command that writes, with a fault at each of its calls in turn.
//
// What was on the disk before stands there whole, or what an undisturbed run writes does; the console goes on
// to the end of its script; nothing is left lying about; and a second console can use the folder as if
// nothing had happened.
#include "console_run.h"
#include "race_day.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <set>
#include <string>

namespace faults {
namespace {

namespace fs = std::filesystem;

struct Work {
    const char* name;
    std::vector<std::string> script;
    std::size_t before = 0; ///< lines that only lead there: their own calls are left alone
    std::string appended{}; ///< the file that grows by one record
    std::string second{};   ///< another that does

    friend void PrintTo(const Work& work, std::ostream* out) { *out << work.name; }
};

const std::string heatLog = "A Quillon PRO/RACE(20).txt";
const std::string results = "A Quillon PRO/Results/MVR_20260315.pmr";

const std::string driver = "Ingersol, K            .392"; // a line of the list of drivers

const Work works[] = {
    {"Start", {"Start"}},
    {"StartWithoutFolders", {"show header", "Start"}},
    {"StartWithTheLogOn", {"Diagnostic", "Start"}, 0, "TEST.txt"},
    {"Save", {recall, "Box 4 5", "Save"}},
    {"SaveWithoutFolders", {"Start", "Save"}, 1},
    {"CloseRC", {recall, "Box 5 1", "CloseRC"}},
    {"SelectionResults", {recall, "SelectionResults"}},
    {"Record", {recall, "SelectionResults", "Record"}, 2, "HRA.ini", "Stars5.ini"},
    {"Entries", {recall, "Entries"}},
    {"ViewSummary", {recall, "ViewSummary"}},
    {"ArchivesEditor", {"ArchivesEditor", "TrackEditor", "EXE"}},
    {"ALL", {"ALL", "Print2"}},
    {"Select", {"Select", "SelectTrack MVR"}},
    {"Track_Profile", {"Track_Profile", recall, "Pick3Results"}},
    {"Command4", {recall, "RaceButton 2", "Answer Yes", "Command4 3"}, 0, results},
    {"Command3", {"Start", "RaceButton 2", "EntryButton 2", "Command3 1"}, 1},
    {"DriverChoice", {"Start", "DriverColumn 1", "DriverChoice " + driver}, 1},
    {"HeatChoice",
     {recall, "HeatWinner", "Answer 20", "Answer 1", "Answer 6", "HeatChoice 2", "Answer 20", "ViewHeat"},
     0,
     heatLog},
};

std::string scriptOf(const std::vector<std::string>& lines, std::size_t count) {
    std::string script;
    for (std::size_t at = 0; at < count; ++at) {
        script += lines[at];
        if (!lines[at].ends_with('\n')) script += '\n';
    }
    return script + lastCommand;
}

bool isLitter(const std::string& path) { return path.find(".quillon-") != std::string::npos; }

/// What a fault may leave in each file: what stood there, and what stands there after each script line.
class Allowed {
public:
    void add(const Files& files) {
        for (const auto& [path, content] : files) contents_[path].insert(content);
    }
    bool has(const std::string& path, const std::string& content) const {
        const auto found = contents_.find(path);
        return found != contents_.end() && found->second.contains(content);
    }

private:
    std::map<std::string, std::set<std::string>> contents_;
};

class EachFault : public testing::TestWithParam<Work> {
protected:
    EachFault() {
        copyFolder(raceDay(), before);
        if (std::string_view{GetParam().name}.ends_with("WithoutFolders"))
            for (const char* written :
                 {"Archives", "Drivers", "Programs", "Race Cards", "Selections", "Selections2"})
                fs::remove_all(before / "A Quillon PRO" / written);
        oldFiles = filesBelow(before);
        allowed.add(oldFiles);
        const auto& lines = GetParam().script;
        for (std::size_t count = 1; count <= lines.size(); ++count) {
            copyFolder(before, work);
            undisturbed = runConsole(work, scriptOf(lines, count));
            allowed.add(filesBelow(work));
            if (count == GetParam().before) callsBefore = undisturbed.calls.size();
        }
        newFiles = filesBelow(work);
        again = runConsole(work, script);
    }

    bool grows(const std::string& path) const {
        return !path.empty() && (path == GetParam().appended || path == GetParam().second);
    }

    std::string record(const std::string& path) const {
        const auto old = oldFiles.find(path);
        return newFiles.at(path).substr(old == oldFiles.end() ? 0 : old->second.size());
    }

    bool isNoWrite(std::size_t call) const {
        const auto& calls = undisturbed.calls;
        return call <= calls.size() && !calls[call - 1].starts_with("write");
    }

    /// Runs with each call in turn disturbed, until a run meets no fault.
    template <class Check>
    void disturbEach(Kind kind, Check check) {
        ASSERT_GT(undisturbed.calls.size(), callsBefore) << "nothing is written at all";
        for (std::size_t at = callsBefore + 1;; ++at) {
            if (kind == Kind::torn && isNoWrite(at)) continue;
            copyFolder(before, work);
            const Outcome outcome = runConsole(work, script, {kind, static_cast<long>(at)});
            if (outcome.calls.size() < at) return;
            SCOPED_TRACE("call " + std::to_string(at) + ", " + outcome.calls[at - 1]);
            check(outcome);
            checkNextRun();
            if (HasFailure()) return;
        }
    }

    static bool isLeftover(const std::string& path, bool litterAllowed) {
        if (!isLitter(path)) return false;
        EXPECT_TRUE(litterAllowed) << path << " is left";
        return true;
    }

    /// Each file is as it was or as a run writes it. A record that could not be taken back may be torn.
    void checkFiles(bool litterAllowed, bool tornAllowed) const {
        EXPECT_TRUE(keptCardsAreWhole(work));
        const Files files = filesBelow(work);
        for (const auto& [path, content] : files) {
            if (isLeftover(path, litterAllowed) || allowed.has(path, content)) continue;
            const auto old = oldFiles.find(path);
            const std::string start = old == oldFiles.end() ? "" : old->second;
            const bool torn =
                grows(path) && content.starts_with(start) && newFiles.at(path).starts_with(content);
            const bool begun = torn && content.empty() && litterAllowed; // a new file, nothing in it yet
            EXPECT_TRUE(begun || (torn && tornAllowed)) << path << " is torn: " << content;
        }
        for (const auto& [path, content] : oldFiles) EXPECT_TRUE(files.contains(path)) << path << " is gone";
    }

    /// The folder as the fault left it serves the next console as any other does.
    void checkNextRun() {
        const Files left = filesBelow(work);
        if (!served.insert(left).second) return; // many faults leave the same files
        const Outcome next = runConsole(work, script);
        EXPECT_EQ(0, next.status);
        EXPECT_TRUE(next.transcript == undisturbed.transcript || next.transcript == again.transcript)
            << next.transcript;
        const Files files = filesBelow(work);
        for (const auto& [path, content] : files) {
            if (isLeftover(path, false)) continue;
            if (grows(path) && !allowed.has(path, content))
                checkGrown(path, left.contains(path) ? left.at(path) : "", content);
            else
                EXPECT_TRUE(allowed.has(path, content)) << path;
        }
        for (const auto& [path, content] : newFiles)
            EXPECT_TRUE(path == GetParam().second || files.contains(path)) << path << " is missing";
    }

    /// The next record stands on a line of its own, also after a torn one.
    void checkGrown(const std::string& path, const std::string& left, const std::string& content) const {
        ASSERT_TRUE(content.starts_with(left)) << path;
        const std::string grown = content.substr(left.size());
        const bool wholeLine = left.empty() || left.ends_with('\n');
        EXPECT_TRUE(grown.empty() || grown == (wholeLine ? "" : "\r\n") + record(path))
            << path << ": " << grown;
    }

    TemporaryFolder folder;
    fs::path before = folder / "before";
    fs::path work = folder / "work";
    std::string script = scriptOf(GetParam().script, GetParam().script.size());
    Files oldFiles, newFiles;
    Allowed allowed;
    Outcome undisturbed, again;
    std::size_t callsBefore = 0;
    std::set<Files> served; ///< what a next console was tried on
};

TEST_P(EachFault, LeavesEveryFileWholeAndTheConsoleGoingOn) {
    disturbEach(Kind::fail, [this](const Outcome& outcome) {
        EXPECT_EQ(0, outcome.status);
        EXPECT_TRUE(reachesItsEnd(outcome.transcript)) << outcome.transcript;
        checkFiles(false, false);
    });
}

TEST_P(EachFault, ThatStaysLeavesEveryFileWholeAndTheConsoleGoingOn) {
    disturbEach(Kind::stay, [this](const Outcome& outcome) {
        EXPECT_EQ(0, outcome.status);
        EXPECT_TRUE(reachesItsEnd(outcome.transcript)) << outcome.transcript;
        checkFiles(true, true);
    });
}

TEST_P(EachFault, ThatKillsLeavesEveryFileWhole) {
    disturbEach(Kind::kill, [this](const Outcome& outcome) {
        EXPECT_TRUE(outcome.killed);
        checkFiles(true, false);
    });
}

TEST_P(EachFault, ThatKillsInTheMiddleOfAWriteHarmsNothingWritten) {
    disturbEach(Kind::torn, [this](const Outcome& outcome) {
        EXPECT_TRUE(outcome.killed);
        checkFiles(true, true);
    });
}

INSTANTIATE_TEST_SUITE_P(Commands, EachFault, testing::ValuesIn(works),
                         [](const auto& work) { return std::string{work.param.name}; });

} // namespace
} // namespace faults
