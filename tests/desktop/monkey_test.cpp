// Somebody clicks and types everywhere, in no order: the window stands it, and goes on showing the screen.

#include "card_generator.h"
#include "card_tables.h"
#include "desktop/dialog_answers.h"
#include "desktop/main_window_test.h"
#include "desktop/shown_text.h"
#include "desktop/window_shows.h"

#include <QAbstractItemView>
#include <QAction>
#include <QPointer>
#include <QSettings>
#include <QToolButton>

#include <algorithm>
#include <ctime>
#include <deque>
#include <random>

namespace quillon {
namespace {

/// It asks the desktop for a window of its own.
constexpr const char* leftAlone = "OpenFolder";

constexpr std::array keys{Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space,    Qt::Key_F2,     Qt::Key_Tab,
                          Qt::Key_Up,     Qt::Key_Down,   Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_7};

class Monkey {
    std::size_t below(std::size_t count) { return random_() % count; }
    template <typename Choices>
    auto& one(Choices& choices) {
        return choices[below(choices.size())];
    }

public:
    Monkey(MainWindow& window, unsigned seed) : window_{window}, random_{seed} {}

    /// A click, a key or a typed text somewhere in the window.
    void act() {
        constexpr std::array acts{&Monkey::press, &Monkey::press, &Monkey::press, &Monkey::clickInTable,
                                  &Monkey::type,  &Monkey::pick,  &Monkey::key};
        (this->*one(acts))();
    }

    bool agrees() { return below(2) == 1; }
    Text answer() {
        constexpr std::array answers{"", "1", "2", "3", "5", "14", "22", "99", "-1", "abc"};
        return one(answers);
    }

    /// What was done last, to be read after a failure.
    std::string lastActs() const {
        std::string acts;
        for (const std::string& act : acts_) acts += act + "; ";
        return acts;
    }

private:
    void note(const std::string& act, const QObject& where) {
        constexpr std::size_t kept = 12;
        acts_.push_back(act + ' ' + where.metaObject()->className() + ' ' + where.objectName().toStdString());
        if (acts_.size() > kept) acts_.pop_front();
    }

    /// The widgets of a kind that can be seen and used.
    template <typename Widget>
    std::vector<Widget*> usable() {
        std::vector<Widget*> found;
        for (auto* widget : window_.findChildren<Widget*>()) {
            const bool isLeft = widget->objectName() == leftAlone;
            if (widget->isVisible() && widget->isEnabled() && !isLeft) found.push_back(widget);
        }
        return found;
    }

    /// Its menu would wait for ever; the items are picked anyway.
    static bool opensMenu(const QAbstractButton* button) {
        const auto* tool = qobject_cast<const QToolButton*>(button);
        return tool && (tool->menu() || tool->popupMode() == QToolButton::InstantPopup);
    }

    void press() {
        auto buttons = usable<QAbstractButton>();
        std::erase_if(buttons, opensMenu);
        if (buttons.empty()) return;
        QAbstractButton& button = *one(buttons);
        note("press", button);
        QTest::mouseClick(&button, Qt::LeftButton);
    }

    void clickInTable() {
        const auto views = usable<QAbstractItemView>();
        if (views.empty()) return;
        QAbstractItemView& view = *one(views);
        QWidget* viewport = view.viewport();
        const QPoint place{
            static_cast<int>(below(static_cast<std::size_t>(std::max(1, viewport->width())))),
            static_cast<int>(below(static_cast<std::size_t>(std::max(1, viewport->height()))))};
        note("click", view);
        QTest::mouseClick(viewport, Qt::LeftButton, {}, place);
        if (below(2) == 1) QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
    }

    void type() {
        const auto boxes = usable<QLineEdit>();
        if (boxes.empty()) return;
        const QPointer<QLineEdit> box = one(boxes);
        note("type", *box);
        constexpr std::string_view letters{"0123456789.$/-, aX"};
        QTest::mouseClick(box, Qt::LeftButton);
        for (std::size_t left = below(6); left > 0 && box; --left) QTest::keyClick(box, one(letters));
        if (box && below(2) == 1) QTest::keyClick(box, Qt::Key_Return);
    }

    void pick() {
        std::vector<QAction*> items;
        for (QAction* item : window_.findChildren<QAction*>())
            if (item->isVisible() && item->isEnabled() && !item->isSeparator() && !item->menu())
                items.push_back(item);
        QAction& item = *one(items);
        note("pick", item);
        item.trigger();
    }

    void key() {
        QWidget* focused = QApplication::focusWidget();
        if (!focused) focused = &window_;
        note("key", *focused);
        QTest::keyClick(focused, one(keys));
    }

    MainWindow& window_;
    std::mt19937 random_;
    std::deque<std::string> acts_;
};

class MonkeyTest : public MainWindowTest {
protected:
    ~MonkeyTest() override {
        appearance.setTheme(Theme::system);
        QSettings{}.clear();
    }

    void letLoose(int acts, unsigned seed) {
        constexpr int actsBetweenLooks = 20;
        constexpr double longest = 5; // seconds of work
        Monkey monkey{*window, seed};
        DialogAnswers escape{[](QDialog& dialog) { dialog.reject(); }}; // where a file's name is asked for
        ports.end = [] {};                                              // or that would be all
        ports.question = [&](auto&, auto&) { return monkey.agrees(); };
        ports.input = [&](auto&, auto&) {
            return monkey.agrees() ? std::optional{monkey.answer()} : std::nullopt;
        };
        for (int act = 1; act <= acts; ++act) {
            const std::clock_t before = std::clock();
            monkey.act();
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            EXPECT_LT(static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC, longest)
                << "act " << act << ": " << monkey.lastActs();
            if (act % actsBetweenLooks > 0) continue;
            const auto differences = differencesFromScreen(*window);
            ASSERT_TRUE(differences.empty()) << "act " << act << ": " << differences.front() << "\n"
                                             << monkey.lastActs();
            ASSERT_TRUE(window->isVisible());
        }
    }

    void start(const samples::CardOptions& options) {
        putSampleCard(); // for its settings
        ASSERT_TRUE(samples::writeCard(samples::generateCard(options), "."));
        click(child<QAbstractButton>(*window, "Start"));
        ASSERT_GT(card.raceCount, 0);
    }
};

TEST_F(MonkeyTest, OnTheSampleCard) {
    startInWindow();
    letLoose(800, 1);
}

TEST_F(MonkeyTest, OnACardWithAllThatIsOdd) {
    start({.seed = 5, .races = 17, .entries = {1, 15}, .lines = {0, 9}, .odd = samples::allOddities()});
    letLoose(800, 2);
}

TEST_F(MonkeyTest, OnACardBeyondEveryLimit) {
    start(samples::oversizedCard());
    letLoose(250, 3);
}

TEST_F(MonkeyTest, WithoutACard) { letLoose(400, 4); }

} // namespace
} // namespace quillon
