// Why one past line speaks for an entry, for a user who asks. The line selection notes it while notes are asked for;
// otherwise, as nearly always, it looks for them once an entry and nothing more.
#pragma once

#include "core/text.h"

#include <map>

namespace quillon {

enum class Verdict { notLookedAt, passedOver, chosen };

/// What the selection made of a line.
struct LineNote {
    Verdict verdict = Verdict::notLookedAt;
    Text reason{}; ///< in racing words
};

/// The notes of one entry's selection. They stand from their making to their end.
class SearchNotes {
public:
    SearchNotes(int race, int entry);
    ~SearchNotes();
    SearchNotes(const SearchNotes&) = delete;
    SearchNotes& operator=(const SearchNotes&) = delete;

    bool isFor(int race, int entry) const { return race == race_ && entry == entry_; }

    void passOver(int slot, const Text& reason) { bySlot_[slot] = {Verdict::passedOver, reason}; }
    void choose(int slot, const Text& reason) { bySlot_[slot] = {Verdict::chosen, reason}; }
    /// How the lines that count came to be more than those of the window.
    void widen(TextView how);
    /// Why no line was looked at, where that is so.
    void skip(TextView why) { skipped_ = why; }
    const Text& skipped() const { return skipped_; }

    /// Puts how the count was widened to the chosen line's reason.
    void close(int chosenSlot);

    /// Of this slot, 1 being the latest line.
    LineNote of(int slot) const;

private:
    SearchNotes* outer_;
    int race_;
    int entry_;
    std::map<int, LineNote> bySlot_;
    Text widened_;
    Text skipped_;
};

/// The notes that are asked for, or none.
extern SearchNotes* searchNotes;

} // namespace quillon
