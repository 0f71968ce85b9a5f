// The fault journal: what the failure policy passed over, kept in memory for the user who asks.
#pragma once

#include "core/text_type.h"

#include <cstdint>
#include <deque>

namespace quillon {

struct Fault {
    Text step; ///< name of the step that was running, "" outside all steps
    Text what; ///< what failed, and where on the card
};

class FaultJournal {
public:
    static constexpr std::size_t keptFaults = 1000;

    void add(Fault fault);
    void countExpected() { ++expected_; }
    void clear();

    const std::deque<Fault>& kept() const { return kept_; } ///< the last thousand, oldest first
    std::uint64_t count() const { return count_; }          ///< all faults since the start
    std::uint64_t expected() const { return expected_; }    ///< readings that fail on good cards too

private:
    std::deque<Fault> kept_;
    std::uint64_t count_ = 0;
    std::uint64_t expected_ = 0;
};

extern FaultJournal journal;

/// Where the running step stands, in words for the journal; "" where it stands nowhere. The store sets it.
extern Text (*placeOfFaults)();

} // namespace quillon
