#include "rating/line_reasons.h"

#include "card/race_card.h"
#include "rating/line_value.h"
#include "tables/load_state.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

struct CourseWord {
    TextView size;
    TextView word;
};

constexpr std::array courseWords{
    CourseWord{"1/2", "half-mile"},
    CourseWord{"5/8", "five-eighths-mile"},
    CourseWord{"3/4", "three-quarter-mile"},
    CourseWord{"7/8", "seven-eighths-mile"},
    CourseWord{"3/1", "seven-eighths-mile"},
    CourseWord{"1.M", "one-mile"},
    CourseWord{"1", "one-mile"},
    CourseWord{"1.Q", "mile-and-a-quarter"},
    CourseWord{"11/4", "mile-and-a-quarter"},
    CourseWord{"1 1/4", "mile-and-a-quarter"},
};

Text onTrack(TextView courseSize) { return "on a " + courseWord(courseSize) + " track"; }

// "5th"
Text ordinal(double place) {
    const int number = static_cast<int>(place);
    const int lastTwo = number % 100;
    constexpr std::array endings{"th", "st", "nd", "rd"};
    const int last = number % 10;
    const bool plain = last > 3 || (lastTwo > 10 && lastTwo < 14);
    return std::to_string(number) + endings[static_cast<std::size_t>(plain ? 0 : last)];
}

Text finishText() {
    const double finish = lenientNumber(load.line.CALL_FN_PO);
    return finish >= 1 ? "finished " + ordinal(finish) : "no finish";
}

// "71" or "no"
Text classText(TextView rating) {
    const double number = lenientNumber(rating);
    return number > 0 ? numberText(number) : Text{"no rating"};
}

// With a decimal at least.
Text figureText(double figure) {
    const Text text = numberText(figure);
    return contains(text, ".") ? text : text + ".0";
}

Text pointsOf(const RoadStep& step) { return ": " + pointsText(step.points()); }

// "at the quarter: -0.8, at the half: -0.8"
Text termByTerm(const RoadStep& step) {
    Text text;
    for (const RoadTerm& term : step.terms)
        text += (text.empty() ? "" : ", ") + Text{term.what} + ": " + pointsText(term.figure);
    return text;
}

// A line without calls is credited for those of the line before it.
Text byCalls(const RoadStep& step, TextView what) {
    const bool ownCalls = lenientNumber(load.line.POST) > 0;
    return Text{what} + " " + termByTerm(step) +
           (ownCalls ? "" : " (this line has no calls: those of the line before count)");
}

} // namespace

Text pointsText(double points) {
    const Text text = figureText(points);
    return points < 0 ? text : "+" + text;
}

Text courseWord(TextView courseSize) {
    const auto found = std::find_if(courseWords.begin(), courseWords.end(),
                                    [&](const CourseWord& row) { return row.size == courseSize; });
    if (found != courseWords.end()) return Text{found->word};
    return courseSize.empty() ? Text{"unknown"} : Text{courseSize};
}

// The terms are the horse's final seconds and the leader's at the third call.
Text whyLastQuarter(const RoadStep& step) {
    const double miles = lenientNumber(load.line.DIST_MILES);
    if (miles > 1) return numberText(miles) + " miles: longer than a mile can't be rated";
    if (step.terms.size() < 2) return "no last quarter or no finish: no figure";
    return "3 x " + figureText(step.terms[0].figure) + " s final time - " + figureText(step.terms[1].figure) +
           " s leader's three quarters - 70";
}

Text whyRange(const RoadStep& step) {
    if (step.before.empty()) return "no figure: the line can't be rated";
    return step.after == step.before ? "above 40 and below 99.9: kept"
                                     : "40 and less, 99.9 and more can't be rated";
}

Text whyCourse(const RoadStep& step) {
    return "raced " + onTrack(cursor.lineSize) + ", today " + courseWord(card.trackSize) +
           (step.points() == 0 ? Text{": no change"} : pointsOf(step));
}

Text whyNothingYet(const RoadStep&) { return "does not count"; }

Text whyPost(const RoadStep& step) {
    if (cursor.entry < 1) return "no post yet: no charge";
    return "post " + std::to_string(cursor.entry) + " " + onTrack(card.trackSize) +
           (step.points() == 0 ? Text{": no charge"} : pointsOf(step));
}

Text whyLatePost(const RoadStep& step) {
    if (!step.terms.empty()) return "late-post credit " + onTrack(card.trackSize) + pointsOf(step);
    return "no late-post credit " + onTrack(card.trackSize);
}

Text whyLead(const RoadStep& step) {
    return step.terms.empty() ? "not on the lead at a call" : byCalls(step, "on the lead");
}

Text whyParked(const RoadStep& step) {
    if (!step.terms.empty()) return byCalls(step, "raced outside");
    return "no call raced outside that counts " + onTrack(cursor.lineSize);
}

Text whyParkedInTheWind(const RoadStep& step) {
    if (!step.terms.empty()) return byCalls(step, "raced outside on the lead or second");
    return "no call raced outside on the lead or second";
}

Text whyParkedTwoWide(const RoadStep& step) {
    if (!step.terms.empty()) return byCalls(step, "raced two wide");
    return "no call raced two wide that counts " + onTrack(cursor.lineSize);
}

Text whyQualifier(const RoadStep& step) {
    return step.terms.empty() ? "no qualifier" : "a qualifier" + pointsOf(step);
}

Text whyClass(const RoadStep& step) {
    if (isQualifier()) return "a qualifier: its class does not count";
    const Text today = classText(card.raceInfo(cursor.race).todaysCr);
    const Text then = classText(load.line.CR);
    const Text classes = "class " + today + " today, " + then + " then";
    return step.terms.empty() ? classes + ": too close to count"
                              : classes + ", " + finishText() + pointsOf(step);
}

Text whyFavourite(const RoadStep& step) {
    return step.terms.empty() ? "not the favourite last time" : "the favourite last time" + pointsOf(step);
}

Text whyFinish(const RoadStep& step) {
    return step.terms.empty() ? finishText() + ": no credit" : finishText() + pointsOf(step);
}

Text whyRating(const RoadStep& step) {
    if (lenientNumber(load.line.DIST_MILES) < 1) return "shorter than a mile: can't be rated";
    if (!numberIn(step.before)) return "no figure: can't be rated";
    return lenientNumber(step.before) == lenientNumber(step.after) ? "the rating"
                                                                   : "1 and less can't be rated";
}

} // namespace quillon
