// What course and post do to a figure.
#include "rating/course_factors.h"

#include "day/card_frame.h"
#include "rating/line_value.h"
#include "tables/track_table_test.h"

#include <array>

namespace quillon {
namespace {

using CourseFactorsTest = TrackTableTest;

const std::array<TextView, 6> allSizes{"1.Q", "1.M", "7/8", "3/4", "5/8", "1/2"};

TEST_F(CourseFactorsTest, EachCourseHasANominal) {
    EXPECT_EQ("56", courseNominal("1.Q"));
    EXPECT_EQ("57", courseNominal("1.M"));
    EXPECT_EQ("58", courseNominal("7/8"));
    EXPECT_EQ("59", courseNominal("3/4"));
    EXPECT_EQ("60", courseNominal("5/8"));
    EXPECT_EQ("61", courseNominal("1/2"));
    for (const char* other : {"", "1", "1 1/4", "11/4", "3/1", "1/2 ", "1.m"})
        EXPECT_EQ("", courseNominal(other)) << other;
}

// ---- Tracks ----

class TracksTest : public TrackTableTest {
protected:
    TracksTest() {
        Text content = trackRow("HOME", "1.M");
        for (std::size_t i = 0; i < allSizes.size(); ++i)
            content += trackRow("T" + std::to_string(i), allSizes[i]);
        content += trackRow("OLD", "1") + trackRow("ODD", "9/8") + trackRow("NONE", "");
        useTracks(content);
        cursor.race = 2;
        cursor.lineValue = "   70.0";
        screen.header.track.caption = "HOME";
    }

    static Text afterTracks(TextView trackSize, TextView lineTrack, TextView figure = "   70.0") {
        card.trackSize = trackSize;
        load.line.TRACK = lineTrack;
        cursor.lineValue = figure;
        Tracks();
        return cursor.lineValue;
    }
};

TEST_F(TracksTest, ALineMovesAPointForEachStepBetweenTheCourses) {
    // 70 plus today's nominal less the line's.
    const char* const expected[6][6]{
        // line:  1.Q   1.M   7/8   3/4   5/8   1/2
        /*1.Q*/ {"70", "69", "68", "67", "66", "65"},
        /*1.M*/ {"71", "70", "69", "68", "67", "66"},
        /*7/8*/ {"72", "71", "70", "69", "68", "67"},
        /*3/4*/ {"73", "72", "71", "70", "69", "68"},
        /*5/8*/ {"74", "73", "72", "71", "70", "69"},
        /*1/2*/ {"75", "74", "73", "72", "71", "70"},
    };
    for (std::size_t today = 0; today < 6; ++today)
        for (std::size_t line = 0; line < 6; ++line) {
            EXPECT_EQ(expected[today][line], afterTracks(allSizes[today], "T" + std::to_string(line)))
                << "today " << allSizes[today] << ", line " << allSizes[line];
            EXPECT_EQ(allSizes[line], cursor.lineSize);
        }
}

TEST_F(TracksTest, ALineOfAnUnlistedTrackIsTakenForAHalfMile) {
    EXPECT_EQ("66", afterTracks("1.M", "ZZ")); // 70 - (61 - 57)
    EXPECT_EQ("1/2", cursor.lineSize);
    EXPECT_EQ("66", afterTracks("1.M", "NONE")); // a listed one without a size likewise
    EXPECT_EQ("1/2", cursor.lineSize);
}

TEST_F(TracksTest, ALineOfAnOddCourseCountsAsNoughtAgainstTodaysNominal) {
    EXPECT_EQ("126", afterTracks("1.Q", "ODD")); // 70 + 56
    EXPECT_EQ("127", afterTracks("1.M", "ODD"));
    EXPECT_EQ("128", afterTracks("7/8", "ODD"));
    EXPECT_EQ("129", afterTracks("3/4", "ODD"));
    EXPECT_EQ("70", afterTracks("5/8", "ODD")); // a difference of 60 or more is none
    EXPECT_EQ("70", afterTracks("1/2", "ODD"));
    EXPECT_EQ("9/8", cursor.lineSize);
}

TEST_F(TracksTest, AnUnknownCourseTodayCountsAsNoughtToo) {
    EXPECT_EQ("14", afterTracks("", "T0")); // 70 - 56
    EXPECT_EQ("13", afterTracks("", "T1"));
    EXPECT_EQ("12", afterTracks("3/1", "T2"));
    EXPECT_EQ("11", afterTracks("1", "T3"));
    EXPECT_EQ("70", afterTracks("", "T4")); // 60 and 61 are none
    EXPECT_EQ("70", afterTracks("", "T5"));
    EXPECT_EQ("70", afterTracks("", "ODD"));
}

TEST_F(TracksTest, ALineInTheOlderFormOfAMileStandsForAnUnknownCourseToday) {
    EXPECT_EQ("70", afterTracks("1", "OLD")); // 57 today, 57 the line
    EXPECT_EQ("70", afterTracks("", "OLD"));
    EXPECT_EQ("74", afterTracks("1/2", "OLD")); // 61 today all the same
    EXPECT_EQ("69", afterTracks("1.Q", "OLD"));
    EXPECT_EQ("1", cursor.lineSize);
}

TEST_F(TracksTest, AMileAndAQuarterInTheOlderFormIsRewrittenInPlace) {
    EXPECT_EQ("69", afterTracks("1 1/4", "T1")); // 70 - (57 - 56)
    EXPECT_EQ("1.Q", card.trackSize);
}

TEST_F(TracksTest, TheLastRowOfATrackCountsForALine) {
    useTracks(trackRow("DBL", "1/2") + trackRow("DBL", "1.M"));
    EXPECT_EQ("70", afterTracks("1.M", "DBL"));
    EXPECT_EQ("1.M", cursor.lineSize);
}

TEST_F(TracksTest, TheLinesTrackIsComparedInUpperCase) {
    useTracks(trackRow("T1", "1.M") + trackRow("t2", "1.M"));
    EXPECT_EQ("70", afterTracks("1.M", "t1"));
    EXPECT_EQ("66", afterTracks("1.M", "t2")); // the file's own lower case is never met: a half mile
}

TEST_F(TracksTest, ALineAtTheMeadowlandsIsFoundUnderBothItsCodes) {
    useTracks(trackRow("M1", "1.M"));
    for (const char* code : {"M", "m", "M1", " m1 "}) {
        EXPECT_EQ("70", afterTracks("1.M", code)) << code;
        EXPECT_EQ("1.M", cursor.lineSize) << code;
    }
}

TEST_F(TracksTest, BlanksInFrontOfARowShiftItsColumnsForALine) {
    // The key ends in column 5 as before, and all else stands two columns further right.
    useTracks("  SH" + trackRow("", "1.M").substr(2));
    raceAt("SH");
    TrackData();
    EXPECT_EQ("1", card.trackSize); // the size stands in columns 39 to 41, and 37 to 39 are "  1"
    EXPECT_EQ("70", afterTracks("1.M", "SH"));
    EXPECT_EQ("1.M", cursor.lineSize);
}

TEST_F(TracksTest, ALineAtTodaysTrackGivesItsRaceTheHeadingsDescription) {
    screen.header.trackInfo = "Home Raceway";
    afterTracks("1.M", "T1");
    EXPECT_EQ("", card.raceInfo(2).trackInfo);
    screen.header.track.caption = "home";
    afterTracks("1.M", "Home");
    EXPECT_EQ("Home Raceway", card.raceInfo(2).trackInfo);
    EXPECT_EQ("", card.raceInfo(1).trackInfo);
}

TEST_F(TracksTest, TodaysParStandsInForAnUnknownCourse) {
    const auto atHome = [](TextView par) {
        useTracks(trackRow("HOME", "9/8", par));
        return afterTracks("9/8", "HOME");
    };
    EXPECT_EQ("128.5", atHome("58.5"));         // 70 + 58.5, the line having no nominal
    EXPECT_EQ("70", atHome("61.0"));            // 60 or more is none
    EXPECT_EQ("70", atHome("01.0"));            // 61, its minute left out
    EXPECT_EQ("70", afterTracks("9/8", "ODD")); // another track's par says nothing
}

TEST_F(TracksTest, AFigureThatIsNoNumberStaysAndTheCourseIsSetAllTheSame) {
    for (const char* figure : {"", "   - ", "***", "       "}) {
        EXPECT_EQ(figure, afterTracks("1/2", "T1", figure));
        EXPECT_EQ("1.M", cursor.lineSize);
    }
    EXPECT_EQ(0U, journal.count()); // ordinary, and so no faults
    EXPECT_EQ(4U, journal.expected());
}

TEST_F(TracksTest, ADifferenceOfNoughtWritesTheFigurePlain) {
    EXPECT_EQ("61.5", afterTracks("1.M", "T1", "   61.5"));
}

// ---- Posts ----

Text afterPost(TextView trackSize, int post, int maxPosts, TextView figure = "  60.0") {
    card.trackSize = trackSize;
    card.maxPosts = static_cast<Integer>(maxPosts);
    cursor.entry = static_cast<Integer>(post);
    cursor.lineValue = figure;
    PostPosition();
    return cursor.lineValue;
}

constexpr const char* same = "  60.0"; // not touched

struct PostRow {
    int post;
    std::array<const char*, 5> expected;
};

const std::array<std::vector<TextView>, 5> sizesOfColumns{
    {{"1.Q"}, {"1.M", "1"}, {"7/8", "3/1"}, {"5/8"}, {"1/2"}}};

void expectPosts(const std::vector<PostRow>& rows, int maxPosts) {
    for (const PostRow& row : rows)
        for (std::size_t column = 0; column < sizesOfColumns.size(); ++column)
            for (const TextView size : sizesOfColumns[column])
                EXPECT_EQ(row.expected[column], afterPost(size, row.post, maxPosts))
                    << size << ", post " << row.post << ", limit " << maxPosts;
}

// clang-format off

TEST_F(CourseFactorsTest, APostCostsMoreTheTighterTheCourse) {
    // 60 plus the charge. The limit of 20 is above every post, so all start on the front line.
    expectPosts({
        //      1.Q      1.M, 1   7/8, 3/1  5/8      1/2
        { 0, {same,    same,    same,     same,    same}},
        { 1, {same,    same,    same,     "60",    same}},
        { 2, {"60.01", "60.01", "60.01",  "60.01", "60.01"}},
        { 3, {"60.02", "60.02", "60.02",  "60.02", "60.02"}},
        { 4, {"60.03", "60.03", "60.03",  "60.03", "60.03"}},
        { 5, {"60.04", "60.04", "60.04",  "60.4",  "60.8"}},
        { 6, {"60.05", "60.6",  "60.7",   "61",    "61.5"}},
        { 7, {"60.7",  "61",    "61",     "62",    "63.5"}},
        { 8, {"61",    "61.5",  "61.75",  "62.25", "64.5"}},
        { 9, {"61.5",  "62.5",  "62.675", "63",    "65.5"}},
        {10, {"62",    "63.5",  "64",     "64.25", "65.5"}},
        {11, {"62",    "63.5",  "64",     "64.25", "65.5"}},
        {15, {"62",    "63.5",  "64",     "64.25", "65.5"}},
    }, 20);
}

TEST_F(CourseFactorsTest, APostAtOrBeyondTheLimitPaysLessFromTheTenthOn) {
    expectPosts({
        //      1.Q      1.M, 1   7/8, 3/1  5/8      1/2
        { 8, {"61",    "61.5",  "61.75",  "62.25", "64.5"}}, // no limit is asked below 9
        { 9, {"61.5",  "62.5",  "62.675", "63",    "61.5"}}, // on a half mile from 9 on
        {10, {"62",    "60.6",  "60.7",   "61",    "61.5"}},
        {12, {"62",    "60.6",  "60.7",   "61",    "61.5"}},
        {20, {"62",    "60.6",  "60.7",   "61",    "61.5"}},
    }, 8);
}

// clang-format on

TEST_F(CourseFactorsTest, ThePostLimitMustBeAboveThePost) {
    EXPECT_EQ("61.5", afterPost("1/2", 9, 9));
    EXPECT_EQ("65.5", afterPost("1/2", 9, 10));
    EXPECT_EQ("60.6", afterPost("1.M", 10, 10));
    EXPECT_EQ("63.5", afterPost("1.M", 10, 11));
    EXPECT_EQ("60.7", afterPost("7/8", 11, 11));
    EXPECT_EQ("64", afterPost("7/8", 11, 12));
    EXPECT_EQ("61", afterPost("5/8", 12, 12));
    EXPECT_EQ("64.25", afterPost("5/8", 12, 13));
}

TEST_F(CourseFactorsTest, OtherCoursesChargeNoPost) {
    for (const char* size : {"3/4", "", "1 1/4", "11/4", "9/8", "1.m"})
        for (const int post : {1, 5, 8, 10}) EXPECT_EQ(same, afterPost(size, post, 10)) << size;
}

TEST_F(CourseFactorsTest, AFigureThatIsNoNumberPaysForNoPost) {
    for (const char* figure : {"", "   - ", "***"}) EXPECT_EQ(figure, afterPost("1/2", 8, 10, figure));
    EXPECT_EQ("   - ", afterPost("5/8", 1, 10, "   - "));
    EXPECT_EQ(0U, journal.count());
}

TEST_F(CourseFactorsTest, ALatePostIsCreditedByCourse) {
    const auto afterLatePost = [](TextView size) {
        card.trackSize = size;
        cursor.lineValue = "  60.0";
        Last_PP();
        return cursor.lineValue;
    };
    EXPECT_EQ("59.6", afterLatePost("1.Q")); // less 0.4
    EXPECT_EQ("59.5", afterLatePost("1.M")); // 0.5
    EXPECT_EQ("59.5", afterLatePost("1"));
    EXPECT_EQ("59.4", afterLatePost("7/8")); // 0.6
    EXPECT_EQ("59.4", afterLatePost("3/1"));
    EXPECT_EQ(same, afterLatePost("3/4"));
    EXPECT_EQ("59.2", afterLatePost("5/8")); // 0.8
    EXPECT_EQ("59.1", afterLatePost("1/2")); // 0.9
    for (const char* other : {"", "1 1/4", "9/8"}) EXPECT_EQ(same, afterLatePost(other)) << other;
}

TEST_F(CourseFactorsTest, AFigureThatIsNoNumberHasNoLatePostCredit) {
    card.trackSize = "1/2";
    cursor.lineValue = "   - ";
    Last_PP();
    EXPECT_EQ("   - ", cursor.lineValue);
}

// ---- The figure ----

TEST_F(CourseFactorsTest, PointsAreAddedAndTheFigureIsWrittenPlain) {
    cursor.lineValue = "   61.3";
    EXPECT_TRUE(addToLineValue(-0.7));
    EXPECT_EQ("60.6", cursor.lineValue);
    EXPECT_TRUE(addToLineValue(9.4));
    EXPECT_EQ("70", cursor.lineValue);
    EXPECT_TRUE(addToLineValue(-70.5));
    EXPECT_EQ("-0.5", cursor.lineValue);
}

TEST_F(CourseFactorsTest, AFigureThatIsNoNumberIsReportedAndStays) {
    for (const char* figure : {"", "  ", " - ", "***", "61.3x"}) {
        cursor.lineValue = figure;
        EXPECT_FALSE(addToLineValue(1));
        EXPECT_EQ(figure, cursor.lineValue);
    }
    EXPECT_EQ(5U, journal.expected());
    EXPECT_EQ(0U, journal.count());
}

} // namespace
} // namespace quillon
