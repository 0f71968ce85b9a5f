#include "core/folder_state.h"

#include "core/code_page.h"
#include "core/disk.h"

#include <algorithm>
#include <system_error>

namespace quillon {

namespace fs = std::filesystem;

// A file that goes away meanwhile is left out.
std::vector<FileState> fileStatesIn(Folder folder, TextView extension) {
    std::vector<FileState> states;
    const fs::path path = folderOnDisk(folder);
    std::error_code error;
    for (fs::directory_iterator at{path.empty() ? fs::path{"."} : path, error}, end; !error && at != end;
         at.increment(error)) {
        FileState state{.name = fromUtf8(disk::utf8Name(at->path()))};
        const bool wanted =
            state.name.size() > extension.size() &&
            sameIgnoringCase(rightOf(state.name, static_cast<int>(extension.size())), extension);
        std::error_code gone;
        if (!wanted || !at->is_regular_file(gone)) continue;
        state.size = at->file_size(gone);
        if (!gone) state.written = at->last_write_time(gone);
        if (!gone) states.push_back(std::move(state));
    }
    std::sort(states.begin(), states.end(),
              [](const FileState& left, const FileState& right) { return left.name < right.name; });
    return states;
}

} // namespace quillon
