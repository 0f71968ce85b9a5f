// How two texts differ, for people to read.
#pragma once

#include <string>
#include <string_view>

namespace scenarios {

/// A line with all visible that the eye would miss: <CR>, blanks at the end as <20>, and control characters
/// and bytes above 126 in hex, such as <BA>.
std::string visible(std::string_view line);

/// The first lines of a text, made visible, each after `mark`.
std::string firstLines(std::string_view text, std::string_view mark);

/// The lines in which two texts differ: what was expected after "-", what came after "+", and the number of
/// the first such line. Empty where the texts are the same bytes.
std::string difference(std::string_view expected, std::string_view actual);

} // namespace scenarios
