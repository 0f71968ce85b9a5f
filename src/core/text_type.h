// Text as the whole system keeps it: bytes of the Windows-1252 code page, compared by byte value.
#pragma once

#include <string>
#include <string_view>

namespace quillon {

using Text = std::string;
using TextView = std::string_view;

} // namespace quillon
