// The tickets of the multi-race and five-place wagers on offer.
#pragma once

namespace quillon {

/// Finds each race's wagers in its wagering text and writes the ".pmr2" sheet of the tickets that
/// `card.keyPicks` and the selections make for them. Reads `card.raceCount`. Resumes at failures.
void KeyHorses();

} // namespace quillon
