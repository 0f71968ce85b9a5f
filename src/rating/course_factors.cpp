#include "rating/course_factors.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "rating/line_value.h"
#include "screen/screen.h"
#include "tables/load_state.h"
#include "tables/track_table.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace quillon {
namespace {

// The courses that tell posts apart, from the widest turns to the tightest.
enum Course : std::size_t { mileAndAQuarter, mile, sevenEighths, fiveEighths, half, courseCount };

struct CourseName {
    TextView size;
    Course course;
};

constexpr std::array courseNames{
    CourseName{"1.Q", mileAndAQuarter}, // "3/4" is not here: its posts are all alike
    CourseName{"1.M", mile},
    CourseName{"1", mile}, // a mile in the older form
    CourseName{"7/8", sevenEighths},
    CourseName{"3/1", sevenEighths},
    CourseName{"5/8", fiveEighths},
    CourseName{"1/2", half},
};

template <class Figure>
using ByCourse = std::array<Figure, courseCount>;

// clang-format off

// What today's post costs: the tighter the turns, the more ground is lost outside.
constexpr std::array<ByCourse<double>, 11> postCharges{{
    // 1.Q   1.M    7/8    5/8   1/2
    {0.00,  0.00,  0.00,  0.00, 0.00}, // no post
    {0.00,  0.00,  0.00,  0.00, 0.00}, //  1
    {0.01,  0.01,  0.01,  0.01, 0.01}, //  2
    {0.02,  0.02,  0.02,  0.02, 0.02}, //  3
    {0.03,  0.03,  0.03,  0.03, 0.03}, //  4
    {0.04,  0.04,  0.04,  0.40, 0.80}, //  5
    {0.05,  0.60,  0.70,  1.00, 1.50}, //  6
    {0.70,  1.00,  1.00,  2.00, 3.50}, //  7
    {1.00,  1.50,  1.75,  2.25, 4.50}, //  8
    {1.50,  2.50,  2.675, 3.00, 5.50}, //  9
    {2.00,  3.50,  4.00,  4.25, 5.50}, // 10 and above
}};

// From this post on, a post that is not below the track's limit starts behind another horse and pays less.
constexpr int never = std::numeric_limits<int>::max();
constexpr ByCourse<int> trailersFrom
    {never,  10,    10,    10,   9};
constexpr ByCourse<double> trailerCharges
    {0.00,  0.60,  0.70,  1.00, 1.50};

constexpr ByCourse<double> latePostCredits
    {0.40,  0.50,  0.60,  0.80, 0.90};

// clang-format on

struct Nominal {
    TextView courseSize;
    TextView seconds;
};

constexpr std::array nominals{
    Nominal{"1.Q", "56"}, Nominal{"1.M", "57"}, Nominal{"7/8", "58"},
    Nominal{"3/4", "59"}, Nominal{"5/8", "60"}, Nominal{"1/2", "61"},
};

std::optional<Course> courseOf(TextView size) {
    for (const CourseName& row : courseNames)
        if (row.size == size) return row.course;
    return std::nullopt;
}

double postCharge(Course course, int post, int maxPosts) {
    if (post >= trailersFrom[course] && maxPosts <= post) return trailerCharges[course];
    const int lastRow = static_cast<int>(postCharges.size()) - 1;
    return postCharges[static_cast<std::size_t>(std::min(post, lastRow))][course];
}

// What a line gains when it is brought from its own course to today's. Nominals compare as texts, and an
// empty one counts as 0; a difference of a minute or more comes from a course without a nominal and is none.
double coursePoints(TextView todaysNominal, TextView lineNominal) {
    const TextView greater = std::max(todaysNominal, lineNominal);
    const TextView smaller = std::min(todaysNominal, lineNominal);
    double difference = lenientNumber(greater) - lenientNumber(smaller);
    if (difference >= 60) difference = 0;
    return todaysNominal < lineNominal ? -difference : difference;
}

TextView lineNominalOf(TextView lineSize) {
    if (lineSize == "1 1/4") return courseNominal("1.Q");
    if (lineSize == "1") return courseNominal("1.M");
    return courseNominal(lineSize);
}

} // namespace

TextView courseNominal(TextView courseSize) {
    for (const Nominal& row : nominals)
        if (row.courseSize == courseSize) return row.seconds;
    return {};
}

void Tracks() {
    const Step step{"Tracks"};
    const Text lineTrack = trackKeyOf(upperCase(load.line.TRACK));
    TextView todaysNominal;
    cursor.lineSize.clear();
    if (const TrackRecord* track = load.tracks.last(lineTrack)) {
        cursor.lineSize = track->lineCourseSize;
        if (lineTrack == trackKeyOf(upperCase(screen.header.track.caption))) {
            todaysNominal = track->linePar;
            card.raceInfo(cursor.race).trackInfo = screen.header.trackInfo;
        }
    }
    if (cursor.lineSize.empty()) cursor.lineSize = "1/2";

    if (card.trackSize == "1 1/4") card.trackSize = "1.Q";
    if (const TextView nominal = courseNominal(card.trackSize); !nominal.empty())
        todaysNominal = nominal;
    else if (cursor.lineSize ==
             "1") // a line on the older form of a mile stands in for today's unknown course
        todaysNominal = courseNominal("1.M");
    addToLineValue(coursePoints(todaysNominal, lineNominalOf(cursor.lineSize)));
}

void PostPosition() {
    const Step step{"PostPosition"};
    const auto course = courseOf(card.trackSize);
    if (!course || cursor.entry < 1) return;
    // The rail costs nothing anywhere; on a five-eighths track alone the figure is still written anew.
    if (cursor.entry == 1 && *course != fiveEighths) return;
    addToLineValue(postCharge(*course, cursor.entry, card.maxPosts));
}

void Last_PP() {
    const Step step{"Last_PP"};
    if (const auto course = courseOf(card.trackSize)) addToLineValue(-latePostCredits[*course]);
}

} // namespace quillon
