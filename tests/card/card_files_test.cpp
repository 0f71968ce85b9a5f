#include "card/card_files.h"

#include "core/failure.h"
#include "support/card_test.h"

namespace quillon {

class CardFilesTest : public CardTest {};

TEST_F(CardFilesTest, NamesAFileByTheCardUpToItsFirstPoint) {
    struct Row {
        const char* cardFileName;
        const char* extension;
        const char* name;
    };
    constexpr Row rows[] = {
        {"M1_20260314.pmd", "pms", "M1_20260314.pms"},
        {"M1_20260314.pmd2", "pmr2", "M1_20260314.pmr2"},
        {"M1_2026.03.pmd", "txt", "M1_2026.txt"},
    };
    for (const Row& row : rows) {
        card.cardFileName = row.cardFileName;
        const FilePlace place = cardFile(Folder::selections, row.extension);
        EXPECT_EQ(row.name, place.name);
        EXPECT_EQ(Folder::selections, place.folder) << row.cardFileName;
    }
}

TEST_F(CardFilesTest, FailsWithNoCardOpen) {
    bool reached = false;
    EXPECT_FALSE(attempt([&] { reached = !cardFile(Folder::selections, "pms").name.empty(); }));
    EXPECT_FALSE(reached);
    EXPECT_TRUE(journalTells("no card is open"));
}

} // namespace quillon
