// The store packed into bytes and back.
#pragma once

#include "card/fields.h"
#include "card/race_card.h"
#include "core/packing.h"

namespace quillon {

template <class List, class Record>
void packFields(Packer& out, const List& list, const Record& record) {
    forEachField(list, record, [&](TextView, const auto& value) { pack(out, value); });
}

template <class List, class Record>
bool unpackFields(Unpacker& in, const List& list, Record& record) {
    bool good = true;
    forEachField(list, record, [&](TextView, auto& value) { good = good && unpack(in, value); });
    return good;
}

void pack(Packer& out, const PastLine& line);
bool unpack(Unpacker& in, PastLine& line);
void pack(Packer& out, const RaceCard& state);
bool unpack(Unpacker& in, RaceCard& state);
void pack(Packer& out, const LineCursor& state);
bool unpack(Unpacker& in, LineCursor& state);

} // namespace quillon
