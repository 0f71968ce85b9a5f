// Nothing is dropped without a word: what the window asks and says round the commands.
#include "day/changes.h"
#include "desktop/dialog_answers.h"
#include "desktop/line_number_dialog.h"
#include "desktop/main_window_test.h"
#include "desktop/past_lines_panel.h"
#include "results/board.h"

#include <QLabel>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QTreeView>

namespace quillon {
namespace {

constexpr const char* results = "A Quillon PRO/Results/MVR_20260314.pmr";
constexpr const char* savedCard = "A Quillon PRO/Race Cards/MVR_20260314.pmd";

class NothingLostTest : public MainWindowTest {
protected:
    void scratch(int entry) {
        answers = {"Yes"};
        click(child<QAbstractButton>(*window, QString{"ScratchButton%1"}.arg(entry)));
    }
    void typeInBox(const char* box, const char* text) {
        auto& edit = child<QLineEdit>(*window, box);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
    }
    static void putResults(const char* layout) {
        std::filesystem::create_directories("A Quillon PRO/Results");
        std::filesystem::copy_file(std::filesystem::path{SAMPLE_FOLDER} / "results" / layout, results);
    }
    void readWords() {
        putResults("MVR_20260314-words.txt");
        choose("EBET");
    }
    bool ended() const { return std::find(shown.begin(), shown.end(), "end") != shown.end(); }
    static std::string firstFinisher(int race) {
        return Text{trimmed(card.raceOutcome(race, OutcomeCell::r1))};
    }
    QString notice(const char* key) { return QString::fromStdString(MainWindowTest::notice(key)); }
};

// --- Unsaved ---------------------------------------------------------------------------------------------

TEST_F(NothingLostTest, TheTitleHasTheCardAndAMarkWhileAnythingIsUnsaved) {
    startInWindow();
    EXPECT_EQ("MVR, Saturday 14 March 2026[*]", window->windowTitle());
    EXPECT_FALSE(window->isWindowModified());
    scratch(1);
    EXPECT_TRUE(window->isWindowModified());
    choose("Save");
    EXPECT_FALSE(window->isWindowModified());
    choose("Undo");
    EXPECT_TRUE(window->isWindowModified()); // the file has the scratch
}

TEST_F(NothingLostTest, ExitAsksWhenSomethingIsNotSavedAndCancelStays) {
    startInWindow();
    scratch(1);
    choices = {cancelAnswer};
    choose("Exit_QL");
    EXPECT_EQ((std::vector<std::string>{"MVR, Saturday 14 March 2026: 1 change is not saved."}), asked);
    EXPECT_FALSE(ended());
    EXPECT_FALSE(exists(savedCard));
    choices = {safeAnswer};
    choose("Exit_QL");
    EXPECT_TRUE(exists(savedCard));
    EXPECT_TRUE(ended());
}

TEST_F(NothingLostTest, DiscardEndsWithoutASave) {
    startInWindow();
    scratch(1);
    choices = {goOnAnswer};
    choose("Exit_QL");
    EXPECT_TRUE(ended());
    EXPECT_FALSE(exists(savedCard));
}

TEST_F(NothingLostTest, TheCloseControlAsksForUnsavedWorkBeforeItsOwnQuestion) {
    startInWindow();
    scratch(1);
    choices = {cancelAnswer};
    const auto before = shown.size();
    EXPECT_FALSE(window->close());
    EXPECT_EQ(1U, asked.size());
    EXPECT_EQ(before, shown.size()); // its own question was not come to
    choices = {goOnAnswer};
    answers = {"Yes"};
    EXPECT_TRUE(window->close());
    EXPECT_EQ("question: Are you sure you want to exit Quillon? -> Yes", shown.at(shown.size() - 2));
}

TEST_F(NothingLostTest, ASaveThatFailsKeepsTheProgramOpen) {
    startInWindow();
    scratch(1);
    put("A Quillon PRO/Race Cards", "a file where the folder should be");
    choices = {safeAnswer};
    choose("Exit_QL");
    EXPECT_FALSE(ended());
    EXPECT_TRUE(window->isVisible());
}

TEST_F(NothingLostTest, ARecalledCardInThePlaceOfAnUnsavedOneIsAskedFor) {
    startInWindow();
    choose("Save");
    scratch(1);
    EXPECT_FALSE(window->before().mayLoseCard() && asked.empty());
    EXPECT_EQ(1U, asked.size());
}

TEST_F(NothingLostTest, CloseSaysThatItHasSavedAndWhat) {
    startInWindow();
    scratch(1);
    choose("CloseRC");
    EXPECT_TRUE(asked.empty()); // it saves
    EXPECT_EQ("MVR_20260314.pmd is saved, with its results and all changes, and closed",
              window->statusBar()->currentMessage().toStdString());
}

// --- Typed results ---------------------------------------------------------------------------------------

TEST_F(NothingLostTest, ARaceButtonOffersToKeepWhatWasTyped) {
    startInWindow();
    typeInBox("Box4", "5");
    choices = {cancelAnswer};
    click(child<QAbstractButton>(*window, "RaceButton4"));
    EXPECT_EQ((std::vector<std::string>{"Keep what you typed for race 1?"}), asked);
    EXPECT_EQ("1", screen.header.race);
    choices = {safeAnswer};
    click(child<QAbstractButton>(*window, "RaceButton4"));
    EXPECT_EQ("4", screen.header.race);
    EXPECT_EQ("5", firstFinisher(1));
    ASSERT_FALSE(changes.standing().empty());
    EXPECT_EQ("board taken in", changes.standing().back().what);
}

TEST_F(NothingLostTest, KeepWorksInTheMiddleOfTheCardAndDropDrops) {
    startInWindow();
    click(child<QAbstractButton>(*window, "RaceButton3"));
    EXPECT_TRUE(asked.empty());
    typeInBox("Tote1", "8.40");
    choices = {safeAnswer};
    click(child<QAbstractButton>(*window, "RaceButton7"));
    EXPECT_EQ("7", screen.header.race);
    EXPECT_EQ("8.40", card.payoffRecord(3, PayoffCell::win));
    typeInBox("Tote1", "9.90");
    choices = {goOnAnswer};
    click(child<QAbstractButton>(*window, "RaceButton3"));
    EXPECT_EQ("3", screen.header.race);
    EXPECT_EQ("", trimmed(card.payoffRecord(7, PayoffCell::win)));
}

TEST_F(NothingLostTest, AnArrowKeepsAndAsksNothing) {
    startInWindow();
    typeInBox("Box4", "5");
    pressKeys("Alt+Right");
    EXPECT_TRUE(asked.empty());
    EXPECT_EQ("5", firstFinisher(1));
}

// --- Results passes --------------------------------------------------------------------------------------

// The sample's results have all of its 12 races.
TEST_F(NothingLostTest, AfterAPassABarCountsTheBoardsAndTakesThemIn) {
    startInWindow();
    readWords();
    EXPECT_EQ("12 races have results; 12 boards are not taken in yet.", notice("pending").toStdString());
    pressKeys("Alt+Right");
    EXPECT_EQ("12 races have results; 11 boards are not taken in yet.", notice("pending").toStdString());
    click(child<QAbstractButton>(*window, "NoticeAction.pending"));
    EXPECT_EQ("", notice("pending").toStdString());
    EXPECT_EQ("2", screen.header.race);
}

// The summary stores the board on show, so that 11 of 12 are left.
TEST_F(NothingLostTest, TheBarStandsAboveTheSummaryAndRecordAsks) {
    startInWindow();
    readWords();
    click(child<QAbstractButton>(*window, "NoticeClose.pending"));
    EXPECT_EQ("", notice("pending").toStdString());
    pressKeys("F12");
    EXPECT_EQ("11 races are not taken in: exactas, trifectas and superfectas of those don't count yet.",
              notice("pending").toStdString());
    const Text before = screen.summary.text(screen.summary.rows() - 1, 1);
    choices = {cancelAnswer};
    click(child<QAbstractButton>(*window, "AnalysisRecord"));
    EXPECT_EQ(1U, asked.size());
    EXPECT_FALSE(exists("HRA.ini"));
    choices = {safeAnswer};
    click(child<QAbstractButton>(*window, "AnalysisRecord"));
    EXPECT_TRUE(exists("HRA.ini"));
    EXPECT_EQ("", notice("pending").toStdString());
    EXPECT_TRUE(screen.summaryVisible);
}

// What is recorded after "Take All In" is what a walk through all races gives.
TEST_F(NothingLostTest, TakenInFromTheBarTheSummaryIsThatOfAWalkThroughAllRaces) {
    startInWindow();
    readWords();
    pressKeys("F12");
    click(child<QAbstractButton>(*window, "NoticeAction.pending"));
    ASSERT_TRUE(screen.summaryVisible);
    const Grid taken = screen.summary;
    choose("MainScreen");
    for (int race = 1; race < card.raceCount; ++race) pressKeys("Alt+Right");
    pressKeys("Alt+Left");
    pressKeys("F12");
    EXPECT_TRUE(taken.sameTexts(screen.summary));
}

TEST_F(NothingLostTest, APageOfTheOtherLayoutIsToldAsThat) {
    startInWindow();
    putResults("MVR_20260314-words.txt");
    const auto before = shown.size();
    choose("AutoRecord");
    EXPECT_EQ(before, shown.size()); // no word of a wrong date
    EXPECT_EQ("This results page is one that says \"1st\", \"2nd\": TRC Auto Record reads it.",
              notice("refusal").toStdString());
    click(child<QAbstractButton>(*window, "NoticeAction.refusal"));
    EXPECT_EQ("", notice("refusal").toStdString());
    EXPECT_FALSE(firstFinisher(1).empty());
}

// A scratch leaves its refund in the results text, long before there are results.
TEST_F(NothingLostTest, APassOverATextWithoutResultsSaysSo) {
    startInWindow();
    scratch(2);
    for (const char* pass : {"AutoRecord", "EBET"}) {
        choose(pass);
        EXPECT_TRUE(notice("refusal").startsWith("The results text holds no result of this card yet"))
            << pass;
        EXPECT_EQ("", notice("pending").toStdString());
        pressKeys("Alt+Right");
        EXPECT_EQ("", notice("refusal").toStdString());
    }
}

// --- One clear sentence ----------------------------------------------------------------------------------

TEST_F(NothingLostTest, WhatCanNotBeDoneHereIsSaidInOneSentence) {
    pressKeys("F12");
    EXPECT_FALSE(screen.summaryVisible);
    EXPECT_TRUE(notice("refusal").startsWith("No card is open")) << notice("refusal").toStdString();
    EXPECT_TRUE(window->menus().action(CommandId::RecallRaceCard)->isEnabled());
    choose("NewRC");
    QCoreApplication::processEvents();
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(notice("refusal").contains("FileManager.exe"));
    startInWindow();
    EXPECT_EQ("", notice("refusal").toStdString());
    for (const char* pass : {"AutoRecord", "EBET"}) {
        choose(pass);
        EXPECT_TRUE(notice("refusal").contains("There is no results text")) << pass;
        pressKeys("Alt+Right");
    }
    const Text rating = card.entry(2, 1).rating;
    choose("Command7");
    EXPECT_TRUE(notice("refusal").contains("past lines of an entry"));
    EXPECT_EQ(rating, card.entry(2, 1).rating);
}

TEST_F(NothingLostTest, AfterRecallAndCloseOnlyARecallIsOffered) {
    startInWindow();
    choose("CloseRC");
    choose("RecallRaceCard");
    window->runner().run(CommandId::ChooseFile, textArgument("MVR_20260314.pmd"));
    choose("CloseRC");
    EXPECT_FALSE(child<QAbstractButton>(*window, "EmptyStart").isVisible());
    EXPECT_TRUE(child<QAbstractButton>(*window, "EmptyRecall").isEnabled());
    EXPECT_TRUE(child<QLabel>(*window, "EmptyHeading").text().startsWith("The card is closed."));
    pressKeys("F5");
    EXPECT_EQ("", child<QLabel>(*window, "EmptyNotice").text()); // RACESHR.DBF holds races
    EXPECT_TRUE(notice("refusal").startsWith("The card is closed")) << notice("refusal").toStdString();
}

TEST_F(NothingLostTest, TheTicksFollowTheFolder) {
    auto& races = child<QLabel>(*window, "RACESHR.DBF");
    EXPECT_TRUE(races.text().contains("is missing"));
    putSampleCard(); // the folders are made, too
    EXPECT_TRUE(QTest::qWaitFor([&] { return !races.text().contains("is missing"); }, 3000));
    std::filesystem::remove("A Quillon PRO/TrackMaster ExE Files/RACESHR.DBF");
    EXPECT_TRUE(QTest::qWaitFor([&] { return races.text().contains("is missing"); }, 3000));
}

TEST(LineNumberDialogTest, NamesTheEntryAndRefusesLettersWithAWord) {
    LineNumberDialog dialog{"Enter Line Number of the selected race: ", {"Uncle Fen", 6, 10}};
    dialog.show();
    EXPECT_EQ("Uncle Fen, lines 6 to 10", dialog.findChild<QLabel*>("LineWhose")->text());
    auto* field = dialog.findChild<QLineEdit*>("LineNumber");
    auto* refusal = dialog.findChild<QLabel*>("LineRefusal");
    const auto type = [&](const char* text) {
        field->setText(text);
        dialog.accept();
    };
    EXPECT_FALSE(refusal->isVisible());
    type("abc");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ("\"abc\" is no number", refusal->text());
    type("11");
    EXPECT_EQ("11 is none of his lines", refusal->text());
    type("");
    EXPECT_TRUE(dialog.isVisible());
    type(" 10 ");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(QDialog::Accepted, dialog.result());
    EXPECT_EQ("10", dialog.number());
}

TEST_F(WindowTest, TheRaceEditorAsksForALineOfTheOpenEntry) {
    putSampleCard();
    MainWindow real{appearance};
    real.show();
    ports.message = [](auto&, auto&) {};
    real.runner().run(CommandId::Start);
    real.runner().run(CommandId::EntryButton, numberArgument(2));
    QString whose;
    const DialogAnswers answers{[&](QDialog& dialog) {
        if (auto* label = dialog.findChild<QLabel*>("LineWhose")) whose = label->text();
        dialog.reject();
    }};
    real.runner().run(CommandId::Command7);
    const std::string horse{trimmed(card.entry(1, 2).horseName)};
    EXPECT_TRUE(whose.startsWith(QString::fromStdString(horse) + ", lines ")) << whose.toStdString();
}

TEST_F(NothingLostTest, TheDriversAreSortedAndTheListOpensAtTodaysDriver) {
    startInWindow();
    window->runner().run(CommandId::DriverColumn, numberArgument(1));
    auto& list = child<QTreeView>(*window, "DriverChoice");
    const auto text = [&](int row) { return list.model()->index(row, 0).data().toString(); };
    const int rows = list.model()->rowCount();
    ASSERT_GT(rows, 2);
    int named = 0; // lines without a name stand after all others
    while (!text(named).trimmed().isEmpty() && named + 1 < rows) ++named;
    ASSERT_GT(named, 10);
    for (int row = 1; row < named; ++row)
        EXPECT_LE(text(row - 1).compare(text(row), Qt::CaseInsensitive), 0) << row;
    for (int row = named; row + 1 < rows; ++row) EXPECT_TRUE(text(row).trimmed().isEmpty()) << row;
    EXPECT_EQ("EXIT", text(rows - 1).trimmed().toStdString());
    const QString today = QString::fromStdString(Text{trimmed(card.entry(1, 1).chosenDriver)});
    EXPECT_TRUE(list.currentIndex().data().toString().startsWith(today, Qt::CaseInsensitive))
        << list.currentIndex().data().toString().toStdString();
}

// --- Failures told ---------------------------------------------------------------------------------------

TEST_F(NothingLostTest, AWriteThatFailsIsToldUntilItIsReadWithPathCauseAndMeaning) {
    startInWindow();
    const std::filesystem::path sheet = "A Quillon PRO/Selections/MVR_20260314.pms";
    std::filesystem::remove(sheet);
    std::filesystem::create_directories(sheet / "in the way");
    scratch(1);
    const QString path = QString::fromStdString(std::filesystem::absolute(sheet).string());
    const QString key = "write." + path;
    EXPECT_EQ((path +
               " can't be written: a folder has its name. So the selection sheet on disk is older than the "
               "screen.")
                  .toStdString(),
              notice(key.toUtf8().constData()).toStdString());
    pressKeys("Alt+Right");
    EXPECT_FALSE(notice(key.toUtf8().constData()).isEmpty());
    click(child<QAbstractButton>(*window, "NoticeClose." + key));
    EXPECT_TRUE(notice(key.toUtf8().constData()).isEmpty());
}

TEST_F(NothingLostTest, ABadgeCountsTheFaultsAndOpensTheJournal) {
    startInWindow();
    journal.add({"Step", "what failed"});
    window->refresh();
    auto& badge = child<QAbstractButton>(*window, "FaultBadge");
    EXPECT_TRUE(badge.isVisible());
    EXPECT_TRUE(badge.text().startsWith(QString::number(journal.count())));
    click(badge);
    EXPECT_TRUE(child<QWidget>(*window, "FaultJournalDialog").isVisible());
}

TEST_F(NothingLostTest, ARaceWithMoreEntriesThanAreShownSaysSo) {
    startInWindow();
    EXPECT_EQ("", notice("horses").toStdString());
    for (int index = 1; index <= 20; ++index) card.entry(2, index).horseName = "Horse";
    pressKeys("Alt+Right");
    EXPECT_EQ("Race 2 has 20 entries: 12 are shown and rated.", notice("horses").toStdString());
    pressKeys("Alt+Right");
    EXPECT_EQ("", notice("horses").toStdString());
}

} // namespace
} // namespace quillon
