#include "desktop/cell_table_view.h"
#include "desktop/window_test.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>

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

    Grid grid{6, 3};
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

TEST_F(CellTableTest, RowsBehindTheLastTextAreLeftAwayWhereAsked) {
    EXPECT_EQ(5, view.model()->rowCount());
    view.cells().setTailHidden(true);
    view.show(&grid);
    EXPECT_EQ(2, view.model()->rowCount());
}

TEST_F(CellTableTest, ARefreshTakesUpWhatTheTableBecame) {
    grid(1, 0).text = "Zanzibar";
    view.refresh();
    EXPECT_EQ("Zanzibar", of(0, 0, Qt::DisplayRole).toString());
}

TEST_F(CellTableTest, WidthsAreTwipsAtTheScreensResolutionAndZeroHides) {
    view.setColumnWidths(std::vector{3000, 900, 0});
    EXPECT_EQ(appearance.pixels(3000), view.columnWidth(0));
    EXPECT_TRUE(view.isColumnHidden(2));
    appearance.setZoom(150);
    EXPECT_EQ(appearance.pixels(3000), view.columnWidth(0));
}

TEST_F(CellTableTest, AColumnGrowsWithATextThatWouldNotFit) {
    view.setColumnWidths(std::vector{100, 900, 0});
    EXPECT_GT(view.columnWidth(0), QFontMetrics{view.font()}.horizontalAdvance("Blue Ribbon Bess"));
}

TEST_F(CellTableTest, AColumnKeepsTheWidthThatItWasDraggedTo) {
    view.setColumnWidths(std::vector{3000, 900, 900});
    view.horizontalHeader()->resizeSection(0, 120);
    grid(1, 0).text = "Another";
    view.refresh();
    EXPECT_NEAR(120, view.columnWidth(0), 1);
}

TEST_F(CellTableTest, ASelectionIsCopiedWithATabBetweenCellsAndALineARow) {
    view.setColumnWidths(std::vector{3000, 900, 0});
    view.selectAll();
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("Blue Ribbon Bess\t9.5\nCorner Boy\t10\n\t\n\t\n\t", QApplication::clipboard()->text());
}

TEST_F(CellTableTest, FindGoesRoundAndForgetsCase) {
    EXPECT_TRUE(view.find("corner"));
    EXPECT_EQ(1, view.currentIndex().row());
    EXPECT_TRUE(view.find("b")); // behind "Corner Boy" comes "Blue Ribbon Bess" again
    EXPECT_EQ(0, view.currentIndex().row());
    EXPECT_TRUE(view.find("b", true));
    EXPECT_EQ(1, view.currentIndex().row());
    EXPECT_FALSE(view.find("nobody"));
}

TEST_F(CellTableTest, NumbersSortAsNumbers) {
    view.cells().setTailHidden(true);
    view.setSortable();
    view.show(&grid);
    view.sortByColumn(1, Qt::AscendingOrder); // 9.5 before 10
    EXPECT_EQ("Blue Ribbon Bess", of(0, 0, Qt::DisplayRole).toString());
    view.sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ("Corner Boy", of(0, 0, Qt::DisplayRole).toString());
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
