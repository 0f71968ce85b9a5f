// The lines that come in, as long as they are there.
#pragma once

#include "console/transcript.h"
#include "core/text.h"

#include <istream>
#include <optional>

namespace quillon {

/// Reads UTF-8 lines that end in LF or CR LF; a last line without an end counts. A byte order mark in front
/// of the first line is dropped.
class InputLines {
public:
    /// What was printed so far goes out before the input is waited for, so that whoever types at the other
    /// end has read it.
    InputLines(std::istream& in, Transcript& transcript) : in_(in), transcript_(transcript) {}

    /// The next line without its end, or nothing at the end of the input.
    std::optional<Text> next();

private:
    std::optional<std::string> nextBytes();

    std::istream& in_;
    Transcript& transcript_;
    bool atStart_ = true;
};

} // namespace quillon
