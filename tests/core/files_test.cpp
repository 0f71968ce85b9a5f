#include "core/failure.h"
#include "core/files.h"
#include "support/card_test.h"

#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>

namespace quillon {

TEST_F(CardTest, PathsAreShownAsUsersKnowThem) {
    EXPECT_EQ("C:\\A Quillon PRO\\Selections\\M1_20260314.pms",
              shownPath({Folder::selections, "M1_20260314.pms"}));
    EXPECT_EQ("C:\\A Quillon PRO\\RACE(14).txt", shownPath({Folder::program, "RACE(14).txt"}));
    EXPECT_EQ("HRA.ini", shownPath({Folder::working, "HRA.ini"}));
}

TEST_F(CardTest, FilesAreFoundInAnyCase) {
    put("a quillon pro/TRACKMASTER EXE FILES/raceshr.dbf", "rows");
    EXPECT_EQ("rows", readFile({Folder::sourceTables, "RACESHR.DBF"}));
    put("trackeditor.INI", "tracks");
    EXPECT_EQ("tracks", readFile({Folder::working, "TrackEditor.ini"}));
}

TEST_F(CardTest, WritingMakesTheFolderAndLeavesNoTemporaryFile) {
    writeFile({Folder::drivers, "M1_20260314.pmd2"}, "one\r\n");
    writeFile({Folder::drivers, "M1_20260314.pmd2"}, "two\r\n");
    EXPECT_EQ("two\r\n", contentOf("A Quillon PRO/Drivers/M1_20260314.pmd2"));
    std::size_t files = 0;
    for ([[maybe_unused]] const auto& file : std::filesystem::directory_iterator{"A Quillon PRO/Drivers"})
        ++files;
    EXPECT_EQ(1u, files);
}

TEST_F(CardTest, RewritingKeepsTheCaseOfTheFileThatIsThere) {
    put("stars.TXT", "old");
    writeFile({Folder::working, "Stars.txt"}, "new");
    EXPECT_EQ("new", contentOf("stars.TXT"));
    EXPECT_EQ(std::vector<Text>{"stars.TXT"}, filesIn(Folder::working, ".txt"));
}

TEST_F(CardTest, AFailedWriteLeavesTheOldFileWhole) {
    put("A Quillon PRO", "a file where the folder should be");
    EXPECT_FALSE(attempt([] { writeFile({Folder::selections, "x.pms"}, "new"); }));
    EXPECT_EQ("a file where the folder should be", contentOf("A Quillon PRO"));

    put("HRA.txt", "old");
    std::filesystem::create_directory("HRA.txt.quillon-new"); // the temporary file can't be made
    EXPECT_FALSE(attempt([] { writeFile({Folder::working, "HRA.txt"}, "new"); }));
    EXPECT_EQ("old", contentOf("HRA.txt"));
}

TEST_F(CardTest, PreparedFilesAreGoneUnlessPutInPlace) {
    put("Stars.txt", "old");
    { const PreparedFile prepared{{Folder::working, "Stars.txt"}, "new"}; }
    EXPECT_EQ("old", contentOf("Stars.txt"));
    EXPECT_FALSE(exists("Stars.txt.quillon-new"));
}

TEST_F(CardTest, AFileGrowsPieceByPieceBesideTheOldOne) {
    put("HRA.txt", "old");
    const Text longPiece(1U << 19, 'x'); // longer than what is gathered before it is written
    {
        PreparedFile file{{Folder::working, "HRA.txt"}};
        file.write("first ");
        file.write(longPiece);
        file.write(" last");
        EXPECT_EQ("old", contentOf("HRA.txt"));
        file.putInPlace();
    }
    EXPECT_EQ("first " + longPiece + " last", contentOf("HRA.txt"));
    {
        PreparedFile file{{Folder::working, "HRA.txt"}};
        file.write("given up");
    }
    EXPECT_EQ("first " + longPiece + " last", contentOf("HRA.txt"));
    EXPECT_FALSE(exists("HRA.txt.quillon-new"));
}

TEST_F(CardTest, AFileTooLargeToBeOneOfOursIsThereButNotRead) {
    put("HRA.ini", "a line\r\n");
    EXPECT_TRUE(fileExists({Folder::working, "hra.ini"}));
    EXPECT_FALSE(fileExists({Folder::working, "HRB.ini"}));
    std::filesystem::resize_file("HRA.ini", (std::uintmax_t{1} << 30) + 1);
    EXPECT_TRUE(fileExists({Folder::working, "HRA.ini"}));
    EXPECT_FALSE(fileContent({Folder::working, "HRA.ini"}).has_value());
}

TEST_F(CardTest, AFileIsReadInPieces) {
    put("HRA.ini", "0123456789");
    FilePieces file{{Folder::working, "hra.INI"}};
    EXPECT_EQ(10u, file.size());
    EXPECT_EQ("789", file.read(7, 100));
    EXPECT_EQ("0123", file.read(0, 4));
    EXPECT_EQ("", file.read(10, 4));
    EXPECT_EQ("", file.read(99, 4));
    put("HRA.ini", "0123"); // another program cuts it short meanwhile
    EXPECT_EQ("23", file.read(2, 8));
    EXPECT_EQ("", file.read(6, 4));
    EXPECT_FALSE(attempt([] { FilePieces{{Folder::working, "missing.ini"}}; }));
    std::filesystem::create_directory("folder.ini");
    EXPECT_FALSE(attempt([] { FilePieces{{Folder::working, "folder.ini"}}; }));
}

TEST_F(CardTest, FilesPutInPlaceTogetherAreBothNewOrBothOld) {
    put("HRA.ini", "old");
    std::filesystem::create_directories("Stars5.ini/in the way");
    {
        PreparedFile first{{Folder::working, "HRA.ini"}, "new"};
        PreparedFile second{{Folder::working, "Stars5.ini"}, "new"};
        EXPECT_FALSE(attempt([&] { putInPlaceTogether(first, second); }));
        EXPECT_EQ("old", contentOf("HRA.ini"));
    }
    std::filesystem::remove("HRA.ini");
    {
        PreparedFile first{{Folder::working, "HRA.ini"}, "new"};
        PreparedFile second{{Folder::working, "Stars5.ini"}, "new"};
        EXPECT_FALSE(attempt([&] { putInPlaceTogether(first, second); }));
        EXPECT_FALSE(exists("HRA.ini"));
    }
    std::filesystem::remove_all("Stars5.ini");
    put("HRA.ini", "old");
    put("HRA.ini.quillon-old", "left by a crash");
    PreparedFile first{{Folder::working, "HRA.ini"}, "new"};
    PreparedFile second{{Folder::working, "Stars5.ini"}, "new"};
    putInPlaceTogether(first, second);
    EXPECT_EQ("new", contentOf("HRA.ini"));
    EXPECT_EQ("new", contentOf("Stars5.ini"));
    for (const char* name : {"HRA.ini", "Stars5.ini"})
        for (const char* end : {".quillon-new", ".quillon-old"})
            EXPECT_FALSE(exists(std::string{name} + end));
}

TEST_F(CardTest, AnAppendedRecordNeverMergesWithATornLine) {
    appendToFile({Folder::working, "HRA.ini"}, "first\r\n");
    appendToFile({Folder::working, "HRA.ini"}, "second\r\n");
    EXPECT_EQ("first\r\nsecond\r\n", contentOf("HRA.ini"));
    put("HRA.ini", "first\r\nsec");
    appendToFile({Folder::working, "HRA.ini"}, "third\r\n");
    EXPECT_EQ("first\r\nsec\r\nthird\r\n", contentOf("HRA.ini"));
}

TEST_F(CardTest, AGivenPathLeadsWhereTheUserWants) {
    std::filesystem::create_directories("out/year 26");
    writeFile({Folder::given, "out/year 26/Card.csv"}, "a,b\r\n");
    writeFile({Folder::given, "card.csv"}, "c\r\n");
    EXPECT_EQ("a,b\r\n", contentOf("out/year 26/Card.csv"));
    EXPECT_EQ("c\r\n", contentOf("card.csv"));
    EXPECT_EQ("out/year 26/Card.csv", shownPath({Folder::given, "out/year 26/Card.csv"}));
    for (const char* path : {"", "out/", "missing/x.csv", "a\nb.csv", "out"})
        EXPECT_FALSE(attempt([&] { writeFile({Folder::given, path}, "x"); })) << path;
}

TEST_F(CardTest, AFilesStampTellsThatItWasWritten) {
    const FilePlace place{Folder::working, "Notes.txt"};
    EXPECT_FALSE(fileStamp(place));
    put("Notes.txt", "one");
    const auto before = fileStamp(place);
    ASSERT_TRUE(before);
    EXPECT_EQ(before, fileStamp(place));
    put("Notes.txt", "three");
    EXPECT_NE(before, fileStamp(place));
}

TEST_F(CardTest, NamesThatLeadElsewhereAreNoFileNames) {
    for (const char* name : {"", ".", "..", "../x", "a/b", "a\\b", "C:x", "a\nb"})
        EXPECT_FALSE(attempt([&] { writeFile({Folder::selections, name}, "x"); })) << name;
    EXPECT_FALSE(attempt([] { readFile({Folder::working, Text(1000, 'x')}); }));
}

TEST_F(CardTest, NamesOutsideAsciiAreOneOnDiskAndInTheSystem) {
    writeFile({Folder::working, "Qu\xE9"
                                "bec.txt"},
              "x");
    EXPECT_TRUE(exists(u8"Qu\u00E9bec.txt"));
}

TEST_F(CardTest, FileListsIgnoreCaseAndAreSorted) {
    put("A Quillon PRO/Race Cards/YR_20260315.pmd", "");
    put("A Quillon PRO/Race Cards/M1_20260314.PMD", "");
    put("A Quillon PRO/Race Cards/M1_20260314.pmx", "");
    EXPECT_EQ((std::vector<Text>{"M1_20260314.PMD", "YR_20260315.pmd"}), filesIn(Folder::raceCards, ".pmd"));
    EXPECT_TRUE(filesIn(Folder::archives, ".pmx").empty());
}

TEST(Lines, EitherLineEndIsRead) {
    const auto linesOf = [](TextView content) {
        std::vector<Text> lines;
        LineReader reader{content};
        while (const auto line = reader.next()) lines.emplace_back(*line);
        return lines;
    };
    EXPECT_EQ((std::vector<Text>{"a", "", "b"}), linesOf("a\r\n\nb"));
    EXPECT_EQ((std::vector<Text>{"a"}), linesOf("a\n"));
    EXPECT_EQ((std::vector<Text>{"\r"}), linesOf("\r\r\n")); // a line of one carriage return
    EXPECT_TRUE(linesOf("").empty());
}

} // namespace quillon
