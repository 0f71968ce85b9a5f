// Tables as a zip archive.
#pragma once

#include "import/vendor_tables.h"

#include <optional>

namespace quillon {

/// The bytes of an archive of these tables by their names; nothing where it can't be made.
std::optional<Text> zipOf(const std::vector<VendorTable>& tables);

} // namespace quillon
