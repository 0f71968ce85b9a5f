// The whole state packed into bytes and back.
//
// What states of one packer have in common is written once. Of rows that are made when they are looked at,
// the running-line table's are made anew after unpacking; analysis views that have some come back empty, and
// the races are on show in place of such a view.
#pragma once

#include "core/packing.h"
#include "day/changes.h"
#include "day/snapshot.h"

namespace quillon {

void pack(Packer& out, const Snapshot& state);

/// False, with whatever in the state, for bytes that no program with the same store and screen has packed.
bool unpack(Unpacker& in, Snapshot& state);

/// With the states that the changes lead through. Only while a card is open.
void pack(Packer& out, const ChangeList& list);

/// False, with whatever in the list, for bytes that are no list of an open card.
bool unpack(Unpacker& in, ChangeList& list);

} // namespace quillon
