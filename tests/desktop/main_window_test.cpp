#include "desktop/main_window_test.h"

#include "card/race_card.h"
#include "desktop/dialog_answers.h"
#include "desktop/shown_text.h"

#include <QAction>
#include <QLabel>
#include <QRegularExpression>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>

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

TEST_F(MainWindowTest, MenuStatesAreTheScreensBeforeAndBehindALoad) {
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
    EXPECT_EQ(quillon::shown(screen.caption), window->windowTitle());
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

} // namespace
} // namespace quillon
