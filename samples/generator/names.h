#pragma once

#include "random.h"

#include <string>
#include <vector>

namespace samples {

// All names are invented. They hold no digits, since results text tells a name from a payoff by the first
// digit.

// So many different horse names of at most 25 characters.
std::vector<std::string> horseNames(Random& random, std::size_t count);

// So many different people, "Last, First M".
std::vector<std::string> peopleNames(Random& random, std::size_t count);

std::string sireName(Random& random);
std::string damName(Random& random);

} // namespace samples
