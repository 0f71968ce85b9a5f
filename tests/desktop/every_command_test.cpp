// Every command of the table, sent from the real window as a user sends it: by clicks, keys and typed text.

#include "analysis/profile_test.h"
#include "day/keeping.h"
#include "desktop/cell_table_view.h"
#include "desktop/export_menu.h"
#include "desktop/main_window_test.h"
#include "desktop/shown_text.h"
#include "desktop/window_shows.h"
#include "results/race_display.h"
#include "screen/race_views.h"

#include <QDialog>
#include <QDockWidget>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>

namespace quillon {
namespace {

class EveryCommandTest;

/// How a command is sent; the test's function looks at what is particular to it.
struct Drive {
    const char* command;
    void (EveryCommandTest::*send)();
};
void PrintTo(const Drive& drive, std::ostream* out) { *out << drive.command; }

class EveryCommandTest : public MainWindowTest, public testing::WithParamInterface<Drive> {
protected:
    EveryCommandTest() {
        QObject::connect(&window->runner(), &CommandRunner::ran, &*window,
                         [this](CommandId id) { ran.emplace_back(command(id).name); });
    }

public:
    // The Start button and the card's files
    void start() {
        putSampleCard();
        click(button("Start"));
        EXPECT_EQ(12, card.raceCount); // of the sample
        EXPECT_EQ("RACE 1", label("race"));
        EXPECT_FALSE(button("Start").isEnabled());
        EXPECT_TRUE(button("RaceButton12").isVisible());
        EXPECT_FALSE(button("RaceButton13").isVisible());
    }
    void newCard() {
        put("FileManager.exe", ""); // is not started here
        pickInMenu("NewRC");
        QCoreApplication::processEvents();
        EXPECT_TRUE(wasShown("run: FileManager.exe"));
        EXPECT_FALSE(window->isVisible());
    }
    void recallCard() {
        saveAndClose();
        pressKeys("Ctrl+O");
        EXPECT_TRUE(choices().isVisible());
        EXPECT_EQ("Recall Race Card", choices().windowTitle());
        EXPECT_EQ((std::vector<Text>{"MVR_20260314.pmd"}), linesOf("ChooseFile"));
        EXPECT_EQ(screen.fileList.lines, linesOf("ChooseFile"));
    }
    void chooseFile() {
        saveAndClose();
        pickInMenu("RecallRaceCard");
        doubleClickLine("ChooseFile", 0);
        EXPECT_FALSE(choices().isVisible());
        EXPECT_EQ("MVR_20260314.pmd", card.cardFileName);
        EXPECT_EQ("View Races", button("Start").text());
        EXPECT_TRUE(child<QWidget>(*window, "RaceView").isVisible());
    }
    void save() {
        startInWindow();
        pressKeys("Ctrl+S");
        EXPECT_TRUE(exists("A Quillon PRO/Race Cards/MVR_20260314.pmd"));
    }
    void closeCard() {
        startInWindow();
        pressKeys("Ctrl+W");
        EXPECT_TRUE(exists("A Quillon PRO/Race Cards/MVR_20260314.pmd"));
        EXPECT_TRUE(child<QWidget>(*window, "EmptyPanel").isVisible());
        EXPECT_FALSE(child<QWidget>(*window, "RaceView").isVisible());
    }
    void printSummary() {
        startInWindow();
        pressKeys("F12");
        click(button("AnalysisPrintSummary"));
        EXPECT_TRUE(wasShown("view: Todays Results.txt"));
    }
    void printProgram() {
        startInWindow();
        pressKeys("Ctrl+P");
        EXPECT_TRUE(wasShown("print end"));
    }
    void printNotes() {
        pickInMenu("PrintNotes");
        EXPECT_TRUE(window->menus().action(CommandId::PrintNotes)->isChecked());
    }
    void exportTable() {
        startInWindow();
        window->exporting().askForFile = [](const QString&) { return QString{"card.json"}; };
        child<QAction>(*window, "ExportOverview").trigger();
        EXPECT_TRUE(contentOf("card.json").starts_with(R"({"table":"overview",)"));
    }
    void exitByKeys() {
        pressKeys("Ctrl+Q");
        QCoreApplication::processEvents();
        EXPECT_TRUE(wasShown("end"));
        EXPECT_FALSE(window->isVisible());
    }
    void closeWindow() {
        startInWindow();
        EXPECT_FALSE(window->close());
        EXPECT_TRUE(window->isVisible());
        answers = {"Yes"};
        EXPECT_TRUE(window->close());
        EXPECT_FALSE(window->isVisible());
    }

    // Changes, and the way back
    void undo() {
        startInWindow();
        scratchFirst();
        EXPECT_EQ("99.9", trimmed(card.entry(1, 1).rating));
        pressKeys("Ctrl+Z");
        EXPECT_NE("99.9", trimmed(card.entry(1, 1).rating));
    }
    void redo() {
        undo();
        pressKeys("Ctrl+Shift+Z");
        EXPECT_EQ("99.9", trimmed(card.entry(1, 1).rating));
        pressKeys("Ctrl+Z");
        pressKeys("Ctrl+Y");
        EXPECT_EQ("99.9", trimmed(card.entry(1, 1).rating));
    }
    void undoTo() {
        startInWindow();
        scratchFirst();
        auto& list = child<QListWidget>(*window, "ChangeList");
        list.setCurrentRow(list.count() - 1); // the card as it was opened
        click(button("UndoTo"));
        EXPECT_NE("99.9", trimmed(card.entry(1, 1).rating));
    }
    void takeAllIn() {
        startInWindow();
        pickInMenu("TakeAllIn");
        EXPECT_EQ("RACE 1", label("race"));
    }
    // A card that another run has left, with one change.
    void leaveBehind() {
        startInWindow();
        scratchFirst();
        KeepCard();
        const std::filesystem::path folder = "A Quillon PRO/Recovery";
        std::filesystem::copy_file(folder / "MVR_20260314-1.recovery", folder / "MVR_20260314-7.recovery");
        choose("Save");
        choose("Undo");
    }
    void recover() {
        leaveBehind();
        pickInMenu("Recover");
        EXPECT_EQ("99.9", trimmed(card.entry(1, 1).rating));
    }
    void forget() {
        leaveBehind();
        pickInMenu("Forget");
        EXPECT_FALSE(exists("A Quillon PRO/Recovery/MVR_20260314-7.recovery"));
    }
    void scratchFirst() {
        answers = {"Yes"};
        click(button("ScratchButton1"));
    }

    // What was noted from card to card
    void note() {
        startInWindow();
        pressKeys("Ctrl+N");
        QTest::keyClicks(&child<QLineEdit>(*window, "NoteText"), "wants the rail");
        click(button("AddNote"));
        EXPECT_TRUE(exists("Notes.txt"));
    }

    // Walking the races
    void mainScreen() {
        startInWindow();
        pressKeys("F12");
        EXPECT_FALSE(child<QWidget>(*window, "RaceView").isVisible());
        click(button("AnalysisMainScreen"));
        EXPECT_TRUE(child<QWidget>(*window, "RaceView").isVisible());
    }
    void raceButton() {
        startInWindow();
        click(button("RaceButton7"));
        EXPECT_EQ("RACE 7", label("race"));
        EXPECT_EQ("RACE:  7", label("ToteHeading"));
    }
    void next() {
        startInWindow();
        click(button("Next"));
        EXPECT_EQ("RACE 2", label("race"));
    }
    void previous() {
        startInWindow();
        click(button("RaceButton5"));
        click(button("Previous"));
        EXPECT_EQ("RACE 4", label("race"));
    }
    void raceList() {
        startInWindow();
        pressKeys("F3");
        auto& list = child<QListWidget>(*window, "RaceList");
        ASSERT_TRUE(list.isVisible());
        ASSERT_EQ(12, list.count());
        const QPoint sixth = list.visualItemRect(list.item(5)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, sixth);
        EXPECT_EQ("RACE 1", label("race"));
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, sixth);
        EXPECT_EQ("RACE 6", label("race"));
    }
    void entryButton() {
        startInWindow();
        click(button("EntryButton4"));
        EXPECT_EQ(4, screen.currentEntry);
        EXPECT_TRUE(child<QWidget>(*window, "PastPerformances").isVisible());
        EXPECT_EQ(quillon::shown(screen.pastPerformanceHeading), label("PastPerformanceHeading"));
    }

    // The board and the race view
    void box() {
        startInWindow();
        type("Box4", "7");
        EXPECT_EQ("7", screen.boxes[4].text);
        EXPECT_EQ("7", label("FinishLabel0"));
    }
    void tote() {
        startInWindow();
        type("Tote1", "7.40");
        EXPECT_EQ("7.40", screen.tote[1]);
    }
    void refunds() {
        startInWindow();
        type("Refunds", "3");
        EXPECT_EQ("3", screen.refunds);
    }
    void cell() {
        startInWindow();
        clickCell("RaceView", 2, 6);
        auto& table = child<CellTableView>(*window, "RaceView");
        QTest::keyClick(&table, Qt::Key_F2);
        QWidget* editor = table.indexWidget(table.currentIndex());
        ASSERT_TRUE(editor);
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, "OPEN 5");
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // the editor hands in its text when it has taken the key
        EXPECT_EQ("OPEN 5", screen.raceView[1].text(2, 6));
    }

    // Scratches, line choices, drivers
    void scratch() {
        startInWindow();
        answers = {"Yes"};
        click(button("ScratchButton3"));
        EXPECT_EQ("Scr", textIn("RaceView", 3, RaceColumn::track));
        EXPECT_EQ("99.9", trimmed(textIn("RaceView", 3, RaceColumn::rating)));
    }
    void takeLine() {
        startInWindow();
        click(button("EntryButton2"));
        const int other = lineInUse().row == 1 ? 2 : 1;
        click(button(QString{"LineButton%1"}.arg(other)));
        EXPECT_EQ(other, lineInUse().row);
        EXPECT_EQ(textIn("EntryLines", other, DataColumn::rating), textIn("RaceView", 2, RaceColumn::rating));
        EXPECT_TRUE(label("LineInUse").contains("your line"));
    }
    void raceEditor() {
        startInWindow();
        click(button("EntryButton2"));
        const int other = lineInUse().row == 1 ? 2 : 1;
        answers = {screen.dataView[pastPerformanceView].text(other, 39)};
        pressKeys("Ctrl+L");
        EXPECT_EQ(other, lineInUse().row);
        EXPECT_EQ(textIn("EntryLines", other, DataColumn::rating), textIn("RaceView", 2, RaceColumn::rating));
    }
    void driverColumn() {
        startInWindow();
        clickCell("RaceView", 2, RaceColumn::driver);
        EXPECT_TRUE(choices().isVisible());
        EXPECT_EQ("Change Driver", choices().windowTitle());
        EXPECT_EQ(2, screen.driverRow);
        std::vector<Text> lines = screen.driverList.lines;
        std::vector<Text> listed = linesOf("DriverChoice"); // in another order
        std::sort(lines.begin(), lines.end());
        std::sort(listed.begin(), listed.end());
        EXPECT_EQ(lines, listed);
    }
    void driverChoice() {
        startInWindow();
        clickCell("RaceView", 2, RaceColumn::driver);
        const Text wanted = screen.driverList.lines.at(3);
        ASSERT_NE(trimmed(wanted.substr(0, 15)), trimmed(screen.raceView[1].text(2, RaceColumn::driver)));
        auto& filter = child<QLineEdit>(*window, "ChoiceFilter");
        QTest::keyClicks(&filter, quillon::shown(wanted.substr(0, 15)).trimmed());
        QTest::keyClick(&filter, Qt::Key_Return);
        EXPECT_FALSE(choices().isVisible());
        EXPECT_EQ(quillon::shown(trimmed(wanted.substr(0, 15))).toStdString(),
                  trimmed(textIn("RaceView", 2, RaceColumn::driver)));
    }

    // Heats and results
    void heatWinner() {
        startInWindow();
        pickInMenu("HeatWinner");
        EXPECT_TRUE(window->menus().action(CommandId::HeatWinner)->isChecked());
        EXPECT_TRUE(button("HeatButton1").isVisible());
    }
    void viewHeat() {
        startInWindow();
        answers = {"13"};
        pickInMenu("ViewHeat");
        EXPECT_TRUE(shown.back().ends_with("RACE(13).txt")) << shown.back();
        EXPECT_TRUE(shown.back().starts_with("view: "));
    }
    void heatChoice() {
        startInWindow();
        pickInMenu("HeatWinner");
        answers = {"14", "1", "3"}; // race, finish, post in the final
        click(button("HeatButton2"));
        EXPECT_EQ(3, card.heatPost(14, 3));
        EXPECT_TRUE(button("RaceButton14").isVisible());
        EXPECT_EQ("14", button("RaceButton14").text());
    }
    void autoRecord() {
        startInWindow();
        putResults("columns");
        pressKeys("Ctrl+R");
        EXPECT_EQ("7", text("Box4").trimmed()); // race 1: PRG 7 paid 7.40
        EXPECT_EQ("7.40", text("Tote1").trimmed());
    }
    void trcAutoRecord() {
        startInWindow();
        putResults("words");
        pressKeys("Ctrl+Shift+R");
        EXPECT_EQ("7", text("Box4").trimmed()); // race 1: "1st 7" paid 7.40
        EXPECT_EQ("7.40", text("Tote1").trimmed());
    }

    // Reports in the viewer
    void entries() { viewsByKeys("F9", "Entries"); }
    void selections() { viewsByKeys("F6", "Selections"); }
    void pickSelections() { viewsInMenu("Pick3Selections", "pmr2"); }
    void program() { viewsByKeys("F7", "ppp"); }
    void drivers() { viewsInMenu("DriverList", "pmd2"); }
    void results() { viewsByKeys("F11", ".pmr"); }
    void archives() { viewsInMenu("ArchivesEditor", "HRA.ini"); }
    void trackTable() { viewsInMenu("TrackEditor", "TrackEditor.ini"); }
    void address() { viewsInMenu("EXE", "Webpage.ini"); }
    void testResults() { viewsInMenu("TestResults", "TEST.txt"); }

    // What the selections earned
    void summary() {
        startInWindow();
        pressKeys("F12");
        EXPECT_TRUE(child<QWidget>(*window, "SummaryTable").isVisible());
        EXPECT_EQ(trimmed(screen.summary.text(1, 1)), textIn("SummaryTable", 1, 1));
        EXPECT_TRUE(button("AnalysisRecord").isEnabled());
    }
    void record() {
        startInWindow();
        putResults("columns");
        pressKeys("Ctrl+R");
        pickInMenu("SelectionResults");
        click(button("AnalysisRecord"));
        EXPECT_TRUE(exists("HRA.ini"));
        EXPECT_FALSE(button("AnalysisRecord").isEnabled());
    }
    void allTracks() {
        putArchive();
        pickInMenu("ALL");
        EXPECT_TRUE(child<QWidget>(*window, "ProfileTable").isVisible());
        EXPECT_EQ("5 Race Cards", textIn("ProfileTable", 9, 0));
    }
    void selectTrack() {
        putArchive();
        pickInMenu("Select");
        EXPECT_TRUE(choices().isVisible());
        EXPECT_EQ("Select Track", choices().windowTitle());
        EXPECT_EQ(screen.trackList.lines, linesOf("SelectTrack"));
        EXPECT_EQ("M1", linesOf("SelectTrack").front());
    }
    void trackChoice() {
        putArchive();
        pickInMenu("Select");
        doubleClickLine("SelectTrack", 1);
        EXPECT_TRUE(child<QWidget>(*window, "ProfileTable").isVisible());
        EXPECT_EQ("1 Race Cards", textIn("ProfileTable", 9, 0));
        EXPECT_EQ("   YR_20260315", textIn("ProfileTable", 11, 0));
    }
    void halfMile() { profileOf("HALF", "   YR_20260315"); }
    void fiveEighths() { profileOf("FIVE", "   DD_20260316"); }
    void sevenEighths() { profileOf("Seven", "   LX_20260317"); }
    void mileTracks() { profileOf("MILE", "   M1_20260314"); }
    void mileAndQuarter() { profileOf("QUARTER", "   QQ_20260318"); }
    void printProfile() {
        putArchive();
        pickInMenu("ALL");
        shown.clear();
        pickInMenu("Print2");
        ASSERT_FALSE(shown.empty());
        EXPECT_TRUE(shown.back().starts_with("view: ")) << shown.back();
    }
    void stars() {
        putStars();
        pickInMenu("Star");
        EXPECT_TRUE(child<QWidget>(*window, "StarsWindow").isVisible());
        EXPECT_TRUE(child<QListWidget>(*window, "MarginChoice").isVisible());
    }
    void margin() {
        putStars();
        pickInMenu("Star");
        clickLine("MarginChoice", "$$$$$");
        EXPECT_EQ("$$$$$", button("MarginChoiceButton").text());
        EXPECT_TRUE(child<QListWidget>(*window, "OddsChoice").isVisible());
    }
    void odds() {
        margin();
        clickLine("OddsChoice", "5/2");
        EXPECT_EQ("5/2", button("OddsChoiceButton").text());
        EXPECT_TRUE(child<QListWidget>(*window, "MaxOddsChoice").isVisible());
    }
    void maxOdds() {
        odds();
        clickLine("MaxOddsChoice", "10/1");
        EXPECT_EQ("2", text("Text1")); // two races at 5/2 by a margin of 5.2
        EXPECT_EQ("1", text("Text2")); // one of them won
    }
    void tracksProfile() {
        putArchive();
        pickInMenu("Track_Profile");
        EXPECT_TRUE(child<QWidget>(*window, "TracksTable").isVisible());
        EXPECT_EQ(screen.tracks.text(1, 0), textIn("TracksTable", 1, 0));
        EXPECT_NE("", textIn("TracksTable", 1, 0));
    }
    void pickResults() {
        startInWindow();
        pickInMenu("Pick3Results");
        EXPECT_TRUE(child<QWidget>(*window, "PicksTable").isVisible());
    }

    // Settings, tools and help
    void diagnostic() {
        pickInMenu("Diagnostic");
        EXPECT_TRUE(window->menus().action(CommandId::Diagnostic)->isChecked());
        pickInMenu("Diagnostic");
        EXPECT_FALSE(window->menus().action(CommandId::Diagnostic)->isChecked());
    }
    void vendorsPage() {
        putSampleCard();
        browses("Reset", "browse: http");
    }
    void racingPage() { browses("USTA", "browse: https://racing.ustrotting.com/"); }
    void videoPage() { browses("RTN", "browse: https://www.rtn.tv/"); }
    void weatherPage() { browses("Weather", "browse: https://www.weather.gov/"); }
    void resultsPage() { browses("TRC", "browse: https://www.trackmaster.com/tracks-breed"); }
    void revisions() { browses("QLR", "browse: https://www.tarnbeck.example/Revisions"); }
    void about() {
        pickInMenu("About");
        ASSERT_EQ(1u, shown.size());
        EXPECT_TRUE(shown.back().starts_with("message: Quillon Professional Version\n"));
    }
    void version() {
        pickInMenu("Version");
        EXPECT_EQ((std::vector<std::string>{"message: Quillon Professional v3.1"}), shown);
    }

protected:
    QAbstractButton& button(const QString& name) { return child<QAbstractButton>(*window, name); }
    QString label(const char* name) { return child<QLabel>(*window, name).text(); }
    QString text(const char* box) { return child<QLineEdit>(*window, box).text(); }
    QDialog& choices() { return child<QDialog>(*window, "ChoiceDialog"); }

    void type(const char* name, const char* keys) {
        auto& edit = child<QLineEdit>(*window, name);
        click(edit);
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&edit, keys);
        QTest::keyClick(&edit, Qt::Key_Return);
        EXPECT_EQ(keys, edit.text());
    }

    /// Of a row and column of the screen's table, as the view shows it.
    /// What the view of a table shows in a cell of the table.
    std::string textIn(const char* view, int row, int column) {
        const auto& shownView = child<CellTableView>(*window, view);
        const QAbstractItemModel& cells = *shownView.model();
        for (int at = 0; at < cells.columnCount(); ++at) {
            const QModelIndex cell = cells.index(row - 1, at);
            if (shownView.cells().tableColumn(cell) == column) return cell.data().toString().toStdString();
        }
        throw std::runtime_error("no such column");
    }
    void clickCell(const char* view, int row, int column) {
        auto& table = child<CellTableView>(*window, view);
        const QModelIndex cell = table.model()->index(row - 1, column);
        table.scrollTo(cell);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(cell).center());
    }

    std::vector<Text> linesOf(const char* list) {
        const QAbstractItemModel& lines = *child<QTreeView>(*window, list).model();
        std::vector<Text> texts;
        for (int row = 0; row < lines.rowCount(); ++row)
            texts.push_back(typed(lines.index(row, 0).data().toString()));
        return texts;
    }
    void doubleClickLine(const char* list, int row) {
        auto& view = child<QTreeView>(*window, list);
        const QPoint line = view.visualRect(view.model()->index(row, 0)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, line);
        QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, line);
    }
    void clickLine(const char* list, const char* line) {
        auto& lines = child<QListWidget>(*window, list);
        const auto found = lines.findItems(line, Qt::MatchExactly);
        ASSERT_EQ(1, found.size()) << line;
        lines.scrollToItem(found.front());
        QTest::mouseClick(lines.viewport(), Qt::LeftButton, {}, lines.visualItemRect(found.front()).center());
    }

    /// Opens the menus down to the command's item by clicks, and clicks it.
    void pickInMenu(const char* name) {
        const Command& command = *findCommand(name);
        QAction* item = window->menus().action(command.id);
        ASSERT_TRUE(item && item->isVisible() && item->isEnabled()) << name;
        QMenu* menu = window->menus().menu(command.item.menu);
        open(*menu);
        ASSERT_TRUE(QTest::qWaitFor([&] { return menu->isVisible(); })) << name; // a submenu waits a moment
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(item).center());
    }
    void open(QMenu& menu) {
        QMenuBar& bar = *window->menuBar();
        QAction* title = menu.menuAction();
        if (bar.actions().contains(title))
            return QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(title).center());
        auto* outer = qobject_cast<QMenu*>(menu.parentWidget());
        ASSERT_TRUE(outer);
        open(*outer);
        QTest::mouseClick(outer, Qt::LeftButton, {}, outer->actionGeometry(title).center());
    }

    bool wasShown(const std::string& line) {
        return std::find(shown.begin(), shown.end(), line) != shown.end();
    }
    void expectViewed(const char* file) {
        ASSERT_FALSE(shown.empty());
        EXPECT_TRUE(shown.back().starts_with("view: ")) << shown.back();
        EXPECT_NE(std::string::npos, shown.back().find(file)) << shown.back();
    }
    void viewsByKeys(const char* keys, const char* file) {
        startInWindow();
        pressKeys(keys);
        expectViewed(file);
    }
    void viewsInMenu(const char* command, const char* file) {
        startInWindow();
        pickInMenu(command);
        expectViewed(file);
    }
    void browses(const char* command, const std::string& line) {
        pickInMenu(command);
        ASSERT_EQ(1u, shown.size());
        EXPECT_TRUE(shown.back().starts_with(line)) << shown.back();
    }
    void profileOf(const char* command, const char* card) {
        putArchive();
        pickInMenu(command);
        EXPECT_EQ("1 Race Cards", textIn("ProfileTable", 9, 0));
        EXPECT_EQ(card, textIn("ProfileTable", 11, 0));
    }

    void saveAndClose() {
        startInWindow();
        pressKeys("Ctrl+W");
        shown.clear();
    }
    static void putResults(const std::string& layout) {
        put("A Quillon PRO/Results/MVR_20260314.pmr",
            contentOf(SAMPLE_FOLDER "/results/MVR_20260314-" + layout + ".txt"));
    }

    /// Recorded cards of a track of each size.
    static void putArchive();
    /// Two recorded races at 5/2 by a margin of 5.2, the first of them won.
    static void putStars();

    std::vector<std::string> ran;
};

void EveryCommandTest::putArchive() {
    put("TrackEditor.ini", trackRow("M1", "1.M") + trackRow("YR", "1/2") + trackRow("DD", "5/8") +
                               trackRow("LX", "7/8") + trackRow("QQ", "1.Q"));
    put("TargetTracks.txt", "M1\r\nYR\r\n");
    std::vector<ArchiveCard> cards;
    for (const char* key :
         {"   M1_20260314", "   YR_20260315", "   DD_20260316", "   LX_20260317", "   QQ_20260318"})
        cards.push_back({.key = key});
    put("HRA.ini", archiveOf(cards));
}

void EveryCommandTest::putStars() {
    const Text race = Text(15, ' ') + " 1 " + Text(6, ' ') + " 5.2 " + Text(4, ' ') + " 2.50" + "   5/2" +
                      Text(6, ' ') + "12.00";
    put("Stars5.ini", "M1_20260314\r\n" + race + "      43.20  1\r\n" + race + "\r\n");
}

// clang-format off
constexpr std::array drives{
    Drive{"Start",                 &EveryCommandTest::start},
    Drive{"NewRC",                 &EveryCommandTest::newCard},
    Drive{"RecallRaceCard",        &EveryCommandTest::recallCard},
    Drive{"ChooseFile",            &EveryCommandTest::chooseFile},
    Drive{"Save",                  &EveryCommandTest::save},
    Drive{"CloseRC",               &EveryCommandTest::closeCard},
    Drive{"PrintSummary",          &EveryCommandTest::printSummary},
    Drive{"PrintCondensedProgram", &EveryCommandTest::printProgram},
    Drive{"PrintNotes",            &EveryCommandTest::printNotes},
    Drive{"Export",                &EveryCommandTest::exportTable},
    Drive{"Exit_QL",               &EveryCommandTest::exitByKeys},
    Drive{"CloseWindow",           &EveryCommandTest::closeWindow},
    Drive{"Undo",                  &EveryCommandTest::undo},
    Drive{"Redo",                  &EveryCommandTest::redo},
    Drive{"UndoTo",                &EveryCommandTest::undoTo},
    Drive{"TakeAllIn",             &EveryCommandTest::takeAllIn},
    Drive{"Recover",               &EveryCommandTest::recover},
    Drive{"Forget",                &EveryCommandTest::forget},
    Drive{"Note",                  &EveryCommandTest::note},
    Drive{"MainScreen",            &EveryCommandTest::mainScreen},
    Drive{"RaceButton",            &EveryCommandTest::raceButton},
    Drive{"Next",                  &EveryCommandTest::next},
    Drive{"Previous",              &EveryCommandTest::previous},
    Drive{"RaceList",              &EveryCommandTest::raceList},
    Drive{"EntryButton",           &EveryCommandTest::entryButton},
    Drive{"Box",                   &EveryCommandTest::box},
    Drive{"Tote",                  &EveryCommandTest::tote},
    Drive{"Refunds",               &EveryCommandTest::refunds},
    Drive{"Cell",                  &EveryCommandTest::cell},
    Drive{"Command4",              &EveryCommandTest::scratch},
    Drive{"Command3",              &EveryCommandTest::takeLine},
    Drive{"Command7",              &EveryCommandTest::raceEditor},
    Drive{"DriverColumn",          &EveryCommandTest::driverColumn},
    Drive{"DriverChoice",          &EveryCommandTest::driverChoice},
    Drive{"HeatWinner",            &EveryCommandTest::heatWinner},
    Drive{"ViewHeat",              &EveryCommandTest::viewHeat},
    Drive{"HeatChoice",            &EveryCommandTest::heatChoice},
    Drive{"AutoRecord",            &EveryCommandTest::autoRecord},
    Drive{"EBET",                  &EveryCommandTest::trcAutoRecord},
    Drive{"Entries",               &EveryCommandTest::entries},
    Drive{"ViewSummary",           &EveryCommandTest::selections},
    Drive{"Pick3Selections",       &EveryCommandTest::pickSelections},
    Drive{"ViewCondensedProgram",  &EveryCommandTest::program},
    Drive{"DriverList",            &EveryCommandTest::drivers},
    Drive{"NotePad",               &EveryCommandTest::results},
    Drive{"SelectionResults",      &EveryCommandTest::summary},
    Drive{"Record",                &EveryCommandTest::record},
    Drive{"ALL",                   &EveryCommandTest::allTracks},
    Drive{"Select",                &EveryCommandTest::selectTrack},
    Drive{"SelectTrack",           &EveryCommandTest::trackChoice},
    Drive{"HALF",                  &EveryCommandTest::halfMile},
    Drive{"FIVE",                  &EveryCommandTest::fiveEighths},
    Drive{"Seven",                 &EveryCommandTest::sevenEighths},
    Drive{"MILE",                  &EveryCommandTest::mileTracks},
    Drive{"QUARTER",               &EveryCommandTest::mileAndQuarter},
    Drive{"Print2",                &EveryCommandTest::printProfile},
    Drive{"Star",                  &EveryCommandTest::stars},
    Drive{"MarginChoice",          &EveryCommandTest::margin},
    Drive{"OddsChoice",            &EveryCommandTest::odds},
    Drive{"MaxOddsChoice",         &EveryCommandTest::maxOdds},
    Drive{"Track_Profile",         &EveryCommandTest::tracksProfile},
    Drive{"Pick3Results",          &EveryCommandTest::pickResults},
    Drive{"ArchivesEditor",        &EveryCommandTest::archives},
    Drive{"TrackEditor",           &EveryCommandTest::trackTable},
    Drive{"EXE",                   &EveryCommandTest::address},
    Drive{"Diagnostic",            &EveryCommandTest::diagnostic},
    Drive{"TestResults",           &EveryCommandTest::testResults},
    Drive{"Reset",                 &EveryCommandTest::vendorsPage},
    Drive{"USTA",                  &EveryCommandTest::racingPage},
    Drive{"RTN",                   &EveryCommandTest::videoPage},
    Drive{"Weather",               &EveryCommandTest::weatherPage},
    Drive{"TRC",                   &EveryCommandTest::resultsPage},
    Drive{"QLR",                   &EveryCommandTest::revisions},
    Drive{"About",                 &EveryCommandTest::about},
    Drive{"Version",               &EveryCommandTest::version},
};
// clang-format on

TEST_P(EveryCommandTest, RunsFromTheWindowWhichThenShowsTheScreen) {
    (this->*GetParam().send)();
    ASSERT_FALSE(ran.empty());
    EXPECT_EQ(GetParam().command, ran.back());
    expectShowsScreen(*window);
}

INSTANTIATE_TEST_SUITE_P(Drives, EveryCommandTest, testing::ValuesIn(drives),
                         [](const auto& drive) { return std::string{drive.param.command}; });

TEST(EveryCommand, IsDrivenHere) {
    std::vector<std::string> driven;
    driven.reserve(std::size(drives));
    for (const Drive& drive : drives) driven.emplace_back(drive.command);
    std::vector<std::string> all;
    all.reserve(commandTable().size());
    for (const Command& command : commandTable()) all.emplace_back(command.name);
    std::sort(driven.begin(), driven.end());
    std::sort(all.begin(), all.end());
    EXPECT_EQ(all, driven);
}

} // namespace
} // namespace quillon
