#include "desktop/cell_table_view.h"
#include "desktop/frozen_column.h"
#include "desktop/window_test.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QToolTip>

#include <array>
#include <span>

namespace quillon {
namespace {

struct CellTableTest : WindowTest {
    CellTableTest() {
        grid(0, 0).text = "ENTRY";
        grid(0, 0).foreground = red;
        grid(1, 0).text = "Blue Ribbon Bess";
        grid(1, 1).text = "9.5";
        grid(1, 2).text = "x";
        grid(2, 0).text = "Corner Boy";
        grid(2, 1).text = "10";
        grid(2, 1).background = recentYellow;
        grid(2, 1).bold = true;
        grid(3, 1).background = white;
        view.show(&grid);
    }

    QVariant of(int row, int column, int role) { return view.model()->index(row, column).data(role); }
    QString head(int column) { return view.model()->headerData(column, Qt::Horizontal).toString(); }
    int headSide(int column) {
        return view.model()->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    }

    /// Columns of these widths in twips.
    void setWidths(std::array<int, 3> twips) {
        for (std::size_t column = 0; column < twips.size(); ++column)
            columns.at(column).width = twips.at(column);
        view.setViewLayout({.columns = columns});
    }

    Grid grid{6, 3};
    std::array<ViewColumn, 3> columns{};
    CellTableView view{appearance, "table"};
};

TEST_F(CellTableTest, CellsPassOnTextColourAndBold) {
    EXPECT_EQ("Corner Boy", of(1, 0, Qt::DisplayRole).toString());
    EXPECT_EQ(QColor(255, 255, 100), of(1, 1, Qt::BackgroundRole).value<QBrush>().color());
    EXPECT_EQ(QColor{Qt::black}, of(1, 1, Qt::ForegroundRole).value<QBrush>().color());
    EXPECT_TRUE(of(1, 1, Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(of(0, 0, Qt::BackgroundRole).isValid());
}

TEST_F(CellTableTest, ACellPaintedWhiteKeepsTheThemesOwnBackground) {
    EXPECT_FALSE(of(2, 1, Qt::BackgroundRole).isValid());
}

TEST_F(CellTableTest, AWhiteCellWithAColourOfItsOwnForItsTextStaysWhite) {
    grid(3, 1).foreground = Colour{1, 1, 1};
    EXPECT_EQ(QColor{Qt::white}, of(2, 1, Qt::BackgroundRole).value<QBrush>().color());
}

TEST_F(CellTableTest, InADarkThemeTheRedOfAHeadIsLighter) {
    const auto head = [&] {
        return view.model()->headerData(0, Qt::Horizontal, Qt::ForegroundRole).value<QBrush>().color();
    };
    appearance.setTheme(Theme::dark);
    const QColor dark = head();
    appearance.setTheme(Theme::light);
    EXPECT_GT(dark.lightness(), head().lightness());
}

TEST_F(CellTableTest, TheHeadRowHeadsTheColumnsAndTheCornerIsRed) {
    EXPECT_EQ("ENTRY", view.model()->headerData(0, Qt::Horizontal, Qt::DisplayRole).toString());
    EXPECT_EQ(QColor{Qt::red},
              view.model()->headerData(0, Qt::Horizontal, Qt::ForegroundRole).value<QBrush>().color());
}

// 6000 and twice 3000 twips: 400, 200 and 200 pixels at 96 dots an inch.
TEST_F(CellTableTest, ColumnsGiveUpSpareRoomWhereTheViewIsTooNarrow) {
    columns = {ViewColumn{"", 6000}, ViewColumn{"", 3000}, ViewColumn{"", 3000}};
    view.setViewLayout({.columns = columns, .fitted = true});
    view.resize(1000, 300);
    view.setVisible(true); // sends the sizes
    const auto widths = [&] { return view.columnWidth(0) + view.columnWidth(1) + view.columnWidth(2); };
    const int designed = appearance.pixels(6000) + 2 * appearance.pixels(3000);
    ASSERT_EQ(designed, widths());
    view.resize(700, 300);
    EXPECT_EQ(view.viewport()->width(), widths());
    EXPECT_GE(view.columnWidth(0), view.fontMetrics().horizontalAdvance("Blue Ribbon Bess"));
    view.resize(100, 300); // too narrow for the texts: it scrolls, as little as it must
    EXPECT_GE(view.columnWidth(0), view.fontMetrics().horizontalAdvance("Blue Ribbon Bess"));
    EXPECT_LT(view.columnWidth(0), view.fontMetrics().horizontalAdvance("Blue Ribbon Bess") + 20);
}

TEST_F(CellTableTest, RowsAfterTheLastTextAreLeftAwayWhereAsked) {
    EXPECT_EQ(5, view.model()->rowCount());
    view.setViewLayout({.emptyRows = EmptyRows::hiddenAtEnd});
    EXPECT_EQ(2, view.model()->rowCount());
}

TEST_F(CellTableTest, ATextInAnotherPartOfTheTableKeepsNoRow) {
    grid(5, 0).text = "left";
    view.setViewLayout(
        {.firstColumn = 1,
         .emptyRows = EmptyRows::hiddenAtEnd}); // of columns 1 and 2 row 2 is the last with a text
    EXPECT_EQ(2, view.model()->rowCount());
}

TEST_F(CellTableTest, RowsWithoutATextAreHiddenWhereverTheyStandWhereAsked) {
    grid(4, 1).text = "total";
    view.setViewLayout({.emptyRows = EmptyRows::hidden});
    EXPECT_FALSE(view.isRowHidden(1));
    EXPECT_TRUE(view.isRowHidden(2)); // row 3 has a colour, no text
    EXPECT_FALSE(view.isRowHidden(3));
    EXPECT_TRUE(view.isRowHidden(4));
    grid(3, 2).text = "y";
    view.refresh();
    EXPECT_FALSE(view.isRowHidden(2));
}

TEST_F(CellTableTest, RowsMayBeBoldByView) {
    view.setViewLayout({.boldRows = {1, 1}});
    EXPECT_TRUE(of(0, 0, Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(of(1, 0, Qt::FontRole).isValid());
}

TEST_F(CellTableTest, ColumnsStandWhereTheirDescriptionSaysWithTheirHeadsOverThem) {
    columns = {ViewColumn{"Name", 900}, ViewColumn{"PR", 900, Align::right},
               ViewColumn{"PN", 900, Align::centre}};
    view.setViewLayout({.columns = columns});
    const std::array sides{Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    for (int column = 0; column < 3; ++column) {
        EXPECT_TRUE(of(0, column, Qt::TextAlignmentRole).toInt() & sides.at(column)) << column;
        EXPECT_TRUE(headSide(column) & sides.at(column)) << column;
    }
}

TEST_F(CellTableTest, AHeadIsTheTablesOwnOrElseItsDescriptions) {
    columns = {ViewColumn{"Name", 900}, ViewColumn{"PR", 900}, ViewColumn{"", 900}};
    view.setViewLayout({.columns = columns});
    EXPECT_EQ("ENTRY", head(0));
    EXPECT_EQ("PR", head(1));
    EXPECT_EQ("", head(2));
}

TEST_F(CellTableTest, PaddedTextsLoseTheirBlanksInTheMiddleAndAtTheRightAndAreStoredAsTheyWere) {
    columns = {ViewColumn{"", 900}, ViewColumn{"", 900, Align::right}, ViewColumn{"", 900, Align::centre}};
    view.setViewLayout({.columns = columns});
    for (int column = 0; column < 3; ++column) grid(1, column).text = "  77.0 ";
    EXPECT_EQ("  77.0 ", of(0, 0, Qt::DisplayRole).toString());
    EXPECT_EQ("77.0", of(0, 1, Qt::DisplayRole).toString());
    EXPECT_EQ("77.0", of(0, 2, Qt::DisplayRole).toString());
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ("  77.0 ", of(0, column, Qt::EditRole).toString()) << column;
    view.selectRow(0);
    EXPECT_EQ("77.0\t77.0\t77.0", view.selectionText().section('\n', 1)) << "copied without the blanks";
}

TEST_F(CellTableTest, ColumnsAndRowsBeyondTheLayoutAreNotShown) {
    view.setViewLayout({.columns = std::span{columns}.first(2), .firstColumn = 1, .lastRow = 2});
    EXPECT_EQ(1, view.model()->columnCount());
    EXPECT_EQ(2, view.model()->rowCount());
    EXPECT_EQ("9.5", of(0, 0, Qt::DisplayRole).toString());
}

TEST_F(CellTableTest, ATableWithoutRowsKeepsItsColumns) {
    Grid heads{1, 3};
    setWidths({3000, 900, 0});
    view.show(&heads);
    EXPECT_FALSE(view.isColumnHidden(0));
    EXPECT_FALSE(view.isColumnHidden(1));
    EXPECT_TRUE(view.isColumnHidden(2));
    view.show(&grid);
}

TEST_F(CellTableTest, AFrozenColumnHasTheRowsAndWidthOfItsTable) {
    view.setViewLayout({.firstFrozen = true});
    auto* frozen = view.findChild<FrozenColumn*>();
    ASSERT_NE(nullptr, frozen);
    view.horizontalHeader()->resizeSection(0, 120);
    EXPECT_EQ(120, frozen->columnWidth(0));
    EXPECT_EQ(120, frozen->width());
    frozen->horizontalHeader()->resizeSection(0, 90);
    EXPECT_EQ(90, view.columnWidth(0));
    EXPECT_TRUE(frozen->isColumnHidden(1));
    EXPECT_EQ(view.rowHeight(0), frozen->rowHeight(0));
    frozen->setCurrentIndex(frozen->model()->index(1, 0));
    EXPECT_EQ(1, view.currentIndex().row());
}

TEST_F(CellTableTest, RoomForBoldIsLeftWhereNoTextIsBoldYet) {
    setWidths({100, 100, 100});
    const int plain = view.columnWidth(0);
    view.setViewLayout({.columns = columns, .roomForBold = true});
    QFont bold = view.font();
    bold.setBold(true);
    EXPECT_GE(view.columnWidth(0), plain);
    EXPECT_GT(view.columnWidth(0), QFontMetrics{bold}.horizontalAdvance("Blue Ribbon Bess"));
}

TEST_F(CellTableTest, ARefreshTakesUpWhatTheTableBecame) {
    grid(1, 0).text = "Zanzibar";
    view.refresh();
    EXPECT_EQ("Zanzibar", of(0, 0, Qt::DisplayRole).toString());
}

TEST_F(CellTableTest, WidthsAreTwipsAtTheScreensResolutionAndZeroHides) {
    setWidths({3000, 900, 0});
    EXPECT_EQ(appearance.pixels(3000), view.columnWidth(0));
    EXPECT_TRUE(view.isColumnHidden(2));
    appearance.setZoom(150);
    EXPECT_EQ(appearance.pixels(3000), view.columnWidth(0));
}

TEST_F(CellTableTest, AColumnGrowsWithATextThatWouldNotFit) {
    setWidths({100, 900, 0});
    EXPECT_GT(view.columnWidth(0), QFontMetrics{view.font()}.horizontalAdvance("Blue Ribbon Bess"));
}

TEST_F(CellTableTest, AColumnKeepsTheWidthThatItWasDraggedTo) {
    setWidths({3000, 900, 900});
    view.horizontalHeader()->resizeSection(0, 120);
    grid(1, 0).text = "Another";
    view.refresh();
    EXPECT_NEAR(120, view.columnWidth(0), 1);
}

TEST_F(CellTableTest, ASelectionIsCopiedWithATabBetweenCellsAndALineARow) {
    setWidths({3000, 900, 0});
    view.selectAll();
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("ENTRY\t\nBlue Ribbon Bess\t9.5\nCorner Boy\t10\n\t\n\t\n\t",
              QApplication::clipboard()->text());
}

TEST_F(CellTableTest, WhereNothingIsSelectedTheWholeTableIsCopied) {
    setWidths({3000, 900, 0});
    view.clearSelection();
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("ENTRY\t\nBlue Ribbon Bess\t9.5\nCorner Boy\t10\n\t\n\t\n\t",
              QApplication::clipboard()->text());
}

TEST_F(CellTableTest, AMarkedRowHasItsSignItsWordsAndItsNote) {
    columns = {ViewColumn{"Name", 900}, ViewColumn{"A", 900}, ViewColumn{"B", 900}};
    view.setViewLayout({.columns = columns});
    view.showRowMarks("S1 X");
    std::vector<RowMark> marks(3);
    marks[1] = {.sign = "S1 X", .words = "out", .isOut = true};
    marks[2] = {.note = "a note far wider than its column", .noteFrom = 1, .noteColumns = 2};
    view.setRowMarks(marks);
    EXPECT_EQ("S1 X", view.model()->headerData(0, Qt::Vertical).toString());
    EXPECT_EQ("out", view.model()->headerData(0, Qt::Vertical, Qt::ToolTipRole).toString());
    EXPECT_EQ("out", of(0, 0, Qt::ToolTipRole).toString());
    EXPECT_TRUE(of(0, 1, Qt::FontRole).value<QFont>().strikeOut());
    EXPECT_FALSE(of(1, 1, Qt::FontRole).value<QFont>().strikeOut());
    EXPECT_EQ(marks[2].note, of(1, 1, Qt::DisplayRole).toString());
    EXPECT_EQ("", of(1, 2, Qt::DisplayRole).toString());
    EXPECT_EQ(2, view.columnSpan(1, 1));
    EXPECT_LT(view.columnWidth(1), QFontMetrics{view.font()}.horizontalAdvance(marks[2].note));
    view.setRowMarks(std::vector<RowMark>(3));
    EXPECT_EQ(1, view.columnSpan(1, 1));
}

TEST_F(CellTableTest, AHeadTellsInWordsWhatStandsBelowIt) {
    columns = {ViewColumn{"Name", 900, Align::left, "The horse"}, ViewColumn{"PR", 900}};
    view.setViewLayout({.columns = columns});
    EXPECT_EQ("The horse", view.model()->headerData(0, Qt::Horizontal, Qt::ToolTipRole).toString());
    EXPECT_FALSE(view.model()->headerData(1, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

TEST_F(CellTableTest, RowsApartAreCopiedWithoutThoseBetweenThem) {
    setWidths({3000, 900, 0});
    view.selectionModel()->select(view.model()->index(0, 1), QItemSelectionModel::Select);
    view.selectionModel()->select(view.model()->index(1, 0), QItemSelectionModel::Select);
    view.selectionModel()->select(view.model()->index(4, 0), QItemSelectionModel::Select);
    EXPECT_EQ("ENTRY\t\n\t9.5\nCorner Boy\t\n\t", view.selectionText());
}

TEST_F(CellTableTest, OfAMillionSelectedRowsTheFirstAreCopiedAndTheUserIsTold) {
    grid.showRows(
        1, {1000000, [](int row, std::span<Cell> cells) { cells[0].text = "card " + std::to_string(row); }});
    setWidths({3000, 900, 0});
    view.show(&grid);
    static_cast<QWidget&>(view).show();
    view.selectAll();
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    const QString copied = QApplication::clipboard()->text();
    EXPECT_EQ(100000, copied.count('\n')); // 200,000 cells, two a row, below the heads
    EXPECT_TRUE(copied.startsWith("ENTRY\t\ncard 1\t\ncard 2\t\n"));
    EXPECT_TRUE(copied.endsWith("card 100000\t"));
    EXPECT_TRUE(QToolTip::text().contains("100000 rows were copied")) << QToolTip::text().toStdString();
    QToolTip::hideText();
}

TEST_F(CellTableTest, FindGoesRoundAndForgetsCase) {
    EXPECT_TRUE(view.find("corner"));
    EXPECT_EQ(1, view.currentIndex().row());
    EXPECT_TRUE(view.find("b")); // after "Corner Boy" comes "Blue Ribbon Bess" again
    EXPECT_EQ(0, view.currentIndex().row());
    EXPECT_TRUE(view.find("b", true));
    EXPECT_EQ(1, view.currentIndex().row());
    EXPECT_FALSE(view.find("nobody"));
}

TEST_F(CellTableTest, NumbersSortAsNumbers) {
    view.setViewLayout({.emptyRows = EmptyRows::hiddenAtEnd, .sortable = true});
    view.sortByColumn(1, Qt::AscendingOrder); // 9.5 before 10
    EXPECT_EQ("Blue Ribbon Bess", of(0, 0, Qt::DisplayRole).toString());
    view.sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ("Corner Boy", of(0, 0, Qt::DisplayRole).toString());
}

TEST_F(CellTableTest, TextsThatBeginWithANumberSortByItFirst) {
    grid(1, 2).text = "10A";
    grid(2, 2).text = "2B";
    grid(3, 2).text = "2A";
    view.setViewLayout({.emptyRows = EmptyRows::hiddenAtEnd, .sortable = true});
    view.sortByColumn(2, Qt::AscendingOrder);
    EXPECT_EQ("2A", of(0, 2, Qt::DisplayRole).toString());
    EXPECT_EQ("2B", of(1, 2, Qt::DisplayRole).toString());
    EXPECT_EQ("10A", of(2, 2, Qt::DisplayRole).toString());
}

TEST_F(CellTableTest, TheFirstColumnsSortByTheTablesOwnOrderWhereAsked) {
    grid(1, 0).text = "10:05 PM";
    grid(2, 0).text = "1:05 AM";
    view.setViewLayout({.sortable = true, .rowOrderColumns = 1});
    view.sortByColumn(0, Qt::AscendingOrder);
    EXPECT_EQ("10:05 PM", of(0, 0, Qt::DisplayRole).toString());
    view.sortByColumn(0, Qt::DescendingOrder);
    EXPECT_EQ(5, view.tableRow(view.model()->index(0, 0)));
    EXPECT_EQ(-1, view.tableRow({}));
}

TEST_F(CellTableTest, AnEditedCellHandsInItsTextOnlyWhenItChanged) {
    std::vector<std::string> edits;
    view.cells().setEditing([](int, int column) { return column == 1; },
                            [&](int row, int column, const Text& text) {
                                edits.push_back(std::to_string(row) + "," + std::to_string(column) + "=" +
                                                text);
                            });
    EXPECT_FALSE(view.model()->flags(view.model()->index(0, 0)) & Qt::ItemIsEditable);
    EXPECT_TRUE(view.model()->setData(view.model()->index(1, 1), "11\n2", Qt::EditRole));
    EXPECT_FALSE(view.model()->setData(view.model()->index(0, 1), "9.5", Qt::EditRole));
    EXPECT_EQ((std::vector<std::string>{"2,1=11 2"}), edits);
}

} // namespace
} // namespace quillon
