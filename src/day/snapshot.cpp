#include "day/snapshot.h"

namespace quillon {

void resetAll() {
    card.clear();
    cursor = {};
    screen.clear();
    load = {};
}

Snapshot Snapshot::taken() {
    Snapshot state;
    state.card_ = quillon::card;
    state.cursor_ = cursor;
    state.screen_ = quillon::screen;
    state.load_ = load;
    return state;
}

void Snapshot::putBack() const {
    quillon::card = card_;
    cursor = cursor_;
    quillon::screen = screen_;
    load = load_;
}

void Snapshot::shareWith(const Snapshot& earlier) {
    card_.shareWith(earlier.card_);
    screen_.shareWith(earlier.screen_);
}

} // namespace quillon
