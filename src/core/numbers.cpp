#include "core/numbers.h"

#include "core/failure.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace quillon {
namespace {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Where the number at the start of a text ends. The text begins behind sign and blanks.
struct NumberSpan {
    std::size_t length = 0;
    bool hasDigits = false;
};

NumberSpan numberSpan(TextView text) {
    NumberSpan span;
    bool pointSeen = false;
    for (const char c : text) {
        if (c == '.' && !pointSeen)
            pointSeen = true;
        else if (isDigit(c))
            span.hasDigits = true;
        else
            break;
        ++span.length;
    }
    return span;
}

// The exponent behind a number's digits: its length, 0 where there is none.
std::size_t exponentLength(TextView text) {
    if (text.empty() || (text[0] != 'e' && text[0] != 'E')) return 0;
    std::size_t at = 1;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    const std::size_t firstDigit = at;
    while (at < text.size() && isDigit(text[at])) ++at;
    return at == firstDigit ? 0 : at;
}

// Converts digits that numberSpan() has vouched for.
double converted(TextView digits) {
    if (digits.size() <= 15) { // short texts, nearly all there are: exact in integers, one division
        constexpr double tens[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
        std::int64_t whole = 0;
        std::size_t decimals = 0;
        bool plain = true;
        bool pointSeen = false;
        for (const char c : digits) {
            if (isDigit(c)) {
                whole = whole * 10 + (c - '0');
                if (pointSeen) ++decimals;
            } else if (c == '.') {
                pointSeen = true;
            } else {
                plain = false;
                break;
            }
        }
        if (plain) return static_cast<double>(whole) / tens[decimals];
    }
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::result_out_of_range) return std::numeric_limits<double>::infinity();
    return value;
}

// Takes a sign off the front of the text; -1 for a minus.
int takeSign(TextView& text) {
    if (text.empty() || (text[0] != '-' && text[0] != '+')) return 1;
    const int sign = text[0] == '-' ? -1 : 1;
    text.remove_prefix(1);
    return sign;
}

} // namespace

double lenientNumber(TextView text) {
    text = trimmedLeft(text);
    const int sign = takeSign(text);
    const NumberSpan span = numberSpan(text);
    if (!span.hasDigits) return 0;
    const double value = converted(text.substr(0, span.length));
    return std::isfinite(value) ? sign * value : 0;
}

std::optional<double> numberIn(TextView text) {
    text = trimmed(text);
    const int sign = takeSign(text);
    const NumberSpan span = numberSpan(text);
    if (!span.hasDigits) return std::nullopt;
    if (span.length + exponentLength(text.substr(span.length)) != text.size()) return std::nullopt;
    const double value = converted(text);
    if (!std::isfinite(value)) return std::nullopt;
    return sign * value;
}

double strictNumber(TextView text) {
    if (const auto number = numberIn(text)) return *number;
    constexpr int shownCharacters = 40;
    fail("\"" + Text{leftOf(text, shownCharacters)} + "\" is no number");
}

Integer toInteger(double number) {
    const double rounded = std::nearbyint(number); // halves to even
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        fail(numberText(number) + " is beyond 16 bits");
    return static_cast<Integer>(rounded);
}

void countUp(Integer& count) { count = toInteger(count + 1.0); }

double quotient(double dividend, double divisor) {
    if (divisor == 0) fail("a division by zero");
    return dividend / divisor;
}

Text numberText(double number) {
    if (number == 0) return "0";
    if (!std::isfinite(number)) fail("a number beyond all bounds");

    // d.dddddddddddddde[+-]xx: fifteen significant digits and where the point belongs
    char digits[32];
    const auto end =
        std::to_chars(digits, digits + sizeof digits, std::fabs(number), std::chars_format::scientific, 14);
    const TextView shown{digits, static_cast<std::size_t>(end.ptr - digits)};
    const std::size_t mark = shown.find('e');
    Text significant{shown.substr(0, 1)};
    significant += shown.substr(2, mark - 2);
    significant.erase(significant.find_last_not_of('0') + 1);
    int exponent = 0;
    const char* exponentDigits = shown.data() + mark + (shown[mark + 1] == '+' ? 2 : 1);
    std::from_chars(exponentDigits, end.ptr, exponent);

    Text text = number < 0 ? "-" : "";
    const int wholeDigits = exponent + 1;
    const int count = static_cast<int>(significant.size());
    if (wholeDigits <= 0) {
        text += "0.";
        text.append(static_cast<std::size_t>(-wholeDigits), '0');
        text += significant;
    } else if (count <= wholeDigits) {
        text += significant;
        text.append(static_cast<std::size_t>(wholeDigits - count), '0');
    } else {
        text += significant.substr(0, static_cast<std::size_t>(wholeDigits));
        text += '.';
        text += significant.substr(static_cast<std::size_t>(wholeDigits));
    }
    return text;
}

Text listNumber(double number) { return (number < 0 ? "" : " ") + numberText(number) + " "; }

} // namespace quillon
