#include "screen/view_layouts.h"

#include "card/race_card.h"
#include "screen/view_columns.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillon {
namespace {

/// Heads of the columns that a layout shows, from left to right.
std::vector<Text> headsOf(const ViewLayout& layout) {
    std::vector<Text> heads;
    for (const ViewColumn& column : layout.columns.subspan(static_cast<std::size_t>(layout.firstColumn)))
        if (column.width > 0) heads.emplace_back(column.head);
    return heads;
}

Align alignOf(std::span<const ViewColumn> columns, int column) {
    return columns[static_cast<std::size_t>(column)].align;
}

TEST(ViewLayoutsTest, ARaceShowsTheTwelveEntriesThatAreRated) {
    EXPECT_EQ(12, raceLayout().lastRow);
    EXPECT_EQ("ENTRY", headsOf(raceLayout()).front());
    EXPECT_EQ("PR", headsOf(raceLayout()).back());
}

TEST(ViewLayoutsTest, InARaceNumbersStandAtTheRightTextsAtTheLeftAndTheProgramNumberInTheMiddle) {
    const auto columns = raceColumns();
    for (const int number :
         {RaceColumn::morningOdds, RaceColumn::purse, RaceColumn::classRating, RaceColumn::leaderHalf,
          RaceColumn::finalTime, RaceColumn::udr, RaceColumn::rating})
        EXPECT_EQ(Align::right, alignOf(columns, number)) << number;
    for (const int text :
         {RaceColumn::horseName, RaceColumn::track, RaceColumn::classText, RaceColumn::driver})
        EXPECT_EQ(Align::left, alignOf(columns, text)) << text;
    EXPECT_EQ(Align::centre, alignOf(columns, RaceColumn::programNumber));
}

TEST(ViewLayoutsTest, AnEntrysLinesLeaveAwayTheNamesThatTheLinesOfTheRaceShow) {
    const auto all = headsOf(raceLinesLayout());
    const auto ofEntry = headsOf(entryLinesLayout());
    ASSERT_EQ(all.size() - 1, ofEntry.size());
    EXPECT_EQ("", all.front()); // the names
    EXPECT_EQ("Date", ofEntry.front());
}

TEST(ViewLayoutsTest, OfTheSummaryTheTwoRowsOfTotalsAreBold) {
    const RowRange bold = summaryLayout().boldRows;
    EXPECT_FALSE(bold.contains(20));
    EXPECT_TRUE(bold.contains(21));
    EXPECT_TRUE(bold.contains(22));
    EXPECT_FALSE(bold.contains(23));
    EXPECT_FALSE(raceLayout().boldRows.contains(1)) << "nothing is where nothing is said";
}

TEST(ViewLayoutsTest, TracksAndSizesAreTwoPartsOfOneTable) {
    EXPECT_EQ((std::vector<Text>{"TRACK", "RACES", "WINS", "PCT"}), headsOf(tracksLayout()));
    EXPECT_EQ((std::vector<Text>{"SIZE", "RACES", "WINS", "PCT"}), headsOf(sizesLayout()));
}

TEST(ViewLayoutsTest, OfEveryTableTheFirstColumnIsInSight) {
    for (const auto& layout :
         {raceLayout(), raceLinesLayout(), entryLinesLayout(), summaryLayout(), profileLayout(),
          tracksLayout(), sizesLayout(), picksLayout(), starsLayout()}) {
        ASSERT_LT(static_cast<std::size_t>(layout.firstColumn), layout.columns.size());
        EXPECT_GT(layout.columns[static_cast<std::size_t>(layout.firstColumn)].width, 0);
    }
}

} // namespace
} // namespace quillon
