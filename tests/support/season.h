// Seasons of races whose winners are drawn from a known scale: the same from the same seed on every system.
#pragma once

#include "analysis/fair_odds.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace quillon {

struct SeasonEntry {
    std::string rating{};      ///< "58.3"
    std::string morningLine{}; ///< "5/2"
    bool scratched = false;
};

struct SeasonRace {
    std::vector<SeasonEntry> entries{}; ///< the number of each on the program is its place here plus 1
    std::vector<std::size_t> finish{};  ///< the first four that ran, best first
};

class Season {
public:
    Season(std::uint32_t seed, double perPoint) : engine_{seed}, perPoint_{perPoint} {}

    /// Five to ten starters, ratings of one decimal about 58, and now and then one scratched.
    SeasonRace race();

private:
    double upToOne();
    double normal(); ///< mean 0, deviation 1
    std::vector<std::size_t> drawnFinish(const SeasonRace& race);

    std::mt19937 engine_;
    double perPoint_;
};

/// The season's races as they are judged, without files.
std::vector<JudgedRace> judgedSeason(std::uint32_t seed, double perPoint, std::size_t cards,
                                     std::size_t racesOfCard);

/// Puts the season's card files into the folder of race cards of the working folder.
void putSeason(std::uint32_t seed, double perPoint, std::size_t cards, std::size_t racesOfCard);

} // namespace quillon
