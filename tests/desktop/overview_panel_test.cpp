#include "desktop/overview_panel.h"
#include "screen/ports.h"

#include "desktop/main_window.h"
#include "desktop/shown_text.h"
#include "desktop/window_test.h"
#include "reports/card_overview.h"

#include <QAction>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>

namespace quillon {
namespace {

struct OverviewPanelTest : WindowTest {
    OverviewPanelTest() {
        startSampleCard();
        panel.resize(1083, 600);
        panel.refresh();
        panel.show();
    }

    CellTableView& table() { return child<CellTableView>(panel, "OverviewTable"); }

    QString text(int row, int column) { return table().model()->index(row, column).data().toString(); }

    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
        const QPoint place = table().visualRect(table().model()->index(row, 6)).center();
        QTest::mouseClick(table().viewport(), Qt::LeftButton, modifiers, place);
    }

    OverviewPanel panel{runner, appearance};
};

TEST_F(OverviewPanelTest, ShowsARowARace) {
    const Grid expected = cardOverview();
    ASSERT_GT(card.raceCount, 1);
    ASSERT_EQ(card.raceCount, table().model()->rowCount());
    for (int row = 0; row < table().model()->rowCount(); ++row)
        for (int column = 0; column < expected.columns(); ++column)
            EXPECT_EQ(quillon::shown(expected.text(row + 1, column)), text(row, column))
                << row << " " << column;
    EXPECT_EQ("Purse", table().model()->headerData(5, Qt::Horizontal, Qt::DisplayRole).toString());
    const auto side = table().model()->index(0, 5).data(Qt::TextAlignmentRole).toInt();
    EXPECT_TRUE(side & Qt::AlignRight);
}

TEST_F(OverviewPanelTest, InTheFirstWindowAllColumnsAreInSight) {
    panel.resize(1083 - 12, 600); // less the margins of the window
    QTest::qWait(50);
    EXPECT_EQ(0, table().horizontalScrollBar()->maximum());
}

TEST_F(OverviewPanelTest, ARaceThatTheUserChangedHasADot) {
    const auto sign = [this](int row) {
        return table().model()->headerData(row, Qt::Vertical).toString().toStdString();
    };
    for (int row = 0; row < card.raceCount; ++row) EXPECT_EQ("", sign(row)) << row;
    runner.run(CommandId::Cell, {.numbers = {3, 1, 6}, .text = "OPEN 5"});
    panel.refresh();
    EXPECT_EQ(QString{QChar{0x2022}}.toStdString(), sign(2));
    EXPECT_EQ("", sign(0));
    table().sortByColumn(OverviewColumn::race, Qt::DescendingOrder);
    EXPECT_EQ(QString{QChar{0x2022}}.toStdString(), sign(card.raceCount - 3)) << "it goes with its race";
}

TEST_F(OverviewPanelTest, AHeadHasRoomForTheArrowOfASortedColumn) {
    const QFontMetrics metrics{table().horizontalHeader()->font()};
    const int arrow = table().style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, &table());
    for (int column = 0; column < OverviewColumn::count; ++column) {
        const QString head = table().model()->headerData(column, Qt::Horizontal).toString();
        EXPECT_GT(table().columnWidth(column), metrics.horizontalAdvance(head) + arrow) << head.toStdString();
    }
}

TEST_F(OverviewPanelTest, TheHeadingTellsTheCard) {
    card.raceInfo(1).trackInfo = "Miami Valley   5/8";
    card.cardDate = "20260314";
    card.raceCount = 1;
    panel.refresh();
    auto& heading = child<QLabel>(panel, "OverviewHeading");
    EXPECT_EQ("Miami Valley 5/8     Saturday, March 14, 2026     1 race", heading.text());
    card.cardDate = "soon";
    card.raceCount = 2;
    panel.refresh();
    EXPECT_EQ("Miami Valley 5/8     soon     2 races", heading.text());
}

TEST_F(OverviewPanelTest, AClickOpensTheRace) {
    const QSignalSpy opened{&panel, &OverviewPanel::raceOpened};
    clickRow(2);
    EXPECT_EQ("3", screen.header.race);
    EXPECT_EQ(1, opened.count());
}

TEST_F(OverviewPanelTest, EnterOpensTheRaceThatTheKeysHaveReached) {
    EXPECT_EQ(0, table().currentIndex().row()); // race 1 is on show
    QTest::keyClick(&table(), Qt::Key_Down);
    QTest::keyClick(&table(), Qt::Key_Return);
    EXPECT_EQ("2", screen.header.race);
}

TEST_F(OverviewPanelTest, SelectingRowsOpensNone) {
    const QSignalSpy opened{&panel, &OverviewPanel::raceOpened};
    clickRow(2, Qt::ControlModifier);
    clickRow(3, Qt::ShiftModifier);
    EXPECT_EQ(0, opened.count());
    EXPECT_EQ("1", screen.header.race);
}

TEST_F(OverviewPanelTest, SortedRowsOpenTheirOwnRace) {
    table().sortByColumn(OverviewColumn::margin, Qt::DescendingOrder);
    double last = 1e9;
    for (int row = 0; row < table().model()->rowCount(); ++row) {
        const double margin = text(row, OverviewColumn::margin).toDouble();
        EXPECT_LE(margin, last);
        last = margin;
    }
    const QString label = text(0, OverviewColumn::race);
    clickRow(0);
    EXPECT_EQ(label, quillon::shown(card.raceInfo(std::stoi(screen.header.race)).label));
}

TEST_F(OverviewPanelTest, PostTimesSortByTheOrderOfTheRaces) {
    table().sortByColumn(OverviewColumn::postTime, Qt::DescendingOrder);
    EXPECT_EQ(quillon::shown(card.raceInfo(card.raceCount).label), text(0, OverviewColumn::race));
    table().sortByColumn(OverviewColumn::postTime, Qt::AscendingOrder);
    EXPECT_EQ(quillon::shown(card.raceInfo(1).label), text(0, OverviewColumn::race));
}

TEST_F(OverviewPanelTest, ARowAboveTheLastRaceButtonOpensNothing) {
    card.raceCount = 22;
    for (std::size_t n = 1; n < screen.raceButtons.size(); ++n) screen.raceButtons[n].visible = true;
    panel.refresh();
    const QSignalSpy opened{&panel, &OverviewPanel::raceOpened};
    panel.resize(1083, 900);
    clickRow(20);
    EXPECT_EQ(0, opened.count());
    EXPECT_EQ("1", screen.header.race);
    clickRow(19);
    EXPECT_EQ(1, opened.count());
    EXPECT_EQ("20", screen.header.race);
}

TEST_F(OverviewPanelTest, ARefreshKeepsThePlaceWhereNothingHasChangedAndTakesUpWhatHas) {
    table().setCurrentIndex(table().model()->index(4, 0));
    panel.refresh();
    EXPECT_EQ(4, table().currentIndex().row());
    card.raceOutcome(1, 1) = "12";
    panel.refresh();
    EXPECT_TRUE(text(0, OverviewColumn::s1).startsWith("12  "));
}

TEST_F(WindowTest, OpeningARacePutsTheOverviewAway) {
    startSampleCard();
    MainWindow window{appearance};
    ports.message = [](auto&, auto&) {}; // a load ends with one
    window.show();
    window.showOverview(true);
    auto& table = child<CellTableView>(window, "OverviewTable");
    ASSERT_TRUE(table.isVisible());
    table.setCurrentIndex(table.model()->index(1, 0));
    QTest::keyClick(&table, Qt::Key_Enter);
    EXPECT_FALSE(window.overviewShown());
    EXPECT_FALSE(table.isVisible());
    EXPECT_EQ("2", screen.header.race);
}

} // namespace
} // namespace quillon
