#include "tables/load_packing.h"

#include "card/card_packing.h"
#include "tables/load_fields.h"

#include <algorithm>
#include <utility>

namespace quillon {

// All else is found again in the content.
void pack(Packer& out, const TableCursor::OpenedTable& table) {
    pack(out, table.fileName);
    pack(out, table.content);
    pack(out, table.rows.size());
    pack(out, table.missing);
}

bool unpack(Unpacker& in, TableCursor::OpenedTable& table) {
    Text content;
    std::size_t rows = 0;
    if (!unpack(in, table.fileName) || !unpack(in, content) || !unpack(in, rows) ||
        !unpack(in, table.missing))
        return false;
    table.read(std::move(content));
    if (rows > table.rows.size()) return false;
    // A table may begin after its first rows.
    table.rows.erase(table.rows.begin(), table.rows.end() - static_cast<std::ptrdiff_t>(rows));
    return true;
}

void pack(Packer& out, const TableCursor& cursor) {
    pack(out, cursor.table_);
    pack(out, cursor.row_);
}

bool unpack(Unpacker& in, TableCursor& cursor) {
    if (!unpack(in, cursor.table_) || !unpack(in, cursor.row_)) return false;
    return cursor.row_ >= 1 && cursor.row_ <= std::max(cursor.rowCount() + 1, 1);
}

void pack(Packer& out, const SourceLine& line) {
    pack(out, static_cast<const PastLine&>(line));
    packFields(out, furtherLineFields, line);
}

bool unpack(Unpacker& in, SourceLine& line) {
    return unpack(in, static_cast<PastLine&>(line)) && unpackFields(in, furtherLineFields, line);
}

void pack(Packer& out, const SourceHorse& horse) { packFields(out, horseFields, horse); }
bool unpack(Unpacker& in, SourceHorse& horse) { return unpackFields(in, horseFields, horse); }

void pack(Packer& out, const TrackRecord& track) { packFields(out, trackRecordFields, track); }
bool unpack(Unpacker& in, TrackRecord& track) { return unpackFields(in, trackRecordFields, track); }

void pack(Packer& out, const TrackTable& table) { packFields(out, trackTableFields, table); }

bool unpack(Unpacker& in, TrackTable& table) {
    return unpackFields(in, trackTableFields, table) &&
           std::all_of(table.byKey.begin(), table.byKey.end(),
                       [&](std::size_t row) { return row < table.rows.size(); });
}

// In an order of its own, so that equal maps have equal bytes.
void pack(Packer& out, const std::unordered_map<Text, int>& numbers) {
    std::vector<std::pair<Text, int>> sorted{numbers.begin(), numbers.end()};
    std::sort(sorted.begin(), sorted.end());
    out.putNumber(sorted.size());
    for (const auto& [name, number] : sorted) {
        pack(out, name);
        pack(out, number);
    }
}

bool unpack(Unpacker& in, std::unordered_map<Text, int>& numbers) {
    std::size_t count = 0;
    if (!in.takeCount(count)) return false;
    numbers.clear();
    for (; count > 0; --count) {
        Text name;
        int number = 0;
        if (!unpack(in, name) || !unpack(in, number)) return false;
        numbers.insert_or_assign(std::move(name), number);
    }
    return true;
}

// Cursors share their tables; the rest is the same in all states of a card once it is loaded.
void pack(Packer& out, const LoadState& state) {
    forEachField(loadStateFields, state, [&](TextView, const auto& value) {
        if constexpr (std::is_same_v<decltype(value), const TableCursor&>)
            pack(out, value);
        else
            packRepeated(out, value);
    });
}

bool unpack(Unpacker& in, LoadState& state) {
    bool good = true;
    forEachField(loadStateFields, state, [&](TextView, auto& value) {
        if constexpr (std::is_same_v<decltype(value), TableCursor&>)
            good = good && unpack(in, value);
        else
            good = good && unpackRepeated(in, value);
    });
    return good;
}

} // namespace quillon
