// What is kept of the open card against a crash, in the folder "Recovery" beside the card's other folders.
//
// Each program that runs keeps its card in a file of its own and marks it as its own as long as it lives, so
// that of two programs at once neither takes the other's. What a program left that has ended without a save
// or a close is found by the next one.
#pragma once

#include "core/text.h"

#include <optional>

namespace quillon {

struct RecoveryHeading {
    Text cardName{}; ///< "MVR_20260314.pmd"
    int changes = 0;
    Text time{}; ///< "20260314 201405", when it was kept: a later one is a greater text

    bool operator==(const RecoveryHeading&) const = default;
};

struct LeftBehind {
    RecoveryHeading heading{};
    Text state{}; ///< the bytes that were kept
};

/// Keeps these bytes for the open card in place of those that were kept before, whole or not at all. Fails
/// when they can't be written, and keeps what was kept then.
void keepForRecovery(TextView state, const RecoveryHeading& heading);

/// The card is saved or closed: what is kept of it is not needed any more. Fails when it can't be removed.
void stopKeeping();

/// What a program that has ended left behind, the newest where there is more, with the whole of its bytes.
/// Looks at the disk until something is found; that is this program's then, and no other one finds it.
const LeftBehind* leftBehind();

/// Puts away what was found; the next one comes up then. Fails when it can't be removed.
void forgetLeftBehind();

/// What was found is the open card from now on: this program keeps its state in the same file.
void takeOverLeftBehind();

} // namespace quillon
