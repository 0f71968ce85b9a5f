#include "app/frame.h"

#include "analysis/analysis_view.h"
#include "app/start_up.h"
#include "support/card_test.h"

namespace quillon {

using FrameTest = CardTest;

TEST_F(FrameTest, ANewCardHidesTheTablesStartsTheFetcherAndEnds) {
    StartUp();
    for (const char* name :
         {"DAMHR", "RUNLINHR", "HORSEHR", "RACESHR", "SIREHR", "TRAINRHR", "PTTRHR", "DRIVERHR"})
        put(std::string{"A Quillon PRO/TrackMaster ExE Files/"} + name + ".DBF", "x");
    NewRC();
    ASSERT_EQ(10u, shown.size());
    EXPECT_EQ("hide: C:\\A Quillon PRO\\TrackMaster ExE Files\\DAMHR.DBF", shown[0]);
    EXPECT_EQ("hide: C:\\A Quillon PRO\\TrackMaster ExE Files\\DRIVERHR.DBF", shown[7]);
    EXPECT_EQ("run: FileManager.exe", shown[8]);
    EXPECT_EQ("end", shown[9]);
}

TEST_F(FrameTest, TablesThatAreNotThereAreNotHidden) {
    StartUp();
    NewRC();
    EXPECT_EQ((std::vector<std::string>{"run: FileManager.exe", "end"}), shown);
    EXPECT_TRUE(journalTells("RACESHR.DBF is not there"));
}

TEST_F(FrameTest, ATableThatLeadsNowhereStopsNothing) {
    StartUp();
    const std::filesystem::path folder = "A Quillon PRO/TrackMaster ExE Files";
    std::filesystem::create_directories(folder);
    std::error_code error;
    std::filesystem::create_symlink("RACESHR.DBF", folder / "RACESHR.DBF", error);
    if (error) GTEST_SKIP() << "no links on this disk";
    NewRC();
    EXPECT_EQ((std::vector<std::string>{"run: FileManager.exe", "end"}), shown);
    EXPECT_TRUE(journalTells("RACESHR.DBF is not there"));
}

TEST_F(FrameTest, ClosingTheWindowAsksAndExitDoesNot) {
    CloseWindow();
    answers = {"Yes"};
    CloseWindow();
    Exit_QL();
    EXPECT_EQ(
        (std::vector<std::string>{"question: Are you sure you want to exit Quillon? -> No",
                                  "question: Are you sure you want to exit Quillon? -> Yes", "end", "end"}),
        shown);
}

TEST_F(FrameTest, TheMainScreenTakesTheAnalysisViewsAway) {
    StartUp();
    screen.summaryVisible = true;
    screen.racePanelsVisible = false;
    screen.caption = "Mea 03-14-2026";
    screen.item(CommandId::MainScreen).visible = true;
    screen.item(CommandId::PrintSummary).visible = true;
    screen.item(CommandId::NewRC).visible = false;
    MainScreen();
    EXPECT_FALSE(screen.summaryVisible);
    EXPECT_TRUE(screen.racePanelsVisible);
    EXPECT_EQ("Quillon Professional Version", screen.caption);
    EXPECT_FALSE(screen.item(CommandId::MainScreen).visible);
    EXPECT_FALSE(screen.item(CommandId::PrintSummary).visible);
    EXPECT_TRUE(screen.item(CommandId::NewRC).visible);
}

} // namespace quillon
