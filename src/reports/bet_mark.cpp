#include "reports/bet_mark.h"

#include "card/race_card.h"
#include "core/formats.h"
#include "core/numbers.h"
#include "reports/ranked_row.h"

#include <algorithm>
#include <array>
#include <limits>

namespace quillon {
namespace {

struct BetMark {
    double below;
    TextView text;
};
constexpr double deadHeatMargin = 0.1;
constexpr TextView deadHeat = "DEAD HEAT";
// clang-format off
constexpr std::array betMarks{
    BetMark{1,   "VDH      "},
    BetMark{2,   "$        "},
    BetMark{3,   "$$       "},
    BetMark{4,   "$$$      "},
    BetMark{5,   "$$$$     "},
    BetMark{std::numeric_limits<double>::infinity(), "$$$$$    "},
};
// clang-format on

} // namespace

double gapAfterS1(int race) {
    return lenientNumber(rankedRow(race, 2).pr) - lenientNumber(rankedRow(race, 1).pr);
}

double oddsOf(TextView morningLine) {
    const TextView dividend = leftOf(morningLine, placeOf("/", morningLine) - 1);
    return quotient(lenientNumber(dividend), lenientNumber(rightOf(morningLine, 1)));
}

// A margin whose text begins with 9.9 is as good as level.
Text marginOf(int race) {
    const Text text = numberText(gapAfterS1(race));
    return text.starts_with("9.9") ? "0.01" : Text{leftOf(text, 4)};
}

TextView betMark(double margin) {
    if (margin <= deadHeatMargin) return deadHeat;
    return std::find_if(betMarks.begin(), betMarks.end(),
                        [&](const BetMark& row) { return margin < row.below; })
        ->text;
}

ShownMargin shownMargin(int race) {
    if (race < 1 || race >= raceExtent || trimmed(rankedRow(race, 1).pr).empty()) return {};
    const Text text = marginOf(race);
    const double points = lenientNumber(text);
    return {points, formatted("#0.0", text), Text{trimmed(betMark(points))}};
}

} // namespace quillon
