#include "card_generator.h"
#include "card_tables.h"
#include "file_bytes.h"
#include "table_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr const char* usageText =
    "quillon-cardmaker makes cards for Quillon. DIR is a working folder.\n"
    "\n"
    "  random SEED RACES ENTRIES LINES DIR [odd]   an invented card: so many races, at most so many entries\n"
    "                                              a race and lines an entry; odd: with every oddity\n"
    "  largest DIR                                 the largest card that fits\n"
    "  oversized DIR                               a card beyond every limit\n"
    "  tables TEXTDIR OUTDIR                       every table text TEXTDIR/*.txt as OUTDIR/*.DBF\n";

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

bool makeCard(const samples::CardOptions& options, const fs::path& folder) {
    return samples::writeCard(samples::generateCard(options), folder) || fail(folder, "can't be written");
}

// The whole word as a number above 0, or 0.
template <class Number>
Number numberOf(const std::string& word) {
    Number value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    return error == std::errc{} && end == word.data() + word.size() && value > 0 ? value : 0;
}

bool makeRandomCard(Arguments arguments) {
    constexpr int most = 99; // numbers of a table have two digits
    samples::CardOptions options{.seed = numberOf<std::uint64_t>(arguments[0])};
    options.races = numberOf<int>(arguments[1]);
    options.entries.high = numberOf<int>(arguments[2]);
    options.lines.high = numberOf<int>(arguments[3]);
    for (const int count : {options.races, options.entries.high, options.lines.high})
        if (count < 1 || count > most) return fail(arguments[4], "races, entries and lines are 1 to 99");
    options.entries.low = std::max(1, options.entries.high - 3);
    options.lines.low = std::max(1, options.lines.high - 3);
    if (arguments.size() == 6) options.odd = samples::allOddities();
    return makeCard(options, arguments[4]);
}

// What follows the command's name: so many words, and one of `last` if there may be one more.
struct Command {
    std::string_view name;
    std::size_t words;
    std::string_view last;
    bool (*run)(Arguments);
};
constexpr std::array commands{
    Command{"random", 5, "odd", makeRandomCard},
    Command{"largest", 1, "", [](Arguments words) { return makeCard(samples::largestCard(), words[0]); }},
    Command{"oversized", 1, "", [](Arguments words) { return makeCard(samples::oversizedCard(), words[0]); }},
    Command{"tables", 2, "", makeTables},
};

bool fits(const Command& command, Arguments words) {
    if (words.size() == command.words) return true;
    return !command.last.empty() && words.size() == command.words + 1 && words.back() == command.last;
}

} // namespace

int main(int count, char** values) {
    const std::vector<std::string> words(values + std::min(count, 1), values + count);
    for (const Command& command : commands) {
        if (words.empty() || words[0] != command.name) continue;
        const auto arguments = Arguments{words}.subspan(1);
        if (fits(command, arguments)) return command.run(arguments) ? 0 : 1;
    }
    std::fputs(usageText, stderr);
    return 2;
}
