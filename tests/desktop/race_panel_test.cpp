#include "desktop/race_panel.h"

#include "desktop/cell_table_view.h"
#include "desktop/main_window_test.h"
#include "desktop/shown_text.h"
#include "desktop/window_test.h"
#include "rating/rating_display.h"
#include "results/entry_marks.h"
#include "results/on_show.h"
#include "screen/race_views.h"

#include <QApplication>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace quillon {
namespace {

struct RacePanelTest : WindowTest {
    RacePanelTest() {
        QObject::connect(&runner, &CommandRunner::ran, &panel, &RacePanel::refresh);
        window.resize(1083, 400);
        panel.setParent(&window);
        panel.setGeometry(0, 0, 1083, panel.height());
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window)) throw std::runtime_error("the window is not active");
    }

    CellTableView& table() { return child<CellTableView>(panel, "RaceView"); }
    QPushButton& button(const char* name, int row) {
        return child<QPushButton>(panel, QString{"%1%2"}.arg(name).arg(row));
    }
    QModelIndex cell(int row, int column) { return table().model()->index(row - 1, column); }
    std::string textOf(int row, int column) { return cell(row, column).data().toString().toStdString(); }

    std::string signOf(int row) {
        return table().model()->headerData(row - 1, Qt::Vertical).toString().toStdString();
    }
    QFont faceOf(int row, int column) { return cell(row, column).data(Qt::FontRole).value<QFont>(); }

    void clickCell(int row, int column) {
        table().scrollTo(cell(row, column));
        QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                          table().visualRect(cell(row, column)).center());
    }

    /// Where a widget's top edge is in the panel.
    int topOf(const QWidget& widget) { return widget.mapTo(&panel, QPoint{}).y(); }
    int topOfRow(int row) {
        return table().viewport()->mapTo(&panel, QPoint{}).y() + table().rowViewportPosition(row - 1);
    }

    void expectRace(int race) {
        const Grid& view = screen.raceView[static_cast<std::size_t>(race)];
        for (int row = 1; row <= 12; ++row)
            for (int column = 0; column <= 32; ++column)
                EXPECT_EQ(quillon::shown(view.text(row, column)),
                          cell(row, column).data(Qt::EditRole).toString())
                    << row << ", " << column;
    }

    QWidget window;
    RacePanel panel{runner, appearance};
};

TEST_F(RacePanelTest, BeforeACardItHoldsThePlaceOfTwelveEntries) {
    EXPECT_EQ(12, table().model()->rowCount());
    EXPECT_EQ("ENTRY", table().model()->headerData(0, Qt::Horizontal).toString());
    EXPECT_FALSE(button("EntryButton", 1).isEnabled());
    EXPECT_FALSE(button("ScratchButton", 1).isEnabled());
    EXPECT_FALSE(cell(1, 0).flags() & Qt::ItemIsEditable);
}

TEST_F(RacePanelTest, TheEntriesOfTheRaceOnShowStandInTheirColumns) {
    startSampleCard();
    expectRace(1);
    runner.run(CommandId::RaceButton, numberArgument(3));
    expectRace(3);
    runner.run(CommandId::Next);
    expectRace(4);
}

TEST_F(RacePanelTest, SaddleClothsKeepTheirColoursTheWhiteOneToo) {
    startSampleCard();
    for (int row = 1; row <= 5; ++row) {
        const Cell& cloth = screen.raceView[1].read(row, 2);
        ASSERT_TRUE(cloth.background) << row;
        EXPECT_EQ(quillon::shown(*cloth.background),
                  cell(row, 2).data(Qt::BackgroundRole).value<QBrush>().color())
            << row;
        EXPECT_EQ(quillon::shown(*cloth.foreground),
                  cell(row, 2).data(Qt::ForegroundRole).value<QBrush>().color())
            << row;
    }
}

TEST_F(RacePanelTest, SaddleClothsHaveABoldFaceOfTheirOwnInTheMiddle) {
    startSampleCard();
    const auto cloth = cell(1, 2).data(Qt::FontRole).value<QFont>();
    EXPECT_EQ("Bookman Old Style", cloth.families().value(0));
    EXPECT_TRUE(cloth.bold());
    EXPECT_EQ(int{Qt::AlignCenter}, cell(1, 2).data(Qt::TextAlignmentRole).toInt());

    screen.raceView[1](1, 2) = {.text = " 13"}; // no cloth
    panel.refresh();
    EXPECT_FALSE(cell(1, 2).data(Qt::FontRole).isValid());
    EXPECT_EQ(int{Qt::AlignCenter}, cell(1, 2).data(Qt::TextAlignmentRole).toInt());
    EXPECT_EQ("13", textOf(1, 2));
    EXPECT_EQ(" 13", cell(1, 2).data(Qt::EditRole).toString().toStdString());
}

TEST_F(RacePanelTest, HeadAndTwelveRowsFillItsHeightAndButtonsStandBesideTheirRowsAtEveryZoom) {
    startSampleCard();
    runner.run(CommandId::HeatWinner);
    for (const int zoom : {100, 60, 140, 300, 100}) {
        appearance.setZoom(zoom);
        QTest::qWait(20);
        panel.setGeometry(0, 0, 1083, panel.height());
        QTest::qWait(20);
        EXPECT_EQ(0, table().verticalScrollBar()->maximum()) << zoom;
        EXPECT_LE(table().rowPixels() * 12, table().viewport()->height()) << zoom;
        EXPECT_LE(table().viewport()->height(), table().rowPixels() * 12 + 2) << zoom;
        for (int row = 1; row <= 12; ++row)
            for (const char* name : {"EntryButton", "ScratchButton", "HeatButton"}) {
                EXPECT_EQ(topOfRow(row), topOf(button(name, row))) << name << row << " at " << zoom;
                EXPECT_EQ(table().rowHeight(row - 1), button(name, row).height()) << name << row;
            }
        EXPECT_EQ(0, topOf(button("ScratchButton", 0)));
    }
}

TEST_F(RacePanelTest, AnEntryButtonShowsItsPastLinesAndIsMarkedMeanwhile) {
    startSampleCard();
    EXPECT_EQ("4", button("EntryButton", 4).text());
    const QString plain = button("EntryButton", 4).styleSheet();
    click(button("EntryButton", 4));
    EXPECT_TRUE(screen.pastPerformanceOpen);
    EXPECT_EQ(4, screen.currentEntry);
    EXPECT_NE(plain, button("EntryButton", 4).styleSheet());
    EXPECT_EQ(plain, button("EntryButton", 3).styleSheet());
    EXPECT_EQ(quillon::shown(recentYellow), cell(4, 5).data(Qt::BackgroundRole).value<QBrush>().color());
    click(button("EntryButton", 4)); // the same one again closes them
    EXPECT_FALSE(screen.pastPerformanceOpen);
    EXPECT_EQ(plain, button("EntryButton", 4).styleSheet());
}

TEST_F(RacePanelTest, AScratchAsksAndRatesTheEntryLast) {
    startSampleCard();
    shown.clear();
    click(button("ScratchButton", 3)); // answered No
    ASSERT_EQ(2u, shown.size());       // a beep and the question
    EXPECT_NE("99.9", card.entry(1, 3).rating);
    answers = {"Yes"};
    click(button("ScratchButton", 3));
    EXPECT_EQ("99.9", card.entry(1, 3).rating);
    EXPECT_EQ("Scr", textOf(3, RaceColumn::track));
    expectRace(1);
}

TEST_F(RacePanelTest, TheHeadOfTheScratchColumnSwitchesAllItsButtons) {
    startSampleCard();
    EXPECT_EQ("X", button("ScratchButton", 0).text());
    EXPECT_EQ("Scr", button("ScratchButton", 2).text());
    click(button("ScratchButton", 0));
    EXPECT_EQ("Scr", button("ScratchButton", 0).text());
    for (int row = 1; row <= 12; ++row) EXPECT_EQ("X", button("ScratchButton", row).text());
    answers = {"Yes"};
    click(button("ScratchButton", 2));
    EXPECT_EQ("X", textOf(2, RaceColumn::track));
}

TEST_F(RacePanelTest, WhereNoHorseIsNothingCanBePressed) {
    startSampleCard();
    ASSERT_EQ("", textOf(12, 0));
    EXPECT_TRUE(button("ScratchButton", 1).isEnabled());
    EXPECT_FALSE(button("ScratchButton", 12).isEnabled());
    EXPECT_FALSE(button("EntryButton", 12).isEnabled());
    EXPECT_EQ("", button("EntryButton", 12).text());
    EXPECT_FALSE(cell(12, 5).flags() & Qt::ItemIsEditable);
    clickCell(12, RaceColumn::driver);
    EXPECT_FALSE(screen.driverList.visible);
}

TEST_F(RacePanelTest, SelectionsAreMarkedAtTheStartOfTheirRows) {
    startSampleCard();
    const char* signs[] = {"", "S1", "S2", "S3", "S4", "S5"};
    const int cells[] = {0, 1, 2, 3, 4, 9};
    for (int race = 1; race <= card.raceCount; ++race) {
        runner.run(CommandId::RaceButton, numberArgument(race));
        for (int place = 1; place <= 5; ++place)
            for (int row = 1; row <= 12; ++row) {
                const Text number{trimmed(screen.raceView[static_cast<std::size_t>(race)].text(row, 2))};
                const bool has = !number.empty() && number == trimmed(card.raceOutcome(race, cells[place]));
                EXPECT_EQ(has, signOf(row) == signs[place]) << race << ", " << row << ": " << signOf(row);
            }
    }
}

TEST_F(RacePanelTest, ACardAsLoadedHasNoMarkOfTheUsers) {
    startSampleCard();
    for (int race = 1; race <= card.raceCount; ++race)
        for (int row = 1; row <= 12; ++row) {
            EntryMarks marks = entryMarks(race, row);
            EXPECT_FALSE(marks.isChanged()) << race << ", " << row;
        }
}

TEST_F(RacePanelTest, AScratchedEntryIsStruckThroughAndNotOfferedAgain) {
    startSampleCard();
    answers = {"Yes"};
    click(button("ScratchButton", 3));
    EXPECT_TRUE(QString::fromStdString(signOf(3)).contains("Scr")) << signOf(3);
    EXPECT_FALSE(button("ScratchButton", 3).isEnabled());
    EXPECT_TRUE(button("ScratchButton", 4).isEnabled());
    for (const int column : {0, 2, 31}) EXPECT_TRUE(faceOf(3, column).strikeOut()) << column;
    EXPECT_FALSE(faceOf(4, 0).strikeOut());
    EXPECT_EQ(QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text),
              cell(3, 0).data(Qt::ForegroundRole).value<QBrush>().color());
    EXPECT_TRUE(cell(3, 0).data(Qt::ToolTipRole).toString().contains("Scratched"));
    EXPECT_TRUE(runner.canRun(CommandId::Command4, numberArgument(3))) << "the command itself stays";

    click(button("ScratchButton", 0)); // from Scr to X
    EXPECT_FALSE(button("ScratchButton", 3).isEnabled());
    answers = {"Yes"};
    click(button("ScratchButton", 4));
    EXPECT_TRUE(QString::fromStdString(signOf(4)).contains("X")) << signOf(4);
    EXPECT_FALSE(button("ScratchButton", 4).isEnabled());
    EXPECT_TRUE(cell(4, 0).data(Qt::ToolTipRole).toString().contains("Removed"));
}

TEST_F(RacePanelTest, ALineADriverAndTypedCellsEachLeaveTheirSign) {
    startSampleCard();
    const QString before = QString::fromStdString(signOf(2));
    runner.run(CommandId::Cell, {.numbers = {1, 2, RaceColumn::classText}, .text = "OPEN 5"});
    EXPECT_EQ((before + " *").trimmed().toStdString(), signOf(2));
    EXPECT_TRUE(cell(2, 0).data(Qt::ToolTipRole).toString().contains("Typed by you: Class"));

    runner.run(CommandId::DriverColumn, numberArgument(5));
    for (const Text& line : screen.driverList.lines)
        if (!trimmed(line).starts_with(trimmed(card.entry(1, 5).driverName))) {
            runner.run(CommandId::DriverChoice, textArgument(line));
            break;
        }
    EXPECT_TRUE(QString::fromStdString(signOf(5)).endsWith("D")) << signOf(5);

    runner.run(CommandId::EntryButton, numberArgument(1));
    const int other = lineInUse().row == 1 ? 2 : 1;
    runner.run(CommandId::Command3, numberArgument(other));
    EXPECT_TRUE(QString::fromStdString(signOf(1)).endsWith(QChar{0x25B6})) << signOf(1);
}

TEST_F(RacePanelTest, TheColumnOfSignsIsAsWideWhateverStandsThere) {
    startSampleCard();
    const int width = table().verticalHeader()->width();
    runner.run(CommandId::Cell, {.numbers = {1, 1, RaceColumn::classText}, .text = "OPEN 5"});
    answers = {"Yes"};
    click(button("ScratchButton", 3));
    EXPECT_EQ(width, table().verticalHeader()->width());
    const QFontMetrics metrics{table().verticalHeader()->font()};
    for (int row = 1; row <= 12; ++row)
        EXPECT_LT(metrics.horizontalAdvance(QString::fromStdString(signOf(row))), width) << signOf(row);
}

TEST_F(RacePanelTest, AFirstStartReadsSoAndWidensNoColumn) {
    startSampleCard();
    int found = 0;
    for (int race = 1; race <= card.raceCount; ++race) {
        runner.run(CommandId::RaceButton, numberArgument(race));
        for (int row = 1; row <= 12; ++row) {
            if (!isFirstStart(race, row)) continue;
            ++found;
            EXPECT_EQ("first start", textOf(row, RaceColumn::track));
            EXPECT_EQ("", textOf(row, RaceColumn::leaderQuarter));
            EXPECT_EQ(26, table().columnSpan(row - 1, RaceColumn::track)); // 4 to 29
            EXPECT_EQ("LEAD_TM_1Q", screen.raceView[static_cast<std::size_t>(race)].text(row, 8));
            EXPECT_FALSE(cell(row, 8).flags() & Qt::ItemIsEditable);
            const int asHigh = QFontMetrics{faceOf(row, 8)}.horizontalAdvance("LEAD_TM_1Q");
            EXPECT_LT(table().columnWidth(RaceColumn::leaderQuarter), asHigh);
            EXPECT_FALSE(textOf(row, RaceColumn::driver).empty());
        }
        expectRace(race);
    }
    EXPECT_GT(found, 0) << "the sample has a first-time starter";
}

TEST_F(RacePanelTest, HeatButtonsComeAndGoWithTheirMark) {
    startSampleCard();
    EXPECT_FALSE(button("HeatButton", 1).isVisible());
    runner.run(CommandId::HeatWinner);
    EXPECT_TRUE(button("HeatButton", 1).isVisible());
    EXPECT_FALSE(button("HeatButton", 12).isEnabled());
    answers = {"14", "1", "3"}; // race, finish, post in the final
    click(button("HeatButton", 1));
    EXPECT_EQ(3, card.heatPost(14, 3));
    EXPECT_EQ(card.entry(1, 1).horseName.text(), card.entry(14, 3).horseName.text());
    runner.run(CommandId::HeatWinner);
    EXPECT_FALSE(button("HeatButton", 1).isVisible());
}

TEST_F(RacePanelTest, ACellIsEditedInItsPlaceAndTheKeyboardStaysThere) {
    startSampleCard();
    clickCell(2, 6);
    QTest::keyClick(&table(), Qt::Key_F2);
    QWidget* editor = table().indexWidget(cell(2, 6));
    ASSERT_TRUE(editor);
    static_cast<QLineEdit*>(editor)->selectAll();
    QTest::keyClicks(editor, "OPEN 5");
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents(); // the editor hands in its text when it has taken the key
    EXPECT_EQ("OPEN 5", screen.raceView[1].text(2, 6));
    EXPECT_EQ("OPEN 5", textOf(2, 6));
    EXPECT_EQ(cell(2, 6), table().currentIndex());
}

TEST_F(RacePanelTest, CellsThatWouldComeBackAsTheyWereAreNotTypedIn) {
    startSampleCard();
    for (const int column :
         {RaceColumn::horseName, RaceColumn::morningOdds, RaceColumn::programNumber, RaceColumn::post,
          RaceColumn::track, RaceColumn::purse, RaceColumn::driver, RaceColumn::udr, RaceColumn::rating}) {
        EXPECT_FALSE(cell(2, column).flags() & Qt::ItemIsEditable) << column;
        table().setCurrentIndex(cell(2, column));
        QTest::keyClick(&table(), Qt::Key_F2);
        EXPECT_FALSE(table().indexWidget(cell(2, column))) << column;
    }
    EXPECT_TRUE(cell(2, RaceColumn::classText).flags() & Qt::ItemIsEditable);
    EXPECT_TRUE(cell(2, RaceColumn::favourite).flags() & Qt::ItemIsEditable);
}

TEST_F(RacePanelTest, ADoubleClickEditsAndEscapeLeavesTheCellAsItWas) {
    startSampleCard();
    const Text before = screen.raceView[1].text(1, 7);
    clickCell(1, 7);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, table().visualRect(cell(1, 7)).center());
    QWidget* editor = table().indexWidget(cell(1, 7));
    ASSERT_TRUE(editor);
    QTest::keyClicks(editor, "55");
    QTest::keyClick(editor, Qt::Key_Escape);
    EXPECT_EQ(before, screen.raceView[1].text(1, 7));
}

TEST_F(RacePanelTest, ACellThatIsStillBeingTypedInIsTakenUpBeforeTheNextCommand) {
    startSampleCard();
    clickCell(2, 8);
    QTest::keyClicks(&table(), "2");
    QWidget* editor = table().indexWidget(cell(2, 8));
    ASSERT_TRUE(editor);
    QTest::keyClicks(editor, "7.4");
    runner.run(CommandId::Next);
    EXPECT_EQ("27.4", screen.raceView[1].text(2, 8));
    EXPECT_EQ("2", screen.header.race);
    expectRace(2);
}

TEST_F(RacePanelTest, AMegabyteInACellIsCutWhereTheEditorEnds) {
    startSampleCard();
    clickCell(1, 6);
    QTest::keyClick(&table(), Qt::Key_F2);
    auto* editor = static_cast<QLineEdit*>(table().indexWidget(cell(1, 6)));
    ASSERT_TRUE(editor);
    const auto editorLimit = static_cast<std::size_t>(editor->maxLength());
    editor->setText(QString(1 << 20, 'x'));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents(); // the editor hands in its text when it has taken the key
    EXPECT_EQ(editorLimit, screen.raceView[1].text(1, 6).size());
    expectRace(1);
}

TEST_F(RacePanelTest, AClickOnADriverListsTheDriversAndHisCellIsNotTypedIn) {
    startSampleCard();
    EXPECT_FALSE(cell(2, RaceColumn::driver).flags() & Qt::ItemIsEditable);
    clickCell(2, RaceColumn::udr);
    EXPECT_FALSE(screen.driverList.visible);
    clickCell(2, RaceColumn::driver);
    EXPECT_TRUE(screen.driverList.visible);
    EXPECT_EQ(2, screen.driverRow);
}

TEST_F(RacePanelTest, EnterAndSpaceOpenWhatACellLeadsTo) {
    startSampleCard();
    table().setCurrentIndex(cell(3, RaceColumn::driver));
    QTest::keyClick(&table(), Qt::Key_Space);
    EXPECT_TRUE(screen.driverList.visible);
    EXPECT_EQ(3, screen.driverRow);
    table().setCurrentIndex(cell(5, RaceColumn::driver));
    QTest::keyClick(&table(), Qt::Key_Return);
    EXPECT_EQ(5, screen.driverRow);
    table().setCurrentIndex(cell(4, 0));
    QTest::keyClick(&table(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(4, screen.currentEntry);
}

TEST_F(RacePanelTest, ArrowKeysWalkTheButtonsAndTabStopsOnceAColumn) {
    startSampleCard();
    button("EntryButton", 1).setFocus();
    QTest::keyClick(&button("EntryButton", 1), Qt::Key_Down);
    EXPECT_TRUE(button("EntryButton", 2).hasFocus());
    QTest::keyClick(&button("EntryButton", 2), Qt::Key_Right);
    EXPECT_TRUE(button("ScratchButton", 2).hasFocus());
    QTest::keyClick(&button("ScratchButton", 2), Qt::Key_Up);
    QTest::keyClick(&button("ScratchButton", 1), Qt::Key_Up);
    EXPECT_TRUE(button("ScratchButton", 0).hasFocus());
    QTest::keyClick(&button("ScratchButton", 0), Qt::Key_Tab);
    EXPECT_TRUE(table().hasFocus());
    QTest::keyClick(&table(), Qt::Key_Backtab);
    QTest::keyClick(&button("ScratchButton", 0), Qt::Key_Backtab);
    EXPECT_TRUE(button("EntryButton", 2).hasFocus()); // where it was left
}

TEST_F(RacePanelTest, EachButtonTellsWhatItDoesAndToWhom) {
    startSampleCard();
    const QString horse = QString::fromStdString(textOf(1, 0));
    for (const char* name : {"EntryButton", "ScratchButton", "HeatButton"}) {
        EXPECT_TRUE(button(name, 1).accessibleName().contains(horse)) << name;
        EXPECT_TRUE(button(name, 1).toolTip().contains(horse)) << name;
    }
}

TEST_F(RacePanelTest, ARefreshSendsNoCommand) {
    startSampleCard();
    int commands = 0;
    QObject::connect(&runner, &CommandRunner::aboutToRun, &panel, [&] { ++commands; });
    panel.refresh();
    EXPECT_EQ(0, commands);
}

struct RaceViewWidthTest : MainWindowTest {
    CellTableView& table() { return child<CellTableView>(*window, "RaceView"); }

    void numberAllRows(const Text& number) {
        for (int row = 1; row <= 12; ++row) {
            Cell& cell = screen.raceView[1](row, RaceColumn::programNumber);
            cell.text = number;
            colourSaddleCloth(cell);
        }
        window->refresh();
    }

    /// A cell's text and the font that it is drawn with.
    QStyleOptionViewItem drawn(const QModelIndex& cell) {
        struct CellDelegate : QStyledItemDelegate {
            using QStyledItemDelegate::initStyleOption;
        };
        QStyleOptionViewItem option;
        option.initFrom(&table());
        option.font = table().font();
        CellDelegate{}.initStyleOption(&option, cell);
        return option;
    }

    // A visual rect is without the line of the grid.
    void expectWhole(const QModelIndex& cell) {
        const int margin = table().style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &table()) + 1;
        const int room = table().visualRect(cell).width() - 2 * margin;
        const QStyleOptionViewItem option = drawn(cell);
        EXPECT_LE(QFontMetricsF{option.font}.horizontalAdvance(option.text), room)
            << option.text.toStdString();
        EXPECT_EQ(option.text, QFontMetrics{option.font}.elidedText(option.text, Qt::ElideRight, room));
    }

    void expectAllWhole() {
        for (int row = 0; row < 12; ++row)
            for (int column = 0; column < table().model()->columnCount(); ++column) {
                if (table().isColumnHidden(column)) continue;
                SCOPED_TRACE("row " + std::to_string(row + 1) + ", column " + std::to_string(column));
                expectWhole(table().model()->index(row, column));
            }
    }
};

TEST_F(RaceViewWidthTest, InTheFirstWindowEveryTextIsWholeAndTheNumbersOfTheClothsAreToo) {
    startInWindow();
    for (const int zoom : {100, 200}) {
        appearance.setZoom(zoom);
        window->resize(1083, 747);
        QTest::qWait(50);
        ASSERT_EQ(QSize(1083, 747), window->size());
        for (const char* number : {"5", "10", "12", "1A"}) {
            SCOPED_TRACE("number " + std::string{number} + " at " + std::to_string(zoom));
            numberAllRows(number);
            expectAllWhole();
        }
    }
}

TEST_F(RaceViewWidthTest, ColumnsThatMakeRoomInANarrowWindowKeepTheirTextsWhole) {
    startInWindow();
    numberAllRows("1A");
    for (int width = 1200; width >= 900; width -= 20) {
        window->resize(width, 747);
        QTest::qWait(10);
        ASSERT_EQ(width, window->width());
        SCOPED_TRACE(width);
        expectAllWhole();
    }
}

TEST_F(RaceViewWidthTest, TheNumbersOfTheClothsGrowWithTheZoom) {
    startInWindow();
    const auto clothPoints = [&] {
        return drawn(table().model()->index(0, RaceColumn::programNumber)).font.pointSizeF();
    };
    EXPECT_EQ(10, clothPoints());
    appearance.setZoom(200);
    EXPECT_EQ(20, clothPoints());
}

} // namespace
} // namespace quillon
