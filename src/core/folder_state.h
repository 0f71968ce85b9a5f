// The files of a folder as they stand now, so that whoever reads them all knows when to read them again.
#pragma once

#include "core/files.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace quillon {

struct FileState {
    Text name{};
    std::uint64_t size = 0; ///< bytes
    std::filesystem::file_time_type written{};

    bool operator==(const FileState&) const = default;
};

/// The files that end in `extension` (".pmd"), in any case, by name. A missing folder has none.
std::vector<FileState> fileStatesIn(Folder folder, TextView extension);

} // namespace quillon
