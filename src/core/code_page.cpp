#include "core/code_page.h"

#include <algorithm>
#include <array>
#include <optional>

namespace quillon {
namespace {

// Code points of the bytes 80 to 9F; all others are their own. Undefined bytes (81, 8D, 8F, 90, 9D) stand as
// they are.
constexpr std::array<char32_t, 32> upperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80 to 87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88 to 8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90 to 97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98 to 9F
};

char32_t codePointOf(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? upperControls[byte - 0x80U] : byte;
}

char byteOf(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<char>(codePoint);
    const auto found = std::find(upperControls.begin(), upperControls.end(), codePoint);
    if (found == upperControls.end()) return '?';
    return static_cast<char>(0x80 + (found - upperControls.begin()));
}

struct Decoded {
    char32_t codePoint;
    std::size_t length;
};

// The character at the start of a text, or nothing when the bytes there are no UTF-8.
std::optional<Decoded> decoded(std::string_view utf8) {
    struct Form {
        unsigned char mask, lead;
        std::size_t length;
        char32_t least; ///< shorter forms exist below this code point
    };
    constexpr std::array forms{Form{0x80, 0x00, 1, 0}, Form{0xE0, 0xC0, 2, 0x80}, Form{0xF0, 0xE0, 3, 0x800},
                               Form{0xF8, 0xF0, 4, 0x10000}};
    const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(utf8[at]); };
    for (const Form& form : forms) {
        if ((byteAt(0) & form.mask) != form.lead) continue;
        if (utf8.size() < form.length) return std::nullopt;
        char32_t codePoint = byteAt(0) & static_cast<unsigned char>(~form.mask);
        for (std::size_t at = 1; at < form.length; ++at) {
            if ((byteAt(at) & 0xC0) != 0x80) return std::nullopt;
            codePoint = (codePoint << 6) | (byteAt(at) & 0x3F);
        }
        const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
        if (codePoint < form.least || codePoint > 0x10FFFF || surrogate) return std::nullopt;
        return Decoded{codePoint, form.length};
    }
    return std::nullopt;
}

} // namespace

std::string toUtf8(TextView text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        const char32_t codePoint = codePointOf(static_cast<unsigned char>(c));
        if (codePoint < 0x80) {
            utf8 += static_cast<char>(codePoint);
        } else if (codePoint < 0x800) {
            utf8 += static_cast<char>(0xC0 | (codePoint >> 6));
            utf8 += static_cast<char>(0x80 | (codePoint & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | (codePoint >> 12));
            utf8 += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
            utf8 += static_cast<char>(0x80 | (codePoint & 0x3F));
        }
    }
    return utf8;
}

Text fromUtf8(std::string_view utf8) {
    Text text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const auto character = decoded(utf8);
        text += character ? byteOf(character->codePoint) : '?';
        utf8.remove_prefix(character ? character->length : 1);
    }
    return text;
}

} // namespace quillon
