#include "console/input_lines.h"

#include "core/code_page.h"

#include <streambuf>
#include <string_view>

namespace quillon {

std::optional<std::string> InputLines::nextBytes() {
    using Traits = std::streambuf::traits_type;
    std::string line;
    for (;;) {
        if (in_.rdbuf()->in_avail() <= 0) beforeWaiting_();
        const auto next = in_.get(); // an input that can't be read has ended
        const bool ended = Traits::eq_int_type(next, Traits::eof());
        if (ended && line.empty()) return std::nullopt;
        if (ended || next == '\n') return line;
        line += Traits::to_char_type(next);
    }
}

std::optional<Text> InputLines::next() {
    const auto bytes = nextBytes();
    if (!bytes) return std::nullopt;
    std::string_view line = *bytes;
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (atStart_ && line.starts_with(byteOrderMark)) line.remove_prefix(byteOrderMark.size());
    atStart_ = false;
    if (line.ends_with('\r')) line.remove_suffix(1);
    return fromUtf8(line);
}

} // namespace quillon
