#include "core/failure.h"

#include "card/race_card.h"
#include "core/journal.h"

namespace quillon {

FaultJournal journal;

namespace {

const char* runningStep = "";

// "race 3, entry 5, line 2" of the cursor, as far as it stands anywhere.
Text placeOnCard() {
    Text place;
    const auto append = [&](const char* name, int index) {
        if (index == 0) return;
        place += place.empty() ? "" : ", ";
        place += name;
        place += ' ';
        place += std::to_string(index);
    };
    append("race", cursor.race);
    append("entry", cursor.entry);
    append("line", cursor.line);
    return place;
}

} // namespace

void FaultJournal::add(Fault fault) {
    ++count_;
    if (kept_.size() == keptFaults) kept_.pop_front();
    kept_.push_back(std::move(fault));
}

void FaultJournal::clear() { *this = FaultJournal{}; }

void reportFault(TextView what) {
    Text text{what};
    if (const Text place = placeOnCard(); !place.empty()) text += " (" + place + ")";
    journal.add({runningStep, std::move(text)});
}

void fail(TextView what) {
    reportFault(what);
    throw Failure{};
}

void passOver() { journal.countExpected(); }

Step::Step(const char* name) : outer_(std::exchange(runningStep, name)) {}
Step::~Step() { runningStep = outer_; }

} // namespace quillon
