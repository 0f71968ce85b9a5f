// The lines that come in, as long as they are there.
#pragma once

#include "core/text.h"

#include <functional>
#include <istream>
#include <optional>
#include <utility>

namespace quillon {

/// Reads UTF-8 lines that end in LF or CR LF; a last line without an end counts. A byte order mark in front
/// of the first line is dropped.
class InputLines {
public:
    /// `beforeWaiting` is called before the input is waited for.
    InputLines(std::istream& in, std::function<void()> beforeWaiting)
        : in_(in), beforeWaiting_(std::move(beforeWaiting)) {}

    /// The next line without its end, or nothing at the end of the input.
    std::optional<Text> next();

private:
    std::optional<std::string> nextBytes();

    std::istream& in_;
    std::function<void()> beforeWaiting_;
    bool atStart_ = true;
};

} // namespace quillon
