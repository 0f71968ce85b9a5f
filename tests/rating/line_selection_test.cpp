#include "card/fields.h"
#include "core/formats.h"
#include "rating/line_selection.h"
#include "support/card_test.h"
#include "tables/load_state.h"
#include "tables/table_builder.h"

namespace quillon {
namespace {

constexpr int testEntry = 5;
constexpr int firstLineNumber = 100; ///< slot s of the entry under test is line 100 + s of the card

/// A past line as far as the choice looks at it.
struct Line {
    const char* rating;
    const char* post = "3";
    const char* lastQuarter = "28.9";
};

/// The texts of a line under their names, for comparing.
std::vector<std::pair<Text, Text>> textsOf(const PastLine& line) {
    std::vector<std::pair<Text, Text>> texts;
    forEachField(pastLineFields, line, [&](TextView name, const auto& value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, Text>) texts.emplace_back(name, value);
    });
    return texts;
}

class LineSelectionTest : public CardTest {
protected:
    LineSelectionTest() { card.raceCount = 1; }
    ~LineSelectionTest() override { load = {}; }

    static RaceEntry& enter(int race = 1, int index = testEntry) {
        RaceEntry& entry = card.entry(race, index);
        entry.horseName = "Plain Biscuit";
        entry.programNumber = "  6";
        entry.morningOdds = " 5/2";
        return entry;
    }

    static void giveLines(const std::vector<Line>& lines, int race = 1, int index = testEntry) {
        for (int slot = 1; slot <= static_cast<int>(lines.size()); ++slot) {
            const Line& line = lines[static_cast<std::size_t>(slot - 1)];
            card.pastLine.write(race, index, slot) = {
                .CR = "70",
                .POST = line.post,
                .HRSE_TM_4Q = line.lastQuarter,
                .rating = line.rating,
                .lineNumber = static_cast<Integer>(firstLineNumber + slot),
            };
        }
    }

    static int chosenSlot() {
        const int number = card.entry(1, testEntry).chosenLineNumber;
        return number == 0 ? 0 : number - firstLineNumber;
    }

    static Text cell(int column, int row = testEntry) { return screen.raceView[1].text(row, column); }
};

/// Counts before, lines, and what comes out: the slot that is chosen (0 for none, and for a slot that no line
/// was read into), the rating in the race view, the count after.
struct Choice {
    const char* claim;
    Integer window;
    Integer fiftyDays;
    std::vector<Line> lines;
    int slot;
    const char* rating;
    Integer windowAfter;
};

// A line after the search that stops it: its post is a number.
const Line older{"70.0", "2"};

const std::vector<Choice> choices{
    // One line in the window: it stands, whatever it is.
    {"the only line is taken without a filter", 1, 1, {{"39.0", "0"}}, 1, " 39.0", 1},
    {"an entry with no line in the window counts its latest", 0, 0, {{"60.0"}}, 1, " 60.0", 1},
    {"a latest line that is unusable counts all the same", 0, 1, {{"99.9"}}, 1, " 99.9", 1},
    {"with a real last quarter no older line comes in",
     1,
     2,
     {{"60.0", "3", "10.0"}, {"50.0"}},
     1,
     " 60.0",
     1},

    // A last quarter of at most 9.9 brings in the next line: 50.0 is below 60.0, 61.0 is not.
    {"a last quarter of 9.9 brings in line 2", 1, 2, {{"60.0", "3", "9.9"}, {"50.0"}}, 2, " 50.0", 2},
    {"a missing last quarter brings in line 2", 1, 2, {{"60.0", "3", ""}, {"61.0"}}, 1, " 60.0", 2},
    {"the latest line of a long absence can bring in line 2",
     0,
     0,
     {{"60.0", "3", "0"}, {"50.0"}},
     2,
     " 50.0",
     2},
    // The next line has no rating above 0. The text 9.9 brings it in nevertheless, and its 0 is below 60.0.
    {"9.9 on a single line ends on the empty line 2", 1, 1, {{"60.0", "3", "9.9"}}, 0, "     ", 2},
    {"9.8 on a single line leaves it", 1, 1, {{"60.0", "3", "9.8"}}, 1, " 60.0", 1},
    {"9.9 with a blank is another text", 1, 1, {{"60.0", "3", " 9.9"}}, 1, " 60.0", 1},

    {"two lines: the first where the second is higher", 2, 2, {{"60.0"}, {"60.1"}}, 1, " 60.0", 2},
    {"two lines: the second where it is lower", 2, 2, {{"60.0"}, {"59.9"}}, 2, " 59.9", 2},
    {"two lines: no filter for a line without calls", 2, 2, {{"60.0"}, {"39.0", "0"}}, 2, " 39.0", 2},
    {"two equal lines: the search takes the first", 2, 3, {{"60.0"}, {"60.0"}, older}, 1, " 60.0", 2},
    // Both fail the filter (no post). Line 3 has one, so the count grows to 3, below 4: the lowest of three.
    {"two equal lines that fail widen to three",
     2,
     4,
     {{"60.0", "0"}, {"60.0", "0"}, {"59.0"}},
     3,
     " 59.0",
     3},
    // The same with a fifty-day count of 3, which the count of 3 reaches.
    {"two equal lines that fail stop at fifty days",
     2,
     3,
     {{"60.0", "0"}, {"60.0", "0"}, {"59.0"}},
     1,
     " 60.0",
     3},
    {"two equal lines: only the second passes the filter",
     2,
     3,
     {{"60.0", "0"}, {"60.0"}, older},
     2,
     " 60.0",
     2},

    // Three lines: the lowest, the more recent of equals, no filter.
    {"three lines: the first", 3, 3, {{"59.0"}, {"60.0"}, {"61.0"}}, 1, " 59.0", 3},
    {"three lines: the second", 3, 3, {{"60.0"}, {"59.0"}, {"61.0"}}, 2, " 59.0", 3},
    {"three lines: the third", 3, 3, {{"61.0"}, {"60.0"}, {"59.0"}}, 3, " 59.0", 3},
    {"three lines: first and second equal", 3, 3, {{"60.0"}, {"60.0"}, {"61.0"}}, 1, " 60.0", 3},
    {"three lines: first and third equal", 3, 3, {{"60.0"}, {"61.0"}, {"60.0"}}, 1, " 60.0", 3},
    {"three lines: second and third equal", 3, 3, {{"61.0"}, {"60.0"}, {"60.0"}}, 2, " 60.0", 3},
    {"three lines: all equal", 3, 3, {{"60.0"}, {"60.0"}, {"60.0"}}, 1, " 60.0", 3},
    {"three lines: no filter", 3, 3, {{"61.0"}, {"60.0"}, {"12.0", "0"}}, 3, " 12.0", 3},

    // Four and more: the search.
    {"four lines: the best stands in front of an older line",
     4,
     5,
     {{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}, older},
     2,
     " 58.0",
     4},
    {"four lines: the more recent of equals stands",
     4,
     5,
     {{"60.0"}, {"58.0"}, {"58.0"}, {"61.0"}, older},
     2,
     " 58.0",
     4},
    {"four lines: the search ends at the window",
     4,
     5,
     {{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}, {"50.0"}},
     2,
     " 58.0",
     4},
    // No fifth line: its empty post is no number, the count of 5 reaches 4, and the latest line stands.
    {"four lines without an older one fall back on the latest",
     4,
     4,
     {{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}},
     1,
     " 60.0",
     5},
    {"a blank post after the search counts as none",
     4,
     5,
     {{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}, {"50.0", " "}},
     1,
     " 60.0",
     5},
    // An unreadable post again, but 5 does not reach 9, and a line was found.
    {"the best stands where the fifty-day count is not reached",
     4,
     9,
     {{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}},
     2,
     " 58.0",
     5},
    {"an older line with a post of 0 stops the search too",
     4,
     5,
     {{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}, {"50.0", "0"}},
     2,
     " 58.0",
     4},
    {"the search passes by lines without calls",
     4,
     5,
     {{"60.0"}, {"58.0", "0"}, {"59.0"}, {"61.0"}, older},
     3,
     " 59.0",
     4},
    {"the search passes by ratings of 40.0 and less",
     4,
     5,
     {{"60.0"}, {"40.0"}, {"40.1"}, {"39.9"}, older},
     3,
     " 40.1",
     4},
    {"99.9 is a valid high number", 4, 5, {{"99.9"}, {"99.9"}, {"99.9"}, {"99.9"}, older}, 1, " 99.9", 4},
    {"99.9 loses to a real line", 4, 5, {{"99.9"}, {"99.9"}, {"80.0"}, {"99.9"}, older}, 3, " 80.0", 4},

    // Nothing found in four: the window widens by one line at a time.
    {"the window widens to the first line that passes",
     4,
     8,
     {{"60.0", "0"}, {"60.0", "0"}, {"60.0", "0"}, {"60.0", "0"}, {"39.0"}, {"58.0"}, older},
     6,
     " 58.0",
     6},
    {"the window widens no further than fifty days",
     4,
     6,
     {{"60.0", "0"}, {"60.0", "0"}, {"60.0", "0"}, {"60.0", "0"}, {"39.0"}, {"58.0"}, older},
     1,
     " 60.0",
     6},
    // Line 5 has a post, 0, so the test after the search does not hold and no line is chosen.
    {"nothing found in front of a post of 0 gives five blanks",
     4,
     6,
     {{"60.0", "0"}, {"60.0", "0"}, {"60.0", "0"}, {"60.0", "0"}, {"58.0", "0"}, older},
     0,
     "     ",
     4},

    {"a first-time starter has no rating", 0, 0, {}, 0, "", 1},
};

TEST_F(LineSelectionTest, OneLineSpeaksForTheEntry) {
    for (const Choice& row : choices) {
        SCOPED_TRACE(row.claim);
        card.clear();
        card.raceCount = 1;
        RaceEntry& entry = enter();
        entry.linesInLastWindow = row.window;
        entry.linesInFiftyDays = row.fiftyDays;
        giveLines(row.lines);
        SelectLines();
        EXPECT_EQ(row.slot, chosenSlot());
        EXPECT_EQ(row.rating, cell(32));
        EXPECT_EQ(trimmed(row.rating), trimmed(entry.rating)); // its ranking takes leading blanks off
        EXPECT_EQ(row.windowAfter, entry.linesInLastWindow);
    }
}

TEST_F(LineSelectionTest, AnEmptyLineMakesAQualifierOfTheEntry) {
    enter();
    SelectLines(); // no lines: the empty line 1 is taken
    EXPECT_EQ("QUA", card.entry(1, testEntry).chosen.CR);

    enter(1, 6).linesInLastWindow = 1;
    giveLines({{"60.0", "3", "9.9"}}, 1, 6); // joined by the empty line 2, whose 0 is below 60.0
    SelectLines();
    EXPECT_EQ("QUA", card.entry(1, 6).chosen.CR);
    EXPECT_EQ("     ", card.entry(1, 6).rating);
}

TEST_F(LineSelectionTest, NoChosenLineLeavesTheChosenCellsAlone) {
    RaceEntry& entry = enter();
    entry.linesInLastWindow = 4;
    giveLines({{"60.0", "0"}, {"60.0", "0"}, {"60.0", "0"}, {"60.0", "0"}, {"58.0", "0"}});
    SelectLines();
    EXPECT_EQ("   ", entry.chosen.CR); // widened, but never taken: not "QUA"
    EXPECT_EQ(0, entry.chosenLineNumber);
}

struct QuaRow {
    const char* cr;
    const char* chosen;
};

TEST_F(LineSelectionTest, ALineWithoutAClassRatingIsAQualifiers) {
    for (const QuaRow row :
         {QuaRow{"70", "70"}, {"0.5", "0.5"}, {"0", "QUA"}, {"-99", "QUA"}, {"", "QUA"}, {"none", "QUA"}}) {
        card.clear();
        card.raceCount = 1;
        // Entry 5 of a race that others lead: its cells stay without the print widths of the selections.
        for (int other = 6; other <= 9; ++other) {
            enter(1, other).linesInLastWindow = 1;
            giveLines({{"50.0"}}, 1, other);
        }
        enter().linesInLastWindow = 1;
        giveLines({{"60.0"}});
        card.pastLine.write(1, testEntry, 1).CR = row.cr;
        SelectLines();
        EXPECT_EQ(row.chosen, card.entry(1, testEntry).chosen.CR) << row.cr;
    }
}

TEST_F(LineSelectionTest, AnAlsoEligibleGetsItsPostForANumberAndStartsItsSearchAnew) {
    // Search left at slot 0, which has no post: the count becomes 5, below 9, and the search begins again.
    RaceEntry& entry = enter();
    entry.programNumber = "AE1";
    entry.linesInLastWindow = 4;
    entry.linesInFiftyDays = 9;
    giveLines({{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}, older});
    SelectLines();
    EXPECT_EQ("  5", entry.programNumber.text());
    EXPECT_EQ(2, chosenSlot());
    EXPECT_EQ(5, entry.linesInLastWindow);
    EXPECT_EQ("  5", cell(2));
    EXPECT_EQ((Colour{1, 1, 1}), *screen.raceView[1].read(testEntry, 2).background); // cloth of number 5
}

TEST_F(LineSelectionTest, AnAlsoEligibleTakesItsLatestLineWhereTheCountReachesFiftyDays) {
    RaceEntry& entry = enter();
    entry.programNumber = "AE1";
    entry.linesInLastWindow = 4;
    entry.linesInFiftyDays = 5; // 4 and 1
    giveLines({{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}, older});
    SelectLines();
    EXPECT_EQ("  5", entry.programNumber.text());
    EXPECT_EQ(1, chosenSlot());
}

TEST_F(LineSelectionTest, AnAlsoEligibleKeepsItsMarkWhereTheCountDecides) {
    RaceEntry& entry = enter();
    entry.programNumber = "AE1";
    entry.linesInLastWindow = 1;
    giveLines({{"60.0"}});
    SelectLines();
    EXPECT_EQ("AE1", entry.programNumber.text());
    EXPECT_EQ(1, chosenSlot());
}

TEST_F(LineSelectionTest, AMorningLineOfNothingSearchesNoLine) {
    RaceEntry& entry = enter();
    entry.morningOdds = "0/1";
    entry.linesInLastWindow = 4;
    entry.linesInFiftyDays = 7;
    giveLines({{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}, {"50.0"}, {"50.0"}, {"50.0"}});
    SelectLines();
    EXPECT_EQ(1, chosenSlot()); // the count climbs 5, 6, 7 and reaches the fifty days
    EXPECT_EQ(7, entry.linesInLastWindow);
}

TEST_F(LineSelectionTest, TheMorningLineIsComparedAsItStands) {
    RaceEntry& entry = enter();
    entry.morningOdds = " 0/1"; // as a load aligns it
    entry.linesInLastWindow = 4;
    giveLines({{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}, older});
    SelectLines();
    EXPECT_EQ(2, chosenSlot());
}

TEST_F(LineSelectionTest, AnEntryWithoutANameIsPassedOver) {
    card.entry(1, testEntry).driverName = "Doe, J";
    SelectLines();
    for (int column = 0; column <= 32; ++column) EXPECT_EQ("", cell(column)) << column;
    EXPECT_EQ(0, card.entry(1, testEntry).linesInLastWindow);
    EXPECT_EQ("", card.entry(1, testEntry).chosen.CR);
}

TEST_F(LineSelectionTest, EntriesAfterPostTwelveAreNotRated) {
    for (const int index : {12, 13}) {
        enter(1, index).linesInLastWindow = 1;
        giveLines({{"60.0"}}, 1, index);
    }
    SelectLines();
    EXPECT_EQ("12", cell(3, 12));
    EXPECT_EQ("", card.entry(1, 13).rating);
    EXPECT_EQ("", cell(0, 13));
}

TEST_F(LineSelectionTest, RacesRunToTheCardsLastAndNoFurtherThanTwentyThree) {
    for (const int race : {1, 2, 3, 23, 24}) {
        enter(race).linesInLastWindow = 1;
        giveLines({{"60.0"}}, race);
    }
    card.raceCount = 2;
    SelectLines();
    EXPECT_EQ("60.0", card.entry(2, testEntry).rating);
    EXPECT_EQ("", card.entry(3, testEntry).rating);

    card.raceCount = 25;
    SelectLines();
    EXPECT_EQ("60.0", card.entry(23, testEntry).rating);
    EXPECT_EQ("", card.entry(24, testEntry).rating);
}

TEST_F(LineSelectionTest, EachRaceIsRankedWhenItsEntriesAreDone) {
    card.raceCount = 2;
    for (const int race : {1, 2})
        for (const int index : {3, 7}) {
            enter(race, index).linesInLastWindow = 1;
            card.entry(race, index).programNumber = aligned("@@@", std::to_string(index));
        }
    giveLines({{"58.0"}}, 1, 3);
    giveLines({{"59.0"}}, 1, 7);
    giveLines({{"61.0"}}, 2, 3);
    giveLines({{"60.0"}}, 2, 7);
    SelectLines();
    EXPECT_EQ("  3", card.raceOutcome(1, 1));
    EXPECT_EQ("  7", card.raceOutcome(1, 2));
    EXPECT_EQ("  7", card.raceOutcome(2, 1));
    EXPECT_EQ("  3", card.raceOutcome(2, 2));
}

struct RatingForm {
    const char* raw;
    const char* tidy;
};

TEST_F(LineSelectionTest, RatingsThatCountGetTheirPrintForm) {
    for (const RatingForm row : {RatingForm{"58.64", " 58.6"},
                                 {"58.75", " 58.8"},
                                 {" 58.6", " 58.6"},
                                 {"99.9 ", " 99.9"},
                                 {"0.5", "   .5"},
                                 {"100.25", "100.3"},
                                 {" - ", "    -"},
                                 {"", "     "}}) {
        card.clear();
        card.raceCount = 1;
        enter().linesInLastWindow = 2;
        giveLines({{"60.0"}, {row.raw}, {"70.000"}});
        SelectLines();
        EXPECT_EQ("     ", card.pastLine.read(1, testEntry, 0).rating);
        EXPECT_EQ(row.tidy, card.pastLine.read(1, testEntry, 2).rating) << row.raw;
        EXPECT_EQ("70.000", card.pastLine.read(1, testEntry, 3).rating); // after the count
    }
}

TEST_F(LineSelectionTest, TheChosenLineIsCopiedButForWhatBelongsToItsOwnDay) {
    // Entry 5 is the fifth and worst of its race: the selections' print widths do not touch it.
    for (int other = 6; other <= 9; ++other) {
        enter(1, other).linesInLastWindow = 1;
        giveLines({{"50.0"}}, 1, other);
    }
    enter().linesInLastWindow = 1;
    const PastLine line{
        .DATE = "20260220",
        .TRACK = "M",
        .COND = "ft",
        .PURSE = "8.5",
        .CLASS = "NW4000L5",
        .CR = "74",
        .DIST_MILES = "1",
        .LEAD_TM_1Q = "28.1",
        .LEAD_TM_2Q = "57.2",
        .LEAD_TM_3Q = "1:26.3",
        .LEAD_TM_FN = "1:54.4",
        .POST = "5",
        .CALL_1Q_BF = "a",
        .CALL_1Q_PO = "6",
        .CALL_1Q_PK = "\xBA",
        .CALL_1Q_AF = "b",
        .CALL_2Q_BF = "c",
        .CALL_2Q_PO = "7",
        .CALL_2Q_PK = "\xBA\xBA",
        .CALL_2Q_AF = "d",
        .CALL_3Q_BF = "e",
        .CALL_3Q_PO = "8",
        .CALL_3Q_PK = "\xB0",
        .CALL_3Q_AF = "f",
        .CALL_ST_PO = "9",
        .CALL_FN_PO = "2",
        .HRSE_TM_4Q = "28.6",
        .HRSE_TM_FN = "1:55.0",
        .driverName = "Doe, J",
        .rating = "60.0",
        .lineNumber = 31,
    };
    card.pastLine.write(1, testEntry, 1) = line;
    SelectLines();
    const RaceEntry& entry = card.entry(1, testEntry);
    PastLine expected = line;
    for (Text PastLine::*notTaken :
         {&PastLine::DATE, &PastLine::COND, &PastLine::DIST_MILES, &PastLine::driverName, &PastLine::rating})
        (expected.*notTaken).clear();
    EXPECT_EQ(textsOf(expected), textsOf(entry.chosen));
    EXPECT_EQ(31, entry.chosenLineNumber);
}

TEST_F(LineSelectionTest, MoreLinesThanTheStoreHoldsDoNoHarm) {
    // Thirty of forty lines were stored. After them nothing can be read, so the search ends on slot 40, and
    // the unreadable post of slot 41 brings the latest line in.
    RaceEntry& entry = enter();
    entry.linesInLastWindow = 40;
    entry.linesInFiftyDays = 40;
    giveLines(std::vector<Line>(30, Line{"60.0"}));
    SelectLines();
    EXPECT_EQ(1, chosenSlot());
    entry.linesInLastWindow = 32767;
    entry.linesInFiftyDays = 32767;
    SelectLines();
    EXPECT_EQ(1, chosenSlot());
}

TEST_F(LineSelectionTest, MissingLinesAreNoFaults) {
    enter().linesInLastWindow = 4;
    giveLines({{"60.0"}, {"58.0"}, {"59.0"}, {"61.0"}});
    enter(1, 6); // a first-time starter
    SelectLines();
    EXPECT_EQ(0u, journal.count());
    EXPECT_GT(journal.expected(), 0u);
}

/// A running-line table of two rows. Its fields stand in no order that the race view knows.
struct ViewField {
    const char* name;
    int width;
    int column;
    const char* first; ///< as the table holds it in row 1
    const char* shown;
    const char* second; ///< in row 2
    const char* secondShown;
    const char* headShown; ///< of an entry without a line
};

constexpr std::array viewFields{
    ViewField{"FAV", 1, 29, "*", "*", "", "", "FAV"},
    ViewField{"CR", 4, 7, "74", "74", "-99", "NA", "NA"},
    ViewField{"TRACK", 5, 4, "M", "M", "PcD", "PcD", "TRACK"}, // M stays M here
    ViewField{"PURSE", 6, 5, "8.5", "8500", "", "0", "0"},     // thousands
    ViewField{"CLASS", 12, 6, "NW4000L5", "NW4000L5", "QUA", "QUA", "CLASS"},
    ViewField{"LEAD_TM_1Q", 6, 8, "28.1", "28.1", "-97", "-97", "LEAD_TM_1Q"},
    ViewField{"LEAD_TM_2Q", 6, 9, "57.2", "57.2", "", "", "LEAD_TM_2Q"},
    ViewField{"LEAD_TM_3Q", 6, 10, "1:26.3", "1:26.3", "", "", "LEAD_TM_3Q"},
    ViewField{"LEAD_TM_FN", 6, 11, "1:54.4", "1:54.4", "", "", "LEAD_TM_FN"},
    ViewField{"POST", 2, 12, "5", "5", "0", "0", "POST"}, // no dashes for a line without calls
    ViewField{"CALL_1Q_BF", 2, 13, "a", "a", "", "", "CALL_1Q_BF"},
    ViewField{"CALL_1Q_PO", 2, 14, "6", "6", "", "", "CALL_1Q_PO"},
    ViewField{"CALL_1Q_PK", 2, 15, "\xBA", "\xBA", "", "", "CALL_1Q_PK"},
    ViewField{"CALL_1Q_AF", 2, 16, "b", "b", "", "", "CALL_1Q_AF"},
    ViewField{"CALL_2Q_BF", 2, 17, "c", "c", "", "", "CALL_2Q_BF"},
    ViewField{"CALL_2Q_PO", 2, 18, "7", "7", "", "", "CALL_2Q_PO"},
    ViewField{"CALL_2Q_PK", 2, 19, "\xBA\xBA", "\xBA\xBA", "", "", "CALL_2Q_PK"},
    ViewField{"CALL_2Q_AF", 2, 20, "d", "d", "", "", "CALL_2Q_AF"},
    ViewField{"CALL_3Q_BF", 2, 21, "e", "e", "", "", "CALL_3Q_BF"},
    ViewField{"CALL_3Q_PO", 2, 22, "8", "8", "", "", "CALL_3Q_PO"},
    ViewField{"CALL_3Q_PK", 2, 23, "\xB0", "\xB0", "", "", "CALL_3Q_PK"},
    ViewField{"CALL_3Q_AF", 2, 24, "f", "f", "", "", "CALL_3Q_AF"},
    ViewField{"CALL_ST_PO", 2, 25, "9", "9", "", "", "CALL_ST_PO"},
    ViewField{"CALL_FN_PO", 2, 26, "2", "2", "", "", "CALL_FN_PO"},
    ViewField{"HRSE_TM_4Q", 4, 27, "29", "29.0", "28.6", "28.6", "HRSE_TM_4Q"}, // two characters get .0
    ViewField{"HRSE_TM_FN", 6, 28, "1:55.0", "1:55.0", "", "", "HRSE_TM_FN"},
};

TEST_F(LineSelectionTest, TheRaceViewShowsTheChosenLineAsItsTableHasIt) {
    BuiltTable table;
    Text first{" "};
    Text second{" "};
    for (const ViewField& field : viewFields) {
        table.fields.push_back({field.name, 'C', field.width});
        first += inField(field.first, static_cast<std::size_t>(field.width));
        second += inField(field.second, static_cast<std::size_t>(field.width));
    }
    table.rows = {first, second};
    load.lineRows.openContent(table.bytes(), "RUNLINHR.DBF");

    for (const int index : {1, 2, 3}) {
        RaceEntry& entry = enter(1, index);
        entry.driverName = "Doe, J";
        entry.driverUdr = " .320";
        entry.linesInLastWindow = 1;
    }
    card.pastLine.write(1, 1, 1) = {.rating = "60.0", .lineNumber = 1};
    card.pastLine.write(1, 2, 1) = {.rating = "61.0", .lineNumber = 2};
    card.entry(1, 3).linesInLastWindow = 0; // a first-time starter: row 0, the head
    SelectLines();

    for (const ViewField& field : viewFields) {
        EXPECT_EQ(field.shown, cell(field.column, 1)) << field.name;
        EXPECT_EQ(field.secondShown, cell(field.column, 2)) << field.name;
        EXPECT_EQ(field.headShown, cell(field.column, 3)) << field.name;
    }
    EXPECT_EQ("Plain Biscuit", cell(0, 2));
    EXPECT_EQ(" 5/2", cell(1, 2));
    EXPECT_EQ("  6", cell(2, 2));
    EXPECT_EQ("2", cell(3, 2));
    EXPECT_EQ("Doe, J", cell(30, 2));
    EXPECT_EQ(" .320", cell(31, 2));
    EXPECT_EQ(" 61.0", cell(32, 2));
    EXPECT_EQ("Doe, J", card.entry(1, 2).chosenDriver.text());
    EXPECT_EQ((Colour{255, 255, 0}), *screen.raceView[1].read(2, 2).background); // cloth of number 6
}

} // namespace
} // namespace quillon
