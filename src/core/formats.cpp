#include "core/formats.h"

#include "core/failure.h"

#include <charconv>
#include <cmath>

namespace quillon {
namespace {

constexpr double powersOfTen[] = {1, 10, 100, 1000};

// The magnitude in units of its last place, halves away from zero. Multiplying rounds, so the first guess may
// be off by one; the fused multiply-add has the exact sign of the distance to the two halves next to it.
double roundedUnits(double magnitude, double unitsPerOne) {
    double units = std::floor(magnitude * unitsPerOne + 0.5);
    if (std::fma(magnitude, unitsPerOne, -(units - 0.5)) < 0) units -= 1;
    if (std::fma(magnitude, unitsPerOne, -(units + 0.5)) >= 0) units += 1;
    return units;
}

} // namespace

Text formatted(const NumberFormat& format, double number) {
    constexpr double mostUnits = 9007199254740992.0; // beyond 2^53 the halves can't be told
    const double unitsPerOne = powersOfTen[format.decimals];
    const double units = roundedUnits(std::fabs(format.percent ? number * 100 : number), unitsPerOne);
    if (!(units < mostUnits)) fail("a number too great for its format");

    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<std::int64_t>(units));
    TextView shown{digits, static_cast<std::size_t>(end.ptr - digits)};
    if (units == 0) shown = {};

    const auto decimals = static_cast<std::size_t>(format.decimals);
    const std::size_t wholeCount = shown.size() > decimals ? shown.size() - decimals : 0;

    Text text{format.prefix};
    if (number < 0) text += '-';
    const auto forcedWhole = static_cast<std::size_t>(format.forcedWhole);
    if (wholeCount < forcedWhole) text.append(forcedWhole - wholeCount, '0');
    text += shown.substr(0, wholeCount);
    if (format.point) {
        text += '.';
        const TextView fraction = shown.substr(wholeCount);
        const std::size_t start = text.size();
        text.append(decimals - fraction.size(), '0');
        text += fraction;
        const std::size_t least = start + static_cast<std::size_t>(format.forcedDecimals);
        while (text.size() > least && text.back() == '0') text.pop_back();
    }
    return text += format.suffix;
}

Text formatted(const NumberFormat& format, TextView text) {
    if (const auto number = numberIn(text)) return formatted(format, *number);
    return Text{text};
}

Text aligned(const Alignment& alignment, TextView text) {
    if (alignment.prefix.empty() && alignment.suffix.empty()) return rightAligned(text, alignment.width);
    Text result{alignment.prefix};
    result += rightAligned(text, alignment.width);
    return result += alignment.suffix;
}

} // namespace quillon
