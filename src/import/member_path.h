// Paths of an archive's members, which anybody may have written.
#pragma once

#include "core/text.h"

namespace quillon {

/// Whether a path leads out of the folder that an archive is unpacked in: from the root or a drive, or up by
/// "..", with the separators of any system.
bool leadsOut(TextView path);

} // namespace quillon
