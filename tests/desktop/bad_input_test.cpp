// What no user means to do to the window and somebody does: a pasted megabyte, letters for numbers, a card
// that is gone, the window closed in the middle of something.

#include "desktop/cell_table_view.h"
#include "desktop/dialog_answers.h"
#include "desktop/main_window_test.h"
#include "desktop/shown_text.h"
#include "desktop/window_shows.h"
#include "results/board.h"
#include "screen/race_views.h"

#include <QAction>
#include <QClipboard>
#include <QInputDialog>
#include <QLabel>
#include <QTreeView>

#include <algorithm>
#include <ctime>

namespace quillon {
namespace {

/// More than a megabyte of letters, line breaks, control characters and letters of other scripts.
QString hostileText() {
    const QString piece =
        QString::fromUtf8("12.40 Ren\u00e9e \u041a\u043e\u043d\u044c \u99ac \U0001F40E\r\n") +
        QString{"\t\v\x01\x1b[2J\x7f"} + QChar{0x2028} + QChar{0x2029} + QChar{0xD800} + QChar{u'\0'};
    return piece.repeated((1 << 20) / piece.size() + 1);
}

bool isPlain(TextView text) {
    return std::none_of(text.begin(), text.end(),
                        [](char character) { return static_cast<unsigned char>(character) < 0x20; });
}

double cpuSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

class BadInputTest : public MainWindowTest {
protected:
    static void paste(QWidget& widget) { QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier); }
    void pasteOver(QWidget& widget) {
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        paste(widget);
    }
    void typeOver(QLineEdit& edit, const QString& text) {
        QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(&edit, text);
        QTest::keyClick(&edit, Qt::Key_Return);
    }

    QLineEdit& box(const QString& name) { return child<QLineEdit>(*window, name); }
    CellTableView& raceView() { return child<CellTableView>(*window, "RaceView"); }
    QModelIndex cell(int row, int column) { return raceView().model()->index(row - 1, column); }

    /// The editor of a cell, opened by the keyboard; nothing where the cell can't be edited.
    QWidget* editorOf(int row, int column) {
        raceView().setCurrentIndex(cell(row, column));
        if (!(cell(row, column).flags() & Qt::ItemIsEditable)) return nullptr;
        QTest::keyClick(&raceView(), Qt::Key_F2);
        return raceView().indexWidget(cell(row, column));
    }
    void leaveEditor(QWidget& editor) {
        QTest::keyClick(&editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // the editor hands in its text when it has taken the key
    }

    static QStringList boardBoxes() {
        QStringList names{"Refunds"};
        for (int i = 0; i < 8; ++i) names << QString{"Box%1"}.arg(i);
        for (int i = 1; i < 12; ++i)
            if (i != 10) names << QString{"Tote%1"}.arg(i); // 10 is seen in a dead heat alone
        return names;
    }

    static auto linesOfCardFile() {
        const std::string content = contentOf("A Quillon PRO/Race Cards/MVR_20260314.pmd");
        return std::count(content.begin(), content.end(), '\n');
    }
};

// --- A megabyte --------------------------------------------------------------------------------------------

class MegabyteTest : public BadInputTest {
protected:
    MegabyteTest() { QApplication::clipboard()->setText(hostileText()); }
    ~MegabyteTest() override { QApplication::clipboard()->clear(); }
};

TEST_F(MegabyteTest, InTheBoardsBoxesIsCutAndAddsNoLineToTheCardsFile) {
    startInWindow();
    pressKeys("Ctrl+S");
    const auto lines = linesOfCardFile();
    for (const QString& name : boardBoxes()) {
        click(box(name));
        pasteOver(box(name));
        QTest::keyClick(&box(name), Qt::Key_Return);
        EXPECT_LE(box(name).text().size(), 255) << name.toStdString();
        EXPECT_GT(box(name).text().size(), 200) << name.toStdString();
    }
    expectShowsScreen(*window);
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_GT(screen.boxes[i].text.size(), 200U) << i;
        EXPECT_TRUE(isPlain(screen.boxes[i].text)) << i;
    }
    for (std::size_t i = 1; i < 12; ++i) EXPECT_TRUE(isPlain(screen.tote[i])) << i;
    pressKeys("Ctrl+S");
    EXPECT_EQ(lines, linesOfCardFile());
    for (const char* keys : {"Alt+Right", "Alt+Left", "F12", "Ctrl+M", "F6"}) pressKeys(keys);
    expectShowsScreen(*window);
}

TEST_F(MegabyteTest, InEveryCellOfARowIsCutAndAddsNoLineToTheCardsFile) {
    startInWindow();
    pressKeys("Ctrl+S");
    const auto lines = linesOfCardFile();
    int pasted = 0;
    for (int column = 0; column <= RaceColumn::rating; ++column) {
        QWidget* editor = editorOf(1, column);
        if (!editor) continue;
        ++pasted;
        pasteOver(*editor);
        leaveEditor(*editor);
        EXPECT_GT(screen.raceView[1].text(1, column).size(), 200U) << column;
        EXPECT_LE(screen.raceView[1].text(1, column).size(), 255U) << column;
        EXPECT_TRUE(isPlain(screen.raceView[1].text(1, column))) << column;
    }
    EXPECT_EQ(24, pasted); // columns 6 to 29
    expectShowsScreen(*window);
    for (const char* keys : {"Alt+Right", "Alt+Left", "Ctrl+S", "F6"}) pressKeys(keys);
    EXPECT_EQ(lines, linesOfCardFile());
    expectShowsScreen(*window);
}

TEST_F(MegabyteTest, InTheFieldsThatFindFindsNothingSoon) {
    startInWindow();
    pressKeys("Ctrl+F");
    auto& find = box("FindField");
    const double before = cpuSeconds();
    pasteOver(find);
    QTest::keyClick(&find, Qt::Key_Return);
    QTest::keyClick(&find, Qt::Key_Escape);
    QTest::mouseClick(raceView().viewport(), Qt::LeftButton, {},
                      raceView().visualRect(cell(2, RaceColumn::driver)).center());
    ASSERT_TRUE(screen.driverList.visible);
    auto& filter = box("ChoiceFilter");
    pasteOver(filter);
    EXPECT_EQ(0, child<QTreeView>(*window, "DriverChoice").model()->rowCount());
    QTest::keyClick(&filter, Qt::Key_Return);
    EXPECT_TRUE(screen.driverList.visible);
    EXPECT_LT(cpuSeconds() - before, 5);
    QTest::keyClick(&filter, Qt::Key_Escape);
    EXPECT_FALSE(screen.driverList.visible);
    expectShowsScreen(*window);
}

// --- Letters for numbers -----------------------------------------------------------------------------------

const QStringList noNumbers{"abc", "-1",  "0",     "1e999", "-1e-999",      "99999999999999999999",
                            "NaN", "inf", "1.2.3", "$",     "%s%n\\'\";--", "+"};

TEST_F(BadInputTest, LettersWhereNumbersGoPassThroughTheBoard) {
    startInWindow();
    for (const QString& text : noNumbers) {
        for (const QString& name : boardBoxes()) {
            click(box(name));
            typeOver(box(name), text);
        }
        for (const char* keys : {"Alt+Right", "Alt+Left", "F12", "Ctrl+M", "Ctrl+S", "F6", "F7", "F8"})
            pressKeys(keys);
        const bool isDropped = text == "0"; // the arrows drop zeros in front of a number
        EXPECT_EQ(isDropped ? "" : text, box("Tote1").text()) << "what was typed is kept";
        for (const std::string& difference : differencesFromScreen(*window))
            ADD_FAILURE() << text.toStdString() << ": " << difference;
    }
}

TEST_F(BadInputTest, LettersWhereNumbersGoPassThroughTheCells) {
    startInWindow();
    for (const QString& text : noNumbers) {
        for (const int column : {RaceColumn::classRating, RaceColumn::linePost, RaceColumn::lastQuarter,
                                 RaceColumn::finalTime}) {
            QWidget* editor = editorOf(2, column);
            ASSERT_TRUE(editor);
            QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(editor, text);
            leaveEditor(*editor);
            EXPECT_EQ(text.toStdString(), screen.raceView[1].text(2, column));
        }
        // The window offers no typing there, but a script may have done it.
        for (const int column :
             {RaceColumn::programNumber, RaceColumn::post, RaceColumn::udr, RaceColumn::rating})
            window->runner().run(CommandId::Cell, {.numbers = {1, 2, column}, .text = text.toStdString()});
        click(child<QAbstractButton>(*window, "EntryButton2"));
        answers = {"Yes"};
        click(child<QAbstractButton>(*window, "ScratchButton2"));
        pressKeys("Ctrl+S");
        for (const std::string& difference : differencesFromScreen(*window))
            ADD_FAILURE() << text.toStdString() << ": " << difference;
    }
}

TEST_F(BadInputTest, LettersInAnInputBoxChangeNothingTheyDoNotName) {
    startInWindow();
    choose("HeatWinner");
    std::vector<std::string> words;
    for (const QString& text : noNumbers) words.push_back(text.toStdString());
    words.push_back("");
    words.push_back(std::string(255, '9'));
    words.push_back(typed(hostileText().left(255)));
    for (const std::string& word : words) {
        answers = {word};
        choose("ViewHeat");
        click(child<QAbstractButton>(*window, "EntryButton2"));
        answers = {word};
        pressKeys("Ctrl+L");
        for (const std::deque<std::string>& all :
             {std::deque{word, word, word}, {"14", word, word}, {"14", "1", word}, {"14", word, "3"}}) {
            answers = all;
            click(child<QAbstractButton>(*window, "HeatButton2"));
            answers.clear();
        }
        for (const std::string& difference : differencesFromScreen(*window))
            ADD_FAILURE() << word << ": " << difference;
    }
    EXPECT_EQ("RACE 1", child<QLabel>(*window, "race").text());
}

// --- Closing in the middle ---------------------------------------------------------------------------------

class ClosingTest : public BadInputTest {
protected:
    void closeWithYes() {
        answers = {"Yes"};
        EXPECT_TRUE(window->close());
        QCoreApplication::processEvents();
        EXPECT_FALSE(window->isVisible());
    }
    void openDrivers() {
        startInWindow();
        QTest::mouseClick(raceView().viewport(), Qt::LeftButton, {},
                          raceView().visualRect(cell(2, RaceColumn::driver)).center());
        ASSERT_TRUE(screen.driverList.visible);
    }
    void openStars() {
        put("Stars5.ini", "");
        choose("Star");
        ASSERT_TRUE(child<QWidget>(*window, "StarsWindow").isVisible());
    }
};

TEST_F(ClosingTest, WithTheDriversListOpen) {
    openDrivers();
    closeWithYes();
    EXPECT_FALSE(child<QWidget>(*window, "ChoiceDialog").isVisible());
    window.reset();
}

TEST_F(ClosingTest, WithTheStarsOpen) {
    openStars();
    closeWithYes();
    EXPECT_FALSE(child<QWidget>(*window, "StarsWindow").isVisible());
    window.reset();
}

TEST_F(ClosingTest, WithACellStillTypedIn) {
    startInWindow();
    QWidget* editor = editorOf(2, 6);
    ASSERT_TRUE(editor);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, "OPEN 5");
    EXPECT_FALSE(window->close()); // answered No
    EXPECT_EQ("OPEN 5", screen.raceView[1].text(2, 6));
    expectShowsScreen(*window);
    ASSERT_TRUE(editorOf(2, 6));
    closeWithYes();
    window.reset();
}

TEST_F(ClosingTest, WithABoxNotLeftKeepsWhatWasTyped) {
    startInWindow();
    click(box("Box4"));
    QTest::keyClicks(&box("Box4"), "7");
    EXPECT_FALSE(window->close()); // answered No
    EXPECT_EQ("7", box("Box4").text());
    EXPECT_EQ("7", screen.boxes[4].text);
    click(box("Tote1"));
    QTest::keyClicks(&box("Tote1"), "7.40");
    closeWithYes();
    EXPECT_EQ("7.40", screen.tote[1]);
    window.reset();
}

TEST_F(ClosingTest, WhileWorkRunsIsNotTakenUp) {
    std::string lines = "M1_20260314\r\n";
    const std::string race = std::string(15, ' ') + " 1        5.2      2.50   5/2      12.00\r\n";
    for (int n = 0; n < 100'000; ++n) lines += race; // long enough for the work to tell how far it is
    put("Stars5.ini", lines);
    int closings = 0;
    ports.progress = [&](double) {
        ++closings;
        EXPECT_FALSE(window->close());
        return true;
    };
    choose("Star");
    EXPECT_GT(closings, 0);
    EXPECT_TRUE(window->isVisible());
    expectShowsScreen(*window);
    closeWithYes();
}

TEST_F(ClosingTest, WithTheFaultJournalOpen) {
    child<QAction>(*window, "FaultJournal").trigger();
    ASSERT_TRUE(child<QWidget>(*window, "FaultJournalDialog").isVisible());
    window.reset();
}

TEST_F(ClosingTest, ByItsEndWithoutClosingFirst) {
    openDrivers();
    ASSERT_TRUE(editorOf(3, 6));
    openStars();
    window.reset();
    QCoreApplication::processEvents();
}

/// The window with the dialogs that users see.
class ModalTest : public WindowTest {
protected:
    ModalTest() {
        window.emplace(appearance);
        window->show();
        putSampleCard();
        const DialogAnswers ok{QMessageBox::Ok};
        click(child<QAbstractButton>(*window, "Start"));
    }

    std::optional<MainWindow> window;
};

TEST_F(ModalTest, TheWindowStaysWhileAQuestionIsOpen) {
    bool closed = true;
    {
        DialogAnswers tries{[&](QDialog& dialog) {
            closed = window->close();
            dynamic_cast<QMessageBox&>(dialog).button(QMessageBox::Yes)->click();
        }};
        click(child<QAbstractButton>(*window, "ScratchButton3"));
        EXPECT_EQ(1, tries.count());
    }
    EXPECT_FALSE(closed);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ("99.9", trimmed(screen.raceView[1].text(3, RaceColumn::rating))) << "the scratch went on";
    expectShowsScreen(*window);
}

TEST_F(ModalTest, TheCloseControlPressedTwiceAsksOnce) {
    DialogAnswers tries{[&](QDialog& dialog) {
        window->close();
        dynamic_cast<QMessageBox&>(dialog).button(QMessageBox::Yes)->click();
    }};
    EXPECT_TRUE(window->close());
    EXPECT_EQ(1, tries.count());
}

TEST_F(ModalTest, AMegabyteInAnInputBoxIsCut) {
    QApplication::clipboard()->setText(hostileText());
    int length = 0;
    {
        DialogAnswers pasted{[&](QDialog& dialog) {
            auto* field = dialog.findChild<QLineEdit*>();
            if (!field) return;
            QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
            length = static_cast<int>(field->text().size());
            QTest::keyClick(field, Qt::Key_Return);
        }};
        click(child<QAbstractButton>(*window, "EntryButton2"));
        click(child<QAbstractButton>(*window, "Command7"));
        window->runner().run(CommandId::HeatWinner);
        click(child<QAbstractButton>(*window, "HeatButton2"));
    }
    QApplication::clipboard()->clear();
    EXPECT_EQ(255, length);
    expectShowsScreen(*window);
}

// --- Gone from the disk ------------------------------------------------------------------------------------

TEST_F(BadInputTest, ACardThatIsGoneWhenItIsPicked) {
    startInWindow();
    pressKeys("Ctrl+W");
    pressKeys("Ctrl+O");
    ASSERT_TRUE(screen.fileList.visible);
    std::filesystem::remove("A Quillon PRO/Race Cards/MVR_20260314.pmd");
    QTest::keyClick(&box("ChoiceFilter"), Qt::Key_Return);
    EXPECT_FALSE(child<QWidget>(*window, "ChoiceDialog").isVisible());
    EXPECT_TRUE(journalTells("MVR_20260314.pmd"));
    for (const char* keys : {"F5", "Alt+Right", "Alt+Left", "F12", "Ctrl+M", "F4"}) pressKeys(keys);
    expectShowsScreen(*window);
}

TEST_F(BadInputTest, AWorkingFolderThatIsGone) {
    startInWindow();
    std::filesystem::remove_all(std::filesystem::current_path());
    click(box("Box4"));
    typeOver(box("Box4"), "7");
    for (const char* keys : {"Alt+Right", "Alt+Left"}) pressKeys(keys);
    EXPECT_EQ("7", box("Box4").text()) << "the card is still there";
    for (const Command& command : commandTable()) {
        const bool ends =
            command.name == std::string_view{"Exit_QL"} || command.name == std::string_view{"NewRC"};
        if (!isMenuItem(command) || ends) continue;
        choose(command.name);
        for (const std::string& difference : differencesFromScreen(*window))
            ADD_FAILURE() << command.name << ": " << difference;
    }
    EXPECT_GT(journal.count(), 0U);
}

TEST_F(BadInputTest, AnEmptyWindowOnAWorkingFolderThatIsGone) {
    std::filesystem::remove_all(std::filesystem::current_path());
    window->refresh();
    pressKeys("F5");
    EXPECT_EQ(0, card.raceCount);
    EXPECT_TRUE(child<QWidget>(*window, "EmptyPanel").isVisible());
    expectShowsScreen(*window);
}

TEST_F(BadInputTest, TenThousandSavedCardsAreListedAndFoundSoon) {
    constexpr int cards = 10'000;
    for (int n = 0; n < cards; ++n)
        put("A Quillon PRO/Race Cards/TR" + std::to_string(n) + "_20260314.pmd", "");
    const double before = cpuSeconds();
    pressKeys("Ctrl+O");
    auto& list = child<QTreeView>(*window, "ChooseFile");
    EXPECT_EQ(cards, list.model()->rowCount());
    child<QWidget>(*window, "ChoiceDialog").grab();
    QTest::keyClicks(&box("ChoiceFilter"), "TR4711_");
    EXPECT_EQ(1, list.model()->rowCount());
    QTest::keyClick(&box("ChoiceFilter"), Qt::Key_Return);
    EXPECT_LT(cpuSeconds() - before, 5);
    EXPECT_EQ("TR4711_20260314.pmd", card.cardFileName);
    expectShowsScreen(*window);
}

} // namespace
} // namespace quillon
