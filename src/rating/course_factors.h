// What course and post are worth to a past line: the tighter the turns, the more.
#pragma once

#include "core/text.h"

namespace quillon {

/// The whole-second figure by which two courses are compared; empty for a size that has none.
TextView courseNominal(TextView courseSize);

/// Reads the line's `TRACK`, the track in the screen's heading and `trackSize`; writes `lineSize` and brings
/// `lineValue` to today's course. Stops at a failure.
void Tracks();

/// Reads `cursor.entry` (today's post), `trackSize` and `maxPosts`; charges `lineValue` for the post. Stops
/// at a failure.
void PostPosition();

/// Reads `trackSize`; credits `lineValue` for a good finish from a late post. Stops at a failure.
void Last_PP();

} // namespace quillon
