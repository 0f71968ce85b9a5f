#include "core/text.h"

#include "core/failure.h"

#include <algorithm>

namespace quillon {
namespace {

std::size_t characters(int count) {
    if (count < 0) fail("a text of negative length");
    return static_cast<std::size_t>(count);
}

constexpr char asciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr char upper(char c) {
    const auto code = static_cast<unsigned char>(c);
    const bool asciiLetter = code >= 'a' && code <= 'z';
    const bool accentedLetter = code >= 0xE0 && code <= 0xFE && code != 0xF7; // F7 is the division sign
    return asciiLetter || accentedLetter ? static_cast<char>(code - 0x20) : c;
}

} // namespace

TextView leftOf(TextView text, int count) { return text.substr(0, characters(count)); }

TextView rightOf(TextView text, int count) {
    const auto wanted = std::min(characters(count), text.size());
    return text.substr(text.size() - wanted);
}

TextView midOf(TextView text, int place, int count) {
    if (place < 1) fail("a place in front of the text");
    const auto wanted = characters(count);
    const auto start = std::min(static_cast<std::size_t>(place) - 1, text.size());
    return text.substr(start, wanted);
}

TextView midOf(TextView text, int place) {
    if (place < 1) fail("a place in front of the text");
    return text.substr(std::min(static_cast<std::size_t>(place) - 1, text.size()));
}

int placeOf(TextView part, TextView text) {
    const auto found = text.find(part);
    return found == TextView::npos ? 0 : static_cast<int>(found) + 1;
}

Text blanks(int count) { return Text(characters(count), blank); }

Text rightAligned(TextView text, int width) {
    const auto wanted = characters(width);
    Text aligned;
    aligned.reserve(std::max(wanted, text.size()));
    if (text.size() < wanted) aligned.assign(wanted - text.size(), blank);
    return aligned.append(text);
}

Text filledTo(TextView text, int width) {
    Text filled{text};
    return filled += blanks(width - static_cast<int>(text.size()));
}

Text upperCase(TextView text) {
    Text result{text};
    std::transform(result.begin(), result.end(), result.begin(), upper);
    return result;
}

bool sameIgnoringCase(TextView left, TextView right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return asciiLower(a) == asciiLower(b); });
}

} // namespace quillon
