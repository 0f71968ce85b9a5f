#include "rating/search_notes.h"

#include <utility>

namespace quillon {

SearchNotes* searchNotes = nullptr;

SearchNotes::SearchNotes(int race, int entry)
    : outer_{std::exchange(searchNotes, this)}, race_{race}, entry_{entry} {}

SearchNotes::~SearchNotes() { searchNotes = outer_; }

void SearchNotes::widen(TextView how) {
    if (!widened_.empty()) widened_ += "; ";
    widened_ += how;
}

void SearchNotes::close(int chosenSlot) {
    const auto found = bySlot_.find(chosenSlot);
    if (found != bySlot_.end() && !widened_.empty()) found->second.reason += " (" + widened_ + ")";
}

LineNote SearchNotes::of(int slot) const {
    const auto found = bySlot_.find(slot);
    if (found != bySlot_.end()) return found->second;
    return {Verdict::notLookedAt, skipped_.empty() ? Text{"older than 33 days"} : skipped_};
}

} // namespace quillon
