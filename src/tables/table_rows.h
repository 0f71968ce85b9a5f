// An opened table as rows of a view.
#pragma once

#include "screen/screen.h"
#include "tables/table_cursor.h"

namespace quillon {

/// The table's rows as they stand, a column a field, from 1; column 0 stays empty.
RowSource rowsOf(const TableCursor& table);

} // namespace quillon
