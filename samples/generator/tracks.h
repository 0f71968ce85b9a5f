#pragma once

#include <span>
#include <string>
#include <string_view>

namespace samples {

struct Track {
    std::string_view key; // in capitals, as the vendor's tables have it
    std::string_view name;
    std::string_view size; // "1/2", "5/8", "7/8", "1.M", "1.Q"
    int stretch;           // feet; 0 when not known
    int starters;          // horses that start abreast; 0 when not known
    bool active;           // races this season
};

// Every track of North America that a card may name, ordered by key, so that a key stands before longer keys
// that begin with it.
std::span<const Track> allTracks();

// The track of that key, which must be in the table.
const Track& trackOf(std::string_view key);

// The course size as a past line names it: "1" for the mile, "11/4" for the mile and a quarter.
std::string_view vendorSize(const Track& track);

// TrackEditor.ini: a row for each track in its fixed columns, lines ended by CR LF.
std::string trackEditorText();

} // namespace samples
