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

TEST_F(CardFilesTest, ANameTellsTrackAndDate) {
    struct Row {
        const char* fileName;
        const char* name;
        const char* track;
        const char* date;
    };
    constexpr Row rows[] = {
        {"M1_20260314.pmd", "M1_20260314", "M1", "20260314"},
        {"PcDwn_20260314.pmd2", "PcDwn_20260314", "PcDwn", "20260314"},
        {"M1_2026.03.pmd", "M1_2026", "M1", "2026.03."}, // eight characters, whatever they are
        {"M1_2026", "M1_2026", "M1", "2026"},
        {"_20260314.pmd", "_20260314", "", "20260314"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(row.name, cardNameOf(row.fileName));
        EXPECT_EQ(row.track, cardTrackOf(row.fileName));
        EXPECT_EQ(row.date, cardDateOf(row.fileName));
    }
    EXPECT_EQ("", cardDateOf("M1.pmd"));
    EXPECT_FALSE(attempt([] { cardTrackOf("M1.pmd"); }));
}

TEST_F(CardFilesTest, FailsWithNoCardOpen) {
    bool reached = false;
    EXPECT_FALSE(attempt([&] { reached = !cardFile(Folder::selections, "pms").name.empty(); }));
    EXPECT_FALSE(reached);
    EXPECT_TRUE(journalTells("no card is open"));
}

} // namespace quillon
