// Tickets put together by check boxes, their cost, and the slip.
#include "desktop/tickets_panel.h"

#include "analysis/ticket_words.h"
#include "card/columns.h"
#include "desktop/main_window_test.h"
#include "desktop/ticket_builder.h"
#include "desktop/ticket_slip.h"

#include <QClipboard>
#include <QDockWidget>

#include <set>

namespace quillon {
namespace {

class TicketsPanelTest : public MainWindowTest {
protected:
    QTableWidget& boxes() { return child<QTableWidget>(*window, "TicketBoxes"); }
    QTableWidget& slip() { return child<QTableWidget>(*window, "TicketSlip"); }
    std::string cost() { return child<QLabel>(*window, "TicketCost").text().toStdString(); }
    std::string total() { return child<QLabel>(*window, "TicketTotal").text().toStdString(); }
    TicketBuilder& builder() { return *window->findChild<TicketBuilder*>(); }
    QDoubleSpinBox& stake() { return child<QDoubleSpinBox>(*window, "TicketStake"); }

    void open() {
        startInWindow();
        pressKeys("Shift+F7");
    }
    void choosePool(Pool pool) {
        child<QComboBox>(*window, "TicketType").setCurrentIndex(static_cast<int>(pool));
    }
    void check(int row, int column) { boxes().item(row, column)->setCheckState(Qt::Checked); }
    void press(const char* button) { child<QAbstractButton>(*window, button).click(); }
};

TEST_F(TicketsPanelTest, ATypeHasARowAPlaceOrLeg) {
    open();
    choosePool(Pool::trifecta);
    EXPECT_EQ(3, boxes().rowCount());
    EXPECT_EQ("2nd", boxes().verticalHeaderItem(1)->text().toStdString());
    EXPECT_EQ("Race 1", child<QLabel>(*window, "TicketRaces").text().toStdString());
    child<QCheckBox>(*window, "TicketBoxed").setChecked(true);
    EXPECT_EQ(1, boxes().rowCount());
    choosePool(Pool::pick4);
    EXPECT_EQ(4, boxes().rowCount());
    EXPECT_EQ("Race 3", boxes().verticalHeaderItem(2)->text().toStdString());
    EXPECT_EQ("Races 1 to 4", child<QLabel>(*window, "TicketRaces").text().toStdString());
    EXPECT_FALSE(child<QCheckBox>(*window, "TicketBoxed").isEnabled());
}

// First 1, second 2 or 3, third 2, 3 or 4: 1-2-3, 1-2-4, 1-3-2, 1-3-4 at 0.50.
TEST_F(TicketsPanelTest, TheCostIsToldAtOnce) {
    open();
    choosePool(Pool::trifecta);
    EXPECT_EQ("0 combinations, 0.00", cost());
    EXPECT_FALSE(child<QAbstractButton>(*window, "AddTicket").isEnabled());
    check(0, 0);
    for (const int column : {1, 2}) check(1, column);
    for (const int column : {1, 2, 3}) check(2, column);
    EXPECT_EQ("4 combinations, 8.00", cost());
    stake().setValue(0.50);
    EXPECT_EQ("4 combinations, 2.00", cost());
    EXPECT_TRUE(child<QAbstractButton>(*window, "AddTicket").isEnabled());
}

TEST_F(TicketsPanelTest, AScratchedEntryDropsOutWithAWord) {
    open();
    choosePool(Pool::exacta);
    check(0, 0);
    check(1, 1);
    check(1, 2);
    const std::string first = boxes().item(1, 1)->data(Qt::UserRole).toString().toStdString();
    answers = {"Yes"};
    click(child<QAbstractButton>(*window, "ScratchButton2"));
    EXPECT_EQ("1 combination, 2.00; scratched: " + first, cost());
    EXPECT_TRUE(boxes().item(1, 1)->text().endsWith("Scr"));
}

TEST_F(TicketsPanelTest, TheButtonsCheckSelectionsInTheRowAtWork) {
    open();
    choosePool(Pool::pick3);
    boxes().setCurrentCell(1, 0); // race 2
    press("TicketS1");
    press("TicketS3");
    const CardTicket made = builder().ticket();
    std::set<Text> picked{made.ticket.sets[1].begin(), made.ticket.sets[1].end()};
    EXPECT_EQ((std::set<Text>{Text{trimmed(card.raceOutcome(2, OutcomeCell::s1))},
                              Text{trimmed(card.raceOutcome(2, OutcomeCell::s3))}}),
              picked);
    EXPECT_TRUE(made.ticket.sets[0].empty());
    press("TicketS1");
    EXPECT_EQ(1U, builder().ticket().ticket.sets[1].size());
    press("TicketAll");
    EXPECT_EQ(fieldOf(2).size(), builder().ticket().ticket.sets[1].size());
    press("TicketNone");
    EXPECT_TRUE(builder().ticket().ticket.sets[1].empty());
}

TEST_F(TicketsPanelTest, AnotherRaceBeginsAnotherTicket) {
    open();
    check(0, 0);
    EXPECT_EQ("1 combination, 2.00", cost());
    pressKeys("Alt+Right");
    EXPECT_EQ("0 combinations, 0.00", cost());
    EXPECT_EQ("Race 2", child<QLabel>(*window, "TicketRaces").text().toStdString());
}

// Two win bets of 2.00 and one of 5.00 out of 8.00: 1.00 over; out of 20.00: 11.00 left.
TEST_F(TicketsPanelTest, TheSlipAddsUpAgainstTheBudget) {
    open();
    check(0, 0);
    check(0, 1);
    press("AddTicket");
    boxes().item(0, 1)->setCheckState(Qt::Unchecked);
    stake().setValue(5);
    press("AddTicket");
    ASSERT_EQ(2, slip().rowCount());
    EXPECT_EQ("Total 9.00", total());
    auto& budget = child<QDoubleSpinBox>(*window, "TicketBudget");
    budget.setValue(8);
    EXPECT_EQ("Total 9.00; 1.00 over the budget", total());
    budget.setValue(20);
    EXPECT_EQ("Total 9.00; 11.00 left", total());
    slip().setCurrentCell(0, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    press("RemoveTicket");
    ASSERT_EQ(1, slip().rowCount());
    EXPECT_EQ("5.00", slip().item(0, 5)->text().toStdString());
    EXPECT_EQ("Total 5.00; 15.00 left", total());
}

TEST_F(TicketsPanelTest, ASlipIsCopiedAndPrintedAsItStands) {
    open();
    check(0, 0);
    press("AddTicket");
    const std::string number = builder().ticket().ticket.sets[0][0];
    press("CopySlip");
    EXPECT_EQ("1\twin\t" + number + "\t2.00\t1\t2.00\nTotal 2.00",
              QApplication::clipboard()->text().toStdString());
    const PrintDocument document = window->findChild<QTableWidget*>("TicketSlip")->parentWidget()
                                       ? qobject_cast<TicketSlip*>(slip().parentWidget())->printDocument()
                                       : PrintDocument{};
    ASSERT_EQ(1U, document.sections.size());
    const auto& lines = document.sections[0];
    ASSERT_EQ(5U, lines.size());
    EXPECT_EQ("Tickets for MVR_20260314", lines[0].text.toStdString());
    EXPECT_EQ("1  win  " + number + "  2.00  1  2.00", lines[2].text.toStdString());
    EXPECT_EQ("Total 2.00", lines[4].text.toStdString());
    press("PrintSlip");
    auto* preview = window->findChild<PrintPreview*>();
    ASSERT_TRUE(preview);
    EXPECT_TRUE(preview->isVisible());
    preview->close();
}

// The sample's sheet has totals of 2, 8, 16, 24 and 4, and five orders of five places. The 8 is 2 x 2 x 2 with 1
// and 1A in its last leg, which are one horse to bet on: 4.
TEST_F(TicketsPanelTest, ThePickSheetsTicketsComeAtOnePress) {
    open();
    press("SheetTickets");
    std::vector<std::string> counts;
    counts.reserve(static_cast<std::size_t>(slip().rowCount()));
    for (int row = 0; row < slip().rowCount(); ++row)
        counts.push_back(slip().item(row, 4)->text().toStdString());
    EXPECT_EQ((std::vector<std::string>{"2", "4", "16", "24", "4", "1", "1", "1", "1", "1"}), counts);
    EXPECT_EQ("pick 3", slip().item(1, 1)->text().toStdString());
    EXPECT_EQ("2-4", slip().item(1, 0)->text().toStdString());
    EXPECT_EQ("high five", slip().item(5, 1)->text().toStdString());
    EXPECT_EQ("Total 110.00", total()); // 55 combinations at 2.00
}

TEST_F(TicketsPanelTest, SpaceChecksAnEntry) {
    open();
    boxes().setFocus();
    boxes().setCurrentCell(0, 0);
    QTest::keyClick(&boxes(), Qt::Key_Right);
    QTest::keyClick(&boxes(), Qt::Key_Space);
    EXPECT_EQ(Qt::Checked, boxes().item(0, 1)->checkState());
    QTest::keyClick(&boxes(), Qt::Key_Tab);
    EXPECT_NE(&boxes(), QApplication::focusWidget());
}

TEST_F(TicketsPanelTest, WithoutACardThereIsNothingToCheck) {
    pressKeys("Shift+F7");
    EXPECT_EQ("No race is on show", child<QLabel>(*window, "TicketRaces").text().toStdString());
    EXPECT_FALSE(child<QAbstractButton>(*window, "AddTicket").isEnabled());
    EXPECT_FALSE(child<QAbstractButton>(*window, "SheetTickets").isEnabled());
    press("TicketS1");
    press("TicketAll");
    EXPECT_EQ("0 combinations, 0.00", cost());
}

TEST_F(TicketsPanelTest, LookingAddsNoFault) {
    startInWindow();
    const auto before = journal.count();
    pressKeys("Shift+F7");
    press("SheetTickets");
    EXPECT_EQ(before, journal.count());
}

} // namespace
} // namespace quillon
