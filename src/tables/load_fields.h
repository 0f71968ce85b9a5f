// The fields of what a load keeps, by name, as those of the store in card/fields.h.
#pragma once

#include "card/fields.h"
#include "tables/load_state.h"
#include "tables/track_table.h"

#include <tuple>

namespace quillon {

inline constexpr std::tuple trackRecordFields{
    Field{"trackKey", &TrackRecord::trackKey},
    Field{"trackLine", &TrackRecord::trackLine},
    Field{"trackName", &TrackRecord::trackName},
    Field{"courseSize", &TrackRecord::courseSize},
    Field{"stretchLength", &TrackRecord::stretchLength},
    Field{"stretchFlag", &TrackRecord::stretchFlag},
    Field{"maxPosts", &TrackRecord::maxPosts},
    Field{"lineCourseSize", &TrackRecord::lineCourseSize},
    Field{"linePar", &TrackRecord::linePar},
};

inline constexpr std::tuple trackTableFields{
    Field{"rows", &TrackTable::rows},
    Field{"byKey", &TrackTable::byKey},
};

inline constexpr std::tuple loadStateFields{
    Field{"raceRows", &LoadState::raceRows},
    Field{"horseRows", &LoadState::horseRows},
    Field{"lineRows", &LoadState::lineRows},
    Field{"driverRows", &LoadState::driverRows},
    Field{"trainerRows", &LoadState::trainerRows},
    Field{"line", &LoadState::line},
    Field{"horse", &LoadState::horse},
    Field{"tracks", &LoadState::tracks},
    Field{"raceIndexOfRow", &LoadState::raceIndexOfRow},
    Field{"lastRowOfHorse", &LoadState::lastRowOfHorse},
    Field{"cardDay", &LoadState::cardDay},
    Field{"daysFromCard", &LoadState::daysFromCard},
    Field{"log", &LoadState::log},
};

} // namespace quillon
