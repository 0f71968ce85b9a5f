// The list of changes, the way back, and the program's selections beside mine.
#include "desktop/changes_panel.h"

#include "card/columns.h"
#include "day/changes.h"
#include "desktop/main_window_test.h"

#include <QDockWidget>
#include <QStatusBar>
#include <QTableWidget>

namespace quillon {
namespace {

class ChangesPanelTest : public MainWindowTest {
protected:
    void scratch(int entry) {
        answers = {"Yes"};
        click(child<QAbstractButton>(*window, QString{"ScratchButton%1"}.arg(entry)));
    }
    QListWidget& list() { return child<QListWidget>(*window, "ChangeList"); }
    QTableWidget& places() { return child<QTableWidget>(*window, "ProgramAndMine"); }
    QAction& item(const char* command) { return *window->menus().action(findCommand(command)->id); }
};

TEST_F(ChangesPanelTest, AChangeIsALineInWordsTheNewestFirst) {
    startInWindow();
    EXPECT_EQ(1, list().count());
    scratch(1);
    pressKeys("Alt+Right");
    scratch(2);
    ASSERT_EQ(3, list().count());
    const Change& first = changes.standing()[0];
    EXPECT_TRUE(list().item(0)->text().startsWith("Race 2: ")) << list().item(0)->text().toStdString();
    EXPECT_TRUE(list().item(1)->text().startsWith("Race 1: " + QString::fromStdString(first.what)));
    EXPECT_EQ("The card as it was opened", list().item(2)->text());
}

TEST_F(ChangesPanelTest, InTheFirstWindowItLeavesTheEntriesInSight) {
    window->resize(1083, 747);
    startInWindow();
    QApplication::processEvents();
    const auto& entries = child<QWidget>(*window, "RaceView");
    const int below = window->height() - entries.mapTo(&*window, QPoint{0, entries.height()}).y();
    EXPECT_LE(child<QDockWidget>(*window, "ChangesDock").sizeHint().height(), below);
}

TEST_F(ChangesPanelTest, AClickShowsTheRace) {
    startInWindow();
    scratch(1);
    pressKeys("Alt+Right");
    pressKeys("F2");
    emit list().itemClicked(list().item(0));
    EXPECT_EQ("1", screen.header.race);
}

TEST_F(ChangesPanelTest, BackToHereTakesBackAllChangesAfterTheLine) {
    startInWindow();
    for (int entry = 1; entry <= 3; ++entry) scratch(entry);
    ASSERT_EQ(3U, changes.standing().size());
    auto& back = child<QAbstractButton>(*window, "UndoTo");
    EXPECT_FALSE(back.isEnabled()); // no line is chosen
    list().setCurrentRow(0);
    EXPECT_FALSE(back.isEnabled()); // nothing stands after the newest
    list().setCurrentRow(2);
    EXPECT_TRUE(back.isEnabled());
    pressKeys("F2");
    click(back);
    EXPECT_EQ(1U, changes.standing().size());
}

TEST_F(ChangesPanelTest, UndoSaysWhatItTakesBack) {
    startInWindow();
    EXPECT_FALSE(item("Undo").isEnabled());
    EXPECT_EQ("Take back the last change of the card", item("Undo").toolTip());
    scratch(1);
    EXPECT_TRUE(item("Undo").isEnabled());
    EXPECT_TRUE(item("Undo").toolTip().startsWith("Undo: Race 1: ")) << item("Undo").toolTip().toStdString();
    EXPECT_TRUE(item("Undo").toolTip().contains(" scratched"));
    item("Undo").trigger();
    EXPECT_FALSE(item("Undo").isEnabled());
    EXPECT_TRUE(item("Redo").toolTip().contains(" scratched"));
}

TEST_F(ChangesPanelTest, TheProgramsSelectionsStandBesideMineAndMovedPlacesAreMarked) {
    startInWindow();
    const Text first{trimmed(card.raceOutcome(1, 1))};
    EXPECT_EQ(first, places().item(0, 1)->text().toStdString());
    EXPECT_EQ(first, places().item(0, 5)->text().toStdString());
    for (int row = 0; row < 5; ++row) EXPECT_TRUE(places().item(row, 4)->text().isEmpty()) << row;
    int entry = 1;
    while (trimmed(card.entry(1, entry).programNumber) != first) ++entry;
    scratch(entry);
    EXPECT_EQ(first, places().item(0, 1)->text().toStdString());
    EXPECT_NE(first, places().item(0, 5)->text().toStdString());
    EXPECT_FALSE(places().item(0, 4)->text().isEmpty());
}

TEST_F(ChangesPanelTest, F2IsTheListButInACellItEdits) {
    startInWindow();
    auto& dock = child<QDockWidget>(*window, "ChangesDock");
    auto& table = child<QTableView>(*window, "RaceView");
    table.setFocus();
    table.setCurrentIndex(table.model()->index(0, RaceColumn::classText));
    QTest::keyClick(&table, Qt::Key_F2);
    EXPECT_FALSE(dock.isVisible());
    EXPECT_TRUE(table.isPersistentEditorOpen(table.currentIndex()) || table.findChild<QLineEdit*>());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    child<QWidget>(*window, "Box4").setFocus();
    QTest::keyClick(&child<QWidget>(*window, "Box4"), Qt::Key_F2);
    EXPECT_TRUE(dock.isVisible());
}

TEST_F(ChangesPanelTest, AStepBackAfterRecordSaysThatTheArchiveKeepsItsRecord) {
    startInWindow();
    scratch(1);
    pressKeys("F12");
    click(child<QAbstractButton>(*window, "AnalysisRecord"));
    ASSERT_TRUE(exists("HRA.ini"));
    choose("Undo");
    EXPECT_EQ("The archive keeps its record of this card as it was recorded",
              window->statusBar()->currentMessage().toStdString());
}

TEST_F(WindowTest, AFileThatChangedSinceIsTold) {
    putSampleCard();
    MainWindow real{appearance};
    real.show();
    ports.message = [](auto&, auto&) {};
    ports.question = [](auto&, auto&) { return true; };
    real.runner().run(CommandId::Start);
    real.runner().run(CommandId::Command4, numberArgument(1));
    put("A Quillon PRO/Selections/MVR_20260314.pms", "by another hand");
    real.runner().run(CommandId::Undo);
    EXPECT_TRUE(real.statusBar()->currentMessage().contains("MVR_20260314.pms has changed since"))
        << real.statusBar()->currentMessage().toStdString();
}

} // namespace
} // namespace quillon
