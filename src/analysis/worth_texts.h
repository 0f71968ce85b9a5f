// Chances and odds as they are shown.
#pragma once

#include "core/text.h"

namespace quillon {

Text percentText(double chance); ///< "23.4", in percent
Text oddsText(double toOne);     ///< "3.4"
Text scaleText(double figure);   ///< "0.304", of a scale or its error
Text lossText(double loss);      ///< "1.61"

} // namespace quillon
