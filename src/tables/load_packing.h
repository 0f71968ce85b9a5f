// What a load keeps, packed into bytes and back: an opened table with its whole content.
#pragma once

#include "core/packing.h"
#include "tables/load_state.h"

namespace quillon {

void pack(Packer& out, const LoadState& state);
bool unpack(Unpacker& in, LoadState& state);

} // namespace quillon
