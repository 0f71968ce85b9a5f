#include "card/fields.h"
#include "day/close_load.h"
#include "support/card_test.h"

namespace quillon {
namespace {

class PrintWidthsTest : public CardTest {};

struct LineCellRow {
    Text PastLine::*cell;
    const char* raw;
    const char* wide;
    const char* ofEmpty;
};

constexpr std::array lineCellRows{
    LineCellRow{&PastLine::DATE, "20260220", "20260220", ""},
    LineCellRow{&PastLine::TRACK, "M", "    M", "     "},
    LineCellRow{&PastLine::COND, "ft", "ft", ""},
    LineCellRow{&PastLine::PURSE, "8.5", "8500", "0"},
    LineCellRow{&PastLine::CLASS, "NW4000L5 something", "NW4000L5 som", ""}, // cut to twelve
    LineCellRow{&PastLine::CR, "74", " 74", "   "},
    LineCellRow{&PastLine::DIST_MILES, "1", "1", ""},
    LineCellRow{&PastLine::LEAD_TM_1Q, "28.1", "  28.1", "      "},
    LineCellRow{&PastLine::LEAD_TM_2Q, "57.2", "  57.2", "      "},
    LineCellRow{&PastLine::LEAD_TM_3Q, "1:26.3", "1:26.3", "      "},
    LineCellRow{&PastLine::LEAD_TM_FN, "1:54.41", "1:54.41", "      "}, // longer stays whole
    LineCellRow{&PastLine::POST, "5", " 5", "  "},
    LineCellRow{&PastLine::CALL_1Q_BF, "a", " a", "  "},
    LineCellRow{&PastLine::CALL_1Q_PO, "6", " 6", "  "},
    LineCellRow{&PastLine::CALL_1Q_PK, "\xBA", " \xBA", "  "},
    LineCellRow{&PastLine::CALL_1Q_AF, "b", " b", "  "},
    LineCellRow{&PastLine::CALL_2Q_BF, "c", " c", "  "},
    LineCellRow{&PastLine::CALL_2Q_PO, "10", "10", "  "},
    LineCellRow{&PastLine::CALL_2Q_PK, "\xBA\xBA", "\xBA\xBA", "  "},
    LineCellRow{&PastLine::CALL_2Q_AF, "", "  ", "  "},
    LineCellRow{&PastLine::CALL_3Q_BF, "", "  ", "  "},
    LineCellRow{&PastLine::CALL_3Q_PO, "8", " 8", "  "},
    LineCellRow{&PastLine::CALL_3Q_PK, "\xB0", " \xB0", "  "},
    LineCellRow{&PastLine::CALL_3Q_AF, "f", " f", "  "},
    LineCellRow{&PastLine::CALL_ST_PO, "9", " 9", "  "},
    LineCellRow{&PastLine::CALL_FN_PO, "2", " 2", "  "},
    LineCellRow{&PastLine::HRSE_TM_4Q, "9.5", " 9.5", "    "},
    LineCellRow{&PastLine::HRSE_TM_FN, "1:55.0", "1:55.0", "    "},
    LineCellRow{&PastLine::driverName, "Doe, J", "Doe, J", ""},
    LineCellRow{&PastLine::rating, " 60.0", " 60.0", ""},
};

TEST_F(PrintWidthsTest, EveryCellOfAPastLineGetsItsWidth) {
    PastLine& line = card.pastLine.write(2, 3, 4);
    for (const LineCellRow& row : lineCellRows) line.*row.cell = row.raw;
    line.lineNumber = 77;
    PrintWidths();
    for (const LineCellRow& row : lineCellRows) EXPECT_EQ(row.wide, line.*row.cell) << row.raw;
    EXPECT_EQ(77, line.lineNumber);
}

TEST_F(PrintWidthsTest, LinesThatWereNeverReadGetTheWidthsToo) {
    card.pastLine.write(2, 3, 4).rating = "     "; // written, but of no line
    PrintWidths();
    for (const LineCellRow& row : lineCellRows) {
        EXPECT_EQ(row.ofEmpty, card.pastLine.read(1, 1, 0).*row.cell);
        EXPECT_EQ(row.ofEmpty, card.pastLine.read(23, 12, 9).*row.cell);
        if (row.cell != &PastLine::rating) {
            EXPECT_EQ(row.ofEmpty, card.pastLine.read(2, 3, 4).*row.cell);
        }
    }
    EXPECT_EQ("     ", card.pastLine.read(2, 3, 4).rating);
}

TEST_F(PrintWidthsTest, RacesEntriesAndSlotsHaveTheirBounds) {
    struct Place {
        int race, entry, slot;
        bool widened;
    };
    const Place places[] = {
        {1, 1, 0, true},  {23, 12, 9, true}, {1, 1, 10, false},
        {1, 0, 1, false}, {1, 13, 1, false}, {24, 1, 1, false},
    };
    for (const Place& place : places) card.pastLine.write(place.race, place.entry, place.slot).POST = "5";
    PrintWidths();
    for (const Place& place : places)
        EXPECT_EQ(place.widened ? " 5" : "5", card.pastLine.read(place.race, place.entry, place.slot).POST);
    EXPECT_FALSE(card.pastLine.has(1, 1, 11));
}

struct QuarterRow {
    const char* lastQuarter;
    const char* shownQuarter;
    const char* shownFinal;
};

TEST_F(PrintWidthsTest, WithoutALastQuarterThereIsNoFinalTimeEither) {
    const QuarterRow rows[] = {
        {"28.6", "28.6", "1:55.0"}, {"0.1", " 0.1", "1:55.0"}, {"0", "    ", "    "},
        {"-97", "    ", "    "},    {"", "    ", "    "},      {"none", "    ", "    "},
    };
    for (const QuarterRow& row : rows) {
        card.pastLine.write(1, 1, 1) = {.HRSE_TM_4Q = row.lastQuarter, .HRSE_TM_FN = "1:55.0"};
        PrintWidths();
        EXPECT_EQ(row.shownQuarter, card.pastLine.read(1, 1, 1).HRSE_TM_4Q) << row.lastQuarter;
        EXPECT_EQ(row.shownFinal, card.pastLine.read(1, 1, 1).HRSE_TM_FN) << row.lastQuarter;
    }
}

class CloseLoadTest : public CardTest {
protected:
    CloseLoadTest() {
        card.cardFileName = "M1_20260314.pmd";
        card.raceCount = 2;
        card.raceInfo(1).label = "1A";
        card.raceInfo(1).purse = "8,500";
        card.raceInfo(1).postTime = "7:00 PM";
        screen.raceButtons[1].visible = true;
        screen.raceButtons[2].visible = true;
        const char* numbers[] = {"", "  4", "  2", "  7", "  1"};
        for (int place = 1; place <= 4; ++place) card.raceOutcome(1, place) = numbers[place];
        card.raceOutcome(2, 1) = "  9"; // the race ranked last
        card.rankEntry(1) = 9;
    }
};

TEST_F(CloseLoadTest, TheScreenShowsRaceOne) {
    for (bool& visible : screen.dataViewVisible) visible = true;
    screen.raceViewVisible[2] = true;
    cursor.race = 2;
    CloseLoad();
    EXPECT_EQ("1", screen.header.race);
    EXPECT_EQ("$ 8,500", screen.header.purse);
    EXPECT_EQ("RACE:  1", screen.tote[0]);
    EXPECT_EQ(1, cursor.race);
    for (std::size_t view = 0; view <= 23; ++view) {
        EXPECT_FALSE(screen.dataViewVisible[view]) << view;
        EXPECT_EQ(view == 1, screen.raceViewVisible[view]) << view;
    }
    EXPECT_EQ("1A", screen.raceButtons[1].caption);
    EXPECT_EQ("1A", screen.raceChecks[1].caption);
    EXPECT_TRUE(screen.raceChecks[1].visible);
}

TEST_F(CloseLoadTest, ALetteredCardBeginsWithRaceOneA) {
    card.labelledRaces = 2;
    CloseLoad();
    EXPECT_EQ("1A", screen.header.race);
    EXPECT_EQ("RACE:  1", screen.tote[0]);
}

TEST_F(CloseLoadTest, TheBoardShowsTheSelectionsOfRaceOneAndTheirGap) {
    card.selection(1, 1).selectionRating = "58.0";
    card.selection(1, 2).selectionRating = "58.1";
    for (Box& box : screen.boxes) box.colour = red;
    CloseLoad();
    const char* numbers[] = {"  4", "  2", "  7", "  1", "", "", "", ""};
    for (std::size_t box = 0; box < screen.boxes.size(); ++box) {
        EXPECT_EQ(numbers[box], screen.boxes[box].text) << box;
        EXPECT_EQ(box < 2 ? recentYellow : white, screen.boxes[box].colour) << box;
    }
}

TEST_F(CloseLoadTest, EntryButtonsAreCaptionedWithProgramNumbers) {
    card.entry(1, 1).programNumber = "3";
    card.entry(1, 2).programNumber = " 1A";
    card.entry(1, 3).programNumber = "   "; // none
    card.entry(1, 12).programNumber = " 12";
    card.entry(2, 4).programNumber = "  9"; // another race's
    CloseLoad();
    EXPECT_EQ("  3", screen.entryButtons[1].caption);
    EXPECT_EQ(" 1A", screen.entryButtons[2].caption);
    EXPECT_EQ("", screen.entryButtons[3].caption);
    EXPECT_EQ("", screen.entryButtons[4].caption);
    EXPECT_EQ(" 12", screen.entryButtons[12].caption);
}

TEST_F(CloseLoadTest, TheUserIsToldHowToGoOn) {
    CloseLoad();
    ASSERT_EQ(1u, shown.size());
    EXPECT_EQ("message: Select the 'PPP' button to view an entry's Past Performance."
              "  To view another race select from the 'Race' buttons at the top of the screen.",
              shown[0]);
}

TEST_F(CloseLoadTest, StartGivesWayToTheRaces) {
    CloseLoad();
    EXPECT_EQ("Select Race", screen.start.caption);
    EXPECT_FALSE(screen.start.enabled);
    EXPECT_FALSE(screen.item(CommandId::NewRC).enabled);
    EXPECT_FALSE(screen.item(CommandId::RecallRaceCard).enabled);
}

TEST_F(CloseLoadTest, TheDateOfTheCardComesFromItsFileName) {
    CloseLoad();
    EXPECT_EQ("20260314", card.cardDate);
}

TEST_F(CloseLoadTest, TheThreeReportsOfANewCardAreWritten) {
    CloseLoad();
    EXPECT_TRUE(exists("A Quillon PRO/Programs/M1_20260314.ppp"));
    EXPECT_TRUE(exists("A Quillon PRO/Selections/M1_20260314.pms"));
    EXPECT_TRUE(exists("A Quillon PRO/Selections2/M1_20260314.pmr2"));
    EXPECT_TRUE(screen.item(CommandId::ViewSummary).enabled);
}

} // namespace
} // namespace quillon
