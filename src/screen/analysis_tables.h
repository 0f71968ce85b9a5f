// The tables of the analysis by the names that commands have for them.
#pragma once

#include "core/text.h"
#include "screen/screen.h"

#include <array>

namespace quillon {

struct AnalysisTable {
    TextView name;
    Grid Screen::*grid;
};

inline constexpr std::array analysisTables{
    AnalysisTable{"summary", &Screen::summary}, AnalysisTable{"profile", &Screen::profile},
    AnalysisTable{"tracks", &Screen::tracks},   AnalysisTable{"picks", &Screen::picks},
    AnalysisTable{"stars", &Screen::stars},
};

} // namespace quillon
