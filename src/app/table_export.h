// Tables written to files for other programs.
#pragma once

#include "core/files.h"
#include "core/text.h"
#include "screen/screen.h"

#include <optional>

namespace quillon {

/// What `Export PART FILE` asks for: "raceview 3 entries.csv".
struct TableExport {
    enum class Form { csv, tsv, json };

    Text part{};
    Grid table{};
    Form form = Form::csv; ///< by the ending of the file
    FilePlace file{};
};

/// Nothing where no table has the name, or the file has no such ending.
std::optional<TableExport> tableExport(TextView words);

/// Writes a table as it stands, its heads first, in place of what the file held. Rows and columns without any text
/// at its ends are left out. The user is told when the file can't be written.
void Export(const Text& words);

} // namespace quillon
