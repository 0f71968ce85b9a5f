// Chances out of ratings, as the user's own results have borne them out: pure figures, no card and no file.
//
// The chance of a starter is exp(-s r) over the sum of exp(-s r) of all starters of the race, r being its
// rating: with the scale s of 0.3, a horse that is rated one point better than another wins exp(0.3) = 1.35
// times as often. The scale is the one under which the winners of the past are likeliest.
#pragma once

#include "core/text.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quillon {

/// A race that is over, its starters with a usable rating alone.
struct JudgedRace {
    std::size_t card = 0; ///< races of the same card have the same number
    std::size_t winner = 0;
    std::vector<double> ratings{};     ///< a lower one is better
    std::vector<double> lineChances{}; ///< what the morning line says, sum 1; none where it is not whole
};

/// Fewer races than this tell nothing.
constexpr std::size_t leastRaces = 100;

struct RatingScale {
    double perPoint = 0; ///< s
    double error = 0;    ///< its standard error

    bool operator==(const RatingScale&) const = default;
};

/// The scale by the greatest likelihood, with its error from the observed information. None where no finite
/// scale is the likeliest: no race tells anything, or the best rated one won them all.
std::optional<RatingScale> fittedScale(std::span<const JudgedRace> races);

/// The chances of starters with these ratings, in their order; the sum is 1.
std::vector<double> chancesOf(std::span<const double> ratings, double perPoint);

/// The mean of -ln of the chance that each winner was given; the smaller, the better.
struct LogLoss {
    double fitted = 0; ///< each card judged by a scale from other cards alone
    double allEqual = 0;
    std::size_t races = 0;

    std::size_t lineRaces = 0; ///< with a whole morning line
    double line = 0;           ///< of the morning line on them
    double fittedThere = 0;    ///< and of the ratings on the same ones

    bool operator==(const LogLoss&) const = default;
};

/// Ten folds, card by card in the order of their numbers; a fold without a scale judges all as equal.
LogLoss crossValidated(std::span<const JudgedRace> races);

struct Fit {
    std::size_t races = 0;
    std::size_t cards = 0;
    std::optional<RatingScale> scale{}; ///< none below `leastRaces` races, too
    LogLoss loss{};                     ///< where there is a scale

    bool isEnough() const { return races >= leastRaces; }
    bool operator==(const Fit&) const = default;
};

Fit fitOf(std::span<const JudgedRace> races);

/// What a bet of one must win for neither side to gain: 0.25 is 3 to one. The chance is above 0.
constexpr double fairOdds(double chance) { return (1 - chance) / chance; }

/// Odds to one as people write them: "5/2", "5-2" and "2.5" are 2.5. None of any other text, and of a
/// negative figure.
std::optional<double> oddsToOne(TextView text);

/// Whether odds on offer are longer than the fair ones by so many percent of these.
bool isOverlay(double offered, double fair, double marginPercent);

/// The number that coupled entries are bet under: 1 of "1" and "1A", 0 where there is none.
int bettingNumber(TextView programNumber);

} // namespace quillon
