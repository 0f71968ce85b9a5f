// The vendor's tables out of a zip archive, also one with a program in front. Nothing is ever run, and nothing
// is written: the tables are read into memory.
#pragma once

#include "import/vendor_tables.h"

#include <cstddef>

namespace quillon {

/// What an archive of a day's tables stays far below.
struct ZipLimits {
    std::size_t members = 2000;
    std::size_t bytes = std::size_t{128} << 20;     ///< of all tables, unpacked
    std::size_t ratio = 250;                        ///< of these to the archive; zeros reach a thousand
    std::size_t freeOfRatio = std::size_t{4} << 20; ///< bytes that any small archive may unpack to
};

/// Takes the tables of an archive, by its bytes. An archive with a link, an encrypted member or a path that
/// leads out of it is refused as a whole, and so is one that is damaged or beyond the limits. `name` is the
/// archive's own, for the sentence.
void gatherFromZip(TextView archive, TextView name, Gathered& gathered, const ZipLimits& limits = {});

} // namespace quillon
