// A small card as the vendor sends it, its tables written as text.
#pragma once

#include "import/vendor_tables.h"

#include <map>

namespace quillon {

/// A table out of readable text: its fields in the first line, then a row a line.
Text tableFrom(const Text& text);

/// Two races of three horses at MVR on 14 March 2026, with a line each; all five tables that a load reads. A
/// table that `changed` names stands there as it has it, and without any text it is left out.
std::vector<VendorTable> smallCard(const std::map<TextView, Text>& changed = {});

} // namespace quillon
