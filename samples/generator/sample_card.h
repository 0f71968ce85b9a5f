#pragma once

#include "card_model.h"
#include "race_results.h"

#include <filesystem>
#include <string>
#include <vector>

namespace samples {

// The card that ships with Quillon: twelve races at Miami Valley on 14 March 2026.
Card sampleCard();

// How the sample card came out. Points into the card.
std::vector<RaceResult> sampleResults(const Card& card);

// CrossOver.ini: the vendor's file that the card came in.
std::string crossOverText(const Card& card);

// Webpage.ini: where the vendor's cards are found.
std::string webPageText();

// Writes the sample's whole working folder: settings, the eight tables, and in results/ the text of the
// results in both layouts. False when a file can't be written.
[[nodiscard]] bool writeSample(const std::filesystem::path& workingFolder);

} // namespace samples
