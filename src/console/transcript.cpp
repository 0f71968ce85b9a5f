#include "console/transcript.h"

#include "core/code_page.h"

namespace quillon {

std::string onOneLine(TextView text) {
    if (text.find_first_of("\r\n") == TextView::npos) return toUtf8(text);
    Text line;
    line.reserve(text.size() + 1);
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\r' && text[at] != '\n') {
            line += text[at];
            continue;
        }
        line += "\\n";
        if (text.substr(at, 2) == "\r\n") ++at;
    }
    return toUtf8(line);
}

} // namespace quillon
