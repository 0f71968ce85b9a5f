#include "desktop/desktop_ports.h"

#include "core/journal.h"
#include "desktop/dialog_answers.h"
#include "desktop/find_bar.h"
#include "desktop/hand_over.h"
#include "desktop/main_window.h"
#include "desktop/window_test.h"

#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QLabel>
#include <QSettings>
#include <QStatusBar>
#include <QUrl>

#include <filesystem>

namespace quillon {

/// Stands in for the browser.
class OpenedPages : public QObject {
    Q_OBJECT

public:
    QStringList addresses;

public slots:
    void open(const QUrl& url) { addresses += url.toString(); }
};

namespace {

template <typename Widget>
std::vector<Widget*> openWindows() {
    std::vector<Widget*> found;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* one = qobject_cast<Widget*>(widget); one && one->isVisible()) found.push_back(one);
    return found;
}

struct DesktopPortsTest : WindowTest {
    DesktopPortsTest() {
        window.show();
        journal.clear(); // a start in an empty folder misses a file or two
    }

    QWidget window;
    DesktopPorts outside{window, appearance};
};

TEST_F(DesktopPortsTest, AMessageHasItsTitleOrTheApplicationsAndOneButton) {
    std::vector<QString> seen;
    DialogAnswers answers{[&](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        seen.push_back(box.windowTitle() + ": " + box.text());
        EXPECT_EQ(QMessageBox::Ok, box.standardButtons());
        EXPECT_EQ(Qt::PlainText, box.textFormat());
        box.button(QMessageBox::Ok)->click();
    }};
    ports.message("Check <b>Printer</b> ON", "");
    ports.message("Ren\xE9"
                  "e",
                  "Heat Results");
    ports.error("Path not found: X");
    EXPECT_EQ(
        (std::vector<QString>{"Quillon: Check <b>Printer</b> ON",
                              QString::fromUtf8("Heat Results: Ren\u00e9e"), "Quillon: Path not found: X"}),
        seen);
}

TEST_F(DesktopPortsTest, AQuestionIsNoUnlessTheUserPressesYes) {
    DialogAnswers yes{QMessageBox::Yes};
    EXPECT_TRUE(ports.question("Sure?", ""));
    {
        DialogAnswers enter{[](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }};
        EXPECT_FALSE(ports.question("Sure?", ""));
    }
    DialogAnswers escape{[](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }};
    EXPECT_FALSE(ports.question("Sure?", ""));
}

TEST_F(DesktopPortsTest, AnInputBoxGivesWhatWasTypedOrNothing) {
    DialogAnswers answers{[](QDialog& dialog) {
        EXPECT_EQ("Heat Races", dialog.windowTitle());
        auto& field = child<QLineEdit>(dialog, "");
        field.setText("7" + QString(1 << 20, 'x'));
        QTest::keyClick(&field, Qt::Key_Return);
    }};
    EXPECT_EQ("7" + Text(254, 'x'), ports.input("Enter Heat Race Number", "Heat Races"));
}

TEST_F(DesktopPortsTest, ACancelledInputBoxGivesNothing) {
    DialogAnswers escape{[](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }};
    EXPECT_EQ(std::nullopt, ports.input("Enter Heat Race Number", "Heat Races"));
}

TEST_F(DesktopPortsTest, TheEndIsKeptForTheWindow) {
    EXPECT_FALSE(outside.ended());
    ports.end();
    EXPECT_TRUE(outside.ended());
}

TEST_F(DesktopPortsTest, AFileOpensInOneViewerAndEachFileInItsOwn) {
    put("HRA.ini", "x");
    ports.view({Folder::working, "HRA.ini"});
    ports.view({Folder::working, "hra.INI"});
    EXPECT_EQ(1U, openWindows<TextViewer>().size());
    ports.view({Folder::working, "TEST.txt"});
    EXPECT_EQ(2U, openWindows<TextViewer>().size());
}

TEST_F(DesktopPortsTest, AnOpenViewerTakesUpTheFileWhenItIsAskedForAgain) {
    put("TEST.txt", "old");
    ports.view({Folder::working, "TEST.txt"});
    put("TEST.txt", "newer");
    ports.view({Folder::working, "TEST.txt"});
    EXPECT_EQ("newer", child<QPlainTextEdit>(*openWindows<TextViewer>().front(), "Text").toPlainText());
}

TEST_F(DesktopPortsTest, AClosedViewerIsForgotten) {
    ports.view({Folder::working, "TEST.txt"});
    openWindows<TextViewer>().front()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ports.view({Folder::working, "TEST.txt"});
    EXPECT_EQ(1U, openWindows<TextViewer>().size());
}

TEST_F(DesktopPortsTest, ANameThatIsNoFileNameOpensAnEmptyViewerThatSavesNothing) {
    ports.view({Folder::working, "../x"});
    DialogAnswers ok{QMessageBox::Ok};
    EXPECT_FALSE(openWindows<TextViewer>().front()->save());
    EXPECT_FALSE(exists("../x"));
}

TEST_F(DesktopPortsTest, TheChoiceOfTheViewerIsKept) {
    outside.setBuiltInViewer(true);
    EXPECT_TRUE(QSettings{}.value("builtInViewer").toBool());
    outside.setBuiltInViewer(false);
    EXPECT_FALSE(QSettings{}.value("builtInViewer").toBool());
}

struct BrowserTest : DesktopPortsTest {
    BrowserTest() {
        for (const char* scheme : {"http", "https", "file", "ftp", "javascript"})
            QDesktopServices::setUrlHandler(scheme, &opened, "open");
    }
    ~BrowserTest() override {
        for (const char* scheme : {"http", "https", "file", "ftp", "javascript"})
            QDesktopServices::unsetUrlHandler(scheme);
    }

    OpenedPages opened;
};

TEST_F(BrowserTest, PagesAreOpened) {
    ports.browse("https://www.example.com/a?b=h&c=d");
    ports.browse(" www.example.com ");
    ports.browse("http://example.com/");
    EXPECT_EQ(
        (QStringList{"https://www.example.com/a?b=h&c=d", "https://www.example.com", "http://example.com/"}),
        opened.addresses);
    EXPECT_EQ(0U, journal.count());
}

TEST_F(BrowserTest, WhatIsNoPageIsToldInTheJournalAlone) {
    for (const char* address : {"", "hello", "ftp://example.com/", "javascript:alert(1)", "http://"})
        ports.browse(address);
    EXPECT_TRUE(opened.addresses.isEmpty());
    EXPECT_EQ(5U, journal.count());
    EXPECT_TRUE(journalTells("\"hello\" is no address of a page"));
}

TEST_F(DesktopPortsTest, AProgramThatIsMissingIsToldInTheJournalAlone) {
    ports.run("FileManager.exe");
    EXPECT_TRUE(journalTells("FileManager.exe"));
    put("FileManager.exe", "no program");
    ports.run("FileManager.exe");
    EXPECT_EQ(2U, journal.count());
}

#ifndef Q_OS_WIN
TEST_F(DesktopPortsTest, AProgramOfTheWorkingFolderIsStarted) {
    put("FileManager.exe", "#!/bin/sh\necho started > started.txt\n");
    std::filesystem::permissions("FileManager.exe", std::filesystem::perms::owner_all);
    ports.run("FileManager.exe");
    EXPECT_TRUE(QTest::qWaitFor([] { return exists("started.txt"); }, 5000));
    EXPECT_EQ(0U, journal.count());
}
#endif

#ifdef Q_OS_LINUX
/// A desktop that answers with an editor of ours.
struct DesktopEditorTest : DesktopPortsTest {
    DesktopEditorTest() {
        putScript("xdg-mime", "[ \"$*\" = \"query default text/plain\" ] && echo our-editor.desktop");
        putScript("gtk-launch", "echo \"$@\" > launched.txt");
        qputenv("PATH", QDir::currentPath().toUtf8() + "/bin:" + path);
        qputenv("XDG_DATA_DIRS", QDir::currentPath().toUtf8() + "/share");
        put("HRA.ini", "x");
    }
    ~DesktopEditorTest() override {
        qputenv("PATH", path);
        qputenv("XDG_DATA_DIRS", folders);
    }

    static void putScript(const std::string& name, const std::string& line) {
        put("bin/" + name, "#!/bin/sh\n" + line + "\n");
        std::filesystem::permissions("bin/" + name, std::filesystem::perms::owner_all);
    }
    static void putEditor(const char* more) {
        put("share/applications/our-editor.desktop", std::string{"[Desktop Entry]\nName=Editor\n"} + more);
    }

    const QByteArray path = qgetenv("PATH");
    const QByteArray folders = qgetenv("XDG_DATA_DIRS");
};

TEST_F(DesktopEditorTest, ATextIsShownInTheDesktopsEditorWhereTheUserWantsIt) {
    putEditor("Terminal=false\n");
    outside.setBuiltInViewer(false);
    ports.view({Folder::working, "HRA.ini"});
    EXPECT_TRUE(openWindows<TextViewer>().empty());
    ASSERT_TRUE(QTest::qWaitFor([] { return exists("launched.txt") && !contentOf("launched.txt").empty(); }));
    EXPECT_EQ("our-editor.desktop " + std::filesystem::absolute("HRA.ini").string() + "\n",
              contentOf("launched.txt"));

    ports.view({Folder::working, "TEST.txt"}); // not there yet: ours can make it
    EXPECT_EQ(1U, openWindows<TextViewer>().size());
}

TEST_F(DesktopEditorTest, AnEditorInATerminalIsNone) {
    putEditor("Terminal = true\n");
    EXPECT_EQ("", findDesktopEditor());
}

TEST_F(DesktopEditorTest, AnEditorThatIsNotInstalledIsNone) { EXPECT_EQ("", findDesktopEditor()); }

TEST_F(DesktopEditorTest, ADesktopThatDoesNotAnswerIsNotWaitedForLong) {
    putEditor("");
    putScript("xdg-mime", "exec sleep 20");
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ("", findDesktopEditor());
    EXPECT_LT(clock.elapsed(), 3000);
}
#endif

TEST_F(DesktopPortsTest, WorkThatIsDoneAtOnceShowsNoDialog) {
    EXPECT_TRUE(ports.progress(0.1));
    EXPECT_TRUE(ports.progress(0.9));
    EXPECT_TRUE(ports.progress(1));
    EXPECT_TRUE(openWindows<QProgressDialog>().empty());
}

TEST_F(DesktopPortsTest, LongWorkShowsHowFarItIsUntilItEnds) {
    ports.progress(0);
    QTest::qSleep(WorkProgress::quietTime + 20);
    EXPECT_TRUE(ports.progress(0.25));
    ASSERT_EQ(1U, openWindows<QProgressDialog>().size());
    const QProgressDialog& dialog = *openWindows<QProgressDialog>().front();
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.maximum() / 4, dialog.value());
    EXPECT_TRUE(ports.progress(1));
    EXPECT_TRUE(openWindows<QProgressDialog>().empty());
}

TEST_F(DesktopPortsTest, CancelStopsTheWorkUntilTheCommandHasEnded) {
    ports.progress(0);
    QTest::qSleep(WorkProgress::quietTime + 20);
    ASSERT_TRUE(ports.progress(0.1));
    openWindows<QProgressDialog>().front()->cancel();
    QTest::qSleep(WorkProgress::timeOfEvents + 10);
    EXPECT_FALSE(ports.progress(0.2));
    EXPECT_FALSE(ports.progress(0.3));
    EXPECT_TRUE(openWindows<QProgressDialog>().empty());
    outside.commandEnded();
    EXPECT_TRUE(ports.progress(0.1));
}

TEST_F(DesktopPortsTest, ACommandThatStopsHalfwayLeavesNoDialog) {
    ports.progress(0);
    QTest::qSleep(WorkProgress::quietTime + 20);
    ports.progress(0.1);
    outside.commandEnded();
    EXPECT_TRUE(openWindows<QProgressDialog>().empty());
}

TEST_F(DesktopPortsTest, WhatWasPrintedOpensInAPreview) {
    ports.printLine("RACE 1", PrintStyle::plain);
    ports.printPage();
    ports.printLine("RACE 2", PrintStyle::emphasised);
    ports.printPage();
    ports.printEnd();
    ASSERT_EQ(1U, openWindows<PrintPreview>().size());
    EXPECT_EQ(2, openWindows<PrintPreview>().front()->pageCount());
    ports.printEnd(); // nothing is left of the first
    EXPECT_EQ(2U, openWindows<PrintPreview>().size());
}

struct PortsOfTheWindowTest : WindowTest {
    PortsOfTheWindowTest() { window.show(); }

    static QString cardName() { return QString::fromStdString(card.cardFileName).section('.', 0, 0); }

    MainWindow window{appearance};
};

TEST_F(PortsOfTheWindowTest, TheCondensedProgramPrintsAPageARace) {
    putSampleCard();
    DialogAnswers ok{QMessageBox::Ok};
    window.runner().run(CommandId::Start);
    EXPECT_EQ(1, ok.count()); // how to go on
    window.runner().run(CommandId::PrintCondensedProgram);
    EXPECT_EQ(3, ok.count()); // the printer is to be switched on, before and after
    ASSERT_EQ(1U, openWindows<PrintPreview>().size());
    PrintPreview& preview = *openWindows<PrintPreview>().front();
    EXPECT_GE(preview.pageCount(), static_cast<int>(card.raceCount));
    EXPECT_FALSE(preview.isLandscape()) << "upright pages are half as many";
    EXPECT_TRUE(QTest::qWaitForWindowActive(&preview)) << "it stands in front";
    EXPECT_TRUE(preview.windowTitle().contains(cardName())) << preview.windowTitle().toStdString();
}

TEST_F(PortsOfTheWindowTest, APageThatNothingOpensIsToldInTheStatusBar) {
    ports.browse("hello");
    EXPECT_EQ("No browser opened the page: hello", window.statusBar()->currentMessage());
}

TEST_F(PortsOfTheWindowTest, TheKeysOfFindOpenTheBar) {
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(child<FindBar>(window, "FindBar").isVisible());
}

TEST_F(PortsOfTheWindowTest, TheWindowsOwnCloseAsksAndNoKeepsIt) {
    DialogAnswers no{QMessageBox::No};
    EXPECT_FALSE(window.close());
    EXPECT_EQ(1, no.count());
    DialogAnswers yes{QMessageBox::Yes};
    EXPECT_TRUE(window.close());
}

} // namespace
} // namespace quillon

#include "desktop_ports_test.moc"
