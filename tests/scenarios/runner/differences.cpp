#include "differences.h"

#include <algorithm>
#include <span>
#include <vector>

namespace scenarios {
namespace {

using Lines = std::vector<std::string_view>;

constexpr std::size_t mostLines = 30; // of one side of a difference

// Lines with their ends, so that the last one shows whether it has one.
Lines linesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

std::string hex(char c) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto byte = static_cast<unsigned char>(c);
    return {'<', digits[byte >> 4], digits[byte & 0xF], '>'};
}

std::string shown(std::span<const std::string_view> lines, std::string_view mark) {
    std::string text;
    for (std::string_view line : lines.first(std::min(lines.size(), mostLines))) {
        const bool ended = line.ends_with('\n');
        if (ended) line.remove_suffix(1);
        text += std::string{mark} + " " + visible(line) + (ended ? "\n" : "<no line end>\n");
    }
    if (lines.size() > mostLines)
        text += std::string{mark} + " ... and " + std::to_string(lines.size() - mostLines) + " more lines\n";
    return text;
}

} // namespace

std::string visible(std::string_view line) {
    const bool carriageReturn = line.ends_with('\r');
    const std::string_view text = line.substr(0, line.size() - (carriageReturn ? 1 : 0));
    const std::size_t textEnd = text.find_last_not_of(' ') + 1;
    std::string shownText;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const auto byte = static_cast<unsigned char>(line[at]);
        if (line[at] == '\r')
            shownText += "<CR>";
        else if (byte < ' ' || byte > 126 || (line[at] == ' ' && at >= textEnd))
            shownText += hex(line[at]);
        else
            shownText += line[at];
    }
    return shownText;
}

std::string firstLines(std::string_view text, std::string_view mark) { return shown(linesOf(text), mark); }

std::string difference(std::string_view expected, std::string_view actual) {
    if (expected == actual) return "";
    const Lines left = linesOf(expected);
    const Lines right = linesOf(actual);
    const std::size_t shorter = std::min(left.size(), right.size());
    std::size_t same = 0;
    while (same < shorter && left[same] == right[same]) ++same;
    std::size_t sameAtEnd = 0;
    while (sameAtEnd < shorter - same &&
           left[left.size() - 1 - sameAtEnd] == right[right.size() - 1 - sameAtEnd])
        ++sameAtEnd;

    const auto differing = [&](const Lines& lines) {
        return std::span{lines}.subspan(same, lines.size() - same - sameAtEnd);
    };
    return "from line " + std::to_string(same + 1) + ":\n" + shown(differing(left), "-") +
           shown(differing(right), "+");
}

} // namespace scenarios
