#include "desktop/stars_window.h"

#include "desktop/shown_text.h"
#include "desktop/window_test.h"
#include "screen/view_columns.h"

#include <array>

namespace quillon {
namespace {

/// A race as it is recorded: margin 5.2 and morning line 5/2.
Text starLine(const Text& race, const Text& payoff) {
    Text line = Text(15, ' ') + " " + race + " " + Text(6, ' ') + " 5.2 " + Text(4, ' ') + " 2.50" +
                "   5/2" + Text(6, ' ') + "12.00";
    if (!payoff.empty()) line += "      " + payoff + "  1";
    return line + "\r\n";
}

class StarsWindowTest : public WindowTest {
protected:
    StarsWindowTest() {
        put("Stars5.ini", "M1_20260314\r\n" + starLine("1", "43.20") + starLine("2", ""));
        QObject::connect(&runner, &CommandRunner::ran, &window, [this] { window.refresh(); });
        runner.run(CommandId::Star);
    }

    PickList& list(const QString& command) { return child<PickList>(window, command); }
    QPushButton& button(const QString& command) { return child<QPushButton>(window, command + "Button"); }
    QString field(int n) { return child<QLineEdit>(window, QString{"Text%1"}.arg(n)).text(); }

    void clickLine(const QString& command, const QString& line) {
        PickList& lines = list(command);
        const auto found = lines.findItems(line, Qt::MatchExactly);
        ASSERT_EQ(1, found.size()) << line.toStdString();
        lines.scrollToItem(found.front());
        QTest::mouseClick(lines.viewport(), Qt::LeftButton, {}, lines.visualItemRect(found.front()).center());
    }

    void expectTableShowsTheScreen() {
        const auto& view = child<CellTableView>(window, "StarsTable");
        ASSERT_EQ(screen.stars.rows() - 1, view.model()->rowCount());
        for (int row = 1; row < screen.stars.rows(); ++row)
            for (int column = 0; column < screen.stars.columns(); ++column)
                EXPECT_EQ(quillon::shown(screen.stars.text(row, column)),
                          view.model()->index(row - 1, column).data(Qt::EditRole).toString())
                    << row << ", " << column;
    }

    StarsWindow window{runner, appearance};
};

TEST_F(StarsWindowTest, OpensWithEveryLineAndTheFirstListAlone) {
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(window.isWindow());
    EXPECT_EQ("Stars Profile", window.windowTitle());
    EXPECT_EQ(3, child<CellTableView>(window, "StarsTable").model()->rowCount());
    expectTableShowsTheScreen();
    const auto& table = child<CellTableView>(window, "StarsTable");
    EXPECT_EQ("2.50 ", screen.stars.text(2, StarColumn::decimalOdds));
    EXPECT_EQ("2.50", table.model()->index(1, StarColumn::decimalOdds).data().toString())
        << "digits below digits";
    EXPECT_EQ("Margin", button("MarginChoice").text());
    EXPECT_EQ("Odds", button("OddsChoice").text());
    EXPECT_EQ("Max Odds", button("MaxOddsChoice").text());
    EXPECT_TRUE(list("MarginChoice").isVisible());
    EXPECT_FALSE(list("OddsChoice").isVisible());
    EXPECT_FALSE(list("MaxOddsChoice").isVisible());
    EXPECT_EQ(7, list("MarginChoice").count());
    for (int n = 1; n <= 8; ++n) EXPECT_EQ("", field(n)) << n;
}

TEST_F(StarsWindowTest, EachChoiceOpensTheNextListAndTheLastFillsTheFields) {
    clickLine("MarginChoice", "$$$$$");
    EXPECT_EQ("$$$$$", button("MarginChoice").text());
    EXPECT_TRUE(list("OddsChoice").isVisible());
    EXPECT_FALSE(list("MaxOddsChoice").isVisible());
    clickLine("OddsChoice", "5/2");
    EXPECT_EQ("5/2", button("OddsChoice").text());
    EXPECT_TRUE(list("MaxOddsChoice").isVisible());
    EXPECT_EQ(19, list("MaxOddsChoice").count());
    clickLine("MaxOddsChoice", "10/1");
    expectTableShowsTheScreen();
    EXPECT_EQ(3, screen.stars.rows()); // the head and two races
    for (int n = 1; n <= 8; ++n)
        EXPECT_EQ(quillon::shown(screen.starsFields[static_cast<std::size_t>(n)]), field(n)) << n;
    EXPECT_EQ("2", field(1));
    EXPECT_EQ("1", field(2));
}

TEST_F(StarsWindowTest, TheKeysAloneGoThroughTheLists) {
    QTest::keyClick(&list("MarginChoice"), Qt::Key_End);
    QTest::keyClick(&list("MarginChoice"), Qt::Key_Up); // ALL Margins, above EXIT
    EXPECT_EQ("Margin", button("MarginChoice").text()) << "walking picks nothing";
    QTest::keyClick(&list("MarginChoice"), Qt::Key_Return);
    EXPECT_EQ("ALL Margins", button("MarginChoice").text());
    EXPECT_EQ(&list("OddsChoice"), window.focusWidget());
    QTest::keyClick(&list("OddsChoice"), Qt::Key_Return);
    EXPECT_EQ("1/1", button("OddsChoice").text());
    EXPECT_EQ(&list("MaxOddsChoice"), window.focusWidget());
    QTest::keyClick(&list("MaxOddsChoice"), Qt::Key_Enter);
    EXPECT_EQ("0", field(1)); // no race at even money
}

TEST_F(StarsWindowTest, AListThatWasLeftIsOpenedAgainByItsButton) {
    clickLine("MarginChoice", "ALL Margins");
    clickLine("OddsChoice", "EXIT");
    EXPECT_FALSE(list("OddsChoice").isVisible());
    EXPECT_EQ("Odds", button("OddsChoice").text());
    click(button("OddsChoice"));
    EXPECT_TRUE(list("OddsChoice").isVisible());
    EXPECT_EQ("ALL Margins", button("MarginChoice").text());
    EXPECT_EQ(50, screen.marginChoice);

    clickLine("MarginChoice", "EXIT");
    EXPECT_FALSE(list("MarginChoice").isVisible());
    click(button("MarginChoice")); // the first list opens with the profile
    EXPECT_TRUE(list("MarginChoice").isVisible());
    EXPECT_FALSE(list("OddsChoice").isVisible());
}

TEST_F(StarsWindowTest, AListIsNotOpenedBeforeTheChoiceInFrontOfIt) {
    EXPECT_FALSE(button("OddsChoice").isEnabled());
    EXPECT_FALSE(button("MaxOddsChoice").isEnabled());
    clickLine("MarginChoice", "$");
    EXPECT_TRUE(button("OddsChoice").isEnabled());
    EXPECT_FALSE(button("MaxOddsChoice").isEnabled());
}

TEST_F(StarsWindowTest, StartingOverShowsAllRacesAgain) {
    clickLine("MarginChoice", "$");
    clickLine("OddsChoice", "1/1");
    clickLine("MaxOddsChoice", "1/1");
    EXPECT_EQ(0, child<CellTableView>(window, "StarsTable").model()->rowCount());
    EXPECT_FALSE(child<CellTableView>(window, "StarsTable").isColumnHidden(0));
    click(child<QPushButton>(window, "StarsStartOver"));
    EXPECT_EQ(3, child<CellTableView>(window, "StarsTable").model()->rowCount());
    EXPECT_EQ("", field(1));
    EXPECT_EQ(&list("MarginChoice"), window.focusWidget());
}

TEST_F(StarsWindowTest, FieldsCanBeReadAndCopiedButNotTypedInto) {
    for (int n = 1; n <= 8; ++n) {
        auto& line = child<QLineEdit>(window, QString{"Text%1"}.arg(n));
        EXPECT_TRUE(line.isReadOnly());
        EXPECT_FALSE(line.accessibleName().isEmpty());
    }
}

TEST_F(StarsWindowTest, ClosingGoesBackToTheMainScreen) {
    window.close();
    EXPECT_FALSE(screen.starsVisible);
    EXPECT_TRUE(screen.racePanelsVisible);
    EXPECT_FALSE(window.isVisible());
    runner.run(CommandId::Star);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(&list("MarginChoice"), window.focusWidget());
}

TEST_F(StarsWindowTest, AnotherAnalysisViewClosesTheWindow) {
    runner.run(CommandId::Pick3Results);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(screen.picksVisible);
}

TEST_F(StarsWindowTest, ItStaysWhileACommandWaits) {
    bool closed = true;
    ports.progress = [&](double) {
        closed = window.close();
        return true;
    };
    Text many = "M1_20260314\r\n"; // long enough for the work to tell how far it is
    for (int n = 0; n < 200'000; ++n) many += starLine("1", "43.20");
    put("Stars5.ini", many);
    runner.run(CommandId::Star);
    EXPECT_FALSE(closed);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(screen.starsVisible);
    EXPECT_EQ(200'001, child<CellTableView>(window, "StarsTable").model()->rowCount());
}

} // namespace
} // namespace quillon
