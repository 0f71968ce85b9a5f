#pragma once

#include <array>
#include <string_view>

namespace samples {

struct RaceClass {
    std::string_view name; // as a past line has it, at most 12 characters
    std::string_view conditions;
    int rating;
    int purse; // dollars
};

// From the cheapest up. A horse moves a step or two up and down.
// clang-format off
inline constexpr std::array raceClasses{
    RaceClass{"MDN",       "MAIDENS.",                                                     64,  5000},
    RaceClass{"CLM5000",   "CLAIMING $5,000.",                                             66,  4500},
    RaceClass{"NW2500L5",  "NON-WINNERS OF $2,500 IN LAST 5 STARTS.",                      69,  5000},
    RaceClass{"CLM8000",   "CLAIMING $8,000. FILLIES AND MARES ALLOWED 20 PERCENT.",       71,  6000},
    RaceClass{"NW2RACELT", "NON-WINNERS OF 2 RACES LIFETIME.",                             72,  6500},
    RaceClass{"NW4000L5",  "NON-WINNERS OF $4,000 IN LAST 5 STARTS.",                      74,  7000},
    RaceClass{"COND",      "CONDITIONED. NON-WINNERS OF 4 PARI-MUTUEL RACES LIFETIME.",    75,  7500},
    RaceClass{"CLM12500",  "CLAIMING $12,500.",                                            76,  8500},
    RaceClass{"NW7500L5",  "NON-WINNERS OF $7,500 IN LAST 5 STARTS. ALSO ELIGIBLE: OPTIONAL CLAIMING $15,000.",
                                                                                           78,  9500},
    RaceClass{"OPT20000",  "OPTIONAL CLAIMING $20,000. NON-WINNERS OF $9,000 IN LAST 5 STARTS.", 80, 11000},
    RaceClass{"NW12500L5", "NON-WINNERS OF $12,500 IN LAST 5 STARTS.",                     82, 13000},
    RaceClass{"CLM30000",  "CLAIMING HANDICAP $25,000 TO $30,000. POSITIONS ASSIGNED.",    84, 15000},
    RaceClass{"PREF",      "PREFERRED HANDICAP. POSITIONS DRAWN BY GROUP.",                86, 17500},
    RaceClass{"OPEN",      "WINNERS OVER AND OPEN HANDICAP. POST POSITIONS ASSIGNED.",     89, 20000},
    RaceClass{"FFA",       "FREE FOR ALL.",                                                92, 25000},
};
// clang-format on

inline constexpr std::string_view qualifierName = "QUA";

} // namespace samples
