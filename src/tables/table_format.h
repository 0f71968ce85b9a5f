// How a table of the dBASE family lies in its bytes.
//
// A header is believed only as far as the file bears it out.
#pragma once

#include "core/text.h"
#include "tables/stored_field.h"

#include <cstddef>
#include <vector>

namespace quillon {

constexpr char deletedFlag = '*';
constexpr char endOfTable = '\x1A'; ///< where a deletion flag would stand

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

} // namespace quillon
