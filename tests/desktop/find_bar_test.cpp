#include "desktop/find_bar.h"

#include "desktop/cell_table_view.h"
#include "desktop/window_test.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillon {
namespace {

struct FindBarTest : WindowTest {
    FindBarTest() {
        first(1, 0).text = "Blue Ribbon Bess";
        first(2, 0).text = "Corner Boy";
        second(1, 0).text = "Corner Girl";
        window.resize(500, 400);
        auto* column = new QVBoxLayout{&window};
        upper = new CellTableView{appearance, "upper", &window};
        lower = new CellTableView{appearance, "lower", &window};
        bar = new FindBar{&window};
        for (QWidget* part :
             {static_cast<QWidget*>(upper), static_cast<QWidget*>(lower), static_cast<QWidget*>(bar)})
            column->addWidget(part);
        upper->show(&first);
        lower->show(&second);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    QLineEdit& field() { return child<QLineEdit>(window, "FindField"); }
    QString words() { return child<QLabel>(window, "FindWords").text(); }

    void type(const QString& text) {
        field().clear();
        QTest::keyClicks(&field(), text);
        QTest::keyClick(&field(), Qt::Key_Return);
    }

    Grid first{4, 2};
    Grid second{3, 2};
    QWidget window;
    CellTableView* upper;
    CellTableView* lower;
    FindBar* bar;
};

TEST_F(FindBarTest, ItIsHiddenUntilItIsAskedFor) {
    EXPECT_FALSE(bar->isVisible());
    bar->open();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_TRUE(field().hasFocus());
}

TEST_F(FindBarTest, TheTableThatHadTheFocusLastIsSearched) {
    lower->setFocus();
    bar->open();
    type("corner");
    EXPECT_EQ("Corner Girl", lower->currentIndex().data().toString());
    EXPECT_EQ("", words());
}

TEST_F(FindBarTest, WithoutOneItIsTheFirstInSight) {
    upper->hide();
    lower->hide();
    upper->setVisible(true);
    bar->open();
    type("boy");
    EXPECT_EQ("Corner Boy", upper->currentIndex().data().toString());
}

TEST_F(FindBarTest, NextAndPreviousGoFromPlaceToPlace) {
    upper->setFocus();
    bar->open();
    type("b"); // "Blue Ribbon Bess", then "Corner Boy"
    EXPECT_EQ(0, upper->currentIndex().row());
    click(child<QToolButton>(window, "FindNext"));
    EXPECT_EQ(1, upper->currentIndex().row());
    click(child<QToolButton>(window, "FindPrevious"));
    EXPECT_EQ(0, upper->currentIndex().row());
    QTest::keyClick(&field(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(1, upper->currentIndex().row());
}

TEST_F(FindBarTest, ATextThatIsNotThereIsToldInLegibleRed) {
    for (const Theme theme : {Theme::light, Theme::dark}) {
        appearance.setTheme(theme);
        upper->setFocus();
        bar->open();
        type("nobody");
        EXPECT_EQ("not found", words());
        const QPalette colours = child<QLabel>(window, "FindWords").palette();
        const QColor text = colours.color(QPalette::WindowText);
        EXPECT_GT(text.red(), text.green());
        EXPECT_GT(std::abs(text.lightness() - colours.color(QPalette::Window).lightness()), 80);
    }
    appearance.setTheme(Theme::system);
}

TEST_F(FindBarTest, EscapeClosesTheBarAndGivesTheFocusBack) {
    lower->setFocus();
    bar->open();
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_TRUE(lower->hasFocus());
}

struct MillionRowsTest : FindBarTest {
    static constexpr int rows = 1000000;

    MillionRowsTest() {
        second.showRows(1, {rows, [](int row, std::span<Cell> cells) {
                                cells[0].text = "card " + std::to_string(row);
                                cells[1].text = "x";
                            }});
        lower->show(&second);
        lower->setFocus();
        bar->open();
    }
};

TEST_F(MillionRowsTest, TheWindowLivesOnWhileTheyAreSearched) {
    QElapsedTimer clock;
    clock.start();
    type("nobody");
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_TRUE(bar->isSearching());
    EXPECT_TRUE(words().startsWith("searching"));
    qint64 longest = 0;
    for (int turn = 0; turn < 20; ++turn) {
        clock.restart();
        QCoreApplication::processEvents();
        longest = std::max(longest, clock.elapsed());
    }
    EXPECT_LT(longest, 1000);
    QTest::keyClick(&field(), Qt::Key_Escape);
    EXPECT_FALSE(bar->isSearching());
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ("stopped", words());
}

TEST_F(MillionRowsTest, AFarRowIsFoundInTheEnd) {
    type("card 40000");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !bar->isSearching(); }, 60000));
    EXPECT_EQ(39999, lower->currentIndex().row());
}

TEST_F(MillionRowsTest, ASearchEndsWithItsTable) {
    type("nobody");
    ASSERT_TRUE(bar->isSearching());
    second.clear();
    lower->refresh();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !bar->isSearching(); }, 1000));
}

} // namespace
} // namespace quillon
