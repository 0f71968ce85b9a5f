#include "table_text.h"

#include "file_bytes.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr const char* usageText =
    "quillon-cardmaker makes cards for Quillon.\n"
    "\n"
    "  tables TEXTDIR OUTDIR   every table text TEXTDIR/*.txt as OUTDIR/*.DBF\n";

using Arguments = std::span<const std::string>;

// Every table text of a folder, in the order of their names.
std::vector<fs::path> tableTexts(const fs::path& folder) {
    std::vector<fs::path> paths;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error))
        if (entry.path().extension() == ".txt") paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    return paths;
}

bool fail(const fs::path& path, const std::string& message) {
    std::fprintf(stderr, "%s: %s\n", path.string().c_str(), message.c_str());
    return false;
}

// Makes one table of its text; tells what is wrong on the error stream.
bool makeTable(const fs::path& text, const fs::path& folder) {
    const auto bytes = samples::readFile(text);
    if (!bytes) return fail(text, "can't be read");
    const auto read = samples::readTableText(*bytes);
    if (const auto* error = std::get_if<samples::TextError>(&read)) {
        std::fprintf(stderr, "%s:%zu: %s\n", text.string().c_str(), error->line, error->message.c_str());
        return false;
    }
    const fs::path table = folder / text.filename().replace_extension(".DBF");
    return samples::writeTable(table, std::get<samples::Table>(read)) || fail(table, "can't be written");
}

bool makeTables(Arguments arguments) {
    const auto texts = tableTexts(arguments[0]);
    if (texts.empty()) return fail(arguments[0], "no table texts (*.txt)");
    bool good = true;
    for (const fs::path& text : texts) good = makeTable(text, arguments[1]) && good;
    return good;
}

} // namespace

int main(int count, char** values) {
    const std::vector<std::string> words(values + std::min(count, 1), values + count);
    if (words.size() == 3 && words[0] == "tables") return makeTables(Arguments{words}.subspan(1)) ? 0 : 1;
    std::fputs(usageText, stderr);
    return 2;
}
