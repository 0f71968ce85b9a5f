#include "rating/line_factors.h"

#include "card/line_fields.h"
#include "card/race_card.h"
#include "core/formats.h"
#include "rating/course_factors.h"
#include "rating/diagnostic_log.h"
#include "rating/line_reasons.h"
#include "rating/line_road.h"
#include "rating/line_value.h"
#include "screen/screen.h"
#include "tables/load_state.h"
#include "tables/track_table.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {
namespace {

// Park marks: a ring for a call raced outside, two for one raced two wide. Tables have two codes for a ring.
constexpr std::array parkedMarks{TextView{"\xBA"}, TextView{"\xB0"}};
constexpr std::array parkedTwoWideMarks{TextView{"\xBA\xBA"}, TextView{"\xB0\xB0"}};

template <std::size_t Count>
bool isOneOf(const std::array<TextView, Count>& marks, TextView mark) {
    return std::find(marks.begin(), marks.end(), mark) != marks.end();
}

bool isParked(TextView mark) { return isOneOf(parkedMarks, mark); }

bool isParkedTwoWide(TextView mark) { return isOneOf(parkedTwoWideMarks, mark); }

// What a call raced outside is worth: the tighter the turns, the more ground it costs.
struct ParkCredits {
    TextView courseSize;
    double parked;
    double twoWide;
    double twoWideAtTheThird;
};

constexpr std::array parkCredits{
    ParkCredits{"1/2", 0.8, 0.8, 1.6}, ParkCredits{"5/8", 0.6, 0.6, 1.2}, ParkCredits{"7/8", 0.4, 0.4, 0.8},
    ParkCredits{"1.M", 0.4, 0.4, 0.8}, // courses not named here earn nothing
};

const ParkCredits* parkCreditsOf(TextView courseSize) {
    const auto found = std::find_if(parkCredits.begin(), parkCredits.end(),
                                    [&](const ParkCredits& row) { return row.courseSize == courseSize; });
    return found == parkCredits.end() ? nullptr : &*found;
}

// The three calls that factors look at, and what the lead is worth at each.
struct Call {
    Text LineCursor::*position;
    Text LineCursor::*park;
    double leadCredit;
    bool third;
    TextView name;
};

constexpr std::array calls{
    Call{&LineCursor::firstCall, &LineCursor::firstPark, 0.2, false, "at the quarter"},
    Call{&LineCursor::secondCall, &LineCursor::secondPark, 0.2, false, "at the half"},
    Call{&LineCursor::thirdCall, &LineCursor::thirdPark, 0.4, true, "at the three quarters"},
};

constexpr double qualifierCredit = 3.0;
constexpr double favouriteCredit = 3.0;

constexpr std::array finishCredits{4.0, 3.0, 2.0, 1.0}; // by finish, from the winner on

} // namespace

// The time from the leader's third call to the horse's finish, and what its final time, taken twice, has
// above 70.
void LastQuarterCalc() {
    const Step step{"LastQuarterCalc"};
    // The card's first line has no line index yet; it is stored as line 1.
    const int line = std::max<int>(cursor.line, 1);
    card.pastLine.write(cursor.race, cursor.entry, line).DIST_MILES = load.line.DIST_MILES;

    const double miles = lenientNumber(load.line.DIST_MILES);
    if (miles > 1) {
        cursor.lineValue = "99.9";
        return;
    }
    const auto lastQuarter = numberIn(load.line.HRSE_TM_4Q);
    if (!lastQuarter) passOver();
    if (!lastQuarter || *lastQuarter <= 0 || lenientNumber(load.line.CALL_FN_PO) <= 0) {
        cursor.horseFinal = "8";
        return;
    }
    double horse = 0; // a dash has no final time that counts
    if (miles == 1) {
        horse = lenientNumber(cursor.horseFinal);
        if (horse < 20) horse += 60; // two minutes or more
    }
    const double leader = lenientNumber(cursor.leaderFinal);
    noteTerm(horse);
    noteTerm(leader);
    const double lastPart = horse - leader;
    cursor.lineValue = numberText(lastPart + horse - (70 - horse));
}

void LeadHorse() {
    const Step step{"LeadHorse"};
    for (const Call& call : calls)
        if (lenientNumber(cursor.*call.position) == 1 && !addToLineValue(-call.leadCredit, call.name)) return;
}

void ParkOuts() {
    const Step step{"ParkOuts"};
    const ParkCredits* credits = parkCreditsOf(cursor.lineSize);
    if (credits == nullptr) return;
    for (const Call& call : calls)
        if (isParked(cursor.*call.park) && !addToLineValue(-credits->parked, call.name)) return;
}

void ParkOutsWind() {
    const Step step{"ParkOutsWind"};
    for (const Call& call : calls) {
        const bool onLeadOrSecond = lenientNumber(cursor.*call.position) <= 2;
        if (onLeadOrSecond && isParked(cursor.*call.park) && !addToLineValue(-call.leadCredit, call.name))
            return;
    }
}

void ParkOutsDouble() {
    const Step step{"ParkOutsDouble"};
    const ParkCredits* credits = parkCreditsOf(cursor.lineSize);
    if (credits == nullptr) return;
    for (const Call& call : calls) {
        const double credit = call.third ? credits->twoWideAtTheThird : credits->twoWide;
        if (isParkedTwoWide(cursor.*call.park) && !addToLineValue(-credit, call.name)) return;
    }
}

void QualifierCredit() {
    const Step step{"QualifierCredit"};
    if (isQualifier()) addToLineValue(-qualifierCredit);
}

double classPoints(double todaysRating, double lineRating, double finish) {
    constexpr double noRatingCredit = 3.0;
    constexpr double smallestChange = 3.0;
    constexpr double beatenInBetterClass = 2.0;
    if (lineRating <= 0) return -noRatingCredit; // and is taken for a line of today's class
    const double rise = todaysRating - lineRating;
    if (std::fabs(rise) < smallestChange) return 0;
    if (rise < 0) return finish <= 4 ? rise : beatenInBetterClass;
    return finish <= 3 ? rise / 2 : rise;
}

void ClassChange() {
    const Step step{"ClassChange"};
    if (isQualifier()) return;
    const double points = classPoints(lenientNumber(card.raceInfo(cursor.race).todaysCr),
                                      lenientNumber(load.line.CR), lenientNumber(load.line.CALL_FN_PO));
    if (points != 0) addToLineValue(points);
}

void FavouriteCredit() {
    const Step step{"FavouriteCredit"};
    if (load.line.FAV == "*" && cursor.line == 1) cursor.wasFavourite = "Y";
    if (cursor.wasFavourite == "Y") addToLineValue(-favouriteCredit);
}

void WPS() {
    const Step step{"WPS"};
    const double finish = lenientNumber(load.line.CALL_FN_PO);
    for (std::size_t i = 0; i < finishCredits.size(); ++i)
        if (finish == static_cast<double>(i + 1)) addToLineValue(-finishCredits[i]);
}

void LengthOfStretch() {}
void LengthsGained() {}
void DriverRating() {}

Text closedRating(TextView lineValue) {
    Text rating{leftOf(lineValue, 5)};
    if (lenientNumber(rating) <= 1) rating = "99.9";
    if (rating.size() == 2) rating += ".0";
    return rating;
}

namespace {

void StartLine() {
    cursor.lineValue.clear();
    cursor.lineSize = trimmed(load.line.TRACKSIZE);
    if (cursor.lineSize == "1") cursor.lineSize = "1.M";
    if (cursor.lineSize == "11/4") cursor.lineSize = "1.Q";
}

void NumberFirstLine() {
    if (cursor.line == 0) cursor.line = 1;
}

// Keeps figures between 40 and 99.9, both thrown out; so is a line without a figure.
void RangeTest() {
    const double figure = lenientNumber(cursor.lineValue);
    if (figure >= 99.9 || figure <= 40) cursor.lineValue = " - ";
}

// The course that the park factors know: a mile and a quarter stays in the vendor's form and earns nothing.
void TakeLineSize() {
    cursor.lineSize = trimmed(load.line.TRACKSIZE);
    if (cursor.lineSize == "1") cursor.lineSize = "1.M";
}

// Looks at the finish that the store holds for this line before the line is stored. On a fresh card there is
// none, and every line has the credit.
bool earnsLatePostCredit() {
    const auto finish = numberIn(card.pastLine.read(cursor.race, cursor.entry, cursor.line).CALL_FN_PO);
    if (!finish) {
        passOver();
        return true;
    }
    return *finish <= 3 && cursor.postNumber > 6;
}

void LatePost() {
    if (holdsOrFails(earnsLatePostCredit)) Last_PP();
}

void FindEntry() {
    const Step step{"FindEntry"};
    constexpr double noPost = 99;
    if (cursor.race == 0) cursor.race = 1;
    const double post = lenientNumber(load.horse.PP);
    cursor.entry = post == noPost ? Integer{0} : toInteger(post);
}

// A horse beyond the last entry has only the fields that have room for it.
void StoreWideFields() {
    PastLine& line = card.pastLine.writeWide(cursor.race, cursor.entry, cursor.line);
    for (const LineField& field : lineFields)
        if (field.wide) line.*field.cell = load.line.*field.cell;
    line.lineNumber = card.totalLines;
}

void StoreLine() {
    const Step step{"StoreLine"};
    if (cursor.entry >= entryExtent) attempt(StoreWideFields);
    PastLine& line = card.pastLine.write(cursor.race, cursor.entry, cursor.line);
    for (const LineField& field : lineFields) line.*field.cell = load.line.*field.cell;
    line.rating = cursor.lineValue;
    line.lineNumber = card.totalLines;
    attempt([&] { line.driverName = card.driverTable(toInteger(lenientNumber(load.line.DN))).name; });
}

void CloseLine() {
    const Step step{"CloseLine"};
    if (lenientNumber(load.line.DIST_MILES) < 1) cursor.lineValue = "***";
    const Text rating = closedRating(cursor.lineValue);
    if (diagnosticLogIsOn()) endLogLine(rating);
    if (roadRecorder) roadRecorder->noteRating(rating);
    if (cursor.race >= 1 && cursor.race <= ratedRaces) {
        Grid& view = screen.dataView[static_cast<std::size_t>(cursor.race)];
        attempt([&] { view(cursor.row, DataColumn::rating).text = rating; });
    }
    attempt([&] { card.pastLine.write(cursor.race, cursor.entry, cursor.line).rating = rating; });
}

// The two text forms that the figure is put through between the factors; both round it to one decimal.
enum class Form { asItStands, wide, narrow };

// A positive number that is rounded to one decimal already, as most figures are: neither form changes it.
bool isRounded(TextView figure) {
    if (figure.size() < 3 || figure.size() > 7 || figure[0] == '0') return false;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto point = figure.end() - 2;
    return *point == '.' && isDigit(figure.back()) && std::all_of(figure.begin(), point, isDigit);
}

void putLineValueIn(Form form) {
    if (form == Form::asItStands) return;
    const std::size_t width = form == Form::wide ? 7 : 5;
    Text& figure = cursor.lineValue;
    const TextView number = trimmedLeft(figure);
    if (isRounded(number))
        figure.replace(0, figure.size() - number.size(), width - std::min(width, number.size()), blank);
    else if (form == Form::wide)
        figure = formatted("#####.0", "@@@@@@@", figure);
    else
        figure = formatted("###.0", "@@@@@", figure);
}

enum class Log { nothing, firstFigure, figure };

void logLineValue(Log log) {
    if (log == Log::nothing) return;
    if (log == Log::firstFigure) beginLogLine();
    addToLogLine(cursor.lineValue);
}

struct LineStep {
    Form before;
    void (*run)();
    Form after;
    Log log;
    TextView name; ///< on the road that a user sees; none of a step that is not there
    Text (*why)(const RoadStep&) = nullptr; ///< what it did there
};

// clang-format off

// A line's road to its rating.
constexpr std::array roadOfALine{
    //       form before       step             form after        in the log        on the road        and why
    LineStep{Form::asItStands, StartLine,       Form::asItStands, Log::nothing,     {}},
    LineStep{Form::asItStands, LastQuarterCalc, Form::wide,       Log::firstFigure, "LastQuarterCalc", whyLastQuarter},      // LQC
    LineStep{Form::asItStands, NumberFirstLine, Form::asItStands, Log::nothing,     {}},
    LineStep{Form::asItStands, RangeTest,       Form::narrow,     Log::nothing,     "RangeTest",       whyRange},
    LineStep{Form::asItStands, Tracks,          Form::asItStands, Log::nothing,     "Tracks",          whyCourse},
    LineStep{Form::asItStands, LengthOfStretch, Form::narrow,     Log::nothing,     "LengthOfStretch", whyNothingYet},
    LineStep{Form::asItStands, TakeLineSize,    Form::asItStands, Log::nothing,     {}},
    LineStep{Form::asItStands, PostPosition,    Form::asItStands, Log::nothing,     "PostPosition",    whyPost},
    LineStep{Form::asItStands, LatePost,        Form::wide,       Log::figure,      "Last_PP",         whyLatePost},         // POST
    LineStep{Form::narrow,     LeadHorse,       Form::wide,       Log::figure,      "LeadHorse",       whyLead},             // LH
    LineStep{Form::narrow,     ParkOuts,        Form::wide,       Log::figure,      "ParkOuts",        whyParked},           // PO
    LineStep{Form::narrow,     ParkOutsWind,    Form::wide,       Log::figure,      "ParkOutsWind",    whyParkedInTheWind},  // POW
    LineStep{Form::narrow,     ParkOutsDouble,  Form::wide,       Log::figure,      "ParkOutsDouble",  whyParkedTwoWide},    // POD
    LineStep{Form::narrow,     LengthsGained,   Form::narrow,     Log::nothing,     "LengthsGained",   whyNothingYet},
    LineStep{Form::asItStands, FindEntry,       Form::asItStands, Log::nothing,     {}},
    LineStep{Form::asItStands, QualifierCredit, Form::wide,       Log::figure,      "QualifierCredit", whyQualifier},        // QU
    LineStep{Form::asItStands, ClassChange,     Form::wide,       Log::figure,      "ClassChange",     whyClass},            // CL
    LineStep{Form::asItStands, FavouriteCredit, Form::wide,       Log::figure,      "FavouriteCredit", whyFavourite},        // FAV
    LineStep{Form::asItStands, DriverRating,    Form::narrow,     Log::nothing,     "DriverRating",    whyNothingYet},
    LineStep{Form::asItStands, StoreLine,       Form::asItStands, Log::nothing,     {}},
    LineStep{Form::asItStands, WPS,             Form::wide,       Log::figure,      "WPS",             whyFinish},           // WPS
    LineStep{Form::narrow,     CloseLine,       Form::asItStands, Log::nothing,     "CloseLine",       whyRating},           // and the rating
};

// clang-format on

} // namespace

void RateLine() {
    const Step outer{"RateLine"};
    const bool logged = diagnosticLogIsOn();
    const bool recorded = roadRecorder && roadRecorder->beginsLine();
    for (const LineStep& step : roadOfALine) {
        attempt([&] { putLineValueIn(step.before); });
        attempt(step.run);
        attempt([&] { putLineValueIn(step.after); });
        if (logged) logLineValue(step.log);
        if (recorded && step.why) roadRecorder->noteStep(step.name, step.why);
    }
    if (recorded) roadRecorder->endLine();
}

} // namespace quillon
