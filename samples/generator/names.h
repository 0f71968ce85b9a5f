#pragma once

#include "random.h"

#include <string>
#include <vector>

namespace samples {

// All names are invented. They hold no digits: results text tells a name from a payoff by its first digit.

// So many different horse names of at most 25 characters.
std::vector<std::string> horseNames(Random& random, std::size_t count);

// So many different people, "Last, First M".
std::vector<std::string> peopleNames(Random& random, std::size_t count);

// Any horse's name, which may be one that was given before.
std::string horseName(Random& random);

std::string sireName(Random& random);
std::string damName(Random& random);

} // namespace samples
