#include "core/numbers.h"

#include "core/failure.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace quillon {
namespace {

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

// What a text begins with, after its blanks: a number without an exponent.
struct Leading {
    double value = 0;
    std::size_t length = 0; ///< characters up to the number's end, blanks in front included
    bool isNumber = false;
};

constexpr double tens[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                           1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// A number with an exponent, or of more digits than fit an integer; infinite when it is beyond a double.
double converted(TextView digits) {
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return result.ec == std::errc::result_out_of_range ? std::numeric_limits<double>::infinity() : value;
}

// Nearly all numbers have few digits: those are read exactly in integers, with one division at the most.
Leading leadingNumber(TextView text) {
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    const char* at = begin;
    while (at != end && *at == blank) ++at;
    const bool negative = at != end && *at == '-';
    if (at != end && (*at == '-' || *at == '+')) ++at;

    const char* const first = at;
    std::uint64_t units = 0; // means nothing where there are too many digits
    const auto passDigits = [&] {
        const char* const from = at;
        for (; at != end && isDigit(*at); ++at) units = units * 10 + static_cast<std::uint64_t>(*at - '0');
        return at - from;
    };
    const auto wholeDigits = passDigits();
    if (at != end && *at == '.') ++at;
    const auto decimals = passDigits();

    const auto digits = wholeDigits + decimals;
    if (digits == 0) return {};
    constexpr int exactDigits = 15;
    double value = static_cast<double>(units);
    if (digits > exactDigits)
        value = converted({first, static_cast<std::size_t>(at - first)});
    else if (decimals > 0)
        value /= tens[decimals];
    return {negative ? -value : value, static_cast<std::size_t>(at - begin), true};
}

// The exponent after a number's digits: its length, 0 where there is none.
std::size_t exponentLength(TextView text) {
    if (text.empty() || (text[0] != 'e' && text[0] != 'E')) return 0;
    std::size_t at = 1;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    const std::size_t firstDigit = at;
    while (at < text.size() && isDigit(text[at])) ++at;
    return at == firstDigit ? 0 : at;
}

// A number with an exponent, its sign and blanks in front of it.
double withExponent(TextView text) {
    text = trimmedLeft(text);
    const bool negative = text[0] == '-';
    if (negative || text[0] == '+') text.remove_prefix(1);
    const double value = converted(text);
    return negative ? -value : value;
}

// Whole thousandths as text, the way numberText() writes them.
Text thousandthsText(std::int64_t thousandths) {
    char digits[32];
    char* at = digits;
    if (thousandths < 0) *at++ = '-';
    const std::int64_t magnitude = thousandths < 0 ? -thousandths : thousandths;
    at = std::to_chars(at, digits + sizeof digits, magnitude / 1000).ptr;
    std::int64_t fraction = magnitude % 1000;
    if (fraction != 0) *at++ = '.';
    for (std::int64_t place = 100; fraction != 0; fraction %= place, place /= 10)
        *at++ = static_cast<char>('0' + fraction / place);
    return {digits, at};
}

} // namespace

double lenientNumber(TextView text) {
    if (text.size() == 1 && isDigit(text[0])) return text[0] - '0'; // as nearly all positions and posts are
    const double value = leadingNumber(text).value;
    return std::isfinite(value) ? value : 0;
}

std::optional<double> numberIn(TextView text) {
    const Leading leading = leadingNumber(text);
    if (!leading.isNumber) return std::nullopt;
    double value = leading.value;
    TextView rest = text.substr(leading.length);
    if (const std::size_t exponent = exponentLength(rest); exponent > 0) {
        value = withExponent(text.substr(0, leading.length + exponent));
        rest.remove_prefix(exponent);
    }
    if (!trimmedLeft(rest).empty() || !std::isfinite(value)) return std::nullopt;
    return value;
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

    // Nearly all figures have at most three decimals. Within 3e-16 of its size a number has the same fifteen
    // digits as its nearest thousandth: half a unit of the fifteenth is never less than 5e-16.
    constexpr double mostExact = 1e9;
    const double thousandths = std::nearbyint(number * 1000);
    if (std::fabs(number) < mostExact && std::fabs(number - thousandths / 1000) <= std::fabs(number) * 3e-16)
        return thousandthsText(static_cast<std::int64_t>(thousandths));

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
