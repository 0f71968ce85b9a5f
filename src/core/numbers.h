// Numbers out of texts and texts out of numbers. Nothing here depends on a locale.
#pragma once

#include "core/text.h"

#include <cstdint>
#include <optional>

namespace quillon {

/// The store's 16-bit integers.
using Integer = std::int16_t;

/// The number that a text begins with: leading blanks, an optional sign, digits with at most one point; what
/// follows is ignored ("1A" is 1, "8/5" is 8). 0 when there is none. No exponent, no thousands separator.
double lenientNumber(TextView text);

/// The number that a text is, with nothing but blanks round it (an exponent is accepted); nothing for any
/// other text.
std::optional<double> numberIn(TextView text);

/// The number that a text is; fails on any text that numberIn() gives nothing for, the empty one too.
double strictNumber(TextView text);

/// Rounded to the nearest whole number, halves to even. Fails outside -32,768 to 32,767.
Integer toInteger(double number);

/// Counts one up. Fails at 32,767 with the count as it was.
void countUp(Integer& count);

/// Fails when the divisor is 0.
double quotient(double dividend, double divisor);

/// A number as text without a format: at most 15 significant digits, no trailing zeros, no exponent, a
/// leading 0 before the point, no point for a whole number.
Text numberText(double number);

/// A number in a print list: a blank (or its minus sign) before it and a blank after it.
Text listNumber(double number);

} // namespace quillon
