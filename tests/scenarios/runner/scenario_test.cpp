#include "scenario.h"

#include "support/card_test.h"

#include <gtest/gtest.h>

namespace scenarios {
namespace {

namespace fs = std::filesystem;
using Complaints = std::vector<std::string>;

// A scenario in a folder of its own, run with a console that does as it is told. The parts are put together
// in each test; `script` and what it prints are there at first.
class ScenarioTest : public quillon::CardTest {
protected:
    ScenarioTest() {
        put("claim/script.txt", "print Hello\n");
        put("claim/expected/transcript.txt", "Hello\n");
    }

    // The complaints but for the last one, which tells where to look.
    static Complaints complaints() {
        Complaints all = complaintsAbout(
            "claim", {.console = OBEDIENT_CONSOLE, .sampleFolder = "sample", .workFolder = "work"});
        if (!all.empty() && all.back().starts_with("what came is in ")) all.pop_back();
        return all;
    }
};

TEST_F(ScenarioTest, PassesWhenAllIsAsExpected) { EXPECT_EQ(Complaints{}, complaints()); }

TEST_F(ScenarioTest, ComplainsOfAnotherTranscript) {
    put("claim/expected/transcript.txt", "Hello\nthere\n");
    EXPECT_EQ(Complaints{"expected/transcript.txt differs from line 2:\n- there\n"}, complaints());
}

TEST_F(ScenarioTest, TellsWhereToLook) {
    put("claim/expected/transcript.txt", "");
    const Complaints all = complaintsAbout(
        "claim", {.console = OBEDIENT_CONSOLE, .sampleFolder = "sample", .workFolder = "work"});
    ASSERT_EQ(2U, all.size());
    EXPECT_EQ("what came is in " + fs::absolute("work/claim").string(), all.back());
    EXPECT_EQ("Hello\n", contentOf("work/claim/transcript.txt"));
}

TEST_F(ScenarioTest, ComplainsOfAMissingExpectation) {
    fs::remove("claim/expected/transcript.txt");
    EXPECT_EQ(Complaints{"expected/transcript.txt is missing"}, complaints());
}

TEST_F(ScenarioTest, ComplainsOfAMissingScript) {
    fs::remove("claim/script.txt");
    EXPECT_EQ((Complaints{"script.txt is missing", "expected/transcript.txt is no part of a scenario"}),
              complaints());
}

TEST_F(ScenarioTest, ComplainsOfAScriptWithoutACommand) {
    put("claim/script.txt", "# a remark\r\n\r\n\n#print Hello");
    EXPECT_EQ(Complaints{"script.txt has no command"}, complaints());
}

TEST_F(ScenarioTest, ComplainsOfAStatus) {
    put("claim/script.txt", "print Hello\nexit 3\n");
    ASSERT_EQ(1U, complaints().size());
    EXPECT_TRUE(complaints()[0].starts_with("script.txt ended with status ")) << complaints()[0];
}

TEST_F(ScenarioTest, ComplainsOfAMisspeltPart) {
    put("claim/expect/files/a.txt", "a\n");
    put("claim/expected/file/a.txt", "a\n");
    put("claim/expected/transcript2.txt", "Hello\n"); // of no script
    EXPECT_EQ((Complaints{"expect is no part of a scenario", "expected/file is no part of a scenario",
                          "expected/transcript2.txt is no part of a scenario"}),
              complaints());
}

TEST_F(ScenarioTest, ComparesTheFilesThatAreExpected) {
    put("claim/script.txt", "print Hello\nwrite deep/down/a.txt text \nwrite b.txt text\n");
    put("claim/expected/files/deep/down/a.txt", "text\n");
    put("claim/expected/files/b.txt", "text\n");
    put("claim/expected/files/c.txt", "text\n");
    EXPECT_EQ((Complaints{"expected/files/c.txt differs: there is no such file",
                          "expected/files/deep/down/a.txt differs from line 1:\n- text\n+ text<20>\n"}),
              complaints());
}

TEST_F(ScenarioTest, ComplainsOfAFileThatNoExpectationNames) {
    put("claim/script.txt", "print Hello\nwrite a.txt text\n");
    EXPECT_EQ(Complaints{"a.txt is new, and no expectation names it:\n+ text\n"}, complaints());
    put("claim/expected/ignored.txt", "b.txt\r\na.txt\r\n");
    EXPECT_EQ(Complaints{}, complaints());
}

TEST_F(ScenarioTest, LaysOutTheFolder) {
    put("claim/folder/HRA.ini", "12345\n");
    put("claim/folder/A Quillon PRO/Race Cards/M1_20260314.pmd", "123");
    put("claim/script.txt", "print Hello\nbytes HRA.ini\n");
    put("claim/expected/transcript.txt", "Hello\nHRA.ini 6\n");
    EXPECT_EQ(Complaints{}, complaints());
    EXPECT_EQ("123", contentOf("work/claim/folder/A Quillon PRO/Race Cards/M1_20260314.pmd"));
}

TEST_F(ScenarioTest, WatchesTheFilesThatWereThere) {
    put("claim/folder/changed.txt", "a\n");
    put("claim/folder/gone.txt", "a\n");
    put("claim/folder/kept.txt", "a\n");
    put("claim/script.txt", "print Hello\nappend changed.txt b\nremove gone.txt\n");
    EXPECT_EQ((Complaints{"changed.txt changed, and no expectation names it, from line 2:\n+ b\n",
                          "gone.txt is gone"}),
              complaints());
    put("claim/expected/files/changed.txt", "a\nb\n");
    put("claim/expected/ignored.txt", "gone.txt\n");
    EXPECT_EQ(Complaints{}, complaints());
    EXPECT_EQ("a\n", contentOf("claim/folder/changed.txt")); // a scenario's own files stay
}

TEST_F(ScenarioTest, StartsAfreshEachTime) {
    put("claim/script.txt", "print Hello\nappend a.txt text\n");
    put("claim/expected/files/a.txt", "text\n");
    EXPECT_EQ(Complaints{}, complaints());
    EXPECT_EQ(Complaints{}, complaints());
}

TEST_F(ScenarioTest, RunsFurtherScriptsInTheSameFolder) {
    put("claim/script.txt", "print Hello\nwrite a.txt text\n");
    put("claim/script2.txt", "bytes a.txt\n");
    put("claim/expected/files/a.txt", "text\n");
    EXPECT_EQ(Complaints{"expected/transcript2.txt is missing"}, complaints());
    put("claim/expected/transcript2.txt", "a.txt 5\n");
    EXPECT_EQ(Complaints{}, complaints());
    put("claim/script4.txt", "print behind a gap\n");
    EXPECT_EQ(Complaints{"script4.txt is no part of a scenario"}, complaints());
}

TEST_F(ScenarioTest, BuildsTablesOfReadableTexts) {
    put("claim/card/RACESHR.txt", "RACE N3 | TRACK C5\n1 | MVR\n2 | MVR\n");
    put("claim/card/DAMHR.DBF", "as it stands");
    EXPECT_EQ(Complaints{}, complaints());
    // A FoxPro table: 32 bytes of header, 32 a field, the end mark, 263 of back link; then two rows of the
    // deletion mark, 3 and 5 bytes; then the byte 1A: 32 + 64 + 1 + 263 + 18 + 1.
    const fs::path tables = "work/claim/folder/A Quillon PRO/TrackMaster ExE Files";
    EXPECT_EQ(379U, contentOf(tables / "RACESHR.DBF").size());
    EXPECT_EQ("as it stands", contentOf(tables / "DAMHR.DBF"));
}

TEST_F(ScenarioTest, ComplainsOfATableTextThatIsNone) {
    put("claim/card/RACESHR.txt", "RACE N3\n1 | MVR\n");
    EXPECT_EQ(Complaints{"card/RACESHR.txt:2: 2 cells for 1 fields"}, complaints());
}

TEST_F(ScenarioTest, StartsFromTheSample) {
    put("sample/TrackEditor.ini", "12345");
    put("sample/A Quillon PRO/Race Cards/a.pmd", "123");
    put("sample/results/MVR.txt", "not the program's");
    put("sample/README.md", "not the program's");
    put("claim/uses", "sample\n");
    put("claim/folder/A Quillon PRO/Race Cards/b.pmd", "12");
    put("claim/script.txt", "print Hello\nbytes TrackEditor.ini\nwrite CrossOver.ini MVR\n");
    put("claim/expected/transcript.txt", "Hello\nTrackEditor.ini 5\n");
    put("claim/expected/files/CrossOver.ini", "MVR\n");
    EXPECT_EQ(Complaints{}, complaints());
    EXPECT_TRUE(exists("work/claim/folder/A Quillon PRO/Race Cards/a.pmd"));
    EXPECT_TRUE(exists("work/claim/folder/A Quillon PRO/Race Cards/b.pmd"));
    EXPECT_FALSE(exists("work/claim/folder/results"));
    EXPECT_FALSE(exists("work/claim/folder/README.md"));
    EXPECT_FALSE(exists("sample/CrossOver.ini"));
}

TEST_F(ScenarioTest, ComplainsOfASampleThatIsNone) {
    put("claim/uses", "sample\n");
    EXPECT_EQ(Complaints{"uses: the sample working folder is missing"}, complaints());
    put("claim/uses", "another\n");
    EXPECT_EQ(Complaints{"uses: only \"sample\" can be used"}, complaints());
}

TEST_F(ScenarioTest, RunsInAFolderOfAnyName) {
    fs::rename("claim", "it's a claim");
    const Complaints all = complaintsAbout(
        "it's a claim", {.console = OBEDIENT_CONSOLE, .sampleFolder = "sample", .workFolder = "work $HOME"});
    EXPECT_EQ(Complaints{}, all);
}

class DriveTest : public ScenarioTest {
protected:
    const Setting setting{.console = OBEDIENT_CONSOLE,
                          .sampleFolder = "sample",
                          .workFolder = "work",
                          .launcher = "env", // starts what it is told to, as wine does
                          .drive = "drive"};

    DriveTest() { fs::create_directory("drive"); }
};

TEST_F(DriveTest, HasTheFixedFoldersWhileTheConsoleRuns) {
    put("claim/folder/A Quillon PRO/Results/a.txt", "123");
    put("claim/script.txt", "bytes \"../../../drive/A Quillon PRO/Results/a.txt\"\n"
                            "write \"../../../drive/A Quillon PRO/Entries/b.txt\" text\n");
    put("claim/script2.txt", "bytes \"../../../drive/A Quillon PRO/Entries/b.txt\"\n");
    put("claim/expected/transcript.txt", "../../../drive/A Quillon PRO/Results/a.txt 3\n");
    put("claim/expected/transcript2.txt", "../../../drive/A Quillon PRO/Entries/b.txt 5\n");
    put("claim/expected/files/A Quillon PRO/Entries/b.txt", "text\n");
    EXPECT_EQ(Complaints{}, complaintsAbout("claim", setting));
    EXPECT_FALSE(exists("drive/A Quillon PRO"));
}

TEST_F(DriveTest, KeepsTheFixedFoldersOfItsUser) {
    put("drive/A Quillon PRO/HRA.ini", "a user's");
    EXPECT_EQ(Complaints{fs::absolute("drive/A Quillon PRO").string() + " is in use"},
              complaintsAbout("claim", setting));
    EXPECT_EQ("a user's", contentOf("drive/A Quillon PRO/HRA.ini"));
    EXPECT_FALSE(exists("work/claim"));
}

} // namespace
} // namespace scenarios
