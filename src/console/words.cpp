#include "console/words.h"

#include <charconv>

namespace quillon {

std::optional<int> wholeNumber(TextView text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) return std::nullopt;
    }
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc{} || result.ptr != end) return std::nullopt;
    return number;
}

TextView takeWord(std::optional<TextView>& rest) {
    const TextView text = rest.value_or(TextView{});
    const auto end = text.find(blank);
    rest = end == TextView::npos ? std::nullopt : std::optional{text.substr(end + 1)};
    return text.substr(0, end);
}

} // namespace quillon
