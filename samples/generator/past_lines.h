#pragma once

#include "card_model.h"
#include "race_classes.h"
#include "random.h"
#include "tracks.h"

#include <string>

namespace samples {

// The race of a past line and the horse that ran in it.
struct LineSetting {
    std::string horse{}; // name
    Day date{};
    const Track* track = nullptr;
    const RaceClass* raceClass = nullptr; // not used in a qualifier
    bool qualifier = false;
    bool trotter = false;
    int distance = mile;
    int level = 0; // the horse's own class, in class points
    int driver = noPerson;
};

// The line as the horse may well have run it: its calls lead from post to finish, its times are the leader's
// and the lengths behind, and its final less its time at three-quarters is its last quarter.
PastLine makeLine(Random& random, const LineSetting& setting);

// The horse breaks stride at a call and comes in last; now and then it is distanced, without a time.
void addBreak(Random& random, PastLine& line);

} // namespace samples
