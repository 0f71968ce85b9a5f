// Notes beside the race: typed, found on other cards, marked, searched; and tables exported.
#include "card/columns.h"
#include "cardfiles/notes.h"
#include "desktop/cell_table_view.h"
#include "desktop/export_menu.h"
#include "desktop/main_window_test.h"
#include "desktop/mark_texts.h"

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QStatusBar>

namespace quillon {
namespace {

class NotesPanelTest : public MainWindowTest {
protected:
    QListWidget& list() { return child<QListWidget>(*window, "NoteList"); }
    QComboBox& subject() { return child<QComboBox>(*window, "NoteSubject"); }
    QLineEdit& text() { return child<QLineEdit>(*window, "NoteText"); }
    CellTableView& entries() { return child<CellTableView>(*window, "RaceView"); }
    std::string line(int row) { return list().item(row)->text().toStdString(); }
    QString sign(int row) {
        return entries().model()->headerData(row - 1, Qt::Vertical, Qt::DisplayRole).toString();
    }
    void go(int row, int column) { entries().setCurrentIndex(entries().model()->index(row - 1, column)); }
};

// The first entry of the sample's first race is Cranberry Bog, driven by Marchetti, O.
TEST_F(NotesPanelTest, ANoteIsTypedWithTheKeyboardAlone) {
    startInWindow();
    go(1, RaceColumn::horseName);
    pressKeys("Ctrl+N");
    EXPECT_TRUE(child<QDockWidget>(*window, "NotesDock").isVisible());
    EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::focusWidget() == &text(); }));
    QTest::keyClicks(&text(), "wants the rail");
    QTest::keyClick(&text(), Qt::Key_Return);
    EXPECT_EQ("20260314\tMVR_20260314\tCranberry Bog\twants the rail\r\n", contentOf("Notes.txt"));
    ASSERT_EQ(1, list().count());
    EXPECT_EQ("Cranberry Bog, 14 March 2026 (MVR_20260314): wants the rail", line(0));
    EXPECT_TRUE(text().text().isEmpty());
    EXPECT_FALSE(window->isWindowModified()); // the card is as it was
}

TEST_F(NotesPanelTest, TheNoteIsOnWhomTheKeyboardIsOn) {
    startInWindow();
    EXPECT_EQ("Horse: Cranberry Bog", subject().currentText());
    go(2, RaceColumn::driver);
    EXPECT_EQ("Driver: Rosario, I", subject().currentText());
    go(3, RaceColumn::rating);
    EXPECT_EQ("Horse: Admiral Crumb", subject().currentText());
    EXPECT_EQ("Race 1", subject().itemText(0));
    pressKeys("Alt+Right");
    EXPECT_EQ("Race 2", subject().itemText(0));
}

TEST_F(NotesPanelTest, WithoutATextOrACardNothingCanBeAdded) {
    auto& add = child<QAbstractButton>(*window, "AddNote");
    text().setText("a note");
    EXPECT_FALSE(add.isEnabled()); // no card
    startInWindow();
    text().setText("   ");
    EXPECT_FALSE(add.isEnabled());
    QTest::keyClick(&text(), Qt::Key_Return);
    EXPECT_FALSE(exists("Notes.txt"));
    text().setText("a note");
    EXPECT_TRUE(add.isEnabled());
}

TEST_F(NotesPanelTest, NotesOfAnEarlierCardAreShownAndMarked) {
    put("Notes.txt", "20260201\tNFLD_20260201\tCRANBERRY BOG\tback from a rest\r\n"
                     "20260202\tNFLD_20260202\trosario, i\tnew colours\r\n"
                     "20260202\tNFLD_20260202\tRace 1\tof another card\r\n");
    startInWindow();
    EXPECT_TRUE(sign(1).endsWith('N')) << sign(1).toStdString();
    EXPECT_TRUE(sign(2).endsWith('N')) << sign(2).toStdString();
    EXPECT_FALSE(sign(3).contains('N')) << sign(3).toStdString();
    EXPECT_TRUE(entries()
                    .model()
                    ->headerData(0, Qt::Vertical, Qt::ToolTipRole)
                    .toString()
                    .contains("back from a rest"));
    ASSERT_EQ(1, list().count());
    EXPECT_EQ("CRANBERRY BOG, 1 February 2026 (NFLD_20260201): back from a rest", line(0));
    go(2, RaceColumn::horseName);
    ASSERT_EQ(1, list().count());
    EXPECT_EQ("rosario, i, 2 February 2026 (NFLD_20260202): new colours", line(0));
}

TEST_F(NotesPanelTest, ARaceWithANoteHasTheSignInItsHeading) {
    startInWindow();
    const auto& mark = child<QLabel>(*window, "raceNotes");
    EXPECT_FALSE(mark.isVisible());
    window->runner().run(CommandId::Note, textArgument("Race 1 = windy"));
    EXPECT_TRUE(mark.isVisible());
    EXPECT_EQ("N", mark.text());
    EXPECT_EQ("Race 1, 14 March 2026 (MVR_20260314): windy", mark.toolTip().toStdString());
    pressKeys("Alt+Right");
    EXPECT_FALSE(mark.isVisible());
}

TEST_F(NotesPanelTest, ANoteThatCanNotBeKeptStaysInItsField) {
    startInWindow();
    std::filesystem::create_directory("Notes.txt");
    text().setText("a note");
    QTest::keyClick(&text(), Qt::Key_Return);
    EXPECT_EQ("a note", text().text());
    EXPECT_EQ("error: File can't be written: Notes.txt", shown.back());
}

TEST_F(NotesPanelTest, FindGoesToTheEntryOfANote) {
    startInWindow();
    window->runner().run(CommandId::Note, textArgument("Admiral Crumb = breaks at the quarter pole"));
    pressKeys("Alt+Right");
    pressKeys("Ctrl+F");
    auto& field = child<QLineEdit>(*window, "FindField");
    QTest::keyClicks(&field, "quarter pole");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ("1", screen.header.race);
    EXPECT_EQ(2, entries().currentIndex().row()); // the third entry
    EXPECT_EQ("Race 1, 3 Admiral Crumb: note \"breaks at the quarter pole\" (1 of 1)",
              child<QLabel>(*window, "FindWords").text().toStdString());
}

TEST(NoteSigns, AreAmongTheOthers) {
    EXPECT_EQ("N", signOf({}, true));
    EntryMarks marks;
    marks.place = 2;
    EXPECT_EQ("S2 N", signOf(marks, true));
    EXPECT_EQ("S2", signOf(marks, false));
}

TEST_F(NotesPanelTest, TheNotesArePrintedWithTheProgramOnRequest) {
    startInWindow();
    window->runner().run(CommandId::Note, textArgument("Race 2 = windy"));
    const std::string line = "print: Race 2, 20260314 MVR_20260314: windy";
    choose("PrintCondensedProgram");
    EXPECT_EQ(0, std::count(shown.begin(), shown.end(), line));
    choose("PrintNotes");
    EXPECT_TRUE(window->menus().action(CommandId::PrintNotes)->isChecked());
    choose("PrintCondensedProgram");
    EXPECT_EQ(1, std::count(shown.begin(), shown.end(), line));
}

class ExportMenuTest : public MainWindowTest {
protected:
    ExportMenuTest() {
        window->exporting().askForFile = [this](const QString& suggested) {
            suggestion = suggested;
            return path;
        };
    }
    QAction& item(const char* name) { return child<QAction>(*window, name); }

    QString suggestion;
    QString path;
};

TEST_F(ExportMenuTest, TheTableOnShowIsWrittenWhereTheUserWants) {
    startInWindow();
    path = "out.csv";
    item("ExportEntries").trigger();
    EXPECT_TRUE(suggestion.endsWith("/MVR_20260314_raceview_1.csv")) << suggestion.toStdString();
    EXPECT_TRUE(contentOf("out.csv").starts_with("ENTRY,ML,PN,PP,Track,Purse,"));
    EXPECT_TRUE(window->statusBar()->currentMessage().contains("out.csv"));
}

TEST_F(ExportMenuTest, OnlyWhatIsOnShowCanBeExported) {
    EXPECT_FALSE(item("ExportEntries").isEnabled());
    startInWindow();
    EXPECT_TRUE(item("ExportEntries").isEnabled());
    EXPECT_TRUE(item("ExportLines").isEnabled());
    EXPECT_TRUE(item("ExportOverview").isEnabled());
    EXPECT_FALSE(item("ExportSummary").isEnabled());
    choose("SelectionResults");
    EXPECT_TRUE(item("ExportSummary").isEnabled());
    EXPECT_FALSE(item("ExportEntries").isEnabled());
}

TEST_F(ExportMenuTest, WithoutAFileNothingIsWritten) {
    startInWindow();
    item("ExportOverview").trigger();
    path = QString{"\u0416.csv"}; // no letter of the code page
    item("ExportOverview").trigger();
    EXPECT_FALSE(exists("?.csv"));
    EXPECT_TRUE(window->statusBar()->currentMessage().contains(path));
}

TEST_F(ExportMenuTest, AFileThatCanNotBeWrittenIsTold) {
    startInWindow();
    path = "no such folder/x.json";
    item("ExportOverview").trigger();
    EXPECT_EQ("error: File can't be written: no such folder/x.json", shown.back());
}

} // namespace
} // namespace quillon
