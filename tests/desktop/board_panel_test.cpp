#include "desktop/board_panel.h"
#include "screen/ports.h"

#include "desktop/before_commands.h"
#include "desktop/main_window.h"
#include "desktop/shown_text.h"
#include "desktop/window_test.h"

#include <QLabel>
#include <QSignalSpy>
#include <QStatusBar>

namespace quillon {
namespace {

struct BoardPanelTest : WindowTest {
    BoardPanelTest() {
        startSampleCard();
        QObject::connect(&runner, &CommandRunner::ran, &panel, &BoardPanel::refresh);
        panel.resize(1083, 130);
        panel.show();
        panel.refresh();
    }

    QLineEdit& box(int n) { return child<QLineEdit>(panel, QString{"Box%1"}.arg(n)); }
    QLineEdit& tote(int n) { return child<QLineEdit>(panel, QString{"Tote%1"}.arg(n)); }
    QLineEdit& refunds() { return child<QLineEdit>(panel, "Refunds"); }

    static void type(QLineEdit& edit, const QString& text) {
        edit.selectAll();
        QTest::keyClicks(&edit, text);
        QTest::keyClick(&edit, Qt::Key_Return);
    }

    /// All boxes as the screen has them.
    void expectTheScreensTexts() {
        for (int n = 0; n < 8; ++n)
            EXPECT_EQ(quillon::shown(screen.boxes.at(static_cast<std::size_t>(n)).text), box(n).text()) << n;
        for (int n = 1; n <= 11; ++n)
            EXPECT_EQ(quillon::shown(screen.tote.at(static_cast<std::size_t>(n))), tote(n).text()) << n;
        EXPECT_EQ(quillon::shown(screen.refunds), refunds().text());
        EXPECT_EQ(quillon::shown(screen.tote[0]), child<QLabel>(panel, "ToteHeading").text());
    }

    BoardPanel panel{runner, appearance};
};

TEST_F(BoardPanelTest, ARaceShowsItsSelectionsAndItsHeading) {
    ASSERT_FALSE(screen.boxes[0].text.empty());
    expectTheScreensTexts();
    runner.run(CommandId::Next);
    EXPECT_EQ("RACE:  2", child<QLabel>(panel, "ToteHeading").text());
    expectTheScreensTexts();
}

TEST_F(BoardPanelTest, TheMarginOfS1AndItsBetMarkStandBesideTheSelections) {
    card.selection(1, 1).selectionRating = "61.5";
    card.selection(1, 2).selectionRating = "64.9";
    panel.refresh();
    EXPECT_EQ("3.4", child<QLabel>(panel, "Margin").text());  // 64.9 - 61.5
    EXPECT_EQ("$$$", child<QLabel>(panel, "BetMark").text()); // from 3, below 4
    card.selection(1, 2).selectionRating = "61.5";
    panel.refresh();
    EXPECT_EQ("DEAD HEAT", child<QLabel>(panel, "BetMark").text());
    card.selection(1, 1).selectionRating.clear();
    panel.refresh();
    EXPECT_EQ("", child<QLabel>(panel, "Margin").text());
    EXPECT_EQ("", child<QLabel>(panel, "BetMark").text());
}

TEST_F(BoardPanelTest, EachBoxHandsInWhatIsTypedAndEnterGoesOn) {
    for (int n = 0; n < 8; ++n) {
        type(box(n), QString::number(n + 1));
        EXPECT_EQ(std::to_string(n + 1), screen.boxes.at(static_cast<std::size_t>(n)).text);
    }
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11}) {
        type(tote(n), QString{"%1.40"}.arg(n));
        EXPECT_EQ(std::to_string(n) + ".40", screen.tote.at(static_cast<std::size_t>(n)));
    }
    type(refunds(), "9");
    EXPECT_EQ("9", screen.refunds);
    expectTheScreensTexts();
}

TEST_F(BoardPanelTest, TheFinishIsRepeatedAboveThePayoffs) {
    type(box(4), "7");
    type(box(7), "2");
    EXPECT_EQ("7", child<QLabel>(panel, "FinishLabel0").text());
    EXPECT_EQ("2", child<QLabel>(panel, "FinishLabel3").text());
    EXPECT_EQ("7", screen.finishLabels[0]);
}

TEST_F(BoardPanelTest, LookingAtABoxSendsNoCommand) {
    const QSignalSpy sent{&runner, &CommandRunner::ran};
    box(4).setFocus();
    QTest::keyClick(&box(4), Qt::Key_Tab);
    QTest::keyClick(&box(5), Qt::Key_Return);
    panel.refresh();
    EXPECT_EQ(0, sent.count());
    type(box(4), "7");
    EXPECT_EQ(1, sent.count());
}

TEST_F(BoardPanelTest, WhatStillIsTypedIsHandedInBeforeAnArrow) {
    box(4).setFocus();
    QTest::keyClicks(&box(4), "7");
    tote(1).setFocus();
    QTest::keyClicks(&tote(1), "4.40");
    EXPECT_EQ("", screen.tote[1]); // not handed in yet
    runner.run(CommandId::Next);
    EXPECT_EQ("7", card.raceOutcome(1, 5));
    EXPECT_EQ("4.40", card.payoffRecord(1, 1));
    EXPECT_EQ("", box(4).text()); // race 2 now
    EXPECT_EQ("", tote(1).text());
    runner.run(CommandId::Previous);
    EXPECT_EQ("7", box(4).text());
    EXPECT_EQ("4.40", tote(1).text());
}

TEST_F(BoardPanelTest, ARefreshLeavesABoxThatIsBeingTypedInAlone) {
    tote(7).setFocus();
    QTest::keyClicks(&tote(7), "24.6");
    panel.refresh();
    EXPECT_EQ("24.6", tote(7).text());
}

TEST_F(BoardPanelTest, TabGoesAsAResultsChartIsRead) {
    box(4).setFocus();
    const QStringList order{"Box4",  "Box5",   "Box6",    "Box7",  "Tote1", "Tote2",
                            "Tote3", "Tote4",  "Tote5",   "Tote6", "Tote7", "Tote8",
                            "Tote9", "Tote11", "Refunds", "Box0",  "Box1"};
    QWidget* at = &box(4);
    for (const QString& name : order) {
        EXPECT_EQ(name, at->objectName());
        do at = at->nextInFocusChain();
        while (!(at->focusPolicy() & Qt::TabFocus) || at->isHidden());
    }
}

TEST_F(BoardPanelTest, BoxTenStandsInTheColumnOfItsHorseInADeadHeatAlone) {
    EXPECT_TRUE(tote(10).isHidden());
    card.winHeat(1) = 2;
    type(box(4), "3");
    EXPECT_EQ(screen.boxTenVisible, tote(10).isVisible());
    QTest::qWait(0);
    panel.layout()->activate();
    EXPECT_EQ(tote(1).y(), tote(10).y()); // Win row
    EXPECT_EQ(tote(4).x(), tote(10).x()); // column of the second
    EXPECT_EQ("Win payoff of the second winner", tote(10).accessibleName());

    card.placeHeat(1) = 2;
    type(box(5), "4");
    panel.layout()->activate();
    EXPECT_TRUE(tote(10).isVisible());
    EXPECT_EQ(tote(2).y(), tote(10).y()); // Place row
    EXPECT_EQ(tote(6).x(), tote(10).x()); // column of the third
    type(tote(10), "5.20");
    EXPECT_EQ("5.20", screen.tote[10]);

    runner.run(CommandId::Next);
    EXPECT_TRUE(tote(10).isHidden());
}

TEST_F(BoardPanelTest, TheGapTintsTheTopTwoLegiblyAndGoesAgain) {
    for (const Colour colour : {closeMagenta, recentYellow}) {
        screen.boxes[0].colour = colour;
        panel.refresh();
        EXPECT_EQ(quillon::shown(colour), box(0).palette().color(QPalette::Base));
        EXPECT_EQ(legibleOn(quillon::shown(colour)), box(0).palette().color(QPalette::Text));
    }
    screen.boxes[0].colour = white;
    panel.refresh();
    EXPECT_EQ(box(4).palette().color(QPalette::Base), box(0).palette().color(QPalette::Base));
}

TEST_F(BoardPanelTest, BadTextsPassAsTyped) {
    QTest::keyClick(&tote(1), Qt::Key_A, Qt::ControlModifier);
    tote(1).setFocus();
    tote(1).insert(QString(1000000, 'x')); // a megabyte pasted
    EXPECT_EQ(255, tote(1).text().size());
    QTest::keyClick(&tote(1), Qt::Key_Return);
    EXPECT_EQ(std::string(255, 'x'), screen.tote[1]);
    tote(2).setFocus();
    tote(2).insert("4\n40");
    QTest::keyClick(&tote(2), Qt::Key_Return);
    EXPECT_EQ("4 40", screen.tote[2]);
    expectTheScreensTexts();
}

TEST_F(BoardPanelTest, IsNoHigherThanItsPlace) { EXPECT_LE(panel.minimumSizeHint().height(), 130); }

TEST_F(BoardPanelTest, ARaceButtonTellsThatItDropsWhatWasTyped) {
    QSignalSpy dropped{&panel, &BoardPanel::typingDropped};
    QTest::keyClicks(&box(4), "7");
    runner.run(CommandId::RaceButton, numberArgument(3));
    ASSERT_EQ(1, dropped.count());
    EXPECT_EQ(1, dropped.at(0).at(0).toInt());
    EXPECT_EQ("", card.raceOutcome(1, 5));

    type(tote(1), "4.40"); // race 3; the same race again drops it too
    runner.run(CommandId::RaceButton, numberArgument(3));
    ASSERT_EQ(2, dropped.count());
    EXPECT_EQ(3, dropped.at(1).at(0).toInt());

    type(tote(1), "4.40");
    runner.run(CommandId::RaceList, textArgument("RACE 2"));
    EXPECT_EQ(3, dropped.count());
}

TEST_F(BoardPanelTest, NothingIsToldWhereNothingIsLost) {
    QSignalSpy dropped{&panel, &BoardPanel::typingDropped};
    runner.run(CommandId::RaceButton, numberArgument(3));
    type(box(4), "7");
    runner.run(CommandId::Next);
    runner.run(CommandId::RaceButton, numberArgument(1));
    type(box(4), "2");
    runner.run(CommandId::Save);
    runner.run(CommandId::RaceButton, numberArgument(2));
    runner.run(CommandId::Command4, numberArgument(1)); // a scratch ranks the race anew
    runner.run(CommandId::EntryButton, numberArgument(2));
    runner.run(CommandId::Command3, numberArgument(2)); // so does another line
    runner.run(CommandId::RaceButton, numberArgument(3));
    EXPECT_EQ(0, dropped.count());
}

TEST_F(WindowTest, TheStatusBarTellsOfDroppedTyping) {
    startSampleCard();
    MainWindow window{appearance};
    ports.message = [](auto&, auto&) {}; // a load ends with one
    window.before().ask = [](auto&) { return goOnAnswer; };
    window.show();
    auto& first = child<QLineEdit>(window, "Box4");
    QTest::keyClicks(&first, "7");
    click(child<QAbstractButton>(window, "RaceButton2"));
    EXPECT_EQ("What was typed for race 1 was not kept: leave a race with the arrows to keep it",
              window.statusBar()->currentMessage());
}

} // namespace
} // namespace quillon
