#include "import/placing.h"

#include "core/failure.h"
#include "core/files.h"
#include "import/card_in_text.h"
#include "import/zip_reading.h"
#include "support/card_test.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;

const fs::path source = "A Quillon PRO/TrackMaster ExE Files";
const fs::path imported = "A Quillon PRO/Imported";

struct PlacingTest : CardTest {
    static Text contentAt(const char* name) { return contentOf(source / name); }
    static std::vector<fs::path> filesIn(const fs::path& folder) {
        std::vector<fs::path> files;
        if (exists(folder))
            for (const auto& file : fs::directory_iterator{folder}) files.push_back(file.path());
        return files;
    }
};

TEST_F(PlacingTest, IntoAnEmptyFolderNothingIsKept) {
    EXPECT_FALSE(areInPlace(smallCard()));
    EXPECT_TRUE(putInPlace(smallCard()));
    EXPECT_TRUE(areInPlace(smallCard()));
    EXPECT_EQ(5u, filesIn(source).size());
    EXPECT_EQ(smallCard()[0].content, contentAt("RACESHR.DBF"));
    EXPECT_FALSE(exists(imported));
}

TEST_F(PlacingTest, TheOldTablesAreKeptInOneArchive) {
    ASSERT_TRUE(putInPlace(smallCard()));
    put(source / "SIREHR.DBF", "sires"); // the new card comes without
    put(source / "notes.txt", "the user's own");
    const Text later = "RACE N2 | TRACK C5 | BULLETDATE C8\n1 | MVR | 20260321\n2 | MVR | 20260321\n";
    const auto next = smallCard({{raceTable, later}, {trainerTable, ""}});
    ASSERT_TRUE(putInPlace(next));
    EXPECT_TRUE(areInPlace(next));
    EXPECT_EQ(5u, filesIn(source).size()); // four tables and the notes
    EXPECT_EQ("the user's own", contentAt("notes.txt"));

    const auto kept = filesIn(imported);
    ASSERT_EQ(1u, kept.size());
    EXPECT_TRUE(kept[0].filename().string().starts_with("MVR_20260314 kept ")) << kept[0];
    Gathered gathered;
    gatherFromZip(contentOf(kept[0]), "kept", gathered);
    ASSERT_EQ(6u, gathered.tables.size());
    for (const VendorTable& table : smallCard()) EXPECT_EQ(table.content, gathered.find(table.name)->content);
    EXPECT_EQ("sires", gathered.find("SIREHR.DBF")->content);
}

TEST_F(PlacingTest, TablesAreReplacedUnderTheNamesThatTheyHave) {
    put(source / "raceshr.dbf", "old");
    ASSERT_TRUE(putInPlace(smallCard()));
    EXPECT_EQ(smallCard()[0].content, contentAt("raceshr.dbf"));
    EXPECT_EQ(5u, filesIn(source).size());
}

// The trainers are the last table to be replaced, and a folder of their name stands in the way.
TEST_F(PlacingTest, WhereOneTableCanNotBeReplacedAllStayAsTheyWere) {
    put(source / "RACESHR.DBF", "old races");
    put(source / "SIREHR.DBF", "old sires");
    put(source / "TRAINRHR.DBF/in the way", "");
    EXPECT_FALSE(putInPlace(smallCard()));
    EXPECT_EQ("old races", contentAt("RACESHR.DBF"));
    EXPECT_EQ("old sires", contentAt("SIREHR.DBF"));
    EXPECT_EQ(3u, filesIn(source).size());
    EXPECT_TRUE(filesIn(imported).empty());
}

TEST_F(PlacingTest, WhereTheOldOnesCanNotBeKeptNothingIsReplaced) {
    put(source / "RACESHR.DBF", "old races");
    put(imported, "a file where the folder should be");
    EXPECT_FALSE(putInPlace(smallCard()));
    EXPECT_EQ("old races", contentAt("RACESHR.DBF"));
    EXPECT_EQ(1u, filesIn(source).size());
}

// The last step takes a table away. A folder that can't be written to fails already before.
TEST_F(PlacingTest, TablesThatGoComeBackWhereALaterOneCanNotGo) {
    put("a", "old a");
    put("b", "old b");
    fs::create_directories("c/in the way");
    PreparedFile first{{Folder::working, "a"}, "new a"};
    const std::array files{&first};
    const std::array gone{FilePlace{Folder::working, "b"}, FilePlace{Folder::working, "c"}};
    EXPECT_FALSE(attempt([&] { putInPlaceTogether(files, gone); }));
    EXPECT_EQ("old a", contentOf("a"));
    EXPECT_EQ("old b", contentOf("b"));
    EXPECT_FALSE(exists("a.quillon-old"));
    EXPECT_FALSE(exists("b.quillon-old"));
}

} // namespace
} // namespace quillon
