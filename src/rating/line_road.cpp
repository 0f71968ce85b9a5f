#include "rating/line_road.h"

#include "card/race_card.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace quillon {

namespace {

constexpr TextView thrownOut = "-"; ///< what the range test makes of a figure outside it, without blanks

// With a decimal at least: a step that adds nothing may leave a whole number without its point.
Text figureText(TextView figure) {
    Text text{trimmed(figure)};
    if (numberIn(text) && !contains(text, ".")) text += ".0";
    return text;
}

} // namespace

RoadRecorder* roadRecorder = nullptr;

double RoadStep::points() const {
    return std::accumulate(terms.begin(), terms.end(), 0.0,
                           [](double sum, const RoadTerm& term) { return sum + term.figure; });
}

RoadRecorder::RoadRecorder(std::vector<Integer> lineNumbers)
    : outer_{std::exchange(roadRecorder, this)}, wanted_{std::move(lineNumbers)} {}

RoadRecorder::~RoadRecorder() { roadRecorder = outer_; }

bool RoadRecorder::beginsLine() {
    const bool all = wanted_.empty();
    recording_ = all || std::find(wanted_.begin(), wanted_.end(), card.totalLines) != wanted_.end();
    road_ = {};
    step_ = {};
    return recording_;
}

void RoadRecorder::noteTerm(const RoadTerm& term) {
    if (recording_) step_.terms.push_back(term);
}

void RoadRecorder::noteRating(TextView rating) { step_.after = figureText(rating); }

void RoadRecorder::noteStep(TextView name, Text (*reason)(const RoadStep& step)) {
    step_.name = name;
    if (step_.after.empty()) step_.after = figureText(cursor.lineValue);
    const bool stayedOut = step_.before == thrownOut && step_.after == thrownOut;
    step_.reason = stayedOut ? Text{"no figure to work on"} : reason(step_);
    RoadStep next;
    next.before = step_.after;
    road_.steps.push_back(std::exchange(step_, std::move(next)));
}

void RoadRecorder::endLine() {
    recording_ = false;
    road_.race = cursor.race;
    road_.entry = cursor.entry;
    road_.line = cursor.line;
    road_.row = cursor.row;
    road_.lineNumber = card.totalLines;
    roads_.push_back(std::move(road_));
}

} // namespace quillon
