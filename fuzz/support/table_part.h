// Tables as readable text: an input that is changed anywhere is still a table, so that it comes past the
// header and into the load.
#pragma once

#include "core/text.h"

namespace quillon::fuzz {

/// The bytes of a table out of text in the form of the scenarios' tables: "RACE N2 | TRACK C5", then a row a
/// line, cells parted by bars, deleted rows with a star in front. Anything is taken: a field without a type
/// is C, one without a width is 10 wide, and a cell that is too long is cut.
Text tableOfText(TextView text);

} // namespace quillon::fuzz
