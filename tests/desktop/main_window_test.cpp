#include "desktop/main_window_test.h"

#include "card/race_card.h"
#include "desktop/cell_table_view.h"
#include "desktop/dialog_answers.h"
#include "desktop/fault_journal_dialog.h"
#include "desktop/guide_window.h"
#include "desktop/keys_dialog.h"
#include "desktop/print_preview.h"
#include "desktop/shown_text.h"
#include "desktop/stars_window.h"
#include "desktop/text_viewer.h"
#include "desktop/window_look.h"
#include "desktop/window_size.h"
#include "results/card_search.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QTableWidget>
#include <QTextBrowser>

#include <set>

namespace quillon {
namespace {

// The names of all commands that some widget or menu item of the window sends.
std::set<std::string> commandsSentBy(const QObject& root) {
    std::set<std::string> names;
    for (const QObject* object : root.findChildren<QObject*>()) {
        for (const QString& command : object->property("command").toString().split(',', Qt::SkipEmptyParts))
            names.insert(command.toStdString());
    }
    return names;
}

TEST_F(MainWindowTest, NoCommandOfTheTableIsMissingFromTheWindow) {
    const auto sent = commandsSentBy(*window);
    for (const Command& command : commandTable()) {
        if (command.name == std::string_view{"CloseWindow"}) continue; // the window's own close control
        EXPECT_TRUE(sent.contains(command.name)) << command.name;
    }
}

TEST_F(MainWindowTest, EveryMenuItemHasItsCommandsCaptionAKeyAndAHint) {
    for (const Command& command : commandTable()) {
        if (command.item.menu == Menu::none) continue;
        const QAction* action = window->menus().action(command.id);
        ASSERT_TRUE(action) << command.name;
        QString caption = action->text();
        EXPECT_TRUE(caption.contains(QRegularExpression{"&[^&]"}))
            << command.name << " has no underlined letter";
        caption.replace("&&", "\x01").remove('&').replace("\x01", "&");
        EXPECT_EQ(QString{command.item.caption}.simplified(), caption) << command.name;
        EXPECT_FALSE(action->statusTip().isEmpty()) << command.name;
        EXPECT_EQ(QString{command.item.hint}, action->statusTip()) << command.name;
        EXPECT_EQ(QString{command.item.hint}, action->toolTip()) << command.name;
        EXPECT_EQ(QString{command.item.keys}, QKeySequence::listToString(action->shortcuts()))
            << command.name;
        EXPECT_EQ(command.item.hasMark, action->isCheckable()) << command.name;
    }
}

// A button that a command has besides its menu item says the same, and the key that is quicker.
TEST_F(MainWindowTest, AButtonsTipIsItsCommandsHintAndKey) {
    struct Row {
        const char* button;
        const char* tip;
    };
    constexpr Row rows[] = {
        {"Start", "Load and rate the card of the vendor's tables (F5)"},
        {"EmptyStart", "Load and rate the card of the vendor's tables (F5)"},
        {"EmptyRecall", "Open a saved race card (Ctrl+O)"},
        {"Previous", "Store the board and go to the race before (Alt+Left)"},
        {"Next", "Store the board and go to the next race (Alt+Right)"},
        {"RaceButton7", "Show race 7. The arrows keep what was typed on the board; this button does not."},
        {"Command7", "Take another past line for the entry on show, by its number (Ctrl+L)"},
        {"AnalysisRecord", "Add this card to the archive, once"},
        {"AnalysisMILE", "The cards of mile tracks"},
        {"AnalysisMainScreen", "Back to the races (Ctrl+M)"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.tip, child<QAbstractButton>(*window, row.button).toolTip().toStdString()) << row.button;
}

// The sample card has 12 races, the most that a card can have buttons for is 23.
TEST_F(MainWindowTest, OnASmallScreenAndEnlargedEveryRaceButtonStaysInTheWindow) {
    startInWindow();
    for (int n = 13; n <= 23; ++n) {
        screen.raceButtons.at(static_cast<std::size_t>(n)).visible = true;
        screen.raceButtons.at(static_cast<std::size_t>(n)).caption = std::to_string(n);
    }
    window->refresh();
    appearance.setZoom(200);
    window->resize(800, 600);
    QTest::qWait(50);
    EXPECT_EQ(QSize(800, 600), window->size());
    QRegion taken;
    for (int n = 1; n <= 23; ++n) {
        const auto& button = child<QAbstractButton>(*window, QString{"RaceButton%1"}.arg(n));
        const QRect place{button.mapTo(&*window, QPoint{}), button.size()};
        EXPECT_TRUE(window->rect().contains(place)) << n;
        EXPECT_FALSE(taken.intersects(place)) << n;
        EXPECT_GT(place.width(), button.fontMetrics().horizontalAdvance(button.text())) << n;
        taken += place;
    }
}

TEST_F(MainWindowTest, InTheDefaultWindowTheRatingsAreInSight) {
    window->resize(appearance.pixels(screen.width), appearance.pixels(screen.height));
    startInWindow();
    QTest::qWait(50);
    const auto& table = child<QTableView>(*window, "RaceView");
    const int last = table.model()->columnCount() - 1;
    EXPECT_LE(table.columnViewportPosition(last) + table.columnWidth(last), table.viewport()->width());
}

TEST_F(MainWindowTest, ASaveIsToldInTheStatusBarUnlessItFailed) {
    startInWindow();
    choose("Save");
    EXPECT_EQ("The card is saved as MVR_20260314.pmd", window->statusBar()->currentMessage().toStdString());
}

TEST_F(MainWindowTest, AClosedCardLeavesNoRaceButtons) {
    startInWindow();
    ASSERT_TRUE(child<QAbstractButton>(*window, "RaceButton2").isVisible());
    choose("CloseRC");
    EXPECT_FALSE(child<QAbstractButton>(*window, "RaceButton2").isVisible());
}

TEST_F(MainWindowTest, NoLetterIsUnderlinedTwiceInAMenuAndNoShortcutGivenTwice) {
    std::set<QString> shortcuts;
    for (const QMenu* menu : window->findChildren<QMenu*>()) {
        std::set<QChar> letters;
        for (const QAction* action : menu->actions()) {
            if (!action->isVisible()) continue;
            for (const QKeySequence& keys : action->shortcuts())
                EXPECT_TRUE(shortcuts.insert(keys.toString()).second) << keys.toString().toStdString();
            const auto at = action->text().indexOf(QRegularExpression{"&[^&]"});
            if (at < 0) continue;
            EXPECT_TRUE(letters.insert(action->text().at(at + 1).toUpper()).second)
                << action->text().toStdString() << " in " << menu->title().toStdString();
        }
    }
}

void expectMenusAsOnScreen(MainWindow& window) {
    for (const Command& command : commandTable()) {
        if (!isMenuItem(command)) continue;
        const MenuState& state = screen.item(command.id);
        const QAction* action = window.menus().action(command.id);
        EXPECT_EQ(state.visible, action->isVisible()) << command.name;
        EXPECT_EQ(state.enabled && state.visible, action->isEnabled()) << command.name;
        EXPECT_EQ(state.checked, action->isChecked()) << command.name;
    }
}

TEST_F(MainWindowTest, MenuStatesAreTheScreensBeforeAndAfterALoad) {
    expectMenusAsOnScreen(*window);
    startInWindow();
    expectMenusAsOnScreen(*window);
    choose("SelectionResults");
    expectMenusAsOnScreen(*window);
    choose("MainScreen");
    expectMenusAsOnScreen(*window);
}

TEST_F(MainWindowTest, AMarkInAMenuIsTheScreensNotTheClicks) {
    startInWindow();
    choose("HeatWinner");
    EXPECT_TRUE(window->menus().action(CommandId::HeatWinner)->isChecked());
    pressKeys("Alt+Right"); // the next race takes the mark away
    EXPECT_FALSE(window->menus().action(CommandId::HeatWinner)->isChecked());
}

TEST_F(MainWindowTest, StartLoadsTheCardAndEndsOnRaceOne) {
    startInWindow();
    EXPECT_GT(card.raceCount, 0);
    auto& start = child<QAbstractButton>(*window, "Start");
    EXPECT_EQ("Select Race", start.text());
    EXPECT_FALSE(start.isEnabled());
    EXPECT_EQ("RACE 1", child<QLabel>(*window, "race").text());
    EXPECT_EQ("MVR, Saturday 14 March 2026[*]", window->windowTitle());
}

TEST_F(WindowTest, TheCardIsInSightBehindTheLoadsMessage) {
    putSampleCard();
    MainWindow real{appearance};
    real.show();
    bool inSight = false;
    const DialogAnswers answers{[&](QDialog& dialog) {
        inSight = child<QLabel>(real, "race").isVisible() &&
                  child<QAbstractButton>(real, "RaceButton12").isVisible();
        dialog.accept();
    }};
    real.runner().run(CommandId::Start);
    EXPECT_EQ(1, answers.count());
    EXPECT_TRUE(inSight);
}

TEST_F(MainWindowTest, RaceButtonsShowTheirRaceAndTheCurrentOneIsRed) {
    startInWindow();
    auto& third = child<QAbstractButton>(*window, "RaceButton3");
    EXPECT_EQ(quillon::shown(screen.raceButtons[3].caption), third.text());
    click(third);
    EXPECT_EQ("3", screen.header.race);
    EXPECT_EQ("RACE 3", child<QLabel>(*window, "race").text());
    EXPECT_TRUE(third.styleSheet().contains("#ff0000"));
    EXPECT_FALSE(child<QAbstractButton>(*window, "RaceButton1").styleSheet().contains("#ff0000"));
    EXPECT_EQ(screen.raceButtons[20].visible, child<QAbstractButton>(*window, "RaceButton20").isVisible());
}

TEST_F(MainWindowTest, ArrowsAndTheirKeysWalkTheRaces) {
    startInWindow();
    click(child<QAbstractButton>(*window, "Next"));
    EXPECT_EQ("2", screen.header.race);
    pressKeys("Alt+Right");
    EXPECT_EQ("3", screen.header.race);
    click(child<QAbstractButton>(*window, "Previous"));
    EXPECT_EQ("2", screen.header.race);
    pressKeys("Alt+Left");
    EXPECT_EQ("1", screen.header.race);
}

TEST_F(MainWindowTest, TheHeadingShowsTheRacesConditions) {
    startInWindow();
    const QString conditions = child<QLabel>(*window, "conditions").text();
    for (const Text* part : {&screen.header.postTime, &screen.header.gait, &screen.header.purse})
        EXPECT_TRUE(conditions.contains(quillon::shown(*part).trimmed())) << *part;
    EXPECT_EQ(quillon::shown(screen.header.classText).simplified(),
              child<QLabel>(*window, "classText").text());
    EXPECT_EQ(quillon::shown(screen.header.wagering).simplified(), child<QLabel>(*window, "wagering").text());
}

TEST_F(MainWindowTest, TheCloseControlAsksAndNoKeepsTheWindow) {
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    ASSERT_FALSE(shown.empty());
    EXPECT_EQ("question: Are you sure you want to exit Quillon? -> No", shown.back());
    answers.push_back("Yes");
    EXPECT_TRUE(window->close());
}

TEST_F(MainWindowTest, ExitEndsWithoutAQuestion) {
    choose("Exit_QL");
    QCoreApplication::processEvents();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ((std::vector<std::string>{"end"}), shown);
}

TEST_F(MainWindowTest, NoCommandRunsWhileAnotherOneWaitsForAnAnswer) {
    startInWindow();
    bool nested = true;
    bool closed = true;
    ports.question = [&](const Text&, const Text&) {
        nested = window->runner().run(CommandId::Next);
        closed = window->close();
        return false;
    };
    window->runner().run(CommandId::Command4, numberArgument(1));
    EXPECT_FALSE(nested);
    EXPECT_FALSE(closed);
    EXPECT_EQ("1", screen.header.race);
}

TEST_F(MainWindowTest, TheOverviewIsOneKeyAwayAndGoesWithAnotherRace) {
    EXPECT_FALSE(window->overviewShown());
    startInWindow();
    EXPECT_FALSE(window->overviewShown());
    pressKeys("F4");
    EXPECT_TRUE(window->overviewShown());
    pressKeys("Alt+Right");
    EXPECT_FALSE(window->overviewShown());
}

TEST_F(MainWindowTest, KeysZoomAndTheZoomIsRemembered) {
    pressKeys("Ctrl++");
    EXPECT_EQ(110, appearance.zoom());
    pressKeys("Ctrl+-");
    pressKeys("Ctrl+-");
    EXPECT_EQ(90, appearance.zoom());
    answers.push_back("Yes");
    window->close();
    appearance.setZoom(100);
    window.reset();
    const MainWindow again{appearance};
    EXPECT_EQ(90, appearance.zoom());
    appearance.setZoom(100);
    QSettings{}.clear();
}

TEST_F(MainWindowTest, StartWithoutTablesChangesNothingAndSaysWhereTheyGo) {
    click(child<QAbstractButton>(*window, "Start"));
    EXPECT_EQ(0, card.raceCount);
    EXPECT_TRUE(child<QAbstractButton>(*window, "Start").isEnabled());
    EXPECT_TRUE(shown.empty());
}

TEST_F(MainWindowTest, TheButtonOfAChangedRaceHasADotAndSaysSo) {
    startInWindow();
    auto& third = child<QPushButton>(*window, "RaceButton3");
    EXPECT_TRUE(third.icon().isNull());
    window->runner().run(CommandId::Cell, {.numbers = {3, 1, 6}, .text = "OPEN 5"});
    EXPECT_FALSE(third.icon().isNull());
    EXPECT_TRUE(third.accessibleName().contains("changed"));
    EXPECT_TRUE(third.toolTip().contains("You changed this race"));
    EXPECT_TRUE(child<QPushButton>(*window, "RaceButton4").icon().isNull());
}

TEST_F(MainWindowTest, TheFirstSizeIsTheDesignedOneOrWhatTheScreenHasRoomFor) {
    EXPECT_EQ((QSize{1083, 747}), firstSize({1083, 747}, {1920, 1040}));
    EXPECT_EQ((QSize{1016, 730}), firstSize({1083, 747}, {1016, 730}));
    EXPECT_EQ((QSize{952, 500}), firstSize({1083, 747}, {952, 500})); // 1920 by 1080 at 200%
    EXPECT_TRUE(window->size().boundedTo(window->screen()->availableGeometry().size()) == window->size());
}

// Screens of 1920 at 200%, 1366 at 150% and 1280 at 150%, less a frame's 8 pixels: 952 - 390 is 94% of 600, 903 - 390
// is 85%, 845 - 390 is 75%. 1280 at 200% has room for 40%, which nobody could read.
TEST_F(MainWindowTest, TheFirstZoomKeepsTheRatingsInSight) {
    EXPECT_EQ(100, firstZoom(1920));
    EXPECT_EQ(100, firstZoom(1024));
    EXPECT_EQ(90, firstZoom(960));
    EXPECT_EQ(80, firstZoom(911));
    EXPECT_EQ(70, firstZoom(853));
    EXPECT_EQ(70, firstZoom(640));
    startInWindow();
    for (const int width : {1024, 960, 911, 853}) {
        appearance.setZoom(firstZoom(width));
        window->resize(width - 8, 620);
        for (int race = 1; race <= 12; ++race) {
            click(child<QAbstractButton>(*window, QString{"RaceButton%1"}.arg(race)));
            QApplication::processEvents();
            EXPECT_EQ(0, child<QTableView>(*window, "RaceView").horizontalScrollBar()->maximum())
                << "race " << race << " at " << width;
        }
    }
}

// 1920 by 1080 at 200%.
TEST_F(MainWindowTest, OnALowWindowAnOpenedEntrysLinesComeIntoSight) {
    startInWindow();
    window->resize(952, 508);
    QApplication::processEvents();
    auto& page = child<QScrollArea>(*window, "RacePage");
    const auto& lines = child<QWidget>(*window, "PastPerformances");
    for (const char* entry : {"EntryButton2", "EntryButton3"}) {
        click(child<QAbstractButton>(*window, entry));
        QTest::qWait(20);
        const QRect place{lines.mapTo(page.viewport(), QPoint{}), lines.size()};
        EXPECT_TRUE(page.viewport()->rect().contains(place)) << entry << " " << place.top();
        page.verticalScrollBar()->setValue(0);
    }
    click(child<QAbstractButton>(*window, "LineButton0"));
    QTest::qWait(20);
    EXPECT_EQ(0, page.verticalScrollBar()->value());
}

// The screen of these tests has 800 by 800 pixels.
TEST_F(MainWindowTest, NoWindowIsLargerThanTheScreen) {
    const QSize room = window->screen()->availableGeometry().size();
    KeysDialog keys{*window->menuBar()};
    GuideWindow guide{appearance};
    StarsWindow stars{window->runner(), appearance};
    FaultJournalDialog faults{appearance};
    TextViewer viewer{{Folder::working, "TrackEditor.ini"}, appearance};
    PrintPreview preview{PrintDocument{}};
    for (const QWidget* opened :
         std::initializer_list<QWidget*>{&keys, &guide, &stars, &faults, &viewer, &preview})
        EXPECT_EQ(opened->size(), opened->size().boundedTo(room - QSize{40, 60}))
            << opened->metaObject()->className();
}

TEST_F(MainWindowTest, OnASmallScreenItCanBeAsSmallAsTheScreen) {
    startInWindow();
    for (const char* page : {"", "Overview", "ShowSummary"}) {
        if (*page != '\0' && QByteArray{page} == "Overview") window->showOverview(true);
        if (QByteArray{page} == "ShowSummary") pressKeys("F12");
        const QSize least = window->minimumSizeHint();
        EXPECT_LE(least.width(), 900) << page << " " << least.width();
        EXPECT_LE(least.height(), 500) << page << " " << least.height();
    }
}

TEST_F(MainWindowTest, OnAWideWindowThePastLinesStandBesideTheRace) {
    startInWindow();
    auto& race = child<QWidget>(*window, "RaceView");
    auto& lines = child<QWidget>(*window, "RaceLines");
    const auto placeOf = [this](QWidget& widget) { return widget.mapTo(&*window, QPoint{}); };
    window->resize(1083, 747);
    QApplication::processEvents();
    EXPECT_GT(placeOf(lines).y(), placeOf(race).y() + race.height());
    window->resize(appearance.pixels(28800), appearance.pixels(15600)); // 1920 by 1040 at 96 dots an inch
    QApplication::processEvents();
    EXPECT_GT(placeOf(lines).x(), placeOf(race).x() + race.width());
    EXPECT_LT(placeOf(lines).y(), placeOf(race).y() + race.height() / 2);
    EXPECT_GT(placeOf(lines).x() + lines.width(), window->width() - 30);
}

// From 1900 pixels on, a full screen of 1920 less what the desktop takes.
TEST_F(MainWindowTest, OnAWideWindowNoColumnOfAnyRaceIsOutOfSight) {
    startInWindow();
    for (const int twips : {28500, 28800}) {
        window->resize(appearance.pixels(twips), appearance.pixels(15600));
        for (int number = 1; number <= 12; ++number) {
            click(child<QAbstractButton>(*window, QString{"RaceButton%1"}.arg(number)));
            QApplication::processEvents();
            for (const char* table : {"RaceView", "RaceLines"})
                EXPECT_EQ(0, child<QTableView>(*window, table).horizontalScrollBar()->maximum())
                    << table << " of race " << number << " at " << window->width();
        }
    }
}

TEST_F(MainWindowTest, OnAWideWindowAnEntrysLinesStandBelowTheBoardAndTheRacesStay) {
    startInWindow();
    window->resize(appearance.pixels(28800), appearance.pixels(15600)); // 1920 by 1040 at 96 dots an inch
    QApplication::processEvents();
    click(child<QAbstractButton>(*window, "EntryButton2"));
    QApplication::processEvents();
    const auto& lines = child<QWidget>(*window, "EntryLines");
    const auto& race = child<QWidget>(*window, "RaceLines");
    const auto& board = child<QWidget>(*window, "BoardPanel");
    const auto placeOf = [this](const QWidget& widget) {
        return QRect{widget.mapTo(&*window, QPoint{}), widget.size()};
    };
    EXPECT_TRUE(lines.isVisible());
    EXPECT_TRUE(race.isVisible());
    EXPECT_GT(placeOf(lines).top(), placeOf(board).bottom());
    EXPECT_LT(placeOf(lines).right(), placeOf(race).left());
    EXPECT_GT(placeOf(lines).bottom(), window->height() - 60); // down to the status bar
    EXPECT_EQ(0, child<QTableView>(*window, "EntryLines").horizontalScrollBar()->maximum());

    window->resize(1083, 747);
    QApplication::processEvents();
    EXPECT_TRUE(lines.isVisible());
    EXPECT_FALSE(race.isVisible());
    click(child<QAbstractButton>(*window, "LineButton0"));
    EXPECT_TRUE(race.isVisible());
    EXPECT_FALSE(child<QWidget>(*window, "EntryPlace").isVisible());
}

TEST_F(MainWindowTest, WidthsThatAreDraggedAreThereInTheNextRun) {
    startInWindow();
    const auto table = [this]() -> CellTableView& { return child<CellTableView>(*window, "RaceView"); };
    table().horizontalHeader()->resizeSection(RaceColumn::classText, 155);
    const int other = table().columnWidth(RaceColumn::udr);
    answers.push_back("Yes");
    window->close();
    window.reset();
    window.emplace(appearance);
    window->show();
    QApplication::processEvents();
    EXPECT_NEAR(155, table().columnWidth(RaceColumn::classText), 1);
    EXPECT_NEAR(other, table().columnWidth(RaceColumn::udr), 12);
    table().setDraggedWidths({});
    EXPECT_LT(table().columnWidth(RaceColumn::classText), 150);
    QSettings{}.clear();
}

TEST_F(MainWindowTest, FindLooksThroughAllRacesAndEnterGoesThere) {
    startInWindow();
    // A name of another race than the one on show.
    const Text horse{trimmed(card.entry(5, 2).horseName)};
    const Text trainer{trimmed(card.entry(5, 2).trainerName)};
    ASSERT_FALSE(horse.empty());
    ASSERT_FALSE(trainer.empty());
    pressKeys("Ctrl+F");
    auto& field = child<QLineEdit>(*window, "FindField");
    QTest::keyClicks(&field, quillon::shown(horse).toLower());
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ("5", screen.header.race);
    auto& table = child<QTableView>(*window, "RaceView");
    EXPECT_EQ(1, table.currentIndex().row());
    EXPECT_EQ(RaceColumn::horseName, table.currentIndex().column());
    auto& words = child<QLabel>(*window, "FindWords");
    EXPECT_TRUE(words.text().startsWith("Race 5, ")) << words.text().toStdString();
    EXPECT_TRUE(field.hasFocus()) << "Enter again goes on";

    field.setText(quillon::shown(trainer));
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_TRUE(words.text().contains("trainer " + quillon::shown(trainer))) << words.text().toStdString();
    field.setText("no such horse");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ("not found", words.text());
}

TEST_F(MainWindowTest, FindGoesOnToTheNextPlaceAndRoundTheEnd) {
    startInWindow();
    const Text driver{trimmed(screen.raceView[1].text(1, RaceColumn::driver))};
    const auto places = placesInCard(driver);
    ASSERT_GT(places.size(), 1U);
    pressKeys("Ctrl+F");
    auto& field = child<QLineEdit>(*window, "FindField");
    field.setText(quillon::shown(driver));
    for (const CardPlace& place : places) {
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(std::to_string(place.race), screen.header.race);
    }
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(std::to_string(places.front().race), screen.header.race);
    QTest::keyClick(&field, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(std::to_string(places.back().race), screen.header.race);
}

TEST_F(MainWindowTest, F1OpensTheGuideAtWhatIsOnShow) {
    const auto place = [this] {
        pressKeys("F1");
        const QString heading = child<GuideWindow>(*window, "Guide").heading();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*window));
        return heading.toStdString();
    };
    EXPECT_EQ("Start Quillon", place());
    startInWindow();
    EXPECT_EQ("Read the races", place());
    window->runner().run(CommandId::EntryButton, numberArgument(2));
    EXPECT_EQ("Past lines, and taking another one", place());
    child<QLineEdit>(*window, "Box4").setFocus();
    EXPECT_EQ("Record the results", place());
    window->resize(1700, 900); // room for the docks in the window
    for (const auto& [keys, heading] :
         {std::pair{"Shift+F6", "What an entry is worth"}, std::pair{"Shift+F7", "Tickets"}}) {
        pressKeys(keys);
        EXPECT_EQ(heading, place());
        pressKeys(keys);
    }
    pressKeys("F12");
    EXPECT_EQ("What the card earned", place());
    for (const bool Screen::*visible :
         {&Screen::profileVisible, &Screen::tracksVisible, &Screen::picksVisible}) {
        screen.summaryVisible = screen.profileVisible = screen.tracksVisible = screen.picksVisible = false;
        const_cast<bool&>(screen.*visible) = true;
        EXPECT_FALSE(place().empty()) << "the guide has no such heading";
    }
}

TEST_F(MainWindowTest, LinksOfTheGuideLeadToItsHeadingsAndPages) {
    pressKeys("F1");
    auto& guide = child<GuideWindow>(*window, "Guide");
    auto& text = child<QTextBrowser>(guide, "GuideText");
    EXPECT_FALSE(text.toPlainText().contains("pictures/")) << "pictures are left out";
    emit text.anchorClicked(QUrl{"#dead-heats"});
    EXPECT_EQ("Dead heats", guide.heading());
    emit text.anchorClicked(QUrl{"glossary.md"});
    EXPECT_TRUE(text.toPlainText().startsWith("Words of the track"));
    guide.openAt("Scratches");
    EXPECT_EQ("Scratches", guide.heading());
    const int top = text.cursorRect().top();
    EXPECT_GE(top, 0);
    EXPECT_LT(top, 40) << "the heading stands at the top";
}

TEST_F(MainWindowTest, KeysListsThoseOfAllCommands) {
    window->findChild<QAction*>("KeysOfTheWindow")->trigger();
    auto& table = child<QTableWidget>(*window, "KeysTable");
    QStringList keys;
    for (int row = 0; row < table.rowCount(); ++row) keys += table.item(row, 0)->text();
    for (const Command& command : commandTable())
        for (const QKeySequence& key : QKeySequence::listFromString(command.item.keys))
            EXPECT_TRUE(keys.join(' ').contains(key.toString(QKeySequence::NativeText))) << command.name;
    for (const char* own : {"F1", "F3", "F4", "Ctrl+F"}) EXPECT_TRUE(keys.contains(own)) << own;
}

} // namespace
} // namespace quillon
