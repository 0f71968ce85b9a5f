#include "analysis/fair_odds.h"

#include "core/numbers.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace quillon {
namespace {

constexpr std::size_t folds = 10;

// The log of a winner's chance, and its first two derivatives by the scale.
struct Slope {
    double logChance = 0;
    double first = 0;
    double information = 0; // the second one with its sign turned

    Slope& operator+=(const Slope& other) {
        logChance += other.logChance;
        first += other.first;
        information += other.information;
        return *this;
    }
};

// With r less the winner's rating instead of r: the chance is the same, and no exponential is lost.
Slope slopeAt(double perPoint, const JudgedRace& race) {
    const double winner = race.ratings[race.winner];
    double best = 0;
    for (const double rating : race.ratings) best = std::max(best, -perPoint * (rating - winner));
    double sum = 0;
    double mean = 0;
    double square = 0;
    for (const double rating : race.ratings) {
        const double behind = rating - winner;
        const double weight = std::exp(-perPoint * behind - best);
        sum += weight;
        mean += weight * behind;
        square += weight * behind * behind;
    }
    mean /= sum;
    return {-(best + std::log(sum)), mean, square / sum - mean * mean};
}

Slope slopeAt(double perPoint, std::span<const JudgedRace> races) {
    Slope all;
    for (const JudgedRace& race : races) all += slopeAt(perPoint, race);
    return all;
}

// The races of all folds but one.
std::vector<JudgedRace> without(std::span<const JudgedRace> races, std::size_t fold) {
    std::vector<JudgedRace> others;
    for (const JudgedRace& race : races)
        if (race.card % folds != fold) others.push_back(race);
    return others;
}

void addLoss(LogLoss& sums, const JudgedRace& race, double perPoint) {
    const double fitted = -slopeAt(perPoint, race).logChance;
    sums.fitted += fitted;
    sums.allEqual += std::log(static_cast<double>(race.ratings.size()));
    ++sums.races;
    if (race.lineChances.empty()) return;
    sums.line -= std::log(race.lineChances[race.winner]);
    sums.fittedThere += fitted;
    ++sums.lineRaces;
}

} // namespace

// Newton's steps. The log likelihood is concave; a step that goes too far is halved until it gains.
std::optional<RatingScale> fittedScale(std::span<const JudgedRace> races) {
    constexpr int mostSteps = 100;
    constexpr int mostHalves = 60;
    constexpr double closeEnough = 1e-10;
    constexpr double leastInformation = 1e-9; // below it the likelihood rises without end
    double perPoint = 0;
    Slope here = slopeAt(perPoint, races);
    for (int step = 0; step < mostSteps; ++step) {
        if (here.information < leastInformation) return std::nullopt;
        double move = here.first / here.information;
        Slope there = slopeAt(perPoint + move, races);
        for (int half = 0; half < mostHalves && there.logChance < here.logChance; ++half) {
            move /= 2;
            there = slopeAt(perPoint + move, races);
        }
        perPoint += move;
        here = there;
        if (std::abs(move) <= closeEnough * (1 + std::abs(perPoint))) {
            if (here.information < leastInformation) return std::nullopt;
            return RatingScale{perPoint, 1 / std::sqrt(here.information)};
        }
    }
    return std::nullopt;
}

std::vector<double> chancesOf(std::span<const double> ratings, double perPoint) {
    std::vector<double> chances;
    if (ratings.empty()) return chances;
    double best = -perPoint * ratings[0];
    for (const double rating : ratings) best = std::max(best, -perPoint * rating);
    double sum = 0;
    for (const double rating : ratings) sum += chances.emplace_back(std::exp(-perPoint * rating - best));
    for (double& chance : chances) chance /= sum;
    return chances;
}

LogLoss crossValidated(std::span<const JudgedRace> races) {
    LogLoss loss;
    for (std::size_t fold = 0; fold < folds; ++fold) {
        const auto scale = fittedScale(without(races, fold));
        for (const JudgedRace& race : races)
            if (race.card % folds == fold) addLoss(loss, race, scale ? scale->perPoint : 0);
    }
    const auto mean = [](double& sum, std::size_t count) {
        if (count > 0) sum /= static_cast<double>(count);
    };
    mean(loss.fitted, loss.races);
    mean(loss.allEqual, loss.races);
    mean(loss.line, loss.lineRaces);
    mean(loss.fittedThere, loss.lineRaces);
    return loss;
}

Fit fitOf(std::span<const JudgedRace> races) {
    std::set<std::size_t> cards;
    for (const JudgedRace& race : races) cards.insert(race.card);
    Fit fit{.races = races.size(), .cards = cards.size()};
    if (!fit.isEnough()) return fit;
    fit.scale = fittedScale(races);
    if (fit.scale) fit.loss = crossValidated(races);
    return fit;
}

std::optional<double> oddsToOne(TextView text) {
    text = trimmed(text);
    const auto sign = text.find_first_of("/-", 1);
    const auto whole = numberIn(text.substr(0, sign));
    const auto divisor = sign == TextView::npos ? std::optional{1.0} : numberIn(text.substr(sign + 1));
    if (!whole || !divisor || !(*whole >= 0) || !(*divisor > 0)) return std::nullopt;
    const double odds = *whole / *divisor;
    return std::isfinite(odds) ? std::optional{odds} : std::nullopt;
}

bool isOverlay(double offered, double fair, double marginPercent) {
    constexpr double percent = 100;
    constexpr double slack = 1e-9; // of figures that are level
    return offered > fair * (1 + marginPercent / percent) + slack;
}

int bettingNumber(TextView programNumber) {
    constexpr double highest = 99;
    const double number = lenientNumber(programNumber);
    return number >= 1 && number <= highest ? static_cast<int>(number) : 0;
}

} // namespace quillon
