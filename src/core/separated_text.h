// Tables as text for spreadsheets, a record a line: CSV as RFC 4180 has it, and the same with tabs.
#pragma once

#include "core/text.h"

#include <span>
#include <string>

namespace quillon {

enum class Separator : char { comma = ',', tab = '\t' };

/// A record in UTF-8, ended by CR LF. A cell with the separator, a quote or a line end stands between quotes. A
/// cell that a spreadsheet would run as a formula, anything but a number that begins with =, +, -, @, a tab or a
/// CR, gets an apostrophe before it.
std::string separatedRecord(std::span<const Text> cells, Separator separator);

} // namespace quillon
