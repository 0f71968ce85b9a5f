#include "results/entry_marks.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "results/on_show.h"
#include "screen/race_views.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

/// Race 4 of a loaded card, with Corner Boy as number 7 in row 2, driven by driver 3.
class EntryMarksTest : public CardTest {
protected:
    static constexpr int race = 4;
    static constexpr int row = 2;

    EntryMarksTest() {
        screen.mode = CardMode::loaded;
        card.raceCount = 6;
        card.raceInfo[{race}].trackCode = "M1";
        card.driverTable[{3}].name = "Doe, J";
        RaceEntry& entry = card.entry[{race, row}];
        entry.horseName = "Corner Boy";
        entry.programNumber = "  7";
        entry.driverNumber = 3;
        entry.driverName = "Doe, J";
        entry.chosenDriver = "Doe, J ";
        raceViewOf(race)(row, RaceColumn::horseName).text = "Corner Boy";
        cell(RaceColumn::classRating) = "NA"; // as a load writes it of a line that has none
    }

    static EntryMarks marks() { return entryMarks(race, row); }
    static void rank(int outcomeCell) { card.raceOutcome[{race, outcomeCell}] = "  7"; }
    static Text& cell(int column) { return raceViewOf(race)(row, column).text; }

    /// Row 5 of the race's past lines, taken for the entry.
    static void takeLine() {
        Grid& lines = dataViewOf(race);
        lines(5, DataColumn::classText).text = "NW4000";
        lines(5, DataColumn::leaderFinish).text = "1:54.3";
        cell(RaceColumn::classText) = "NW4000";
        cell(RaceColumn::leaderFinish) = "1:54.3";
        cell(RaceColumn::classRating).clear();
        screen.lineTaken[{race, row}] = 5;
    }
};

TEST_F(EntryMarksTest, AnEntryAsLoadedHasNone) {
    EXPECT_EQ(EntryMarks{}, marks());
    EXPECT_FALSE(isChanged(race));
}

TEST_F(EntryMarksTest, ARowWithoutAHorseHasNone) {
    screen.lineTaken[{race, 3}] = takenOut;
    EXPECT_EQ(EntryMarks{}, entryMarks(race, 3));
    EXPECT_EQ(EntryMarks{}, entryMarks(0, row));
    EXPECT_EQ(EntryMarks{}, entryMarks(24, row)) << "a race without a view";
    EXPECT_EQ(EntryMarks{}, entryMarks(race, 13)) << "an entry that is not rated";
}

TEST_F(EntryMarksTest, ThePlaceIsThatOfItsNumberAmongTheSelections) {
    struct Case {
        int cell;
        int place;
    };
    for (const auto& [outcome, place] : {Case{1, 1}, Case{2, 2}, Case{3, 3}, Case{4, 4}, Case{9, 5}}) {
        card.raceOutcome.clear();
        rank(outcome);
        EXPECT_EQ(place, marks().place) << outcome;
    }
    card.raceOutcome.clear();
    rank(OutcomeCell::r1);
    EXPECT_EQ(0, marks().place) << "the winner is no selection";
    EXPECT_FALSE(marks().isChanged());
}

TEST_F(EntryMarksTest, AnEntryThatIsOutIsScratchedOrRemovedByItsTrack) {
    screen.lineTaken[{race, row}] = takenOut;
    cell(RaceColumn::track) = "Scr";
    EXPECT_TRUE(marks().scratched);
    EXPECT_FALSE(marks().removed);
    cell(RaceColumn::track) = "X";
    EXPECT_FALSE(marks().scratched);
    EXPECT_TRUE(marks().removed);
    EXPECT_TRUE(marks().isOut());
    EXPECT_TRUE(isChanged(race));
}

TEST_F(EntryMarksTest, ARecalledCardKnowsTheScratchedByTheirRefunds) {
    screen.mode = CardMode::recalled;
    card.entry[{race, row}].rating = " 99.9";
    card.payoffRecord[{race, PayoffCell::refunds}] = " 5 17";
    EXPECT_FALSE(marks().scratched) << "17 is not 7";
    card.payoffRecord[{race, PayoffCell::refunds}] = " 5 7";
    EXPECT_TRUE(marks().scratched);
    card.entry[{race, row}].rating = " 61.5";
    EXPECT_FALSE(marks().scratched);
}

TEST_F(EntryMarksTest, AnotherDriverThanTheCardsIsMarkedWithTheOneBefore) {
    card.entry[{race, row}].chosenDriver = "Rosario, I";
    EXPECT_TRUE(marks().driverChanged);
    EXPECT_EQ("Doe, J", marks().driverBefore);
    screen.mode = CardMode::recalled; // which has no drivers of its own
    EXPECT_FALSE(marks().driverChanged);
}

TEST_F(EntryMarksTest, ALineThatTheUserTookIsMarkedUnlessItIsTheProgramsOwn) {
    takeLine();
    EXPECT_TRUE(marks().lineTaken);
    EXPECT_TRUE(marks().typedColumns.empty());
    Grid& lines = dataViewOf(race);
    std::array<TextView, lineCellColumns> kept;
    lines(5, DataColumn::lineNumber).text = "5";
    kept[DataColumn::lineNumber] = "5";
    card.lineCells.writeLine(60, kept);
    card.entry[{race, row}].chosenLineNumber = 60;
    EXPECT_FALSE(marks().lineTaken);
}

TEST_F(EntryMarksTest, ATypedCellIsOneThatDiffersFromTheLine) {
    takeLine();
    cell(RaceColumn::leaderFinish) = "1:53.0";
    EXPECT_EQ(std::vector<int>{RaceColumn::leaderFinish}, marks().typedColumns);
    cell(RaceColumn::leaderFinish) = "1:54.3 ";
    EXPECT_TRUE(marks().typedColumns.empty()) << "blanks at the end are no change";
}

TEST_F(EntryMarksTest, AFirstStartIsKnownByTheFieldsNamesAndNotTypedIn) {
    EXPECT_FALSE(isFirstStart(race, row));
    cell(RaceColumn::leaderQuarter) = "LEAD_TM_1Q";
    EXPECT_TRUE(isFirstStart(race, row));
    EXPECT_FALSE(isFirstStart(race, 3)) << "no horse";
    EXPECT_FALSE(mayTypeCell(race, row, RaceColumn::leaderQuarter));
}

} // namespace
} // namespace quillon
