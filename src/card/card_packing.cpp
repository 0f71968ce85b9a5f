#include "card/card_packing.h"

#include <utility>

namespace quillon {

void pack(Packer& out, const TextCell& cell) {
    pack(out, cell.given());
    if (cell.given()) pack(out, cell.text());
}

bool unpack(Unpacker& in, TextCell& cell) {
    bool given = false;
    Text text;
    if (!unpack(in, given) || (given && !unpack(in, text))) return false;
    cell = given ? TextCell{std::move(text)} : TextCell{};
    return true;
}

void pack(Packer& out, const RaceInfo& info) { packFields(out, raceInfoFields, info); }
bool unpack(Unpacker& in, RaceInfo& info) { return unpackFields(in, raceInfoFields, info); }

void pack(Packer& out, const PastLine& line) { packFields(out, pastLineFields, line); }
bool unpack(Unpacker& in, PastLine& line) { return unpackFields(in, pastLineFields, line); }

void pack(Packer& out, const Driver& driver) { packFields(out, driverFields, driver); }
bool unpack(Unpacker& in, Driver& driver) { return unpackFields(in, driverFields, driver); }

void pack(Packer& out, const Selection& selection) { packFields(out, selectionFields, selection); }
bool unpack(Unpacker& in, Selection& selection) { return unpackFields(in, selectionFields, selection); }

// A row of entries is written anew when one of them changes.
void pack(Packer& out, const RaceEntry& entry) {
    Packer piece;
    packFields(piece, raceEntryFields, entry);
    pack(piece, entry.chosen);
    out.putRepeated(piece);
}

bool unpack(Unpacker& in, RaceEntry& entry) {
    TextView bytes;
    if (!in.takeRepeated(bytes)) return false;
    Unpacker piece{bytes};
    return unpackFields(piece, raceEntryFields, entry) && unpack(piece, entry.chosen) && piece.atEnd();
}

void pack(Packer& out, const PastLineTable& table) {
    packRepeated(out, table.blankLine_);
    pack(out, table.filledLines_);
    pack(out, table.lines_);
}

bool unpack(Unpacker& in, PastLineTable& table) {
    return unpackRepeated(in, table.blankLine_) && unpack(in, table.filledLines_) && unpack(in, table.lines_);
}

void pack(Packer& out, const LineCellTable::Line& line) {
    std::uint32_t begin = 0;
    for (const std::uint32_t end : line.ends) {
        pack(out, end - begin);
        begin = end;
    }
    out.putBytes(line.joined);
}

bool unpack(Unpacker& in, LineCellTable::Line& line) {
    std::uint32_t length = 0;
    for (std::uint32_t& end : line.ends) {
        std::uint32_t cell = 0;
        if (!unpack(in, cell) || cell > in.left() || length + cell > in.left()) return false;
        end = length += cell;
    }
    TextView joined;
    if (!in.takeBytes(joined, length)) return false;
    line.joined = joined;
    return true;
}

void pack(Packer& out, const LineCellTable& table) { pack(out, table.lines_); }
bool unpack(Unpacker& in, LineCellTable& table) { return unpack(in, table.lines_); }

void pack(Packer& out, const RaceCard& state) {
    packFields(out, cardScalars, state);
    packFields(out, furtherScalars, state);
    packFields(out, cardTables, state);
}

bool unpack(Unpacker& in, RaceCard& state) {
    return unpackFields(in, cardScalars, state) && unpackFields(in, furtherScalars, state) &&
           unpackFields(in, cardTables, state);
}

void pack(Packer& out, const LineCursor& state) { packFields(out, lineCursorFields, state); }
bool unpack(Unpacker& in, LineCursor& state) { return unpackFields(in, lineCursorFields, state); }

} // namespace quillon
