// The vendor's folder: what is in it, and new tables in the place of the old.
#pragma once

#include "import/vendor_tables.h"

namespace quillon {

/// The vendor's tables that are in the folder now. Those that can't be read are left out.
std::vector<VendorTable> tablesInPlace();

/// Whether the folder holds these very tables and no other of the vendor's.
bool areInPlace(const std::vector<VendorTable>& tables);

/// Puts the tables into the folder, where they are the only ones of the vendor's from then on. The old ones are
/// kept first, in an archive of their own in the folder `Imported`. False where something can't be written: then
/// the old tables are as they were.
bool putInPlace(const std::vector<VendorTable>& tables);

} // namespace quillon
