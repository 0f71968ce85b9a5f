#include "reports/viewers.h"

#include "core/failure.h"
#include "sheet_test.h"

namespace quillon {

class ViewersTest : public SheetTest {};

TEST_F(ViewersTest, EachViewerWritesTheBatchFileAndShowsItsText) {
    struct Row {
        void (*viewer)();
        std::string path;
    };
    const Row rows[] = {
        {ViewSummary, "C:\\A Quillon PRO\\Selections\\M1_20260314.pms"},
        {Pick3Selections, "C:\\A Quillon PRO\\Selections2\\M1_20260314.pmr2"},
        {ViewCondensedProgram, "C:\\A Quillon PRO\\Programs\\M1_20260314.ppp"},
        {DriverList, "C:\\A Quillon PRO\\Drivers\\M1_20260314.pmd2"},
        {NotePad, "C:\\A Quillon PRO\\Results\\M1_20260314.pmr"},
        {PrintSummary, "Todays Results.txt"},
        {TestResults, "TEST.txt"},
        {ArchivesEditor, "HRA.ini"},
        {TrackEditor, "TrackEditor.ini"},
        {EXE, "Webpage.ini"},
    };
    for (const Row& row : rows) {
        shown.clear();
        row.viewer();
        EXPECT_EQ("NOTEPAD " + row.path + "\r\n", contentOf("Archives.bat"));
        EXPECT_EQ(std::vector<std::string>{"view: " + row.path}, shown);
    }
}

TEST_F(ViewersTest, APartialCardsFilesAreNamedLikeAnyOther) {
    card.cardFileName = "YR_20260314.pmd2";
    ViewSummary();
    EXPECT_EQ(std::vector<std::string>{"view: C:\\A Quillon PRO\\Selections\\YR_20260314.pms"}, shown);
}

TEST_F(ViewersTest, TheCardsViewersDoNothingWithNoCardOpen) {
    card.cardFileName.clear();
    for (void (*viewer)() : {ViewSummary, Pick3Selections, ViewCondensedProgram, DriverList, NotePad})
        attempt(viewer);
    EXPECT_TRUE(shown.empty());
    EXPECT_FALSE(exists("Archives.bat"));
}

TEST_F(ViewersTest, ShowsTheTextWhereTheBatchFileCantBeWritten) {
    std::filesystem::create_directory("Archives.bat");
    PrintSummary();
    EXPECT_EQ(std::vector<std::string>{"view: Todays Results.txt"}, shown);
}

} // namespace quillon
