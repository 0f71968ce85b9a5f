// Chances and fair odds of the race on show, tonight's odds beside them, and how good the fit is.
#include "desktop/worth_panel.h"

#include "analysis/worth_texts.h"
#include "card/columns.h"
#include "desktop/main_window_test.h"
#include "support/season.h"

#include <QDockWidget>

namespace quillon {
namespace {

class WorthPanelTest : public MainWindowTest {
protected:
    enum Column { number, horse, chance, fair, morningLine, tonight, mark };

    QTableWidget& table() { return child<QTableWidget>(*window, "WorthTable"); }
    std::string cell(int row, int column) { return table().item(row, column)->text().toStdString(); }
    std::string quality() { return child<QLabel>(*window, "WorthQuality").text().toStdString(); }
    QSpinBox& margin() { return child<QSpinBox>(*window, "OverlayMargin"); }
    void type(int row, const char* odds) { table().item(row, tonight)->setText(odds); }
    void openAfterASeason() {
        startInWindow();
        putSeason(20260314, 0.4, 12, 10);
        pressKeys("Shift+F6");
    }
};

TEST_F(WorthPanelTest, ItIsReadWhenItIsOpened) {
    startInWindow();
    EXPECT_EQ(0, table().rowCount());
    pressKeys("Shift+F6");
    EXPECT_TRUE(child<QDockWidget>(*window, "WorthDock").isVisible());
    EXPECT_GT(table().rowCount(), 4);
    pressKeys("Shift+F6");
    EXPECT_FALSE(child<QDockWidget>(*window, "WorthDock").isVisible());
}

TEST_F(WorthPanelTest, TooFewRacesShowNoChance) {
    startInWindow();
    putSeason(20260314, 0.4, 3, 10);
    pressKeys("Shift+F6");
    EXPECT_EQ("30 races with results in the saved cards: too few for chances, which need 100.", quality());
    for (int row = 0; row < table().rowCount(); ++row) {
        EXPECT_EQ("", cell(row, chance));
        EXPECT_EQ("", cell(row, fair));
        EXPECT_NE("", cell(row, horse));
    }
}

TEST_F(WorthPanelTest, ARaceShowsChancesBesideTheMorningLine) {
    openAfterASeason();
    SavedFit saved;
    ASSERT_TRUE(saved.fit().scale);
    const auto rows = worthOf(1, saved.fit().scale->perPoint);
    ASSERT_EQ(static_cast<int>(rows.size()), table().rowCount());
    for (int row = 0; row < table().rowCount(); ++row) {
        const WorthRow& entry = rows[static_cast<std::size_t>(row)];
        EXPECT_EQ(entry.programNumber, cell(row, number));
        EXPECT_EQ(entry.morningLine, cell(row, morningLine));
        if (!entry.chance) continue;
        EXPECT_EQ(percentText(*entry.chance) + " %", cell(row, chance));
        EXPECT_EQ(oddsText(fairOdds(*entry.chance)), cell(row, fair));
    }
    EXPECT_TRUE(quality().starts_with("120 races of 12 cards; log loss ")) << quality();
    EXPECT_NE(std::string::npos, quality().find(", morning line ")) << quality();
}

TEST_F(WorthPanelTest, AScratchLeavesTheTable) {
    openAfterASeason();
    const int before = table().rowCount();
    const std::string first = cell(0, number);
    answers = {"Yes"};
    click(child<QAbstractButton>(*window, "ScratchButton1"));
    EXPECT_EQ(before - 1, table().rowCount());
    EXPECT_NE(first, cell(0, number));
}

// Fair odds of f, a margin of 20%: 2f is an overlay, 1.1f is none until the margin is 0.
TEST_F(WorthPanelTest, AnOverlayHasASignAndAWord) {
    openAfterASeason();
    margin().setValue(20);
    const double odds = std::stod(cell(0, fair));
    type(0, std::to_string(2 * odds).c_str());
    EXPECT_EQ("\xE2\x96\xB2 overlay", cell(0, mark));
    EXPECT_TRUE(table().item(0, horse)->font().bold());
    type(0, std::to_string(1.1 * odds).c_str());
    EXPECT_EQ("", cell(0, mark));
    EXPECT_FALSE(table().item(0, horse)->font().bold());
    margin().setValue(0);
    EXPECT_EQ("\xE2\x96\xB2 overlay", cell(0, mark));
    type(0, "even");
    EXPECT_EQ("no odds", cell(0, mark));
    type(0, "");
    EXPECT_EQ("", cell(0, mark));
}

TEST_F(WorthPanelTest, TheMarginIsKeptForTheNextRun) {
    openAfterASeason();
    margin().setValue(35);
    openWindow();
    EXPECT_EQ(35, margin().value());
}

TEST_F(WorthPanelTest, TonightsOddsStayWithTheirRaceAndOutOfTheCardsFile) {
    openAfterASeason();
    type(1, "77/1");
    pressKeys("Alt+Right");
    EXPECT_EQ("", cell(1, tonight));
    pressKeys("Alt+Left");
    EXPECT_EQ("77/1", cell(1, tonight));
    choose("Save");
    EXPECT_EQ(std::string::npos, contentOf("A Quillon PRO/Race Cards/MVR_20260314.pmd").find("77/1"));
    EXPECT_EQ("20260314\tMVR_20260314\tOdds of race 1, number 2\t77/1\r\n", contentOf("Notes.txt"));
}

TEST_F(WorthPanelTest, OddsAreTypedWithTheKeysAlone) {
    window->resize(1700, 900); // room for both in one window
    openAfterASeason();
    table().setFocus();
    table().setCurrentCell(0, tonight);
    QTest::keyClick(&table(), Qt::Key_9);
    QTest::keyClick(table().findChild<QLineEdit*>(), Qt::Key_Return);
    QApplication::processEvents(); // what was typed is handed in later
    EXPECT_EQ("9", cell(0, tonight));
    table().setFocus();
    QTest::keyClick(&table(), Qt::Key_Tab);
    EXPECT_EQ(&margin(), QApplication::focusWidget());
}

TEST_F(WorthPanelTest, LookingAddsNoFault) {
    startInWindow();
    const auto before = journal.count();
    pressKeys("Shift+F6");
    EXPECT_EQ(before, journal.count());
}

// --- In a sentence --------------------------------------------------------------------------------------------

Fit fitWith(const LogLoss& loss) {
    return {.races = 412, .cards = 38, .scale = RatingScale{0.3, 0.02}, .loss = loss};
}

TEST(Quality, TellsAllThreeLosses) {
    EXPECT_EQ("412 races of 38 cards; log loss 1.61, all equal 2.01, morning line 1.70 (less is better).",
              qualityOf(fitWith({1.61, 2.01, 412, 412, 1.70, 1.61})).toStdString());
}

TEST(Quality, TellsWhereTheMorningLineIsNotWhole) {
    EXPECT_EQ(
        "412 races of 38 cards; log loss 1.61, all equal 2.01; morning line 1.70 on the 380 that have one, "
        "log loss there 1.60 (less is better).",
        qualityOf(fitWith({1.61, 2.01, 412, 380, 1.70, 1.60})).toStdString());
    EXPECT_EQ("412 races of 38 cards; log loss 1.61, all equal 2.01 (less is better).",
              qualityOf(fitWith({1.61, 2.01, 412, 0, 0, 0})).toStdString());
}

TEST(Quality, WarnsWhereTheRatingsTellNothing) {
    const auto ends = [](const Fit& fit, const char* words) {
        return qualityOf(fit).endsWith(QString{words});
    };
    EXPECT_TRUE(ends(fitWith({2.02, 2.01, 412, 412, 1.70, 2.02}),
                     "The ratings told no more than equal chances: don't trust these."));
    EXPECT_TRUE(
        ends(fitWith({1.71, 2.01, 412, 412, 1.70, 1.71}), "The morning line told more than the ratings."));
    EXPECT_EQ("412 races, and no scale fits them: they tell the ratings' worth in no way.",
              qualityOf({.races = 412, .cards = 38}).toStdString());
    EXPECT_EQ("1 race with results in the saved cards: too few for chances, which need 100.",
              qualityOf({.races = 1, .cards = 1}).toStdString());
}

} // namespace
} // namespace quillon
