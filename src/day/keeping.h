// When the open card is kept against a crash, and how it comes back.
//
// What a user has changed and not saved is kept some moments later, with the whole list of changes. A card
// without unsaved changes needs nothing kept.
#pragma once

#include <chrono>
#include <optional>

namespace quillon {

/// How long a change may stand until it is kept. Tests wait less.
inline std::chrono::milliseconds keepWithin{2000};

/// A command has run to its end: its changes are to be kept, or nothing is, where it has saved or closed the
/// card.
void noticeChanges();

/// The time until changes must be kept, 0 where it is over; nothing while there are none.
std::optional<std::chrono::milliseconds> keepingDueIn();

/// Keeps the card now where it has unsaved changes that are not kept. Stops where it can't be written; the
/// next change tries it again.
void KeepCard();

/// Keeps it where the time is over.
void KeepCardWhenDue();

/// Whether a run that ended without a close left a card behind.
bool canRecover();

/// Restores that card as it stood, with its changes, in place of the open one. One that another version of the
/// program has kept is left where it is.
void Recover();

/// Puts it away.
void Forget();

} // namespace quillon
