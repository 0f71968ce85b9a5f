// The vendor's tables out of what a user brings: a folder, an archive, or the tables themselves.
#pragma once

#include "import/vendor_tables.h"

#include <filesystem>
#include <vector>

namespace quillon {

/// The tables of all these places together: folders with what is below them, zip archives, also those with a
/// program in front, and tables. Places without any are refused.
Gathered gatherTables(const std::vector<std::filesystem::path>& places);

} // namespace quillon
