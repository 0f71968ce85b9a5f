#include "import/gathering.h"

#include "import/made_archives.h"
#include "support/card_test.h"

namespace quillon {
namespace {

TEST_F(CardTest, GatheredTablesComeFromAFolderInAnyDepthAndCase) {
    put("day/notes.txt", "words");
    put("day/MVR/raceshr.dbf", "races");
    put("day/MVR/more/HORSEHR.DBF", "horses");
    const Gathered gathered = gatherTables({"day"});
    EXPECT_EQ("", gathered.refusal);
    ASSERT_EQ(2u, gathered.tables.size());
    EXPECT_EQ("races", gathered.find(raceTable)->content);
    EXPECT_EQ("MVR/raceshr.dbf", gathered.find(raceTable)->path);
    EXPECT_EQ("horses", gathered.find(horseTable)->content);
}

TEST_F(CardTest, GatheredTablesComeFromArchivesProgramsAndTablesTogether) {
    put("races.zip", madeZip({{"RACESHR.DBF", "races"}}));
    put("horses.exe", behindProgram(madeZip({{"HORSEHR.DBF", "horses"}}), PlacesFrom::archive));
    put("runlinhr.dbf", "lines");
    const Gathered gathered = gatherTables({"races.zip", "horses.exe", "runlinhr.dbf"});
    EXPECT_EQ("", gathered.refusal);
    ASSERT_EQ(3u, gathered.tables.size());
    EXPECT_EQ("lines", gathered.find(lineTable)->content);
}

TEST_F(CardTest, AFolderWithTwoTablesOfANameIsRefused) {
    put("day/MVR/RACESHR.DBF", "races");
    put("day/NFLD/RACESHR.DBF", "others");
    const Gathered gathered = gatherTables({"day"});
    EXPECT_TRUE(gathered.refusal.starts_with("There are two tables RACESHR.DBF, ")) << gathered.refusal;
    EXPECT_TRUE(gathered.tables.empty());
}

TEST_F(CardTest, ALinkInAFolderIsRefused) {
    put("elsewhere.dbf", "races");
    std::filesystem::create_directory("day");
    std::error_code error;
    std::filesystem::create_symlink("../elsewhere.dbf", "day/RACESHR.DBF", error);
    if (error) GTEST_SKIP() << "no links here";
    EXPECT_EQ("RACESHR.DBF in day is a link to another file.", gatherTables({"day"}).refusal);
}

TEST_F(CardTest, LinkedFoldersAreNotFollowed) {
    put("elsewhere/RACESHR.DBF", "races");
    std::filesystem::create_directory("day");
    std::error_code error;
    std::filesystem::create_directory_symlink("../elsewhere", "day/more", error);
    if (error) GTEST_SKIP() << "no links here";
    EXPECT_EQ("No table of the vendor's is in day.", gatherTables({"day"}).refusal);
}

TEST_F(CardTest, WhatHoldsNoTableIsRefusedByItsName) {
    std::filesystem::create_directory("day");
    put("empty.zip", madeZip({}));
    put("words.zip", madeZip({{"notes.txt", "words"}}));
    put("notes.txt", "words");
    EXPECT_EQ("No table of the vendor's is in day.", gatherTables({"day"}).refusal);
    EXPECT_EQ("empty.zip is an empty archive.", gatherTables({"empty.zip"}).refusal);
    EXPECT_EQ("No table of the vendor's is in words.zip.", gatherTables({"words.zip"}).refusal);
    EXPECT_EQ("notes.txt is neither a zip archive nor a table of the vendor's.",
              gatherTables({"notes.txt"}).refusal);
    EXPECT_EQ("gone.zip is not there, or is no file.", gatherTables({"gone.zip"}).refusal);
    EXPECT_EQ("No table of the vendor's is among these files.", gatherTables({"day", "words.zip"}).refusal);
}

TEST_F(CardTest, AnArchiveThatIsRefusedSpoilsAllThatCameWithIt) {
    put("RACESHR.DBF", "races");
    put("locked.zip", madeZip({{"HORSEHR.DBF", "horses"}}, "secret"));
    const Gathered gathered = gatherTables({"RACESHR.DBF", "locked.zip"});
    EXPECT_TRUE(gathered.isRefused());
    EXPECT_TRUE(gathered.tables.empty());
}

} // namespace
} // namespace quillon
