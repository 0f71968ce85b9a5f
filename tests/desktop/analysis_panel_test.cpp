#include "desktop/analysis_panel.h"

#include "card/race_card.h"
#include "desktop/cell_table_view.h"
#include "desktop/shown_text.h"
#include "desktop/window_test.h"
#include "screen/view_columns.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QScrollBar>

namespace quillon {
namespace {

/// A line of the archive: a card of ten races with two wins of S1 and sums of $2 payoffs by bet.
Text archiveLine(const Text& key, const Text& win) {
    const auto field = [](const Text& text, std::size_t width) {
        return Text(width - text.size(), ' ') + text;
    };
    Text line =
        field(key, 14) + field("10", 3) + field("2", 5) + field("1", 5) + field("1", 5) + field("0", 5);
    line += field(win, 9);
    for (int bet = 1; bet < 11; ++bet) line += field("4.20", 9);
    for (int bet = 0; bet < 3; ++bet) line += field(".00", 10);
    return line + field("0", 3) + "\r\n";
}

class AnalysisPanelTest : public WindowTest {
protected:
    AnalysisPanelTest() {
        panel.resize(1080, 700);
        panel.show();
        QObject::connect(&runner, &CommandRunner::ran, &panel, [this] { panel.refresh(); });
    }

    CellTableView& table(const QString& name) { return child<CellTableView>(panel, name); }
    QPushButton& button(const QString& command) { return child<QPushButton>(panel, "Analysis" + command); }
    QString heading() { return child<QLabel>(panel, "AnalysisHeading").text(); }

    static QString at(const CellTableView& view, int row, int column) {
        return view.model()->index(row, column).data().toString();
    }
    static QVariant of(const CellTableView& view, int row, int column, int role) {
        return view.model()->index(row, column).data(role);
    }

    /// What the table shows is what the grid holds, from its row 1 on.
    static void expectShows(const CellTableView& view, const Grid& grid) {
        ASSERT_EQ(grid.rows() - 1, view.model()->rowCount());
        for (int row = 1; row < grid.rows(); ++row)
            for (int column = 0; column < view.model()->columnCount(); ++column)
                EXPECT_EQ(quillon::shown(grid.text(row, column)),
                          of(view, row - 1, column, Qt::EditRole).toString())
                    << row << ", " << column;
    }

    AnalysisPanel panel{runner, appearance};
};

// --- The summary -------------------------------------------------------------------------------------------

/// The sample card with race 1 won by S1.
class SummaryPageTest : public AnalysisPanelTest {
protected:
    SummaryPageTest() {
        startSampleCard();
        for (int place = 1; place <= 4; ++place) card.raceOutcome(1, place + 4) = card.raceOutcome(1, place);
        card.payoffRecord(1, 1) = "  12.40";
        runner.run(CommandId::RaceButton, numberArgument(1));
        runner.run(CommandId::SelectionResults);
    }
};

TEST_F(SummaryPageTest, ShowsTheCellsWithTheCaptionAboveThem) {
    expectShows(table("SummaryTable"), screen.summary);
    EXPECT_TRUE(table("SummaryTable").isVisible());
    EXPECT_FALSE(table("ProfileTable").isVisible());
    EXPECT_EQ("Selections & Results Summary     " + quillon::shown(screen.caption), heading());
}

TEST_F(SummaryPageTest, RacesThatTheCardLacksAreLeftAwayAndTheTotalsStay) {
    const CellTableView& view = table("SummaryTable");
    const int races = card.raceCount;
    ASSERT_LT(races, 20);
    for (int race = 1; race <= races; ++race) EXPECT_FALSE(view.isRowHidden(race - 1)) << race;
    for (int race = races + 1; race < SummaryRow::totals; ++race)
        EXPECT_TRUE(view.isRowHidden(race - 1)) << race;
    EXPECT_FALSE(view.isRowHidden(SummaryRow::totals - 1));
    EXPECT_FALSE(view.isRowHidden(SummaryRow::percentages - 1));
}

TEST_F(SummaryPageTest, TotalsAreBoldHitsAreYellowAndNumbersStandAtTheRight) {
    const CellTableView& view = table("SummaryTable");
    EXPECT_TRUE(of(view, SummaryRow::totals - 1, 11, Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(of(view, SummaryRow::percentages - 1, 1, Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(of(view, 0, 11, Qt::FontRole).isValid());
    EXPECT_FALSE(screen.summary.read(SummaryRow::totals, 11).bold) << "the view's, not the cell's";
    EXPECT_EQ(QColor(255, 255, 100), of(view, 0, 1, Qt::BackgroundRole).value<QBrush>().color());
    EXPECT_TRUE(of(view, 0, 11, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_TRUE(of(view, 0, 0, Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
}

TEST_F(SummaryPageTest, TheRaceLabelsStayInSightWhenTheTableIsScrolled) {
    CellTableView& view = table("SummaryTable");
    panel.resize(500, 400);
    QTest::qWait(1);
    auto* frozen = view.findChild<QTableView*>();
    ASSERT_NE(nullptr, frozen);
    view.setCurrentIndex(view.model()->index(0, 28));
    EXPECT_GT(view.horizontalScrollBar()->value(), 0);
    EXPECT_EQ(view.columnWidth(0), frozen->width());
    EXPECT_EQ("Race 1", frozen->indexAt(QPoint{4, 4}).data().toString());
    for (int column = 27; column > 0; --column) { // back to the left by the keys
        QTest::keyClick(&view, Qt::Key_Left);
        EXPECT_GE(view.visualRect(view.currentIndex()).left(), frozen->width()) << column;
    }
}

TEST_F(SummaryPageTest, RecordIsThereOncePerCard) {
    EXPECT_TRUE(button("Record").isEnabled());
    click(button("Record"));
    EXPECT_TRUE(exists("HRA.ini"));
    EXPECT_FALSE(screen.record.enabled);
    EXPECT_FALSE(button("Record").isEnabled());
}

TEST_F(SummaryPageTest, EachPageHasItsOwnButtons) {
    for (const char* command : {"Record", "PrintSummary", "MainScreen"})
        EXPECT_TRUE(button(command).isVisible()) << command;
    for (const char* command : {"ALL", "Select", "HALF", "FIVE", "Seven", "MILE", "QUARTER", "Print2"})
        EXPECT_FALSE(button(command).isVisible()) << command;
    click(button("PrintSummary"));
    EXPECT_TRUE(exists("Archives.bat"));
}

TEST_F(SummaryPageTest, TheWayBackLeadsToTheRaces) {
    click(button("MainScreen"));
    EXPECT_TRUE(screen.racePanelsVisible);
    EXPECT_FALSE(screen.summaryVisible);
}

// --- The betting profile -----------------------------------------------------------------------------------

class ProfilePageTest : public AnalysisPanelTest {
protected:
    ProfilePageTest() {
        // The rows of the track table have the size at column 37.
        const Text row = "M1" + Text(34, ' ') + "1.M" + Text(25, ' ') + "8\r\n";
        put("TrackEditor.ini", row + "YR" + row.substr(2, 34) + "1/2" + row.substr(39));
        // $12 a race on ten races are 120.00: 30.00 times 6 is more, 10.00 times 6 is not.
        put("HRA.ini", archiveLine("   M1_20260314", "30.00") + archiveLine("   YR_20260315", "10.00"));
        runner.run(CommandId::ALL);
    }
};

TEST_F(ProfilePageTest, ShowsTheCellsAndTheirHeads) {
    const CellTableView& view = table("ProfileTable");
    expectShows(view, screen.profile);
    EXPECT_EQ(12, view.model()->rowCount()); // ten rows of totals and two cards
    EXPECT_EQ("Win", view.model()->headerData(6, Qt::Horizontal, Qt::DisplayRole).toString());
    EXPECT_EQ("Betting Profiles     All Tracks", heading());
}

TEST_F(ProfilePageTest, WinningCardsAreBoldAndNumbersStandAtTheRight) {
    const CellTableView& view = table("ProfileTable");
    EXPECT_FALSE(of(view, 10, 6, Qt::FontRole).isValid()); // the newest card stands first
    EXPECT_TRUE(of(view, 11, 6, Qt::FontRole).value<QFont>().bold());
    EXPECT_TRUE(of(view, 11, 6, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_TRUE(of(view, 11, 0, Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
}

TEST_F(ProfilePageTest, TheFiltersAreButtons) {
    for (const char* command : {"ALL", "Select", "HALF", "FIVE", "Seven", "MILE", "QUARTER"}) {
        EXPECT_TRUE(button(command).isVisible());
        EXPECT_EQ(QString{findCommand(command)->item.caption}, button(command).text());
    }
    click(button("HALF"));
    EXPECT_EQ("Betting Profiles     1/2", heading());
    EXPECT_EQ("1 Race Cards", at(table("ProfileTable"), 8, 0));
    EXPECT_EQ("   YR_20260315", at(table("ProfileTable"), 10, 0));
    click(button("MILE"));
    EXPECT_EQ("   M1_20260314", at(table("ProfileTable"), 10, 0));
    click(button("FIVE"));
    EXPECT_EQ("0 Race Cards", at(table("ProfileTable"), 8, 0));
    click(button("Seven"));
    EXPECT_EQ("0 Race Cards", at(table("ProfileTable"), 8, 0));
    click(button("QUARTER"));
    EXPECT_EQ("0 Race Cards", at(table("ProfileTable"), 8, 0));
    click(button("ALL"));
    EXPECT_EQ("2 Race Cards", at(table("ProfileTable"), 8, 0));
    click(button("Select"));
    EXPECT_TRUE(screen.trackList.visible);
    runner.run(CommandId::SelectTrack, textArgument("M1"));
    EXPECT_EQ("Betting Profiles     M1", heading());
}

TEST_F(ProfilePageTest, PrintWritesTheReport) {
    click(button("Print2"));
    EXPECT_TRUE(exists("Profile Results.txt"));
}

TEST_F(ProfilePageTest, NoNumberIsCut) {
    const CellTableView& view = table("ProfileTable");
    QFont bold = view.font();
    bold.setBold(true);
    const QFontMetrics metrics{bold};
    for (int row = 0; row < view.model()->rowCount(); ++row)
        for (int column = 0; column < view.model()->columnCount(); ++column)
            EXPECT_GT(view.columnWidth(column), metrics.horizontalAdvance(at(view, row, column)));
}

// Thirty cards: with a scroll bar at the side.
TEST_F(ProfilePageTest, InTheFirstWindowAllColumnsAreInSight) {
    Text archive;
    for (int n = 0; n < 30; ++n) archive += archiveLine("   M1_20260314", "30.00");
    put("HRA.ini", archive);
    panel.resize(1083 - 12, 620); // less the margins of the window
    runner.run(CommandId::ALL);
    QTest::qWait(50);
    ASSERT_GT(table("ProfileTable").verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(0, table("ProfileTable").horizontalScrollBar()->maximum());
}

TEST_F(ProfilePageTest, ManyCardsOpenAndScrollAtOnce) {
    constexpr int cards = 100'000;
    Text archive;
    for (int n = 0; n < cards; ++n) archive += archiveLine("   M1_20260314", "30.00");
    put("HRA.ini", archive);
    runner.run(CommandId::ALL);
    QElapsedTimer clock;
    clock.start();
    panel.refresh();
    CellTableView& view = table("ProfileTable");
    view.scrollToBottom();
    panel.grab();
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_EQ(cards + 10, view.model()->rowCount());
    EXPECT_EQ("   M1_20260314", at(view, cards + 9, 0));
}

// --- Tracks and picks --------------------------------------------------------------------------------------

TEST_F(ProfilePageTest, TracksAndSizesStandSideBySideAndSort) {
    runner.run(CommandId::Track_Profile);
    CellTableView& tracks = table("TracksTable");
    const CellTableView& sizes = table("SizesTable");
    EXPECT_TRUE(tracks.isVisible());
    EXPECT_TRUE(sizes.isVisible());
    EXPECT_EQ("Tracks Profile", heading());
    ASSERT_EQ(2, tracks.model()->rowCount());
    ASSERT_EQ(4, tracks.model()->columnCount());
    ASSERT_EQ(6, sizes.model()->rowCount());
    for (int row = 1; row <= 2; ++row)
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(quillon::shown(trimmed(screen.tracks.text(row, column))), at(tracks, row - 1, column));
    for (int row = 1; row <= 6; ++row)
        for (int column = 0; column < 4; ++column)
            EXPECT_EQ(quillon::shown(trimmed(screen.tracks.text(row, column + TrackColumn::size))),
                      at(sizes, row - 1, column));
    EXPECT_EQ("SIZE", sizes.model()->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString());

    EXPECT_EQ("M1", at(tracks, 0, 0));
    tracks.sortByColumn(0, Qt::DescendingOrder);
    EXPECT_EQ("YR", at(tracks, 0, 0));
}

TEST_F(AnalysisPanelTest, TablesWithoutAnyRowKeepTheirHeads) {
    runner.run(CommandId::Track_Profile); // no archive
    const CellTableView& tracks = table("TracksTable");
    EXPECT_EQ(0, tracks.model()->rowCount());
    EXPECT_FALSE(tracks.isColumnHidden(0));
    EXPECT_FALSE(tracks.isColumnHidden(3));
}

TEST_F(AnalysisPanelTest, PicksShowTheirCellsWithBoldFirstColumnAndTheHitYellow) {
    card.raceCount = 2;
    card.keyPicks(1, 1) = "  4";
    card.pickLegs(1, 1) = "4";
    runner.run(CommandId::Pick3Results);
    const CellTableView& view = table("PicksTable");
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ("Pick 3-4-5-6 Results", heading());
    expectShows(view, screen.picks);
    EXPECT_TRUE(of(view, 0, 0, Qt::FontRole).value<QFont>().bold());
    EXPECT_EQ(QColor(255, 255, 100), of(view, 0, 6, Qt::BackgroundRole).value<QBrush>().color());
    EXPECT_TRUE(view.isRowHidden(2)) << "a race after the card's last";
}

TEST_F(AnalysisPanelTest, ARefreshSendsNoCommand) {
    int commands = 0;
    QObject::connect(&runner, &CommandRunner::ran, &panel, [&] { ++commands; });
    panel.refresh();
    panel.refresh();
    EXPECT_EQ(0, commands);
}

} // namespace
} // namespace quillon
