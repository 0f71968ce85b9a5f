// Files that their user has marked, that another program has open, or that are very long.
#include "windows_files.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "day/save.h"
#include "screen/screen.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>

namespace quillon {
namespace {

using namespace std::chrono_literals;
using windows::OpenElsewhere;

const FilePlace stars{Folder::working, "Stars.txt"};
const std::wstring starsPath = L"C:\\Stars.txt";

// ---- write-protected ----

class ProtectedFile : public CardTest {
protected:
    ~ProtectedFile() override {
        for (const std::wstring& path : protected_) SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    }

    void protect(const std::wstring& path) {
        windows::setAttributes(path, FILE_ATTRIBUTE_READONLY);
        protected_.push_back(path);
    }

private:
    std::vector<std::wstring> protected_;
};

TEST_F(ProtectedFile, IsNeitherRewrittenNorAppendedTo) {
    put("Stars.txt", "old");
    protect(starsPath);
    EXPECT_FALSE(attempt([] { writeFile(stars, "new"); }));
    EXPECT_FALSE(attempt([] { appendToFile(stars, "new"); }));
    EXPECT_EQ("old", contentOf("Stars.txt"));
    EXPECT_EQ(std::vector<Text>{"Stars.txt"}, filesIn(Folder::working, "")); // and nothing beside it
    EXPECT_TRUE(windows::attributes(starsPath) & FILE_ATTRIBUTE_READONLY);
}

// A user may protect it while it is written.
TEST_F(ProtectedFile, IsNotReplacedByWhatIsPrepared) {
    put("HRA.ini", "old");
    put("Stars.txt", "old");
    {
        PreparedFile first{{Folder::working, "HRA.ini"}, "new"};
        PreparedFile second{stars, "new"};
        protect(starsPath);
        EXPECT_FALSE(attempt([&] { putInPlaceTogether(first, second); }));
    }
    EXPECT_EQ("old", contentOf("HRA.ini"));
    EXPECT_EQ("old", contentOf("Stars.txt"));
    EXPECT_EQ((std::vector<Text>{"HRA.ini", "Stars.txt"}), filesIn(Folder::working, ""));
}

TEST_F(ProtectedFile, RefusesASaveWithThePlainFileError) {
    put("A Quillon PRO/Race Cards/M1_20260314.pmd", "old card");
    put("A Quillon PRO/Archives/M1_20260314.pmx", "old archive");
    card.cardFileName = "M1_20260314.pmd";
    screen.header.track.caption = "M1";
    screen.header.date.caption = "20260314";
    protect(L"C:\\A Quillon PRO\\Archives\\M1_20260314.pmx");
    attempt(Save);
    EXPECT_EQ(
        std::vector<std::string>{
            "error: File can't be written: C:\\A Quillon PRO\\Archives\\M1_20260314.pmx"},
        shown);
    EXPECT_EQ("old card", contentOf("A Quillon PRO/Race Cards/M1_20260314.pmd"));
    EXPECT_EQ("old archive", contentOf("A Quillon PRO/Archives/M1_20260314.pmx"));
    EXPECT_EQ(std::vector<Text>{"M1_20260314.pmd"}, filesIn(Folder::raceCards, ""));
}

// ---- hidden ----

TEST_F(CardTest, AHiddenFileIsReadWrittenAndStaysHidden) {
    put("Stars.txt", "old");
    windows::setAttributes(starsPath, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    writeFile(stars, "new");
    appendToFile(stars, "er");
    EXPECT_EQ("new\r\ner", readFile(stars));
    EXPECT_EQ(static_cast<DWORD>(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM),
              windows::attributes(starsPath) & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
}

// ---- open elsewhere ----

// Virus scanners and viewers let go after a moment.
void releaseSoon(std::unique_ptr<OpenElsewhere> file, std::jthread& thread) {
    thread = std::jthread{[file = std::move(file)]() mutable {
        std::this_thread::sleep_for(150ms);
        file.reset();
    }};
}

TEST_F(CardTest, AFileThatIsOpenForAMomentIsReplaced) {
    put("Stars.txt", "old");
    std::jthread viewer;
    releaseSoon(std::make_unique<OpenElsewhere>(starsPath, FILE_SHARE_READ), viewer);
    writeFile(stars, "new");
    viewer.join();
    EXPECT_EQ("new", contentOf("Stars.txt"));
}

TEST_F(CardTest, AFileThatIsOpenForAMomentIsAppendedTo) {
    put("HRA.ini", "one\r\n");
    std::jthread scanner;
    releaseSoon(std::make_unique<OpenElsewhere>(L"C:\\HRA.ini", 0), scanner);
    appendToFile({Folder::working, "HRA.ini"}, "two\r\n");
    scanner.join();
    EXPECT_EQ("one\r\ntwo\r\n", contentOf("HRA.ini"));
}

TEST_F(CardTest, AFileThatStaysOpenIsLeftAsItWas) {
    put("Stars.txt", "old");
    {
        const OpenElsewhere viewer{starsPath, FILE_SHARE_READ};
        const auto before = std::chrono::steady_clock::now();
        EXPECT_FALSE(attempt([] { writeFile(stars, "new"); }));
        EXPECT_FALSE(attempt([] { appendToFile(stars, "new"); }));
        EXPECT_LT(std::chrono::steady_clock::now() - before,
                  5s); // half a second each, and room for a busy machine
        EXPECT_EQ("old", readFile(stars));
    }
    EXPECT_EQ(std::vector<Text>{"Stars.txt"}, filesIn(Folder::working, ""));
}

TEST_F(CardTest, FilesPutInPlaceTogetherAreBothOldWhenOneStaysOpen) {
    put("HRA.ini", "old");
    put("Stars.txt", "old");
    {
        const OpenElsewhere viewer{starsPath, FILE_SHARE_READ};
        PreparedFile first{{Folder::working, "HRA.ini"}, "new"};
        PreparedFile second{stars, "new"};
        EXPECT_FALSE(attempt([&] { putInPlaceTogether(first, second); }));
    }
    EXPECT_EQ("old", contentOf("HRA.ini"));
    EXPECT_EQ("old", contentOf("Stars.txt"));
    EXPECT_EQ((std::vector<Text>{"HRA.ini", "Stars.txt"}), filesIn(Folder::working, ""));
}

// A profile reads the archive piece by piece while a user records another card.
TEST_F(CardTest, AnArchiveGrowsWhileItIsRead) {
    put("HRA.ini", "one\r\n");
    FilePieces pieces{{Folder::working, "HRA.ini"}};
    appendToFile({Folder::working, "HRA.ini"}, "two\r\n");
    EXPECT_EQ("one\r\n", pieces.read(0, 100)); // as long as it was when it was opened
    EXPECT_EQ("one\r\ntwo\r\n", contentOf("HRA.ini"));
}

// ---- very long ----

TEST_F(CardTest, AnArchiveOfMoreThanFourGigabytesIsReadAtItsEnd) {
    constexpr std::uint64_t start = (std::uint64_t{4} << 30) + 5;
    const HANDLE file = CreateFileW(L"C:\\HRA.ini", GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    LARGE_INTEGER place{};
    place.QuadPart = static_cast<LONGLONG>(start);
    ASSERT_TRUE(SetFilePointerEx(file, place, nullptr, FILE_BEGIN)); // what lies before takes no room
    DWORD written = 0;
    ASSERT_TRUE(WriteFile(file, "the end", 7, &written, nullptr));
    CloseHandle(file);
    FilePieces pieces{{Folder::working, "HRA.ini"}};
    EXPECT_EQ(start + 7, pieces.size());
    EXPECT_EQ("the end", pieces.read(start, 100));
}

} // namespace
} // namespace quillon
