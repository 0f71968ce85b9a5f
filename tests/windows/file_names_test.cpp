// Names and folders as Windows has them: of all scripts, long, and kept for devices.
#include "windows_files.h"

#include "core/disk.h"
#include "core/failure.h"
#include "core/files.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

const std::wstring anyScript = L"C:\\\u0416\u0443\u043A \u9A6C Se\u00F1or"; // Cyrillic, Chinese, Spanish

TEST_F(CardTest, AWorkingFolderMayBeNamedInAnyScript) {
    const windows::WorkingFolder folder{anyScript};
    writeFile({Folder::working, "Stars.txt"}, "old");
    writeFile({Folder::working, "Stars.txt"}, "new");
    appendToFile({Folder::working, "HRA.ini"}, "one\r\n");
    appendToFile({Folder::working, "HRA.ini"}, "two\r\n");
    EXPECT_EQ("new", windows::content(anyScript + L"\\Stars.txt"));
    EXPECT_EQ("one\r\ntwo\r\n", readFile({Folder::working, "hra.INI"}));
    EXPECT_EQ(10U, FilePieces({Folder::working, "HRA.ini"}).size());
    EXPECT_EQ((std::vector<Text>{"HRA.ini", "Stars.txt"}), filesIn(Folder::working, ""));
}

// The bytes of the code page, whatever code page Windows itself is set to.
TEST_F(CardTest, AFileNameIsOneInUnicode) {
    writeFile({Folder::working, "Qu\xE9"
                                "bec \x80 \x8A.txt"},
              "x");
    EXPECT_EQ("x", windows::content(L"C:\\Qu\u00E9bec \u20AC \u0160.txt"));
    EXPECT_EQ(std::vector<Text>{"Qu\xE9"
                                "bec \x80 \x8A.txt"},
              filesIn(Folder::working, ".txt"));
}

TEST_F(CardTest, ANameOutsideTheCodePageIsListedAllTheSame) {
    windows::put(L"C:\\\u0416\u0443\u043A.pmd", "a beetle's card");
    EXPECT_EQ(std::vector<Text>{"???.pmd"}, filesIn(Folder::working, ".pmd"));
    EXPECT_EQ("a beetle's card", readFile({Folder::working, "???.pmd"}));
}

// Half of a character is a name to Windows; it is listed as any other that the code page does not have.
TEST(Disk, ANameThatIsNoUnicodeIsReadInSomeWay) {
    EXPECT_EQ("half \xEF\xBF\xBD.pmd", disk::utf8Name(L"C:\\half \xD83D.pmd")); // U+FFFD stands in for it
}

TEST_F(CardTest, AFileIsKeptInItsOwnCase) {
    put("stars.TXT", "old");
    writeFile({Folder::working, "Stars.txt"}, "new");
    EXPECT_EQ(std::vector<Text>{"stars.TXT"}, filesIn(Folder::working, ".txt"));
    EXPECT_EQ("new", contentOf("stars.TXT"));
}

TEST(Disk, OnlyALongPathNeedsItsLongForm) {
    const std::wstring name(250, L'a');
    EXPECT_EQ(L"HRA.ini", disk::reachable(L"HRA.ini"));
    EXPECT_EQ(L"C:\\A Quillon PRO\\HRA.ini", disk::reachable(L"C:\\A Quillon PRO\\HRA.ini"));
    EXPECT_EQ(L"\\\\?\\C:\\" + name, disk::reachable(L"C:\\" + name));
    EXPECT_EQ(L"\\\\?\\C:\\" + name, disk::reachable(L"\\\\?\\C:\\" + name));
    EXPECT_EQ(L"\\\\?\\UNC\\server\\cards\\" + name, disk::reachable(L"\\\\server\\cards\\" + name));
}

// Windows itself opens paths of up to 259 characters. The folder has 242, so that "HRA.ini" fits, but the
// temporary file beside it does not, and the card fits in no form but the long one.
TEST_F(CardTest, FilesOfADeepFolderAreReadAndWritten) {
    const windows::WorkingFolder folder{L"C:\\" + std::wstring(119, L'a') + L"\\" + std::wstring(119, L'b')};
    const FilePlace archive{Folder::working, "HRA.ini"};
    const FilePlace savedCard{Folder::working, "A long name of a card_20260314.pmd"};
    for (const FilePlace& place : {archive, savedCard}) {
        writeFile(place, "old");
        writeFile(place, "new");
        appendToFile(place, "er");
        appendToFile(place, "er");
        EXPECT_EQ("new\r\ner\r\ner", readFile(place)) << place.name;
        EXPECT_EQ(11U, FilePieces{place}.size()) << place.name;
    }
    PreparedFile first{archive, "together"};
    PreparedFile second{savedCard, "together"};
    putInPlaceTogether(first, second);
    EXPECT_EQ("together", readFile(archive));
    EXPECT_EQ("together", readFile({Folder::working, "A LONG NAME OF A CARD_20260314.PMD"}));
    EXPECT_EQ((std::vector<Text>{savedCard.name, archive.name}), filesIn(Folder::working, ""));
}

TEST_F(CardTest, DevicesAreNoFiles) {
    for (const char* name : {"CON", "con", "nul", "NUL.txt", "Aux.pmd", "PRN.tar.gz", "COM1", "com9.ini",
                             "LPT1.txt", "LPT0", "COM\xB2.txt", "CON .txt", "CONIN$", "conout$", "nul. ."}) {
        EXPECT_FALSE(attempt([&] { writeFile({Folder::working, name}, "x"); })) << name;
        EXPECT_FALSE(attempt([&] { appendToFile({Folder::working, name}, "x"); })) << name;
        EXPECT_FALSE(attempt([&] { readFile({Folder::working, name}); })) << name;
    }
    EXPECT_TRUE(filesIn(Folder::working, "").empty());
}

TEST_F(CardTest, NamesLikeThoseOfDevicesAreFiles) {
    for (const char* name :
         {"CONTEST.txt", "COM.txt", "COM10.txt", "LPTX.ini", "NULL", "_AUX.pmd", "x.CON", "CON_1.pmd"}) {
        writeFile({Folder::working, name}, name);
        EXPECT_EQ(name, readFile({Folder::working, name}));
    }
}

// Windows drops blanks and points at the end, so each of these would be the file that is there, or a part of
// it that no one sees.
TEST_F(CardTest, ANameForAnotherFileIsNone) {
    put("HRA.ini", "old");
    for (const char* name : {"HRA.ini.", "HRA.ini ", "HRA.ini. .", "HRA.ini:stream", "HRA.ini::$DATA"}) {
        EXPECT_FALSE(attempt([&] { writeFile({Folder::working, name}, "new"); })) << name;
        EXPECT_FALSE(attempt([&] { appendToFile({Folder::working, name}, "new"); })) << name;
        EXPECT_FALSE(attempt([&] { readFile({Folder::working, name}); })) << name;
    }
    EXPECT_EQ("old", contentOf("HRA.ini"));
}

TEST_F(CardTest, ACharacterThatNoNameHasFindsNoFile) {
    put("HRA.ini", "old");
    for (const char* name : {"*.ini", "HRA.in?", "HRA.ini|", "<HRA.ini>", "\"HRA.ini\""}) {
        EXPECT_FALSE(attempt([&] { writeFile({Folder::working, name}, "new"); })) << name;
        EXPECT_FALSE(attempt([&] { readFile({Folder::working, name}); })) << name;
    }
    EXPECT_EQ("old", contentOf("HRA.ini"));
    EXPECT_EQ(std::vector<Text>{"HRA.ini"}, filesIn(Folder::working, ""));
}

} // namespace
} // namespace quillon
