// What a command is given when it is run.
#pragma once

#include "core/text_type.h"

#include <array>

namespace quillon {

/// What a command takes, in the order it is given.
enum class Takes {
    nothing,
    number,
    text,
    numberAndText,
    cell, ///< race, row, column, text
};

struct Arguments {
    std::array<int, 3> numbers{};
    Text text{};
};

} // namespace quillon
