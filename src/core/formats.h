// The two kinds of text forms that cells and reports are made with.
//
// A number format such as "##.0": '#' is an optional digit, '0' a forced one, rounding on the exact binary
// value, halves away from zero, at the last place shown. The point always stands: "##.#" of 5 is "5.", "##.0"
// of 0.5 is ".5". '%' multiplies by 100; blanks and other text stand as they are.
//
// An alignment such as "@@@@" right-aligns a text in blanks to the number of signs; a longer text stays
// whole, and text round the signs ("@@@%") stands as it is.
#pragma once

#include "core/numbers.h"
#include "core/text.h"

namespace quillon {

/// A number format, taken apart when the program is compiled; a literal converts to it by itself.
class NumberFormat {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a literal is a format
    consteval NumberFormat(const char* picture) {
        const TextView all{picture};
        const auto isPlace = [](char c) { return c == '#' || c == '0' || c == '.'; };
        std::size_t at = 0;
        while (at < all.size() && !isPlace(all[at])) ++at;
        prefix = all.substr(0, at);
        for (; at < all.size() && all[at] != '.' && isPlace(all[at]); ++at)
            if (all[at] == '0' || forcedWhole > 0) ++forcedWhole;
        if (at < all.size() && all[at] == '.') {
            point = true;
            for (++at; at < all.size() && isPlace(all[at]); ++at) {
                ++decimals;
                if (all[at] == '0') forcedDecimals = decimals;
            }
        }
        suffix = all.substr(at);
        percent = suffix.find('%') != TextView::npos;
        if (decimals > mostDecimals) throw "a number format has at most three decimals";
    }

    static constexpr int mostDecimals = 3;

    TextView prefix;        ///< text in front of the digits
    TextView suffix;        ///< text after them
    int forcedWhole = 0;    ///< digits that stand before the point at the least
    int decimals = 0;       ///< digits after the point at the most
    int forcedDecimals = 0; ///< and at the least
    bool point = false;
    bool percent = false;
};

/// An alignment, taken apart when the program is compiled; a literal converts to it by itself.
class Alignment {
public:
    // NOLINTNEXTLINE(google-explicit-constructor): a literal is an alignment
    consteval Alignment(const char* picture) {
        const TextView all{picture};
        const auto first = all.find('@');
        const auto behind = all.find_last_of('@') + 1;
        prefix = all.substr(0, first);
        suffix = all.substr(behind);
        width = static_cast<int>(behind - first);
    }

    TextView prefix;
    TextView suffix;
    int width = 0;
};

/// The number in the format. A number too great to be told digit by digit fails.
Text formatted(const NumberFormat& format, double number);

/// A text that is strictly a number is formatted as that number; any other text passes unchanged.
Text formatted(const NumberFormat& format, TextView text);

Text aligned(const Alignment& alignment, TextView text);

/// First the number format, then the alignment: how nearly every cell is made.
template <class Value>
Text formatted(const NumberFormat& format, const Alignment& alignment, const Value& value) {
    return aligned(alignment, formatted(format, value));
}

} // namespace quillon
