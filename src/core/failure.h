// The failure policy: when a statement fails, the next one runs.
//
//     attempt([&] { entry.morningOdds = source.field("ODDS"); });   // a statement stands or falls alone
//     attempt(PostPosition);                                        // a step that fails ends there; we go on
//     if (holdsOrFails([&] { return strictNumber(cell) > 0; })) ... // a condition that fails counts as true
//
// What can fail raises a Failure and nothing else: a strict number, a table index, 16-bit narrowing, a
// division by zero, a piece of a text, a date, a file. Programming errors (assertions, std::out_of_range)
// pass through and stay loud. Compute first and store last: then a failing statement leaves its cell alone.
#pragma once

#include "core/text_type.h"

#include <utility>

namespace quillon {

/// Raised by fail() alone; carries nothing, since the journal already knows.
class Failure {};

/// Writes what failed to the fault journal, under the name of the running step, and raises a Failure.
[[noreturn]] void fail(TextView what);

/// Writes a fault to the journal and goes on: for readers that have dealt with the damage themselves.
void reportFault(TextView what);

/// Counts a reading that fails on cards in good order too (an empty cell, a line without a figure). It is
/// counted beside the faults, but takes no place among those kept, so that real damage is not pushed out of
/// the journal.
void passOver();

/// Names the step that is running for the journal, until the end of the block.
class Step {
public:
    explicit Step(const char* name);
    ~Step();
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;

private:
    const char* outer_;
};

/// Runs one statement or one step; a failure ends it and nothing else. True when it ran to its end.
template <class Statement>
bool attempt(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const Failure&) {
        return false;
    }
}

/// A condition; one that fails takes its branch.
template <class Condition>
bool holdsOrFails(Condition&& condition) {
    try {
        return std::forward<Condition>(condition)();
    } catch (const Failure&) {
        return true;
    }
}

} // namespace quillon
