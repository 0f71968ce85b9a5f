#include "desktop/choice_dialog.h"

#include "card/race_card.h"
#include "desktop/shown_text.h"
#include "desktop/window_test.h"

#include <QDate>
#include <QElapsedTimer>
#include <QLocale>
#include <QMainWindow>

#include <set>

namespace quillon {
namespace {

class ChoiceDialogTest : public WindowTest {
protected:
    ChoiceDialogTest() {
        window.show();
        QObject::connect(&runner, &CommandRunner::ran, &dialog, [this] { dialog.refresh(); });
    }

    QTreeView& list(const QString& command) { return child<QTreeView>(dialog, command); }
    QLineEdit& filter() { return child<QLineEdit>(dialog, "ChoiceFilter"); }
    QPushButton& waiting() { return child<QPushButton>(window, "ChoiceWaiting"); }

    static QString at(const QTreeView& view, int row, int column = 0) {
        return view.model()->index(row, column).data().toString();
    }
    static QStringList rows(const QTreeView& view) {
        QStringList texts;
        for (int row = 0; row < view.model()->rowCount(); ++row) texts << at(view, row);
        return texts;
    }

    void putCards() {
        for (const char* name : {"M1_20260314.pmd", "YR_20251231.pmd", "odd.pmd"})
            put(std::filesystem::path{"A Quillon PRO/Race Cards"} / name, "");
    }
    void openTracks() {
        put("TargetTracks.txt", "M1\r\nYR\r\nPHL\r\n");
        put("HRA.ini", "");
        runner.run(CommandId::Select);
    }
    void openDrivers() {
        startSampleCard();
        runner.run(CommandId::DriverColumn, numberArgument(2));
    }

    QMainWindow window;
    ChoiceDialog dialog{runner, appearance, &window};
};

// --- Saved cards -------------------------------------------------------------------------------------------

TEST_F(ChoiceDialogTest, SavedCardsShowTrackAndDateTheLatestFirst) {
    putCards();
    runner.run(CommandId::RecallRaceCard);
    QTreeView& cards = list("ChooseFile");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.isModal());
    EXPECT_EQ("Recall Race Card", dialog.windowTitle());
    EXPECT_TRUE(cards.isVisible());
    EXPECT_EQ((QStringList{"M1_20260314.pmd", "YR_20251231.pmd", "odd.pmd"}), rows(cards));
    EXPECT_EQ("M1", at(cards, 0, 1));
    EXPECT_EQ(QLocale{}.toString(QDate{2026, 3, 14}, "ddd d MMM yyyy"), at(cards, 0, 2));
    EXPECT_EQ("", at(cards, 2, 1)); // no name of a card's
    EXPECT_EQ("", at(cards, 2, 2));
}

TEST_F(ChoiceDialogTest, EnterPicksTheCardThatWasTypedFor) {
    startSampleCard();
    runner.run(CommandId::Save);
    const Text saved = card.cardFileName;
    runner.run(CommandId::CloseRC);
    putCards();
    runner.run(CommandId::RecallRaceCard);
    QTest::keyClicks(&filter(), quillon::shown(saved).left(8).toLower());
    EXPECT_EQ((QStringList{quillon::shown(saved)}), rows(list("ChooseFile")));
    QTest::keyClick(&filter(), Qt::Key_Return);
    EXPECT_EQ(saved, card.cardFileName);
    EXPECT_GT(card.raceCount, 0);
    EXPECT_FALSE(screen.fileList.visible);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(waiting().isVisible());
}

TEST_F(ChoiceDialogTest, ADoubleClickPicksTheLineUnderIt) {
    putCards();
    runner.run(CommandId::RecallRaceCard);
    QTreeView& cards = list("ChooseFile");
    const QPoint second = cards.visualRect(cards.model()->index(1, 0)).center();
    QTest::mouseClick(cards.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ("", card.cardFileName);
    QTest::mouseDClick(cards.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ("YR_20251231.pmd", card.cardFileName);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ChoiceDialogTest, AListOfCardsThatIsPutAsideWaitsInTheStatusBar) {
    putCards();
    runner.run(CommandId::RecallRaceCard);
    QTest::keyClick(&filter(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ("", card.cardFileName) << "nothing was picked";
    EXPECT_TRUE(waiting().isVisible());
    EXPECT_EQ("Recall Race Card...", waiting().text());
    dialog.refresh(); // as after any other command
    EXPECT_FALSE(dialog.isVisible());
    click(waiting());
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(waiting().isVisible());
    dialog.close();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(waiting().isVisible());
}

TEST_F(ChoiceDialogTest, AFolderWithoutCardsSaysSo) {
    runner.run(CommandId::RecallRaceCard);
    EXPECT_TRUE(child<QLabel>(dialog, "ChoiceEmpty").isVisible());
    EXPECT_FALSE(child<QPushButton>(dialog, "ChoicePick").isEnabled());
    QTest::keyClick(&filter(), Qt::Key_Return);
    EXPECT_EQ("", card.cardFileName);
}

TEST_F(ChoiceDialogTest, TenThousandCardsOpenAtOnce) {
    for (int n = 0; n < 10'000; ++n)
        screen.fileList.lines.push_back("TR" + std::to_string(n) + "_20260314.pmd");
    screen.fileList.visible = true;
    QElapsedTimer clock;
    clock.start();
    dialog.refresh();
    dialog.grab();
    QTest::keyClicks(&filter(), "9999");
    EXPECT_LT(clock.elapsed(), 6000); // also under the sanitizers, on a busy machine
    EXPECT_EQ((QStringList{"TR9999_20260314.pmd"}), rows(list("ChooseFile")));
}

// --- Tracks ------------------------------------------------------------------------------------------------

TEST_F(ChoiceDialogTest, TracksStandInTheirOwnOrderAndTheListStays) {
    openTracks();
    QTreeView& tracks = list("SelectTrack");
    EXPECT_EQ("Select Track", dialog.windowTitle());
    EXPECT_EQ((QStringList{"M1", "YR", "PHL", "---------------------", "EXIT"}), rows(tracks));
    QTest::keyClick(&filter(), Qt::Key_Down);
    QTest::keyClick(&filter(), Qt::Key_Return);
    EXPECT_TRUE(screen.profileVisible);
    EXPECT_TRUE(dialog.isVisible()) << "to look at one track after the other";
}

TEST_F(ChoiceDialogTest, TheRuleIsNoTrack) {
    openTracks();
    QTreeView& tracks = list("SelectTrack");
    const QPoint rule = tracks.visualRect(tracks.model()->index(3, 0)).center();
    QTest::mouseClick(tracks.viewport(), Qt::LeftButton, {}, rule);
    QTest::mouseDClick(tracks.viewport(), Qt::LeftButton, {}, rule);
    EXPECT_FALSE(screen.profileVisible);
    tracks.setCurrentIndex(tracks.model()->index(2, 0));
    QTest::keyClick(&tracks, Qt::Key_Down); // from the last track over the rule
    EXPECT_EQ("EXIT", tracks.currentIndex().data().toString());
}

TEST_F(ChoiceDialogTest, EscapePicksExitWhereTheListHasIt) {
    openTracks();
    QTest::keyClick(&filter(), Qt::Key_Escape);
    EXPECT_FALSE(screen.trackList.visible);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(waiting().isVisible());
}

TEST_F(ChoiceDialogTest, TheCloseControlPicksExitToo) {
    openTracks();
    dialog.close();
    EXPECT_FALSE(screen.trackList.visible);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ChoiceDialogTest, AListThatOpensLaterComesFirstAndTheOtherFollows) {
    openTracks();
    putCards();
    runner.run(CommandId::RecallRaceCard);
    EXPECT_EQ("Recall Race Card", dialog.windowTitle());
    EXPECT_FALSE(list("SelectTrack").isVisible());
    QTest::keyClick(&filter(), Qt::Key_Return);
    EXPECT_EQ("Select Track", dialog.windowTitle());
    EXPECT_TRUE(list("SelectTrack").isVisible());
}

// --- Drivers -----------------------------------------------------------------------------------------------

TEST_F(ChoiceDialogTest, ADriverIsTypedForAndPicked) {
    openDrivers();
    EXPECT_EQ("Change Driver", dialog.windowTitle());
    QTreeView& drivers = list("DriverChoice");
    ASSERT_EQ(static_cast<int>(screen.driverList.lines.size()), drivers.model()->rowCount());
    std::multiset<std::string> lines;
    std::multiset<std::string> listed;
    for (int row = 0; row < drivers.model()->rowCount(); ++row) {
        lines.insert(quillon::shown(screen.driverList.lines[static_cast<std::size_t>(row)]).toStdString());
        listed.insert(at(drivers, row).toStdString());
    }
    EXPECT_EQ(lines, listed);
    const QFontMetrics metrics{drivers.font()};
    EXPECT_EQ(metrics.horizontalAdvance("MMMM"), metrics.horizontalAdvance("ii.1")) << "fixed pitch";
    const QString whose = child<QLabel>(dialog, "ChoiceWhose").text();
    EXPECT_TRUE(whose.startsWith("Race 1: " + quillon::shown(screen.raceView[1].text(2, 0)).trimmed()))
        << whose.toStdString();

    const Text wanted = screen.driverList.lines[3];
    QTest::keyClicks(&drivers, quillon::shown(wanted).left(6)); // letters typed in the list go to the field
    EXPECT_EQ(quillon::shown(wanted).left(6), filter().text());
    QTest::keyClick(&filter(), Qt::Key_Return);
    EXPECT_EQ(wanted.substr(0, 15), screen.raceView[1].text(2, 30));
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(ChoiceDialogTest, ADriverStaysWhenTheListIsLeft) {
    openDrivers();
    const Text before = screen.raceView[1].text(2, 30);
    QTest::keyClick(&filter(), Qt::Key_Escape);
    EXPECT_FALSE(screen.driverList.visible);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(before, screen.raceView[1].text(2, 30));
}

TEST_F(ChoiceDialogTest, ATextThatIsNowhereInTheListPicksNothing) {
    openDrivers();
    QTest::keyClicks(&filter(), "nobody of this name");
    EXPECT_EQ(0, list("DriverChoice").model()->rowCount());
    QTest::keyClick(&filter(), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(screen.driverList.visible);
}

} // namespace
} // namespace quillon
