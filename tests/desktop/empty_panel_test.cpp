#include "desktop/empty_panel.h"
#include "screen/ports.h"

#include "desktop/main_window.h"
#include "desktop/window_test.h"
#include "desktop/working_folder.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QUrl>

#include <filesystem>

namespace quillon {
namespace {

constexpr const char* sourceFolder = "A Quillon PRO/TrackMaster ExE Files";

/// Takes the place of the desktop's file manager.
class FolderOpener : public QObject {
    Q_OBJECT

public:
    FolderOpener() { QDesktopServices::setUrlHandler("file", this, "open"); }
    ~FolderOpener() override { QDesktopServices::unsetUrlHandler("file"); }

    QStringList opened;

public slots:
    void open(const QUrl& url) { opened.push_back(url.toLocalFile()); }
};

struct EmptyPanelTest : WindowTest {
    EmptyPanelTest() {
        panel.resize(1083, 700);
        panel.show();
        panel.refresh();
    }

    QString text(const char* name) { return child<QLabel>(panel, name).text(); }
    QAbstractButton& button(const char* name) { return child<QAbstractButton>(panel, name); }
    bool ticked(const char* table) { return text(table).startsWith(QChar{0x2713}); }

    EmptyPanel panel{runner, appearance};
};

TEST_F(EmptyPanelTest, TellsWhereTheTablesGoAndThatTheyAreMissing) {
    EXPECT_EQ("Put the vendor's tables into this folder, then press Start", text("EmptyHeading"));
    EXPECT_EQ(sourceFolderOnDisk(), text("SourceFolder"));
    EXPECT_TRUE(child<QLabel>(panel, "SourceFolder").textInteractionFlags() & Qt::TextSelectableByMouse);
    for (const char* table : {"RACESHR.DBF", "HORSEHR.DBF", "RUNLINHR.DBF", "DRIVERHR.DBF", "TRAINRHR.DBF"}) {
        EXPECT_FALSE(ticked(table)) << table;
        EXPECT_TRUE(text(table).contains("is missing")) << table;
    }
}

TEST_F(EmptyPanelTest, TicksTheTablesThatAreThereWhateverTheirCase) {
    put(std::filesystem::path{sourceFolder} / "raceshr.dbf", "");
    put(std::filesystem::path{sourceFolder} / "DriverHR.Dbf", "");
    panel.refresh();
    EXPECT_TRUE(ticked("RACESHR.DBF"));
    EXPECT_TRUE(ticked("DRIVERHR.DBF"));
    EXPECT_FALSE(ticked("HORSEHR.DBF"));
}

TEST_F(EmptyPanelTest, LooksAgainWhenTheWindowIsTurnedTo) {
    putSampleCard();
    EXPECT_FALSE(ticked("RACESHR.DBF"));
    panel.activateWindow();
    QApplication::setActiveWindow(nullptr);
    QApplication::setActiveWindow(&panel);
    EXPECT_TRUE(ticked("RACESHR.DBF"));
    EXPECT_EQ("The vendor's tables are here. Press Start.", text("EmptyHeading"));
}

TEST_F(EmptyPanelTest, StartLoadsTheCard) {
    putSampleCard();
    click(button("EmptyStart"));
    EXPECT_GT(card.raceCount, 0);
    EXPECT_EQ("", text("EmptyNotice"));
}

TEST_F(EmptyPanelTest, AStartWithoutARaceTableSaysWhy) {
    click(button("EmptyStart"));
    EXPECT_EQ("Start found no race: RACESHR.DBF is not in the folder.", text("EmptyNotice"));
    panel.refresh();
    EXPECT_NE("", text("EmptyNotice")); // it stays until the tables change
    put(std::filesystem::path{sourceFolder} / "RACESHR.DBF", "no table");
    panel.refresh();
    EXPECT_EQ("", text("EmptyNotice"));
    runner.run(CommandId::Start); // from the menu or by its key
    EXPECT_EQ("Start found no race: RACESHR.DBF holds none, or is no table.", text("EmptyNotice"));
}

TEST_F(EmptyPanelTest, TheFolderIsMadeAndOpened) {
    FolderOpener opener;
    click(button("OpenFolder"));
    EXPECT_TRUE(std::filesystem::is_directory(sourceFolder));
    EXPECT_EQ(QStringList{sourceFolderOnDisk()}, opener.opened);
}

TEST_F(EmptyPanelTest, ASavedCardCanBeRecalled) {
    put("A Quillon PRO/Race Cards/M1_20260314.pmd", "");
    click(button("EmptyRecall"));
    EXPECT_TRUE(screen.fileList.visible);
    panel.refresh();
    EXPECT_EQ(CommandRunner::canRun(CommandId::RecallRaceCard), button("EmptyRecall").isEnabled());
}

TEST_F(EmptyPanelTest, TheStartButtonIsTheScreens) {
    screen.start = {.caption = "View Races", .enabled = false};
    panel.refresh();
    EXPECT_EQ("View Races", button("EmptyStart").text());
    EXPECT_FALSE(button("EmptyStart").isEnabled());
}

TEST_F(WindowTest, TheEmptyPanelGivesWayToACard) {
    putSampleCard();
    MainWindow window{appearance};
    ports.message = [](auto&, auto&) {}; // a load ends with one
    window.show();
    auto& panel = child<EmptyPanel>(window, "EmptyPanel");
    ASSERT_TRUE(panel.isVisible());
    click(child<QAbstractButton>(window, "EmptyStart"));
    EXPECT_FALSE(panel.isVisible());
}

} // namespace
} // namespace quillon

#include "empty_panel_test.moc"
