// What the user's saved cards tell of the worth of a rating: every race with a result, out of the folder of
// race cards. The open card is not touched.
#pragma once

#include "analysis/fair_odds.h"
#include "cardfiles/saved_card.h"
#include "core/folder_state.h"

#include <functional>
#include <optional>
#include <vector>

namespace quillon {

/// A rating that speaks for its horse. What was scratched has 99.9, less what scratches inside it took off;
/// an entry without a usable line has 99.9 as well.
std::optional<double> usableRating(TextView rating);

/// Whether a refund text has this program number, as a word of its own.
bool hasRefund(TextView refunds, TextView programNumber);

/// What the morning line says of starters of these numbers and lines: 1 over the odds and 1, the chances of
/// coupled entries shared among them, all brought to the sum 1. Empty where a line is missing.
std::vector<double> lineChances(std::span<const TextView> numbers, std::span<const TextView> lines);

/// A race of a saved card; nothing where it has no winner among two rated starters at the least.
std::optional<JudgedRace> judgedRace(const SavedCard& card, int race);

/// All races of the saved cards, the cards numbered by name. A file that can't be read, is no card or is torn
/// gives what races it holds.
std::vector<JudgedRace> savedRaces(const std::vector<FileState>& files);

/// The fit of the folder as it stands, kept until a file of it comes, goes or changes.
class SavedFit {
public:
    const Fit& fit();

private:
    bool read_ = false;
    std::vector<FileState> files_;
    Fit fit_;
};

} // namespace quillon
