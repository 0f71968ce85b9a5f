#include "wagers.h"

namespace samples {

namespace {

constexpr int pentafectaRace = 6; // the last race has a high five instead

} // namespace

std::string wagersOf(int race, int raceCount, int offset) {
    std::string text = race % 4 == 3 ? "Exacta Trifecta" : "Exacta Trifecta Superfecta";
    if (race == raceCount) {
        text += " High 5";
    } else if (race == pentafectaRace) {
        text += " PENTAFECTA";
    }
    for (const MultiRaceWager& wager : multiRaceWagers) {
        if (wager.firstLeg != race || wager.lastLeg() > raceCount) continue;
        text += " " + std::string{wager.words} + " (Races " + std::to_string(race + offset) + "-" +
                std::to_string(wager.lastLeg() + offset) + ")";
    }
    return text;
}

} // namespace samples
