// What the line selection notes of each line, reason by reason.
#include "rating/search_notes.h"

#include "card/race_card.h"
#include "rating/line_selection.h"
#include "support/card_test.h"
#include "tables/load_state.h"

#include <vector>

namespace quillon {
namespace {

struct Line {
    const char* rating;
    const char* post = "3";
    const char* lastQuarter = "28.9";
};

struct Told {
    Verdict verdict;
    const char* reason;
};

struct NotesRow {
    const char* claim;
    Integer window;
    Integer fiftyDays;
    std::vector<Line> lines;
    std::vector<Told> told; ///< of the lines from the latest on
    const char* odds = " 5/2";
    const char* program = "  6";
    const char* horse = "Plain Biscuit";
};

constexpr Verdict chosen = Verdict::chosen;
constexpr Verdict passed = Verdict::passedOver;
constexpr Verdict unseen = Verdict::notLookedAt;

const std::vector<NotesRow> rows{
    // Four lines are searched, up to the older fifth: 40.0 and less is passed over, whatever it rates.
    {"a rating of 40 and less",
     4,
     5,
     {{"40.0"}, {"60.0"}, {"61.0"}, {"62.0"}, {"70.0"}},
     {{passed, "40.0: 40 and less is not searched"},
      {chosen, "60.0, the lowest of the lines searched"},
      {passed, "61.0, not below the 60.0 of line 2"},
      {passed, "62.0, not below the 60.0 of line 2"},
      {unseen, "older than 33 days"}}},
    // A search begins below 100: with nothing found the count of 5 reaches the fifty-day count.
    {"no line that will do",
     4,
     5,
     {{"100.5"}, {"60.0", "0"}, {"39.0"}, {"61.0", "0"}, {"70.0"}},
     {{chosen, "100.5, the latest: no line up to 50 days back will do"},
      {passed, "60.0, but it has no calls"},
      {passed, "39.0: 40 and less is not searched"},
      {passed, "61.0, but it has no calls"},
      {unseen, "older than 33 days"}}},
    {"a rating of 100 and more",
     4,
     5,
     {{"60.0"}, {"100.5"}, {"61.0"}, {"100.5"}, {"70.0"}},
     {{chosen, "60.0, the lowest of the lines searched"},
      {passed, "100.5, not below the 60.0 of line 1"},
      {passed, "61.0, not below the 60.0 of line 1"},
      {passed, "100.5, not below the 60.0 of line 1"},
      {unseen, "older than 33 days"}}},
    // The best so far gives way: 61 to 60, and 60 to 59.
    {"each lower line takes over",
     4,
     5,
     {{"61.0"}, {"60.0"}, {"59.0"}, {"62.0"}, {"70.0"}},
     {{passed, "61.0, not below the 60.0 of line 2"},
      {passed, "60.0, not below the 59.0 of line 3"},
      {chosen, "59.0, the lowest of the lines searched"},
      {passed, "62.0, not below the 59.0 of line 3"},
      {unseen, "older than 33 days"}}},
    // Nothing of 0/1 is searched: the count climbs from 4 to the fifty days' 5.
    {"a morning line of 0/1",
     4,
     5,
     {{"61.0"}, {"60.0"}, {"59.0"}, {"62.0"}},
     {{chosen, "61.0, the latest: at a morning line of 0/1 no line is searched"},
      {unseen, "at a morning line of 0/1 no line is searched"}},
     "0/1"},
    {"an also-eligible",
     4,
     5,
     {{"61.0"}, {"60.0"}, {"59.0"}, {"62.0"}},
     {{chosen, "61.0, the latest: an also-eligible's lines are not searched"},
      {unseen, "an also-eligible's lines are not searched"}},
     " 5/2",
     "AE6"},
    // Without a name the entry is passed over where the search would have widened; 0/1 keeps it from searching.
    {"no horse",
     4,
     5,
     {{"61.0"}, {"60.0"}, {"59.0"}, {"62.0"}},
     {{unseen, "an also-eligible, or no horse: the entry is passed over"}},
     "0/1",
     "  6",
     ""},
    {"the only line", 1, 1, {{"39.0", "0"}}, {{chosen, "39.0, the only line that counts"}}},
    // Line 2 is not read: the text 9.9 brings it in, and its 0 is the lower.
    {"a second line that is missing",
     1,
     1,
     {{"60.0", "3", "9.9"}},
     {{passed, "60.0, not below the 0 that the missing line 2 counts as"}}},
};

TEST(SearchNotes, EachLineHasItsReason) {
    for (const NotesRow& row : rows) {
        card.clear();
        screen.clear();
        load = {};
        card.raceCount = 1;
        RaceEntry& entry = card.entry(1, 5);
        entry.horseName = Text{row.horse};
        entry.programNumber = Text{row.program};
        entry.morningOdds = Text{row.odds};
        entry.linesInLastWindow = row.window;
        entry.linesInFiftyDays = row.fiftyDays;
        int slot = 0;
        for (const Line& line : row.lines)
            card.pastLine.write(1, 5, ++slot) = {
                .CR = "70", .POST = line.post, .HRSE_TM_4Q = line.lastQuarter, .rating = line.rating};
        const SearchNotes notes{1, 5};
        SelectLines();
        slot = 0;
        for (const Told& told : row.told) {
            const LineNote note = notes.of(++slot);
            EXPECT_EQ(told.verdict, note.verdict) << row.claim << ", line " << slot;
            EXPECT_EQ(told.reason, note.reason) << row.claim << ", line " << slot;
        }
    }
}

TEST(SearchNotes, NotesAreOfOneEntryAlone) {
    const SearchNotes outer{1, 5};
    {
        const SearchNotes inner{1, 6};
        EXPECT_EQ(&inner, searchNotes);
        EXPECT_TRUE(inner.isFor(1, 6));
        EXPECT_FALSE(inner.isFor(1, 5));
        EXPECT_FALSE(inner.isFor(2, 6));
    }
    EXPECT_EQ(&outer, searchNotes);
}

} // namespace
} // namespace quillon
