#include "tables/load_state.h"

#include "card/line_fields.h"
#include "core/failure.h"
#include "core/files.h"

#include <array>
#include <cstdint>

namespace quillon {

LoadState load;

namespace {

// Reads the fields of a list from rows of a table. Names are looked up once a table, not once a row.
template <class List>
class RowReader {
public:
    explicit RowReader(const List& fields) : fields_(fields) {}

    template <class Record>
    void read(const TableCursor& rows, Record& record) {
        if (table_ != rows.serial() || rows.serial() == 0) findFields(rows);
        for (std::size_t i = 0; i < fields_.size(); ++i)
            rows.trimmedFieldTo(record.*fields_[i].cell, numbers_[i]);
    }

private:
    void findFields(const TableCursor& rows) {
        table_ = rows.serial();
        for (std::size_t i = 0; i < fields_.size(); ++i) numbers_[i] = rows.fieldNumber(fields_[i].name);
    }

    const List& fields_;
    std::uint64_t table_ = 0;
    std::array<int, std::tuple_size_v<List>> numbers_{};
};

} // namespace

void ReadSourceLine() {
    static RowReader stored{lineFields};
    static RowReader further{furtherLineFields};
    stored.read(load.lineRows, load.line);
    further.read(load.lineRows, load.line);
}

void ReadSourceHorse() {
    static RowReader horse{horseFields};
    horse.read(load.horseRows, load.horse);
}

void readTrackTable() {
    const auto content = fileContent({Folder::working, "TrackEditor.ini"});
    if (!content) reportFault("TrackEditor.ini can't be read");
    load.tracks = trackTableOf(content.value_or(""));
}

} // namespace quillon
