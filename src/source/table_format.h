// How a table of the dBASE family lies in its bytes: the header, and a field's bytes as text.
//
// A header is believed only as far as the file bears it out. Nothing here reads outside the bytes it is
// given.
#pragma once

#include "core/text.h"

#include <cstddef>
#include <vector>

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

struct TableField {
    Text name;
    FieldForm form = FieldForm::unread;
    std::size_t start = 0; ///< in the row; the deletion flag is at 0
    std::size_t width = 0;
};

struct TableFormat {
    std::vector<TableField> fields;
    std::size_t firstRow = 0;  ///< where it starts in the file
    std::size_t rowLength = 0; ///< with the deletion flag
    std::size_t rows = 0;      ///< those counted by the header that lie whole in the file
    std::vector<Text> damage;  ///< what the header says wrongly, in words for the user
};

/// The format of a table from all its bytes. What is no table has no fields and no rows.
TableFormat tableFormat(TextView content);

/// A field's bytes as text, put in `text`.
void readStored(FieldForm form, TextView stored, Text& text);

} // namespace quillon
