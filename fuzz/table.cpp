// One table of the dBASE family, byte for byte as it lies on the disk.
#include "core/failure.h"
#include "core/journal.h"
#include "support/fuzz_target.h"
#include "tables/table_cursor.h"

#include <algorithm>

using namespace quillon;

namespace {

void walkRows(TableCursor& table) {
    int rows = 0;
    Text trimmedField;
    for (table.MoveFirst(); !table.Eof(); table.MoveNext()) {
        fuzz::ensure(table.row() == ++rows, "rows count from 1");
        for (int field = 0; field <= table.fieldCount() + 1; ++field) {
            table.trimmedFieldTo(trimmedField, field);
            const Text stored = table.field(field);
            fuzz::ensure(stored.starts_with(trimmedField), "trimming takes from the end alone");
        }
    }
    fuzz::ensure(rows == table.rowCount(), "the cursor comes by every row");
    fuzz::ensure(table.field(1).empty(), "after the last row there is nothing");
    table.MoveNext();
    table.MoveLast();
    fuzz::ensure(table.row() == std::max(rows, 1), "the last row is found again");
}

void lookUpNames(const TableCursor& table) {
    for (int field = 1; field <= table.fieldCount(); ++field) {
        const int found = table.fieldNumber(table.fieldName(field));
        fuzz::ensure(found >= 1 && found <= field, "of two fields of a name the first is found");
    }
    fuzz::ensure(table.fieldName(0).empty() && table.fieldName(table.fieldCount() + 1).empty(),
                 "there is no field outside the table");
    fuzz::ensure(table.field(0, 1).empty() && table.field(table.rowCount() + 1, 1).empty(),
                 "there is no row outside the table");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    journal.clear();
    TableCursor table;
    table.openContent(Text{fuzz::textOf(data, size)}, "RACESHR.DBF");
    fuzz::ensure(static_cast<std::size_t>(table.rowCount()) <= size, "a row takes room in the file");
    walkRows(table);
    lookUpNames(table);
    return 0;
}
