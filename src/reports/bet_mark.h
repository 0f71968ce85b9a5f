// How far the top selection of a race stands out, and the bet that it is worth.
#pragma once

#include "core/text.h"

namespace quillon {

/// How far S1's rating is below that of S2. Fails outside the bounds of the selections.
double gapAfterS1(int race);

/// A morning line as a number: 5/2 is 2.5. Of the divisor only the last digit is read. Fails without a "/"
/// and where that digit is 0.
double oddsOf(TextView morningLine);

/// The gap after S1, cut to four characters as the selection sheet takes it. Fails as gapAfterS1() does.
Text marginOf(int race);

/// The mark of a margin, filled with blanks to nine characters.
TextView betMark(double margin);

/// S1's margin as it is printed beside the bet mark; both empty where a race has no rated S1.
struct ShownMargin {
    double points = 0;
    Text margin{};
    Text mark{};
};
ShownMargin shownMargin(int race);

} // namespace quillon
