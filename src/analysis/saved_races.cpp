#include "analysis/saved_races.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/numbers.h"

#include <algorithm>
#include <map>

namespace quillon {
namespace {

constexpr TextView cardExtension = ".pmd";

// The texts of the starters that are rated.
struct Starters {
    std::vector<TextView> numbers{};
    std::vector<TextView> lines{};
    std::vector<double> ratings{};
};

Starters startersOf(const SavedCard& card, int race) {
    Starters starters;
    const TextView refunds = card.payoff(race, PayoffCell::refunds);
    for (int entry = 1; entry <= ratedEntries; ++entry) {
        const TextView number = trimmed(card.programNumber(race, entry));
        const auto rating = usableRating(card.rating(race, entry));
        if (!rating || trimmed(card.horseName(race, entry)).empty() || hasRefund(refunds, number)) continue;
        starters.numbers.push_back(number);
        starters.lines.push_back(card.morningOdds(race, entry));
        starters.ratings.push_back(*rating);
    }
    return starters;
}

} // namespace

std::optional<double> usableRating(TextView rating) {
    // A scratch is 99.9, less what it gains by those inside it: 0.5 + 3 + 1 + 2.5 + 0.7 + 0.8 from post 10 on a
    // half-mile track, down to 91.4.
    constexpr double unusable = 91;
    const auto number = numberIn(rating);
    return number && *number > 0 && *number < unusable ? number : std::nullopt;
}

bool hasRefund(TextView refunds, TextView programNumber) {
    if (programNumber.empty()) return false;
    while (!(refunds = trimmed(refunds)).empty()) {
        const TextView first = refunds.substr(0, refunds.find(blank));
        if (first == programNumber) return true;
        refunds.remove_prefix(first.size());
    }
    return false;
}

std::vector<double> lineChances(std::span<const TextView> numbers, std::span<const TextView> lines) {
    std::map<int, int> coupled; // entries by the number that they are bet under
    for (const TextView number : numbers) ++coupled[bettingNumber(number)];
    std::vector<double> chances;
    double sum = 0;
    for (std::size_t at = 0; at < lines.size(); ++at) {
        const auto odds = oddsToOne(lines[at]);
        if (!odds) return {};
        const int number = bettingNumber(numbers[at]);
        const int sharers = number == 0 ? 1 : coupled[number];
        sum += chances.emplace_back(1 / (*odds + 1) / sharers);
    }
    for (double& chance : chances) chance /= sum;
    return chances;
}

std::optional<JudgedRace> judgedRace(const SavedCard& card, int race) {
    const Text winner = upperCase(trimmed(card.outcome(race, OutcomeCell::r1)));
    if (winner.empty()) return std::nullopt;
    const Starters starters = startersOf(card, race);
    const auto found = std::find_if(starters.numbers.begin(), starters.numbers.end(),
                                    [&](TextView number) { return upperCase(number) == winner; });
    if (starters.numbers.size() < 2 || found == starters.numbers.end()) return std::nullopt;
    return JudgedRace{.winner = static_cast<std::size_t>(found - starters.numbers.begin()),
                      .ratings = starters.ratings,
                      .lineChances = lineChances(starters.numbers, starters.lines)};
}

std::vector<JudgedRace> savedRaces(const std::vector<FileState>& files) {
    std::vector<JudgedRace> races;
    for (std::size_t at = 0; at < files.size(); ++at) {
        if (files[at].size > largestSavedCard) continue;
        std::optional<Text> content;
        attempt([&] { content = fileContent({Folder::raceCards, files[at].name}); });
        if (!content) continue;
        const SavedCard card{*content};
        for (int race = 1; race <= ratedRaces; ++race)
            if (auto judged = judgedRace(card, race)) {
                judged->card = at;
                races.push_back(std::move(*judged));
            }
    }
    return races;
}

const Fit& SavedFit::fit() {
    auto files = fileStatesIn(Folder::raceCards, cardExtension);
    if (read_ && files == files_) return fit_;
    read_ = true;
    files_ = std::move(files);
    fit_ = fitOf(savedRaces(files_));
    return fit_;
}

} // namespace quillon
