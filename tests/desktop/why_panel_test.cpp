// Why a rating, a line and a place: in the panel, in the tool tip of the PR column, and by Space.
#include "desktop/why_panel.h"

#include "card/columns.h"
#include "desktop/cell_table_view.h"
#include "desktop/main_window_test.h"
#include "desktop/shown_text.h"

#include <QAccessible>
#include <QDockWidget>
#include <QHelpEvent>
#include <QToolTip>

namespace quillon {
namespace {

class WhyPanelTest : public MainWindowTest {
protected:
    /// The past lines of entry 2 of race 3, with the panel beside them.
    void openEntry() {
        startInWindow();
        window->runner().run(CommandId::RaceButton, numberArgument(3));
        window->runner().run(CommandId::EntryButton, numberArgument(2));
    }
    void openWhy() { child<QAction>(*window, "Why").trigger(); }

    CellTableView& table(const char* name) { return child<CellTableView>(*window, name); }
    QTableWidget& lines() { return child<QTableWidget>(*window, "WhyLines"); }
    QTableWidget& roads() { return child<QTableWidget>(*window, "WhyRoads"); }
    QListWidget& place() { return child<QListWidget>(*window, "WhyPlace"); }
    std::string heading() { return child<QLabel>(*window, "WhyHeading").text().toStdString(); }
    std::string headOf(int column) { return roads().horizontalHeaderItem(column)->text().toStdString(); }
    std::string textOf(QTableWidget& of, int row, int column) {
        return of.item(row, column)->text().toStdString();
    }

    /// The cell of a table's PR column in this row, counted from 0, made the current one.
    QModelIndex goToRating(CellTableView& in, int row, int ratingColumn) {
        for (int column = 0; column < in.model()->columnCount(); ++column) {
            const QModelIndex cell = in.model()->index(row, column);
            if (in.cells().tableColumn(cell) != ratingColumn) continue;
            in.setFocus();
            in.setCurrentIndex(cell);
            return cell;
        }
        throw std::runtime_error("no PR column");
    }
};

TEST_F(WhyPanelTest, TheTwoRoadsStandSideBySide) {
    openEntry();
    openWhy();
    EXPECT_EQ("Race 3, number 2, Uncle Fen: PR 59.2", heading());
    ASSERT_EQ(5, lines().rowCount());
    EXPECT_EQ(1, lines().currentRow()); // the chosen line, to begin with
    EXPECT_TRUE(roads().isColumnHidden(3));
    EXPECT_EQ("Line 2, chosen", headOf(2));

    goToRating(table("EntryLines"), 3, DataColumn::rating);
    EXPECT_EQ(3, lines().currentRow());
    EXPECT_FALSE(roads().isColumnHidden(3));
    EXPECT_EQ("Line 4", headOf(2));
    EXPECT_EQ("Line 2, chosen", headOf(4));
    const int last = roads().rowCount() - 1;
    EXPECT_EQ("Rating", textOf(roads(), last, 0));
    const auto told = whyLines(3, 2);
    EXPECT_EQ(Text{trimmed(told[3].rating)}, textOf(roads(), last, 1));
    EXPECT_EQ(Text{trimmed(told[1].rating)}, textOf(roads(), last, 3));
    EXPECT_EQ("not looked at", textOf(lines(), 3, 2));
    EXPECT_EQ("chosen", textOf(lines(), 1, 2));
}

TEST_F(WhyPanelTest, ItOpensAtTheLineThatTheKeyboardIsOn) {
    openEntry();
    goToRating(table("EntryLines"), 3, DataColumn::rating);
    openWhy();
    EXPECT_EQ(3, lines().currentRow());
}

TEST_F(WhyPanelTest, AllStepsAreThereForWhoWantsThem) {
    openEntry();
    openWhy();
    const int few = roads().rowCount();
    child<QCheckBox>(*window, "WhyAllSteps").setChecked(true);
    EXPECT_EQ(17, roads().rowCount());
    EXPECT_LT(few, 17);
}

TEST_F(WhyPanelTest, ItFollowsTheKeyboardFromTableToTable) {
    startInWindow();
    openWhy();
    goToRating(table("RaceView"), 4, RaceColumn::rating);
    EXPECT_EQ(0U, heading().find("Race 1, number 5, ")) << heading();
    EXPECT_EQ(3, lines().currentRow()); // line 4 of entry 5 speaks for it
    // The first row of the race's lines is line 1 of entry 1.
    goToRating(table("RaceLines"), 0, DataColumn::rating);
    EXPECT_EQ(0U, heading().find("Race 1, number 1, ")) << heading();
    EXPECT_EQ(0, lines().currentRow());
    lines().setFocus();
    QTest::keyClick(&lines(), Qt::Key_Down);
    EXPECT_TRUE(headOf(2).starts_with("Line 2"));
}

TEST_F(WhyPanelTest, ThePlaceIsToldStageByStage) {
    startInWindow();
    openWhy();
    int entry = 0;
    for (int row = 1; row <= ratedEntries; ++row)
        if (trimmed(card.entry(1, row).programNumber) == trimmed(card.raceOutcome(1, OutcomeCell::s2)))
            entry = row;
    goToRating(table("RaceView"), entry - 1, RaceColumn::rating);
    ASSERT_EQ(3, place().count()); // the place, and two stages
    EXPECT_EQ("Ranked S2", place().item(0)->text());
    EXPECT_TRUE(place().item(2)->text().startsWith("Stage 2, won: "));
}

TEST_F(WhyPanelTest, ALineOfTheUsersChoiceIsTold) {
    openEntry();
    openWhy();
    window->runner().run(CommandId::Command3, numberArgument(1));
    EXPECT_EQ("chosen", textOf(lines(), 0, 2));
    EXPECT_EQ("taken by you in place of the program's choice", textOf(lines(), 0, 3));
}

TEST_F(WhyPanelTest, TheToolTipTellsTheRoad) {
    openEntry();
    CellTableView& entryLines = table("EntryLines");
    const QModelIndex cell = goToRating(entryLines, 1, DataColumn::rating);
    const QPoint place = entryLines.visualRect(cell).center();
    QHelpEvent hover{QEvent::ToolTip, place, entryLines.viewport()->mapToGlobal(place)};
    QApplication::sendEvent(entryLines.viewport(), &hover);
    EXPECT_TRUE(QToolTip::text().startsWith("Line 2, chosen: 59.2, the lowest of the 3 lines that count\n"))
        << QToolTip::text().toStdString();
    EXPECT_TRUE(QToolTip::text().endsWith("59.2   the rating"));
    QToolTip::hideText();
}

TEST_F(WhyPanelTest, SpaceTellsItToo) {
    startInWindow();
    CellTableView& entries = table("RaceView");
    entries.setCurrentIndex(entries.model()->index(4, RaceColumn::udr));
    QTest::keyClick(&entries, Qt::Key_Space); // on another column it is nobody's
    EXPECT_EQ(QString{}, QToolTip::text());
    goToRating(entries, 4, RaceColumn::rating);
    QTest::keyClick(&entries, Qt::Key_Space);
    EXPECT_TRUE(QToolTip::text().startsWith("Line 4, chosen: ")) << QToolTip::text().toStdString();
    entries.setCurrentIndex(entries.model()->index(4, RaceColumn::udr)); // it goes with the cell
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(WhyPanelTest, AnEntryThatIsOpenedIsTold) {
    startInWindow();
    openWhy();
    EXPECT_EQ(0U, heading().find("Race 1, number 1, ")) << heading();
    window->runner().run(CommandId::EntryButton, numberArgument(5));
    EXPECT_EQ(0U, heading().find("Race 1, number 5, ")) << heading();
    window->runner().run(CommandId::RaceButton, numberArgument(2));
    EXPECT_EQ(0U, heading().find("Race 2, number 1, ")) << heading();
}

TEST_F(WhyPanelTest, ARatingThatAScratchMovedSaysSo) {
    startInWindow();
    openWhy();
    answers = {"Yes"};
    click(child<QAbstractButton>(*window, "ScratchButton1"));
    EXPECT_TRUE(place().item(0)->text().startsWith("Rated 99.9 now, not the "))
        << place().item(0)->text().toStdString();
    goToRating(table("RaceView"), 0, RaceColumn::rating);
    QTest::keyClick(&table("RaceView"), Qt::Key_Space);
    EXPECT_TRUE(QToolTip::text().contains("\nRated 99.9 now, not the "));
    QToolTip::hideText();
}

TEST_F(WhyPanelTest, ARecalledCardSaysThatItDoesNotKnow) {
    startInWindow();
    choose("Save");
    choose("CloseRC");
    choose("RecallRaceCard");
    window->runner().run(CommandId::ChooseFile, textArgument(theScreen.fileList.lines.front()));
    ASSERT_EQ(CardMode::recalled, theScreen.mode);
    openWhy();
    EXPECT_EQ("A recalled card does not know how its lines were rated", textOf(lines(), 0, 0));
    EXPECT_EQ(0, roads().rowCount());
    EXPECT_GT(place().count(), 0); // the ranking needs no tables
}

TEST_F(WhyPanelTest, WithoutACardItIsEmpty) {
    openWhy();
    EXPECT_EQ("No card is open", heading());
    EXPECT_FALSE(lines().isEnabled());
}

TEST_F(WhyPanelTest, TheKeyOpensAndClosesIt) {
    startInWindow();
    auto& dock = child<QDockWidget>(*window, "WhyDock");
    pressKeys("Shift+F2");
    EXPECT_TRUE(dock.isVisible());
    EXPECT_TRUE(child<QAction>(*window, "Why").isChecked());
    child<QAction>(*window, "Why").trigger();
    EXPECT_FALSE(dock.isVisible());
}

TEST_F(WhyPanelTest, InTheFirstWindowItLeavesTheEntriesInSight) {
    window->resize(1083, 747);
    startInWindow();
    QApplication::processEvents();
    const auto& entries = child<QWidget>(*window, "RaceView");
    const int below = window->height() - entries.mapTo(&*window, QPoint{0, entries.height()}).y();
    EXPECT_LE(child<QDockWidget>(*window, "WhyDock").sizeHint().height(), below);
}

TEST_F(WhyPanelTest, EveryPartIsReachedByTabAndHasAName) {
    window->resize(1900, 1000);
    openEntry();
    openWhy();
    auto& panel = child<WhyPanel>(*window, "WhyPanel");
    int controls = 0;
    for (QWidget* part : panel.findChildren<QWidget*>()) {
        if (!part->isVisible() || !(part->focusPolicy() & Qt::TabFocus)) continue;
        ++controls;
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(part);
        ASSERT_TRUE(told);
        EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << part->objectName().toStdString();
    }
    EXPECT_EQ(4, controls); // place, lines, roads, all steps
}

} // namespace
} // namespace quillon
