// The open card's name and the files that belong to it.
#pragma once

#include "core/files.h"
#include "core/text.h"

namespace quillon {

/// A card's name is its track, "_" and its date: "M1_20260314.pmd".
///
/// All of it before its first point.
TextView cardNameOf(TextView fileName);
/// All of it before its first "_". Fails without one.
TextView cardTrackOf(TextView fileName);
/// The eight characters after its first "_", yyyymmdd; empty without one.
TextView cardDateOf(TextView fileName);

/// The card's file of one kind: the card's name up to and including its first point, and this extension
/// ("pms"). Fails when no card is open.
FilePlace cardFile(Folder folder, TextView extension);

} // namespace quillon
