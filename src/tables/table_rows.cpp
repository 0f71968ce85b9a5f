#include "tables/table_rows.h"

namespace quillon {

RowSource rowsOf(const TableCursor& table) {
    const auto make = [table](int row, std::span<Cell> cells) {
        for (std::size_t field = 1; field < cells.size(); ++field)
            cells[field].text = table.field(row, static_cast<int>(field));
    };
    return {table.rowCount(), make};
}

} // namespace quillon
