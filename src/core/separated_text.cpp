#include "core/separated_text.h"

#include "core/code_page.h"
#include "core/files.h"
#include "core/numbers.h"

namespace quillon {
namespace {

bool wouldRun(TextView cell) {
    constexpr TextView beginnings = "=+-@\t\r";
    return !cell.empty() && contains(beginnings, cell.substr(0, 1)) && !numberIn(cell);
}

// With the quotes inside doubled.
std::string inQuotes(TextView cell) {
    std::string text{'"'};
    for (const char character : cell) {
        if (character == '"') text += '"';
        text += character;
    }
    return text += '"';
}

} // namespace

std::string separatedRecord(std::span<const Text> cells, Separator separator) {
    const char between = static_cast<char>(separator);
    const Text special = Text{"\"\r\n"} + between;
    std::string record;
    bool isFirst = true;
    for (const Text& cell : cells) {
        if (!isFirst) record += between;
        isFirst = false;
        const std::string text = (wouldRun(cell) ? "'" : "") + toUtf8(cell);
        record += text.find_first_of(special) == std::string::npos ? text : inQuotes(text);
    }
    return record += crLf;
}

} // namespace quillon
