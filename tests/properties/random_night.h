// Random cards in the current folder, for what must hold on every card.
#pragma once

#include "app/commands.h"
#include "card_generator.h"
#include "everything_shown.h"
#include "random.h"
#include "support/card_test.h"

#include <cstdint>
#include <map>
#include <string>

namespace quillon {

/// How many times as many cards and commands as usual: QUILLON_PROPERTIES in the environment, 1 without.
int propertyScale();

/// A small card out of a seed: two to six races of one to twelve horses at any track, with oddities here and
/// there where they are allowed.
samples::Card randomCard(std::uint64_t seed, bool odd);

/// Lays the card's tables into the current folder, and its results in words where no race is small; no race
/// has a dead heat.
void layNight(const samples::Card& card, std::uint64_t seed);

/// Presses a button of the program. False where it is not available.
bool press(TextView name, const Arguments& arguments = {});

/// Every file below the current folder by its path, with its bytes, but for the vendor's tables and what is
/// kept against a crash.
std::map<std::string, std::string> writtenFiles();

class RandomNightTest : public CardTest {
protected:
    RandomNightTest();

    /// A new program with this card loaded.
    void start(const samples::Card& card, std::uint64_t seed);

    /// Presses a random button that changes the card, or walks through it.
    void pressAnything(samples::Random& random);
};

} // namespace quillon
