#include "desktop/past_lines_panel.h"

#include "desktop/cell_table_view.h"
#include "desktop/shown_text.h"
#include "desktop/window_test.h"
#include "screen/race_views.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace quillon {
namespace {

constexpr QChar disc{0x25CF};
constexpr QChar pointer{0x25B6};
constexpr QChar ring{0x25CB};

struct PastLinesTest : WindowTest {
    PastLinesTest() {
        QObject::connect(&runner, &CommandRunner::ran, &panel, &PastLinesPanel::refresh);
        panel.resize(1083, 240);
        panel.show();
        panel.activateWindow();
        if (!QTest::qWaitForWindowActive(&panel)) throw std::runtime_error("the window is not active");
    }

    /// The past lines of entry 2 of race 3 of the sample card.
    void openEntry() {
        startSampleCard();
        runner.run(CommandId::RaceButton, numberArgument(3));
        runner.run(CommandId::EntryButton, numberArgument(2));
        ASSERT_TRUE(screen.pastPerformanceOpen);
    }

    CellTableView& entryLines() { return child<CellTableView>(panel, "EntryLines"); }
    CellTableView& raceLines() { return child<CellTableView>(panel, "RaceLines"); }
    QPushButton& line(int row) { return child<QPushButton>(panel, QString{"LineButton%1"}.arg(row)); }
    QString label(const char* name) { return child<QLabel>(panel, name).text(); }

    static QString number(int row) {
        return quillon::shown(screen.dataView[pastPerformanceView].text(row, 39));
    }

    static void expectRows(const CellTableView& table, const Grid& grid) {
        ASSERT_GT(table.model()->rowCount(), 0);
        for (int row = 0; row < table.model()->rowCount(); ++row)
            for (int column = 0; column < table.model()->columnCount(); ++column) {
                const QModelIndex cell = table.model()->index(row, column);
                EXPECT_EQ(quillon::shown(grid.text(row + 1, table.cells().tableColumn(cell))),
                          cell.data(Qt::EditRole).toString())
                    << row << ", " << column;
            }
    }

    /// A cell of the entry's lines by its column of the table; none where the view lacks the column.
    QModelIndex entryCell(int row, int tableColumn) {
        const QAbstractItemModel& cells = *entryLines().model();
        for (int column = 0; column < cells.columnCount(); ++column) {
            const QModelIndex cell = cells.index(row - 1, column);
            if (entryLines().cells().tableColumn(cell) == tableColumn) return cell;
        }
        return {};
    }
    bool isHidden(int tableColumn) {
        const QModelIndex cell = entryCell(1, tableColumn);
        return !cell.isValid() || entryLines().isColumnHidden(cell.column());
    }

    /// The rows whose line button has this mark.
    std::vector<int> marked(QChar mark) {
        std::vector<int> rows;
        for (int row = 1; row <= 13; ++row)
            if (line(row).text().startsWith(mark)) rows.push_back(row);
        return rows;
    }

    PastLinesPanel panel{runner, appearance};
};

using Rows = std::vector<int>;

TEST_F(PastLinesTest, WithoutAnEntryTheLinesOfTheWholeRaceAreShown) {
    startSampleCard();
    EXPECT_TRUE(raceLines().isVisible());
    EXPECT_FALSE(entryLines().isVisible());
    expectRows(raceLines(), screen.dataView[1]);
    EXPECT_EQ("Past lines of race 1", label("RaceLinesHeading"));
    runner.run(CommandId::Next);
    expectRows(raceLines(), screen.dataView[2]);
    EXPECT_FALSE(raceLines().isColumnHidden(0));
    for (const int hidden : {2, 3, 4, 5, 6, 36}) EXPECT_TRUE(raceLines().isColumnHidden(hidden)) << hidden;
    EXPECT_FALSE(raceLines().model()->flags(raceLines().model()->index(0, 8)) & Qt::ItemIsEditable);
}

TEST_F(PastLinesTest, RowsAfterTheLastLineAreLeftAway) {
    startSampleCard();
    const int rows = raceLines().model()->rowCount();
    EXPECT_LT(rows, 199);
    EXPECT_NE("", screen.dataView[1].text(rows, 1));
    EXPECT_EQ("", screen.dataView[1].text(rows + 1, 1));
}

TEST_F(PastLinesTest, AnEntrysLinesStandInTheirFrameUnderItsHeading) {
    openEntry();
    EXPECT_TRUE(entryLines().isVisible());
    EXPECT_FALSE(raceLines().isVisible());
    EXPECT_EQ(quillon::shown(screen.pastPerformanceHeading), label("PastPerformanceHeading"));
    expectRows(entryLines(), screen.dataView[pastPerformanceView]);
    for (const int hidden : {0, 2, 3, 4, 5, 6, 36}) EXPECT_TRUE(isHidden(hidden)) << hidden;
    EXPECT_FALSE(isHidden(DataColumn::date));
    for (int row = 1; row <= entryLines().model()->rowCount(); ++row) {
        const auto& shade = screen.dataView[pastPerformanceView].read(row, 1).background;
        const QVariant painted = entryCell(row, DataColumn::date).data(Qt::BackgroundRole);
        ASSERT_EQ(shade.has_value(), painted.isValid()) << row;
        if (!shade) continue;
        EXPECT_EQ(quillon::shown(*shade), painted.value<QBrush>().color()) << row;
    }
}

// The card is of 14 March 2026. February 2026 has 28 days: 28 back is 14 February, 5 more the 9th (33 days);
// from 14 February another 22 back are 14 to 31 January and 8 to the 23rd (50 days).
TEST_F(PastLinesTest, TheLegendNamesTheDaysThatTheShadesReachBackTo) {
    openEntry();
    auto& frame = child<QWidget>(panel, "PastPerformances");
    EXPECT_EQ("33 days: since 20260209", child<QLabel>(frame, "RecentLines").text().toStdString());
    EXPECT_EQ("latest line: always shaded", child<QLabel>(frame, "LatestLines").text().toStdString());
    EXPECT_EQ("50 days: since 20260123", child<QLabel>(frame, "OlderLines").text().toStdString());
}

TEST_F(PastLinesTest, ALineButtonShowsItsNumberAndTakesItsLine) {
    openEntry();
    const Text rating = screen.dataView[pastPerformanceView].text(3, 38);
    EXPECT_EQ(number(3), line(3).text());
    click(line(3));
    EXPECT_EQ(rating, card.entry(3, 2).rating);
    EXPECT_EQ(rating, screen.raceView[3].text(2, RaceColumn::rating));
}

TEST_F(PastLinesTest, TheProgramsLineIsMarkedAndTheUsersHasAMarkOfItsOwn) {
    openEntry();
    const Rows programs = marked(disc);
    ASSERT_EQ(1u, programs.size());
    const int chosen = programs.front();
    EXPECT_EQ(lenientNumber(screen.dataView[pastPerformanceView].text(chosen, 38)),
              lenientNumber(card.entry(3, 2).rating)); // the entry's own is trimmed
    EXPECT_TRUE(line(chosen).accessibleName().contains("the line in use"));
    EXPECT_TRUE(label("LineInUse").contains("line in use: " + number(chosen)));

    const int other = chosen == 1 ? 2 : 1;
    click(line(other));
    EXPECT_EQ(Rows{other}, marked(pointer));
    EXPECT_EQ(Rows{chosen}, marked(ring));
    EXPECT_EQ(Rows{}, marked(disc));
    EXPECT_TRUE(line(other).toolTip().contains("your line"));
    EXPECT_TRUE(label("LineInUse").contains("your line: " + number(other)));

    click(line(chosen)); // back to the program's
    EXPECT_EQ(programs, marked(disc));
    EXPECT_EQ(Rows{}, marked(pointer));
}

TEST_F(PastLinesTest, AScratchedEntryHasNoLineInUse) {
    openEntry();
    answers = {"Yes"};
    runner.run(CommandId::Command4, numberArgument(2));
    EXPECT_EQ(Rows{}, marked(disc));
    EXPECT_EQ(Rows{}, marked(pointer));
    EXPECT_FALSE(child<QLabel>(panel, "LineInUse").isVisible());
}

TEST_F(PastLinesTest, TheRaceEditorAsksForALine) {
    openEntry();
    answers = {number(2).toStdString()};
    shown.clear();
    click(child<QPushButton>(panel, "Command7"));
    ASSERT_EQ(1u, shown.size());
    EXPECT_EQ(screen.dataView[pastPerformanceView].text(2, 38), card.entry(3, 2).rating);
}

TEST_F(PastLinesTest, CloseAndEscapeCloseTheFrame) {
    openEntry();
    click(line(0));
    EXPECT_FALSE(screen.pastPerformanceOpen);
    EXPECT_TRUE(raceLines().isVisible());
    runner.run(CommandId::EntryButton, numberArgument(1));
    line(1).setFocus();
    QTest::keyClick(&line(1), Qt::Key_Escape);
    EXPECT_FALSE(screen.pastPerformanceOpen);
}

TEST_F(PastLinesTest, LineButtonsFollowTheirRowsWhileTheTableIsScrolledAndZoomed) {
    openEntry();
    for (const int zoom : {100, 200, 70}) {
        appearance.setZoom(zoom);
        QTest::qWait(20);
        for (const int value : {0, 1, 2}) {
            entryLines().verticalScrollBar()->setValue(value);
            const int top = entryLines().viewport()->mapTo(&panel, QPoint{}).y();
            for (int row = 1; row <= entryLines().model()->rowCount(); ++row) {
                EXPECT_EQ(top + entryLines().rowViewportPosition(row - 1),
                          line(row).mapTo(&panel, QPoint{}).y())
                    << row << " at " << zoom;
                EXPECT_EQ(entryLines().rowHeight(row - 1), line(row).height()) << row;
            }
        }
    }
}

TEST_F(PastLinesTest, AButtonWithoutALineIsNotThere) {
    openEntry();
    const int lines = entryLines().model()->rowCount();
    ASSERT_LT(lines, 13);
    EXPECT_TRUE(line(lines).isVisible());
    EXPECT_FALSE(line(lines + 1).isVisible());
    EXPECT_FALSE(line(13).isEnabled());
}

TEST_F(PastLinesTest, AButtonThatGetsTheFocusComesIntoSight) {
    openEntry();
    appearance.setZoom(200);
    QTest::qWait(20);
    const int last = entryLines().model()->rowCount();
    line(1).setFocus();
    for (int row = 1; row < last; ++row) QTest::keyClick(&line(row), Qt::Key_Down);
    EXPECT_TRUE(line(last).hasFocus());
    EXPECT_TRUE(entryLines().viewport()->rect().contains(
        entryLines().visualRect(entryCell(last, DataColumn::date)).center()));
}

} // namespace
} // namespace quillon
