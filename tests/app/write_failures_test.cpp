#include "app/write_failures.h"

#include "core/failure.h"
#include "support/card_test.h"

#include <filesystem>

namespace quillon {
namespace {

class WriteFailuresTest : public CardTest {
protected:
    WriteFailuresTest() {
        writeFailureWatch = [this](const WriteFailure& failure) { told.push_back(failure); };
    }
    ~WriteFailuresTest() override { writeFailureWatch = nullptr; }

    std::vector<WriteFailure> told;
};

TEST_F(WriteFailuresTest, CausesAreToldInWords) {
    const auto words = [](std::errc code) { return causeInWords(make_error_code(code)); };
    EXPECT_EQ("no space left", words(std::errc::no_space_on_device));
    EXPECT_EQ("read-only", words(std::errc::read_only_file_system));
    EXPECT_EQ("read-only", words(std::errc::permission_denied));
    EXPECT_EQ("used by another program", words(std::errc::text_file_busy));
    EXPECT_EQ(make_error_code(std::errc::network_down).message(), words(std::errc::network_down));
    EXPECT_EQ("it can't be written", causeInWords({}));
}

TEST_F(WriteFailuresTest, WhatAFailureMeansIsToldByItsFile) {
    EXPECT_EQ("the selection sheet on disk is older than the screen",
              meaningOf({Folder::selections, "MVR_20260314.pms"}));
    EXPECT_EQ("the card is not saved", meaningOf({Folder::archives, "MVR_20260314.pmx"}));
    EXPECT_EQ("this card is not in the archive", meaningOf({Folder::working, "HRA.ini"}));
    EXPECT_EQ("a crash would lose the changes that are not saved",
              meaningOf({Folder::recovery, "MVR_20260314-1.recovery"}));
    EXPECT_EQ("the file on disk is as it was before", meaningOf({Folder::working, "Wins by Track.txt"}));
}

// Each way to write that meets a folder where its file should be, or a file where its folder should be.
TEST_F(WriteFailuresTest, EveryWayToWriteTellsOnceWhichFileAndWhy) {
    std::filesystem::create_directories("A Quillon PRO/Selections/M1_20260314.pms/in use");
    const FilePlace taken{Folder::selections, "M1_20260314.pms"};
    EXPECT_FALSE(attempt([&] { writeFile(taken, "sheet"); }));
    EXPECT_FALSE(attempt([&] { appendToFile(taken, "line"); }));
    EXPECT_FALSE(attempt([&] { removeFile(taken); }));
    ASSERT_EQ(3U, told.size());
    for (const WriteFailure& failure : told) {
        EXPECT_EQ(Folder::selections, failure.place.folder);
        EXPECT_EQ("M1_20260314.pms", failure.place.name);
    }
    EXPECT_EQ("a folder has its name", causeInWords(told[0].cause));
    EXPECT_EQ("a folder has its name", causeInWords(told[1].cause));
    EXPECT_EQ("a folder has its name", causeInWords(told[2].cause));

    put("A Quillon PRO/Entries", "a file");
    told.clear();
    EXPECT_FALSE(attempt([] { writeFile({Folder::entries, "M1_20260314.txt"}, "list"); }));
    ASSERT_EQ(1U, told.size());
    EXPECT_EQ(Folder::entries, told[0].place.folder);
}

TEST_F(WriteFailuresTest, AWriteThatGoesWellTellsNothing) {
    writeFile({Folder::selections, "M1_20260314.pms"}, "sheet");
    appendToFile({Folder::working, "HRA.ini"}, "record");
    removeFile({Folder::working, "HRA.ini"});
    removeFile({Folder::working, "HRA.ini"}); // it is not there any more
    EXPECT_TRUE(told.empty());
}

} // namespace
} // namespace quillon
