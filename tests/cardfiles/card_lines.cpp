#include "card_lines.h"

namespace quillon {

std::vector<std::string> linesOf(std::string_view content) {
    std::vector<std::string> lines(1);
    while (!content.empty()) {
        const auto end = content.find("\r\n");
        lines.emplace_back(content.substr(0, end));
        content = end == std::string_view::npos ? std::string_view{} : content.substr(end + 2);
    }
    return lines;
}

std::vector<std::string> emptyCardLines() {
    std::vector<std::string> lines(13'180, "\"\"");
    for (int race = 1; race <= 23; ++race)
        for (int entry = 1; entry <= 12; ++entry)
            for (const int count : {40, 41})
                lines[static_cast<std::size_t>(entryLine(race, entry, count))] = "0";
    return lines;
}

std::string cardFileWithLine(int number, std::string_view line, int count) {
    auto lines = emptyCardLines();
    lines[static_cast<std::size_t>(number)] = line;
    lines.resize(static_cast<std::size_t>(count) + 1);
    return fileOf(lines);
}

std::string fileOf(const std::vector<std::string>& lines) {
    std::string content;
    for (std::size_t at = 1; at < lines.size(); ++at) content += lines[at] + "\r\n";
    return content;
}

} // namespace quillon
