#include "import/gathering.h"

#include "core/code_page.h"
#include "import/zip_reading.h"

#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

namespace quillon {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t largestFile = std::uintmax_t{256} << 20;
constexpr int mostFiles = 20'000; ///< of a folder: more is no folder of the vendor's

Text shownName(const fs::path& path) {
    const auto name = path.generic_u8string();
    return fromUtf8({reinterpret_cast<const char*>(name.data()), name.size()});
}

Text bareName(const fs::path& path) { return shownName(path.has_filename() ? path.filename() : path); }

// Empty, with the reason told, where the file can't be read.
std::optional<Text> contentOf(const fs::path& path, Gathered& gathered) {
    std::error_code error;
    const auto size = fs::file_size(path, error);
    if (!error && size > largestFile) {
        gathered.refusal = pathInWords(bareName(path)) + " is larger than anything of the vendor's.";
        return std::nullopt;
    }
    std::ifstream file{path, std::ios::binary};
    Text content;
    if (!error && file) {
        content.resize(static_cast<std::size_t>(size));
        file.read(content.data(), static_cast<std::streamsize>(size));
    }
    if (error || !file) {
        gathered.refusal = pathInWords(bareName(path)) + " can't be read.";
        return std::nullopt;
    }
    return content;
}

void takeTable(const fs::path& path, TextView name, Text shownPath, Gathered& gathered) {
    auto content = contentOf(path, gathered);
    if (content) gathered.take({name, std::move(*content), std::move(shownPath)});
}

void gatherFromFolder(const fs::path& folder, Gathered& gathered) {
    std::error_code error;
    int files = 0;
    fs::recursive_directory_iterator at{folder, fs::directory_options::skip_permission_denied, error};
    for (const fs::recursive_directory_iterator end; !error && at != end; at.increment(error)) {
        if (gathered.isRefused()) return;
        if (++files > mostFiles) {
            gathered.refusal = pathInWords(bareName(folder)) + " holds more than " +
                               std::to_string(mostFiles) + " files. Bring the folder that the tables are in.";
            return;
        }
        const auto table = vendorTableAt(bareName(at->path()));
        if (!table) continue;
        std::error_code unknown;
        const Text path = shownName(at->path().lexically_relative(folder));
        if (at->is_symlink(unknown))
            gathered.refusal =
                pathInWords(path) + " in " + pathInWords(bareName(folder)) + " is a link to another file.";
        else if (at->is_regular_file(unknown))
            takeTable(at->path(), *table, path, gathered);
    }
    if (error) gathered.refusal = pathInWords(bareName(folder)) + " can't be read to its end.";
}

void gatherFrom(const fs::path& place, Gathered& gathered) {
    std::error_code error;
    if (fs::is_directory(place, error)) return gatherFromFolder(place, gathered);
    if (!fs::is_regular_file(place, error)) {
        gathered.refusal = pathInWords(bareName(place)) + " is not there, or is no file.";
        return;
    }
    const Text name = bareName(place);
    if (const auto table = vendorTableAt(name)) return takeTable(place, *table, name, gathered);
    if (const auto archive = contentOf(place, gathered)) gatherFromZip(*archive, name, gathered);
}

} // namespace

Gathered gatherTables(const std::vector<fs::path>& places) {
    Gathered gathered;
    for (const fs::path& place : places)
        if (!gathered.isRefused()) gatherFrom(place, gathered);
    if (gathered.tables.empty() && !gathered.isRefused())
        gathered.refusal = places.size() == 1 ? "No table of the vendor's is in " +
                                                    pathInWords(bareName(places.front())) + "."
                                              : Text{"No table of the vendor's is among these files."};
    if (gathered.isRefused()) gathered.tables.clear();
    return gathered;
}

} // namespace quillon
