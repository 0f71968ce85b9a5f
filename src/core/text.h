// What is done with texts: trimming, cutting, searching, padding.
#pragma once

#include "core/text_type.h"

namespace quillon {

constexpr char blank = ' ';

/// Trimming removes blanks (code 32) alone; tabs and other white space stay.
constexpr TextView trimmedLeft(TextView text) {
    const auto first = text.find_first_not_of(blank);
    return first == TextView::npos ? TextView{} : text.substr(first);
}

constexpr TextView trimmedRight(TextView text) { return text.substr(0, text.find_last_not_of(blank) + 1); }

constexpr TextView trimmed(TextView text) { return trimmedLeft(trimmedRight(text)); }

constexpr bool contains(TextView text, TextView part) { return text.find(part) != TextView::npos; }

/// The first `count` characters, all of them when there are fewer. A negative count fails.
TextView leftOf(TextView text, int count);

/// The last `count` characters, all of them when there are fewer. A negative count fails.
TextView rightOf(TextView text, int count);

/// `count` characters from `place`, counted from 1; what lies beyond the end is left out.
/// A place below 1 or a negative count fails.
TextView midOf(TextView text, int place, int count);

/// All characters from `place` (counted from 1) on. A place below 1 fails.
TextView midOf(TextView text, int place);

/// The place of the first `part` in `text`, counted from 1; 0 when there is none.
int placeOf(TextView part, TextView text);

/// `count` blanks. A negative count fails.
Text blanks(int count);

/// Right-aligned in blanks; a text longer than `width` stays whole.
Text rightAligned(TextView text, int width);

/// Left-aligned in blanks to `width`. A text longer than `width` fails.
Text filledTo(TextView text, int width);

/// Upper case of the letters a to z and of the accented letters of the code page (E0 to FE but for F7).
Text upperCase(TextView text);

/// True where the two texts are the same but for the case of the letters a to z.
bool sameIgnoringCase(TextView left, TextView right);

} // namespace quillon
