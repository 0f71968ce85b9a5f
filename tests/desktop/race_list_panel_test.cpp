#include "desktop/race_list_panel.h"

#include "desktop/shown_text.h"
#include "desktop/window_test.h"

#include <QSignalSpy>

namespace quillon {
namespace {

struct RaceListPanelTest : WindowTest {
    RaceListPanelTest() {
        QObject::connect(&runner, &CommandRunner::ran, &panel, &RaceListPanel::refresh);
        panel.resize(160, 500);
        panel.show();
    }

    QListWidget& list() { return child<QListWidget>(panel, "RaceList"); }

    QString text(int row) { return list().item(row)->text(); }

    RaceListPanel panel{runner, appearance};
};

TEST_F(RaceListPanelTest, ListsTheCardsRacesAndChecksTheOneOnShow) {
    panel.refresh();
    EXPECT_EQ(0, list().count());
    startSampleCard();
    ASSERT_EQ(static_cast<int>(screen.raceList.lines.size()), list().count());
    ASSERT_GT(list().count(), 2);
    EXPECT_TRUE(text(0).startsWith("RACE 1"));
    runner.run(CommandId::Next);
    EXPECT_EQ("RACE 1", text(0));
    EXPECT_EQ(QString{"RACE 2   %1 %2"}.arg(QChar{0x2713}, quillon::shown(screen.raceChecks[2].caption)),
              text(1));
    EXPECT_EQ("RACE 2, on show", list().item(1)->data(Qt::AccessibleTextRole).toString());
    EXPECT_EQ(1, list().currentRow());
}

TEST_F(RaceListPanelTest, ADoubleClickShowsTheRace) {
    startSampleCard();
    const QSignalSpy opened{&panel, &RaceListPanel::raceOpened};
    const QPoint place = list().visualItemRect(list().item(2)).center();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ("1", screen.header.race);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ("3", screen.header.race);
    EXPECT_EQ(1, opened.count());
}

TEST_F(RaceListPanelTest, EnterShowsTheRace) {
    startSampleCard();
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ("2", screen.header.race);
}

TEST_F(RaceListPanelTest, ARefreshLeavesTheRowThatTheUserIsOn) {
    startSampleCard();
    list().setCurrentRow(3);
    panel.refresh();
    EXPECT_EQ(3, list().currentRow());
}

TEST_F(RaceListPanelTest, ARaceWithoutACheckMarkIsListedAllTheSame) {
    screen.raceList.lines.clear();
    for (int race = 1; race <= 30; ++race) screen.raceList.lines.push_back("RACE " + std::to_string(race));
    panel.refresh();
    EXPECT_EQ("RACE 30", text(29));
}

} // namespace
} // namespace quillon
