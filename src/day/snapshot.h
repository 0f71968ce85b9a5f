// The whole state of the system: the card, the screen, and what a load keeps.
#pragma once

#include "card/race_card.h"
#include "screen/screen.h"
#include "tables/load_state.h"

namespace quillon {

/// Everything empty, as before start-up.
void resetAll();

/// The state as it stood when it was taken. Taking one, putting it back and keeping many costs little, since
/// copies of the store's tables and of views share the rows that they have in common.
class Snapshot {
public:
    /// Of the state as it stands.
    static Snapshot taken();

    /// Puts the state back, whole; the snapshot stays good.
    void putBack() const;

    const RaceCard& card() const { return card_; }
    const Screen& screen() const { return screen_; }

    /// Shares with an earlier snapshot what is the same in both, rows that were written anew with the same
    /// content too.
    void shareWith(const Snapshot& earlier);

    friend void pack(Packer& out, const Snapshot& state);
    friend bool unpack(Unpacker& in, Snapshot& state);

private:
    RaceCard card_;
    LineCursor cursor_;
    Screen screen_;
    LoadState load_;
};

} // namespace quillon
