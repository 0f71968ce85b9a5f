// Commands that would do nothing, or nothing good, where the user is now: what a front end says instead of
// running them. The commands themselves run whenever they are asked to.
#pragma once

#include "core/text_type.h"
#include "screen/command_id.h"

namespace quillon {

/// One sentence that says why, and what to do first; empty where nothing speaks against the command.
Text reasonAgainst(CommandId id);

} // namespace quillon
