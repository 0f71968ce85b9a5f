// One table of the dBASE family, read forward as a cursor.
//
// The whole file is read into memory when it is opened, and copies of a cursor share it; nothing is ever
// written. Rows keep their stored
// order; rows marked deleted are skipped and take no row number. A table that is missing or no table at all
// is an empty one, and a header that lies gives the whole rows that are there, or none; the fault journal
// names it.
#pragma once

#include "core/files.h"
#include "core/text.h"
#include "tables/table_format.h"

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

namespace quillon {

class Packer;
class Unpacker;

class TableCursor {
public:
    /// Opens a table of the source folder by its bare name ("RACESHR.DBF") on its first row.
    void open(TextView fileName);

    /// The same from the bytes of a table.
    void openContent(Text content, TextView fileName);

    /// Leaves the rows before this one out, as if the table began with it. Rows count from 1.
    void beginAt(int row);

    void MoveFirst();
    void MoveNext(); ///< past the last row the cursor stays after it
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

    /// A field of the current row without trailing blanks, put in a text whose room is used again.
    void trimmedFieldTo(Text& text, int number) const;

    /// The whole table, for the view bound to it: rows and fields count from 1. Empty outside.
    int rowCount() const;
    int fieldCount() const;
    TextView fieldName(int number) const;
    Text field(int row, int number) const;
    int row() const; ///< the current row, from 1; rowCount() + 1 after the last

    /// Tells one opened table from another, so that field numbers can be kept; 0 for no table.
    std::uint64_t serial() const { return table_ ? table_->serial : 0; }

    friend void pack(Packer& out, const TableCursor& cursor);
    friend bool unpack(Unpacker& in, TableCursor& cursor);

private:
    struct NameHash {
        using is_transparent = void;
        std::size_t operator()(TextView name) const;
    };
    struct SameName {
        using is_transparent = void;
        bool operator()(TextView left, TextView right) const { return sameIgnoringCase(left, right); }
    };

    /// What is the same for all cursors on a table.
    struct OpenedTable {
        Text fileName{};
        Text content{}; ///< the whole file
        TableFormat format{};
        std::unordered_map<Text, int, NameHash, SameName> numbers{}; ///< field numbers by name
        std::vector<std::size_t> rows{};                             ///< where each row starts in the file
        std::uint64_t serial = 0;
        mutable std::vector<Text> missing{}; ///< names told as missing

        void read(Text bytes); ///< all that is known of a table by its content
        void findRows();
        void tell(TextView damage) const;
    };
    friend void pack(Packer& out, const OpenedTable& table);
    friend bool unpack(Unpacker& in, OpenedTable& table);

    struct StoredField {
        FieldForm form = FieldForm::unread;
        TextView bytes{};
    };
    StoredField stored(int row, int number) const; ///< an unread one outside the table

    std::shared_ptr<const OpenedTable> table_;
    int row_ = 1;
};

} // namespace quillon
