// The screen packed into bytes and back.
//
// Rows that are made when they are looked at are not packed: a view that has some is unpacked without them.
#pragma once

#include "core/packing.h"
#include "screen/screen.h"

namespace quillon {

void pack(Packer& out, const Screen& state);
bool unpack(Unpacker& in, Screen& state);

} // namespace quillon
