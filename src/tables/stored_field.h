// A field of a table: the bytes of a row, read as text.
#pragma once

#include "core/text.h"

#include <cstddef>
#include <cstdint>

namespace quillon {

/// How a field's bytes are read.
enum class FieldForm {
    characters, ///< as stored
    digits,     ///< a decimal number in characters
    date,       ///< yyyymmdd in characters
    logical,    ///< one character
    integer32,
    currency, ///< 64 bits, ten-thousandths
    real64,
    dayAndTime,       ///< a day number and milliseconds, 32 bits each
    orderedInteger32, ///< highest byte first, sign bit turned, so that bytes sort as numbers do
    orderedReal64,    ///< the same; of a negative number all bits are turned
    unread,           ///< always the empty text: what lies in another file, or outside the row
};

/// The characters that a field holds: 00 after them is padding of a row that was never filled in.
constexpr TextView charactersIn(TextView stored) {
    return stored.substr(0, stored.find_last_not_of('\0') + 1);
}

/// A field's bytes as text, put in `text`. Of the forms with a width, that many bytes must be there.
void readStored(FieldForm form, TextView stored, Text& text);

/// A whole number, lowest byte first, from its place in the bytes.
template <class Whole>
constexpr Whole lowFirst(TextView bytes, std::size_t place = 0) {
    std::uint64_t value = 0;
    for (std::size_t i = sizeof(Whole); i-- > 0;)
        value = value << 8 | static_cast<std::uint8_t>(bytes[place + i]);
    return static_cast<Whole>(value);
}

} // namespace quillon
