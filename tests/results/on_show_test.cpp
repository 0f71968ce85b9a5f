#include "results/on_show.h"

#include "card/columns.h"
#include "reports/card_overview.h"
#include "screen/race_views.h"
#include "screen/view_layouts.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

class OnShowTest : public CardTest {
protected:
    static void showRaceView(int race) { screen.raceViewVisible.at(static_cast<std::size_t>(race)) = true; }
    static Text& cell(int race, int row, int column) { return raceViewOf(race)(row, column).text; }
    static Text& lineCell(int row, int column) {
        return screen.dataView[pastPerformanceView](row, column).text;
    }
};

TEST_F(OnShowTest, TheEntriesAreThoseOfTheRaceOnShow) {
    screen.header.race = "7";
    showRaceView(3);
    showRaceView(7);
    showRaceView(22);
    EXPECT_EQ(7, raceViewOnShow());
}

TEST_F(OnShowTest, WhereTheRaceOnShowHasNoViewTheFirstThatIsUpIsShown) {
    screen.header.race = "24"; // beyond the views
    showRaceView(22);
    showRaceView(23);
    EXPECT_EQ(22, raceViewOnShow());
    screen.header.race = "7"; // its own view is put away
    EXPECT_EQ(22, raceViewOnShow());
}

TEST_F(OnShowTest, WithoutAnyViewUpTheFirstHoldsThePlace) {
    EXPECT_EQ(1, raceViewOnShow());
    screen.raceViewVisible[0] = true; // of no race
    EXPECT_EQ(1, raceViewOnShow());
}

TEST_F(OnShowTest, PastLinesAreThereForRaces1To23) {
    struct Case {
        const char* label;
        int race;
    };
    for (const auto& [label, race] :
         {Case{"", 0}, Case{"1A", 1}, Case{"23", 23}, Case{"24", 0}, Case{"-1", 0}}) {
        screen.header.race = label;
        EXPECT_EQ(race, raceLinesOnShow()) << label;
    }
}

TEST_F(OnShowTest, ARowHasTheNameOfItsHorseWithoutBlanks) {
    cell(4, 2, RaceColumn::horseName) = " Corner Boy  ";
    cell(4, 3, RaceColumn::horseName) = "   ";
    EXPECT_EQ("Corner Boy", horseIn(4, 2));
    EXPECT_EQ("", horseIn(4, 3));
    EXPECT_EQ("", horseIn(4, 0)) << "the head";
    EXPECT_EQ("", horseIn(4, raceViewRows)) << "after the last row";
    EXPECT_EQ("", horseIn(0, 2)) << "no race";
    EXPECT_EQ("", horseIn(24, 2)) << "a race without a view";
}

// A save takes back columns 6 to 29, Class to F, and column 32, the rating; all others would come back as they
// were, and a typed rating would move no selection.
TEST_F(OnShowTest, OnlyCellsThatAreKeptAndMoveNoRatingAreTypedIn) {
    cell(4, 2, RaceColumn::horseName) = "Corner Boy";
    for (int column = 0; column < RaceColumn::count; ++column)
        EXPECT_EQ(column >= 6 && column <= 29, mayTypeCell(4, 2, column)) << column;
    EXPECT_FALSE(mayTypeCell(4, 3, RaceColumn::classText)) << "a row without a horse";
}

TEST_F(OnShowTest, TheDriverListIsForAnEntryOfTheRaceOnShow) {
    screen.header.race = "4";
    screen.driverRow = 2;
    cell(4, 2, RaceColumn::horseName) = "Corner Boy ";
    cell(4, 2, RaceColumn::driver) = "Rosario, I ";
    const auto change = driverChange();
    ASSERT_TRUE(change);
    EXPECT_EQ(4, change->race);
    EXPECT_EQ("Corner Boy", change->horse);
    EXPECT_EQ("Rosario, I", change->driver);

    screen.driverRow = 0;
    EXPECT_FALSE(driverChange()) << "asked for no entry";
    screen.driverRow = 2;
    screen.header.race = "24";
    EXPECT_FALSE(driverChange()) << "a race without a view";
}

TEST_F(OnShowTest, APastLineIsTakenByTheNumberInItsRow) {
    lineCell(2, DataColumn::lineNumber) = " 17 ";
    EXPECT_EQ("17", lineNumberIn(2));
    EXPECT_EQ("", lineNumberIn(3)) << "no line";
    lineCell(0, DataColumn::lineNumber) = "Line #";
    EXPECT_EQ("", lineNumberIn(0)) << "the head";
    EXPECT_EQ("", lineNumberIn(dataViewRows)) << "after the last row";
}

TEST_F(OnShowTest, ALineIsInUseOrTakenOrPassedOver) {
    const LineInUse programs{.row = 3, .byUser = false, .programsRow = 3};
    EXPECT_EQ(LineUse::inUse, useOf(3, programs));
    EXPECT_EQ(LineUse::none, useOf(1, programs));

    const LineInUse users{.row = 1, .byUser = true, .programsRow = 3};
    EXPECT_EQ(LineUse::taken, useOf(1, users));
    EXPECT_EQ(LineUse::passedOver, useOf(3, users));
    EXPECT_EQ(LineUse::none, useOf(2, users));
}

TEST_F(OnShowTest, LinesAreShadedWhereADateIs) {
    Grid& lines = screen.dataView[pastPerformanceView];
    lineCell(2, DataColumn::date) = "20260301";
    lines(0, DataColumn::date).background = recentYellow;
    EXPECT_FALSE(hasShadedLines(lines)) << "the head counts for nothing";
    lines(2, DataColumn::date).background = olderCyan;
    EXPECT_TRUE(hasShadedLines(lines));
}

TEST(ViewHints, EveryHeadIsToldInPlainWords) {
    const ViewLayout layouts[] = {raceLayout(),    raceLinesLayout(), summaryLayout(),
                                  profileLayout(), tracksLayout(),    sizesLayout(),
                                  picksLayout(),   starsLayout(),     overviewLayout()};
    int heads = 0;
    for (const ViewLayout& layout : layouts)
        for (const ViewColumn& column : layout.columns) {
            if (column.width == 0 || column.head.empty()) continue;
            ++heads;
            EXPECT_GT(column.hint.size(), column.head.size()) << column.head;
        }
    EXPECT_GT(heads, 100);
}

// Thirteen horses, of which twelve have a row; an index without a horse holds its place only.
TEST_F(OnShowTest, AllHorsesOfARaceAreCountedBeyondTheTwelfthToo) {
    for (int index = 1; index <= 14; ++index) card.entry(4, index).horseName = index == 2 ? " " : "Horse";
    EXPECT_EQ(13, horsesIn(4));
    EXPECT_EQ(0, horsesIn(5));
    EXPECT_EQ(0, horsesIn(0));
    EXPECT_EQ(0, horsesIn(31));
}

} // namespace
} // namespace quillon
