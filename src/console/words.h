// The words of a console line.
#pragma once

#include "core/text.h"

#include <optional>

namespace quillon {

/// A text of digits with an optional sign and nothing else that fits an int.
std::optional<int> wholeNumber(TextView text);

/// Cuts the first word off a text: what stands before its first blank. What stands after that blank is the
/// new rest, which has no value where there was no blank.
TextView takeWord(std::optional<TextView>& rest);

} // namespace quillon
