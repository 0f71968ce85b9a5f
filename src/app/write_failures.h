// A write that failed, in words for the user: why, and what it means for him.
#pragma once

#include "core/files.h"

#include <system_error>

namespace quillon {

/// "no space left", "read-only", "used by another program"; else the system's own words.
Text causeInWords(const std::error_code& cause);

/// "the selection sheet on disk is older than the screen".
Text meaningOf(const FilePlace& place);

} // namespace quillon
