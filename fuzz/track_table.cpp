// The track table, and the steps that look a card's and a line's track up in it.
#include "tables/track_table.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "day/card_frame.h"
#include "rating/course_factors.h"
#include "support/fuzz_target.h"
#include "tables/load_state.h"

#include <string>

using namespace quillon;

namespace {

// A line and a card on this track, from a post inside and one outside.
void takeTrack(const TrackRecord& track) {
    card.trackSize = track.courseSize;
    card.stretchLength = track.stretchLength;
    card.maxPosts = track.maxPosts;
    screen.header.track.caption = track.trackKey;
    load.line.TRACK = track.trackKey;
    load.line.TRACKSIZE = track.lineCourseSize;
    for (const Integer post : {Integer{0}, Integer{1}, Integer{9}, Integer{12}}) {
        cursor.entry = post;
        cursor.lineValue = "60.0";
        load.line.POST = std::to_string(post);
        attempt(Tracks);
        attempt(PostPosition);
        attempt(Last_PP);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const TextView content = fuzz::textOf(data, size);
    static bool begun = false;
    if (!begun) fuzz::beginInput();
    begun = true;

    fuzz::put("TrackEditor.ini", content);
    readTrackTable();
    const TrackTable& table = load.tracks;
    const TrackTable again = trackTableOf(content);
    fuzz::ensure(table.rows.size() == again.rows.size(), "the file gives what its bytes give");
    for (const TrackRecord& track : table.rows) {
        const TrackRecord* first = table.first(track.trackKey);
        const TrackRecord* last = table.last(track.trackKey);
        fuzz::ensure(first != nullptr && last != nullptr && first <= &track && &track <= last,
                     "every track is found between the first and the last of its name");
        fuzz::ensure(track.maxPosts > 0, "a track starts a horse");
        attempt([&] { takeTrack(track); });
    }
    attempt(TrackData);
    return 0;
}
