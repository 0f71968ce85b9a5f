// What a screen reader and a user without a mouse need: names for every control, and Tab to reach it.
#include "desktop/main_window_test.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QScrollBar>

#include <set>

namespace quillon {
namespace {

using AccessibilityTest = MainWindowTest;

bool takesKeys(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

std::vector<QWidget*> controlsOf(QWidget& window) {
    std::vector<QWidget*> controls;
    for (QWidget* widget : window.findChildren<QWidget*>())
        if (takesKeys(*widget) && widget->window() == &window) controls.push_back(widget);
    return controls;
}

std::string describe(const QWidget& widget) {
    return std::string{widget.metaObject()->className()} + " \"" + widget.objectName().toStdString() + "\"";
}

void expectNames(QWidget& window) {
    const auto controls = controlsOf(window);
    EXPECT_FALSE(controls.empty());
    for (QWidget* widget : controls) {
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(told) << describe(*widget);
        EXPECT_FALSE(told->text(QAccessible::Name).trimmed().isEmpty()) << describe(*widget);
    }
}

TEST_F(AccessibilityTest, EveryControlOfTheEmptyWindowHasAName) { expectNames(*window); }

TEST_F(AccessibilityTest, EveryControlOfARaceHasAName) {
    startInWindow();
    window->runner().run(CommandId::EntryButton, numberArgument(1));
    choose("HeatWinner");
    expectNames(*window);
}

TEST_F(AccessibilityTest, EveryControlOfTheOtherPagesHasAName) {
    startInWindow();
    pressKeys("F4");
    expectNames(*window);
    for (const char* page : {"SelectionResults", "ALL", "Track_Profile", "Pick3Results"}) {
        choose(page);
        expectNames(*window);
    }
    choose("Star");
    for (QWidget* other : QApplication::topLevelWidgets())
        if (other->isVisible() && !controlsOf(*other).empty()) expectNames(*other);
}

TEST_F(AccessibilityTest, EveryControlOfTheWorthAndTheTicketsHasAName) {
    startInWindow();
    for (const char* keys : {"Shift+F6", "Shift+F7"}) {
        pressKeys(keys);
        auto* dock = window->findChild<QWidget*>(keys[7] == '6' ? "WorthDock" : "TicketsDock");
        ASSERT_TRUE(dock && dock->isVisible());
        for (QWidget* control : dock->findChildren<QWidget*>()) {
            if (!takesKeys(*control)) continue;
            QAccessibleInterface* told = QAccessible::queryAccessibleInterface(control);
            ASSERT_TRUE(told) << describe(*control);
            EXPECT_FALSE(told->text(QAccessible::Name).trimmed().isEmpty()) << describe(*control);
        }
    }
}

TEST_F(AccessibilityTest, TabReachesEveryControlOfARace) {
    startInWindow();
    window->runner().run(CommandId::EntryButton, numberArgument(1));
    const auto controls = controlsOf(*window);
    std::set<const QWidget*> reached;
    controls.front()->setFocus();
    for (std::size_t i = 0; i < 2 * controls.size(); ++i) {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (const QWidget* control : controls) EXPECT_TRUE(reached.contains(control)) << describe(*control);
}

TEST_F(AccessibilityTest, EveryVisibleMenuItemTellsItsName) {
    startInWindow();
    for (const QMenu* menu : window->findChildren<QMenu*>())
        for (const QAction* action : menu->actions())
            if (!action->isSeparator()) {
                EXPECT_FALSE(action->text().isEmpty()) << menu->title().toStdString();
            }
}

} // namespace
} // namespace quillon
