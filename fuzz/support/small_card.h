// Small invented cards for targets that go on where a card has been loaded.
#pragma once

#include "core/text.h"

#include <cstddef>

namespace quillon::fuzz {

inline constexpr std::size_t smallCards = 4;

/// Lays card 0 to 3 in the working folder: its tables, the track table, and its results as a text that all
/// passes read. Card 0 is plain, 1 has every oddity, 2 begins after race 1, 3 has lettered races.
void putSmallCard(std::size_t which);

/// The name under which a small card is saved.
Text smallCardFile(std::size_t which);

} // namespace quillon::fuzz
