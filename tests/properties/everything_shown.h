// What there is to see, in words, to compare states of the program.
#pragma once

#include <string>

namespace quillon {

/// What every `show` prints, but for the store's and the views' largest parts where they are not asked for.
std::string everythingShown();

} // namespace quillon
