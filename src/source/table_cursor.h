// One table of the dBASE family, read forward as a cursor.
//
// The whole file is read into memory when it is opened; nothing is ever written. Rows keep their stored
// order; rows marked deleted are skipped and take no row number. A table that is missing or no table at all
// is an empty one, and a header that lies gives the whole rows that are there, or none; the fault journal
// names it.
#pragma once

#include "core/files.h"
#include "core/text.h"

#include <vector>

namespace quillon {

class TableCursor {
public:
    /// Opens a table of the source folder by its bare name ("RACESHR.DBF") on its first row.
    void open(TextView fileName);

    /// The same from the bytes of a table.
    void openContent(Text content, TextView fileName);

    void MoveFirst();
    void MoveNext(); ///< past the last row the cursor stays behind it
    void MoveLast();
    bool Eof() const; ///< true once moved past the last row, and in an empty table

    /// The number of a field, from 1 in the table's own order; 0 when the table has none of that name. Names
    /// ignore case, and of two fields of one name the first wins. A missing field is named once a table in
    /// the journal.
    int fieldNumber(TextView name) const;

    /// A field of the current row as text. A character field as stored, trailing blanks kept; a numeric field
    /// as plain decimal text; a date as yyyymmdd. Empty past the last row and for field number 0.
    Text field(int number) const;
    Text field(TextView name) const { return field(fieldNumber(name)); }

    /// The whole table, for the view bound to it: rows and fields count from 1. Empty outside.
    int rowCount() const;
    int fieldCount() const;
    TextView fieldName(int number) const;
    Text field(int row, int number) const;
    int row() const; ///< the current row, from 1; rowCount() + 1 behind the last
};

} // namespace quillon
