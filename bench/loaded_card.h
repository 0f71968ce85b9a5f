// Cards for the benchmarks, from an ordinary one to the largest that Quillon holds.
#pragma once

namespace quillon::bench {

/// Writes the tables of a card of so many races, 12 entries of 5 lines each, into the working folder; 25 is
/// the largest card there is. False when they can't be written.
bool writeTables(int races);

/// The same card loaded and rated.
bool loadCard(int races);

constexpr int largestRaces = 25;

} // namespace quillon::bench
