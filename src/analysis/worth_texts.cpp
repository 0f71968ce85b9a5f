#include "analysis/worth_texts.h"

#include "core/formats.h"

namespace quillon {
namespace {

constexpr double longestOdds = 9999.9; // longer ones tell no more

} // namespace

Text percentText(double chance) { return formatted("0.0", chance * 100); }

Text oddsText(double toOne) { return formatted("0.0", toOne < longestOdds ? toOne : longestOdds); }

Text scaleText(double figure) { return formatted("0.000", figure); }

Text lossText(double loss) { return formatted("0.00", loss); }

} // namespace quillon
