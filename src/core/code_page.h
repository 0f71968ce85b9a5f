// Between the system's Windows-1252 bytes and the Unicode of the world outside. Only the front ends and file
// names need it; the logic never converts.
#pragma once

#include "core/text.h"

namespace quillon {

/// UTF-8 of a text. The five bytes that the code page leaves undefined keep their numbers as code points.
std::string toUtf8(TextView text);

/// The text of UTF-8. A character that the code page does not have becomes "?", and so does each byte that is
/// no UTF-8.
Text fromUtf8(std::string_view utf8);

} // namespace quillon
