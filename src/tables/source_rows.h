// The rows of the vendor's tables that a load stands on, with the names that their fields have there.
#pragma once

#include "card/race_card.h"
#include "core/text.h"

#include <array>
#include <cstddef>

namespace quillon {

/// The row of the running-line table that the line cursor is on, without trailing blanks, read once a line:
/// the fields of a past line as the vendor has them, and what the store doesn't keep.
struct SourceLine : PastLine {
    Text TODAYSRACE{};
    Text HN{};
    Text TRACKSIZE{};
    Text FAV{};
    Text ODDS{};
    Text DN{};
};

/// The row of the horse table that the horse cursor is on, without trailing blanks, read once a horse.
struct SourceHorse {
    Text RACE{};
    Text HN{};
    Text HORSE_NAME{};
    Text PROGRAM{};
    Text PP{}; ///< post position; 99 for none
    Text MORN_ODDS{};
    Text DN{};
    Text TN{};
};

/// A field of the vendor's, under its name there.
template <class Record>
struct SourceField {
    const char* name;
    Text Record::*cell;
};

inline constexpr std::array horseFields{
    SourceField<SourceHorse>{"RACE", &SourceHorse::RACE},
    SourceField<SourceHorse>{"HN", &SourceHorse::HN},
    SourceField<SourceHorse>{"HORSE_NAME", &SourceHorse::HORSE_NAME},
    SourceField<SourceHorse>{"PROGRAM", &SourceHorse::PROGRAM},
    SourceField<SourceHorse>{"PP", &SourceHorse::PP},
    SourceField<SourceHorse>{"MORN_ODDS", &SourceHorse::MORN_ODDS},
    SourceField<SourceHorse>{"DN", &SourceHorse::DN},
    SourceField<SourceHorse>{"TN", &SourceHorse::TN},
};

/// What a line has beside the fields of a past line.
inline constexpr std::array furtherLineFields{
    SourceField<SourceLine>{"TODAYSRACE", &SourceLine::TODAYSRACE},
    SourceField<SourceLine>{"HN", &SourceLine::HN},
    SourceField<SourceLine>{"TRACKSIZE", &SourceLine::TRACKSIZE},
    SourceField<SourceLine>{"FAV", &SourceLine::FAV},
    SourceField<SourceLine>{"ODDS", &SourceLine::ODDS},
    SourceField<SourceLine>{"DN", &SourceLine::DN},
};

template <class Record, std::size_t count, class Visit>
void forEachField(const std::array<SourceField<Record>, count>& list, auto& record, Visit visit) {
    for (const auto& field : list) visit(TextView{field.name}, record.*field.cell);
}

} // namespace quillon
