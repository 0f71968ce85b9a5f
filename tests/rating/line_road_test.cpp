// The road of a line as a recorder takes it up: each step's figures, terms and reason.
#include "card/race_card.h"
#include "rating/line_factors.h"
#include "rating/line_reasons.h"
#include "rating/line_road.h"
#include "rating/plain_line.h"
#include "screen/screen.h"
#include "support/card_test.h"
#include "tables/load_state.h"
#include "tables/table_builder.h"
#include "tables/track_table.h"

namespace quillon {
namespace {

// A line at a track of three quarters of a mile, where course, post and trip cost nothing: 3 x 54.3 - 25.3 - 70 =
// 67.6 is its figure and its rating, unless a test adds something.
class LineRoadTest : public CardTest {
protected:
    LineRoadTest() {
        load = {};
        put("TrackEditor.ini", trackRow("TQ", "3/4") + trackRow("HALF", "1/2") + trackRow("MILE", "1.M"));
        readTrackTable();
        reset();
    }
    ~LineRoadTest() override { load = {}; }

    static void reset() {
        const TrackTable tracks = load.tracks;
        card.clear();
        load = {};
        load.tracks = tracks;
        cursor = {};
        cursor.race = 1;
        cursor.entry = 2;
        cursor.line = 1;
        setPlainLine();
        load.line.POST = "3";
    }

    static LineRoad road() {
        const RoadRecorder recorder;
        RateLine();
        return recorder.roads().at(0);
    }

    static RoadStep step(TextView name) {
        for (const RoadStep& step : road().steps)
            if (step.name == name) return step;
        throw std::runtime_error("no step " + Text{name});
    }
};

struct ReasonRow {
    const char* step;
    void (*change)();
    const char* before;
    const char* after;
    const char* reason;
};

TEST_F(LineRoadTest, EachStepTellsItsReason) {
    const ReasonRow rows[]{
        {"LastQuarterCalc", [] {}, "", "67.6", "3 x 54.3 s final time - 25.3 s leader's three quarters - 70"},
        {"LastQuarterCalc", [] { cursor.horseFinal = "02.0"; }, "", "90.7", // 3 x 62 - 25.3 - 70
         "3 x 62.0 s final time - 25.3 s leader's three quarters - 70"},
        {"LastQuarterCalc", [] { load.line.DIST_MILES = "1.25"; }, "", "99.9",
         "1.25 miles: longer than a mile can't be rated"},
        {"LastQuarterCalc", [] { load.line.HRSE_TM_4Q = ""; }, "", "",
         "no last quarter or no finish: no figure"},
        {"RangeTest", [] { load.line.CALL_FN_PO = "0"; }, "", "-", "no figure: the line can't be rated"},
        {"RangeTest", [] { cursor.horseFinal = "40.0"; }, "24.7", "-", // 120 - 25.3 - 70
         "40 and less, 99.9 and more can't be rated"},
        {"RangeTest", [] {}, "67.6", "67.6", "above 40 and below 99.9: kept"},
        // 59 - 57 = 2 from a mile to three quarters, 59 - 61 = -2 from a half
        {"Tracks", [] { load.line.TRACK = "MILE"; }, "67.6", "69.6",
         "raced on a one-mile track, today three-quarter-mile: +2.0"},
        {"Tracks", [] { load.line.TRACK = "HALF"; }, "67.6", "65.6",
         "raced on a half-mile track, today three-quarter-mile: -2.0"},
        {"Tracks", [] {}, "67.6", "67.6",
         "raced on a three-quarter-mile track, today three-quarter-mile: no change"},
        {"LengthOfStretch", [] {}, "67.6", "67.6", "does not count"},
        {"PostPosition",
         [] {
             card.trackSize = "1/2";
             cursor.entry = 7;
             load.line.TRACK = "HALF";
         },
         "67.6", "71.1", "post 7 on a half-mile track: +3.5"},
        {"PostPosition", [] {}, "67.6", "67.6", "post 2 on a three-quarter-mile track: no charge"},
        {"PostPosition", [] { cursor.entry = 0; }, "67.6", "67.6", "no post yet: no charge"},
        {"Last_PP",
         [] {
             card.trackSize = "1.M";
             cursor.entry = 1;
             load.line.TRACK = "MILE";
         },
         "67.6", "67.1", "late-post credit on a one-mile track: -0.5"},
        {"Last_PP", [] {}, "67.6", "67.6", "no late-post credit on a three-quarter-mile track"},
        {"LeadHorse", [] { cursor.firstCall = cursor.thirdCall = "1"; }, "67.6", "67.0",
         "on the lead at the quarter: -0.2, at the three quarters: -0.4"},
        {"LeadHorse", [] {}, "67.6", "67.6", "not on the lead at a call"},
        {"ParkOuts",
         [] {
             load.line.TRACKSIZE = "5/8";
             cursor.secondPark = "\xBA";
         },
         "67.6", "67.0", "raced outside at the half: -0.6"},
        {"ParkOuts", [] { cursor.secondPark = "\xBA"; }, "67.6", "67.6",
         "no call raced outside that counts on a three-quarter-mile track"},
        {"ParkOutsWind",
         [] {
             cursor.secondCall = "2";
             cursor.secondPark = "\xBA";
             cursor.firstCall = "5";
         },
         "67.6", "67.4", "raced outside on the lead or second at the half: -0.2"},
        {"ParkOutsDouble",
         [] {
             load.line.TRACKSIZE = "1/2";
             cursor.thirdPark = "\xBA\xBA";
             load.line.POST = "0";
         },
         "67.6", "66.0",
         "raced two wide at the three quarters: -1.6 (this line has no calls: those of the line before "
         "count)"},
        {"QualifierCredit", [] { load.line.CLASS = "QUA"; }, "67.6", "64.6", "a qualifier: -3.0"},
        {"ClassChange", [] { load.line.CLASS = "QUA"; }, "64.6", "64.6",
         "a qualifier: its class does not count"},
        {"ClassChange", [] { load.line.CR = "73"; }, "67.6", "67.6",
         "class 75 today, 73 then: too close to count"},
        {"ClassChange", [] { load.line.CR = "65"; }, "67.6", "77.6",
         "class 75 today, 65 then, finished 5th: +10.0"},
        // a rise of 10 for a third: half of it
        {"ClassChange",
         [] {
             load.line.CR = "65";
             load.line.CALL_FN_PO = "3";
         },
         "67.6", "72.6", "class 75 today, 65 then, finished 3rd: +5.0"},
        {"ClassChange",
         [] {
             load.line.CR = "79";
             load.line.CALL_FN_PO = "1";
         },
         "67.6", "63.6", "class 75 today, 79 then, finished 1st: -4.0"},
        {"ClassChange",
         [] {
             load.line.CR = "79";
             load.line.CALL_FN_PO = "11";
         },
         "67.6", "69.6", "class 75 today, 79 then, finished 11th: +2.0"},
        {"ClassChange", [] { load.line.CR = "-99"; }, "67.6", "64.6",
         "class 75 today, no rating then, finished 5th: -3.0"},
        {"FavouriteCredit", [] { load.line.FAV = "*"; }, "67.6", "64.6", "the favourite last time: -3.0"},
        {"FavouriteCredit", [] {}, "67.6", "67.6", "not the favourite last time"},
        {"DriverRating", [] {}, "67.6", "67.6", "does not count"},
        {"WPS", [] { load.line.CALL_FN_PO = "2"; }, "67.6", "64.6", "finished 2nd: -3.0"},
        {"WPS", [] {}, "67.6", "67.6", "finished 5th: no credit"},
        {"WPS", [] { load.line.CALL_FN_PO = ""; }, "-", "-", "no figure to work on"},
        {"CloseLine", [] {}, "67.6", "67.6", "the rating"},
        {"CloseLine", [] { load.line.DIST_MILES = "0.5"; }, "-", "99.9",
         "shorter than a mile: can't be rated"},
        {"CloseLine", [] { load.line.HRSE_TM_4Q = "0"; }, "-", "99.9", "no figure: can't be rated"},
        // 67.6 - 75 for a drop from class 150, fourth: below nothing; and 1 more for fourth
        {"CloseLine",
         [] {
             load.line.CR = "150";
             load.line.CALL_FN_PO = "4";
         },
         "-8.4", "99.9", "1 and less can't be rated"},
    };
    for (const ReasonRow& row : rows) {
        reset();
        row.change();
        const RoadStep told = step(row.step);
        EXPECT_EQ(row.before, told.before) << row.step << ": " << row.reason;
        EXPECT_EQ(row.after, told.after) << row.step << ": " << row.reason;
        EXPECT_EQ(row.reason, told.reason) << row.step;
    }
}

TEST_F(LineRoadTest, ARoadKnowsItsLine) {
    const LineRoad told = road();
    EXPECT_EQ(1, told.race);
    EXPECT_EQ(2, told.entry);
    EXPECT_EQ(1, told.line);
    EXPECT_EQ(12, told.lineNumber);
    EXPECT_EQ(3, told.row);
    EXPECT_EQ(17U, told.steps.size());
}

TEST_F(LineRoadTest, ARecorderTakesUpTheLinesThatItIsAskedFor) {
    const RoadRecorder outer{{12}};
    {
        const RoadRecorder inner{{13, 14}};
        RateLine();
        EXPECT_TRUE(inner.roads().empty());
        reset();
        card.totalLines = 14;
        RateLine();
        ASSERT_EQ(1U, inner.roads().size());
    }
    reset();
    RateLine();
    EXPECT_EQ(1U, outer.roads().size());
}

TEST_F(LineRoadTest, ARatingIsTheSameWithARecorderAndWithout) {
    load.line.FAV = "*";
    load.line.CALL_FN_PO = "2";
    RateLine();
    const Text alone = card.pastLine.read(1, 2, 1).rating;
    reset();
    load.line.FAV = "*";
    load.line.CALL_FN_PO = "2";
    road();
    EXPECT_EQ(" 61.6", alone); // 67.6 - 3 for the favourite, - 3 for second
    EXPECT_EQ(alone, card.pastLine.read(1, 2, 1).rating);
}

TEST_F(LineRoadTest, PointsAndCoursesAreWords) {
    EXPECT_EQ("+1.5", pointsText(1.5));
    EXPECT_EQ("-0.8", pointsText(-0.8));
    EXPECT_EQ("+6.0", pointsText(6));
    EXPECT_EQ("+2.675", pointsText(2.675));
    EXPECT_EQ("seven-eighths-mile", courseWord("7/8"));
    EXPECT_EQ("mile-and-a-quarter", courseWord("1.Q"));
    EXPECT_EQ("9/9", courseWord("9/9"));
    EXPECT_EQ("unknown", courseWord(""));
}

} // namespace
} // namespace quillon
