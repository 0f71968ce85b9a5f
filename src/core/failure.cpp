#include "core/failure.h"

#include "core/journal.h"

namespace quillon {

FaultJournal journal;
Text (*placeOfFaults)() = [] { return Text{}; };

namespace {

const char* runningStep = "";

} // namespace

void FaultJournal::add(Fault fault) {
    ++count_;
    if (kept_.size() == keptFaults) kept_.pop_front();
    kept_.push_back(std::move(fault));
}

void FaultJournal::clear() { *this = FaultJournal{}; }

void reportFault(TextView what) {
    Text text{what};
    if (const Text place = placeOfFaults(); !place.empty()) text += " (" + place + ")";
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
