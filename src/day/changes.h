// What the user has changed on the open card since it was loaded or recalled, and the way back.
//
// A change is one command after which the store, a race's views, a box of the board or a file of the card
// differ. Each is kept with the state before it and the files that it wrote, so that it can be taken back and
// done again, whole and to the last byte. Loading, recalling and closing start with no changes.
#pragma once

#include "core/files.h"
#include "core/packing.h"
#include "core/text.h"
#include "day/snapshot.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace quillon {

/// The content of a file; none where the file is not there.
using FileContent = std::shared_ptr<const Text>;

/// A file that a change wrote.
struct FileChange {
    FilePlace place{};
    FileContent before{};
    FileContent after{};
};

/// Program numbers of S1 to S4 as they stand in the store.
using TopFour = std::array<Text, 4>;

struct Change {
    int race = 0; ///< 0 for the card as a whole
    Text what{};  ///< "5 Oughta Be Famous scratched"
    TopFour before{};
    TopFour after{};
    std::vector<FileChange> files{};
};

/// What has to differ for a command to be a change.
enum class Compared {
    everything,
    store, ///< and files: a command that walks the races shows other boxes and views anyway
};

/// A command that may change the card, as the list runs it.
struct CardCommand {
    std::function<void()> run{};
    Compared compared = Compared::everything;
    int race = 0;                  ///< that it changes, 0 for the card
    std::function<Text()> words{}; ///< what it did, asked after it ran and only when something differs
};

class ChangeList {
public:
    /// A card was loaded or recalled: no changes, and nothing unsaved.
    void begin();
    /// The card was closed.
    void end();
    bool isOpen() const { return !states_.empty(); }

    /// Runs a command and keeps what it changed. Changes that were taken back before are gone then.
    void run(const CardCommand& command);

    /// The changes that stand, oldest first; change n stands at n - 1.
    std::span<const Change> standing() const { return {changes_.data(), position_}; }

    bool canUndo() const { return position_ > 0; }
    bool canRedo() const { return position_ < changes_.size(); }

    /// What undo takes back, and what redo does again; only where there is something.
    const Change& last() const { return changes_[position_ - 1]; }
    const Change& next() const { return changes_[position_]; }

    /// Takes back the last change; does it again. Store, screen and files are as they were. A file that
    /// differs from what the change left is left alone, and told as a note.
    void undo();
    void redo();
    /// Takes back all changes after number n; 0 is the card as loaded or recalled, race 1 on show.
    void undoTo(std::size_t number);

    /// The card was saved.
    void saved();
    /// Changes that the card differs by from the last save, load or recall; 0 when there is nothing to save.
    std::size_t unsaved() const;

    /// Another number whenever the list has changed.
    std::uint64_t version() const { return version_; }

    /// The state as it stands belongs to the changes that stand, with what was looked at since the last one.
    void takeStateIn();
    /// Puts back the state that belongs to the changes that stand.
    void putStateBack() const { states_[position_].putBack(); }

    /// S1 to S5 of a race as loaded or recalled stand in this card. Only while a card is open.
    const RaceCard& cardAsLoaded() const { return loaded_->card(); }

    /// The archive has a line of this card: no step back offers to record it again.
    void recorded() { recorded_ = true; }
    bool isRecorded() const { return recorded_; }

    friend void pack(Packer& out, const ChangeList& list);
    friend bool unpack(Unpacker& in, ChangeList& list);

private:
    void touch();
    void goTo(std::size_t position, const Snapshot& state);
    void putFilesBack(std::size_t position);

    std::optional<Snapshot> loaded_;
    std::vector<Change> changes_;
    std::vector<Snapshot> states_; ///< the state last seen after so many changes; one more than `changes_`
    std::size_t position_ = 0;     ///< changes that stand
    std::size_t savedAt_ = 0; ///< where it was when the card was saved, or where the way there branched off
    std::size_t lostSinceSave_ = 0; ///< changes of the saved card that no way leads back to
    bool recorded_ = false;
    std::uint64_t version_ = 0;
};

extern ChangeList changes;

} // namespace quillon
