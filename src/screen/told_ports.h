// Ports that tell in words, a line each, what a user would see: for a front end without a window.
#pragma once

#include "core/text.h"
#include "screen/ports.h"

#include <functional>
#include <optional>

namespace quillon {

using TellLine = std::function<void(const Text& line)>;
using TakeAnswer = std::function<std::optional<Text>()>; ///< the next one; nothing is a No or a cancel

/// "message: ...", "question: ... -> No", "view: ...". Nothing is done beyond the telling.
Ports toldPorts(TellLine tell, TakeAnswer nextAnswer);

} // namespace quillon
