// The betting profiles: what $12 a race on each bet type would have earned over the archive's cards, all of
// them or those of a track or a size of course.
#pragma once

#include "core/text.h"

namespace quillon {

// The filters of the menu: each takes its tracks for `screen.profileFilter` and runs the profile.
void ALL();
void HALF();
void FIVE();
void Seven();
void MILE();
void QUARTER();

/// Opens the list of tracks, as the last scan of the archive found them, and scans it anew. Stops at a
/// failure with the list open.
void Select();

/// A line of the track list is picked: the profile of that track, or "EXIT".
void SelectTrack(const Text& line);

/// Takes `screen.profileFilter`, copies the archive's lines that pass it to HRA.txt, the latest first, fills
/// `screen.profile` and shows it. Stops at a failure, and when the user cancels. The archive stays.
void Profile2();

} // namespace quillon
