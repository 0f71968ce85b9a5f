// Disks that are full or can't be written, and an input that can't be read.
#include "console_run.h"
#include "race_day.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include <sys/mount.h>
#include <unistd.h>

namespace faults {
namespace {

namespace fs = std::filesystem;

const std::string aNight =
    std::string{"Diagnostic\nStart\nEBET\nNext\nNext\nSave\nSelectionResults\nRecord\nALL\n"
                "Print2\nSelect\nTrack_Profile\nEntries\nViewSummary\n"} +
    lastCommand;

// The second console starts from the tables again, so it writes every file but those that only grow.
bool onlyGrows(const std::string& path) { return path == "HRA.ini" || path == "Stars5.ini"; }

class Disk : public testing::Test {
protected:
    Disk() {
        copyFolder(raceDay(), work);
        oldFiles = filesBelow(work);
        EXPECT_EQ(0, runConsole(work, aNight).status);
        newFiles = filesBelow(work);
    }

    /// Every file as it was or whole. What was worked out from an archive follows the archive that there is,
    /// and the batch file names the last report that could be shown.
    void checkWhole(const fs::path& written) const {
        EXPECT_TRUE(keptCardsAreWhole(written));
        for (const auto& [path, content] : filesBelow(written)) {
            EXPECT_EQ(std::string::npos, path.find(".quillon-")) << path << " is left";
            const auto old = oldFiles.find(path);
            const bool fromArchive = path == "HRA.txt" || path == "Profile Results.txt" ||
                                     path == "Wins by Track.txt" || path == "TargetTracks.txt" ||
                                     path == "Archives.bat";
            const bool logStarted = path == "TEST.txt" && newFiles.at(path).starts_with(content);
            EXPECT_TRUE((old != oldFiles.end() && content == old->second) || content == newFiles.at(path) ||
                        (fromArchive && content.ends_with('\n')) || logStarted)
                << path << " is torn: " << content.substr(0, 200);
        }
        for (const auto& [path, content] : oldFiles)
            EXPECT_TRUE(fs::exists(written / path)) << path << " is gone";
    }

    void checkNextRun(const fs::path& written) const {
        EXPECT_EQ(0, runConsole(written, aNight).status);
        const Files files = filesBelow(written);
        for (const auto& [path, content] : newFiles) {
            ASSERT_TRUE(files.contains(path)) << path;
            EXPECT_TRUE(onlyGrows(path) || content == files.at(path)) << path;
        }
        EXPECT_EQ(newFiles.at("HRA.ini"), files.at("HRA.ini")); // archived by the first console or the second
    }

    TemporaryFolder folder;
    fs::path work = folder / "work";
    Files oldFiles, newFiles;
};

TEST_F(Disk, FilesThatMayNotGrowBeyondASizeStayWhole) {
    std::vector<long> sizes{0, 1, 100, 4096, 50000, 100000, 400000};
    for (const char* path : {"HRA.ini", "Stars5.ini", "TEST.txt", "Archives.bat"})
        sizes.push_back(static_cast<long>(newFiles.at(path).size()) - 1);
    for (const long size : sizes) {
        SCOPED_TRACE("at most " + std::to_string(size) + " bytes");
        copyFolder(raceDay(), work);
        const Outcome outcome = runConsole(work, aNight, {}, {.fileSize = size});
        EXPECT_EQ(0, outcome.status);
        EXPECT_TRUE(reachesItsEnd(outcome.transcript));
        checkWhole(work);
        checkNextRun(work);
    }
}

TEST_F(Disk, AFullDiskLeavesFilesWhole) {
    const fs::path disk = folder / "disk";
    fs::create_directory(disk);
    if (::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=4m") != 0)
        GTEST_SKIP() << "a disk can be mounted by the superuser alone";
    copyFolder(raceDay(), disk / "work");
    for (const std::size_t room : {std::size_t{0}, std::size_t{4}, std::size_t{40}, std::size_t{120}}) {
        SCOPED_TRACE(std::to_string(room) + " kB left");
        const fs::path filler = disk / "filler";
        fs::remove(filler);
        copyFolder(raceDay(), disk / "work");
        {
            std::ofstream fill{filler, std::ios::binary};
            const std::uintmax_t free = fs::space(disk).available;
            fill << std::string(free - std::min<std::uintmax_t>(free, room << 10U), 'x');
        }
        const Outcome outcome = runConsole(disk / "work", aNight);
        EXPECT_EQ(0, outcome.status);
        EXPECT_TRUE(reachesItsEnd(outcome.transcript));
        checkWhole(disk / "work");
        fs::remove(filler);
        checkNextRun(disk / "work");
    }
    EXPECT_EQ(0, ::umount(disk.c_str()));
}

// By a user to whom the folder belongs to another, or by a disk that refuses all from the first call on.
TEST_F(Disk, AFolderThatCanNotBeWrittenStaysAsItWas) {
    copyFolder(raceDay(), work);
    const Outcome refused = runConsole(work, aNight, {Kind::stay, 1});
    EXPECT_EQ(0, refused.status);
    EXPECT_TRUE(reachesItsEnd(refused.transcript));
    EXPECT_EQ(oldFiles, filesBelow(work));

    if (geteuid() == 0) {
        constexpr int nobody = 65534;
        for (const fs::path& above : {folder.path(), work}) fs::permissions(above, fs::perms{0755});
        const Outcome foreign = runConsole(work, aNight, {}, {.user = nobody});
        EXPECT_EQ(0, foreign.status);
        EXPECT_TRUE(reachesItsEnd(foreign.transcript));
        EXPECT_EQ(oldFiles, filesBelow(work));
    }
}

TEST_F(Disk, ASaveIntoAFolderThatCanNotBeWrittenTellsSo) {
    const Outcome outcome = runConsole(work, std::string{recall} + "Save\n" + lastCommand, {Kind::stay, 1});
    EXPECT_NE(std::string::npos, outcome.transcript.find("> Save\nerror: ")) << outcome.transcript;
    EXPECT_TRUE(reachesItsEnd(outcome.transcript));
}

TEST_F(Disk, AnInputThatCanNotBeReadEndsTheConsole) {
    EXPECT_EQ(0, runConsole(work, "", {}, {.input = folder.path()}).status);
}

} // namespace
} // namespace faults
