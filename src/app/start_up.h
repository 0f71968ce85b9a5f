// The start of the program: an empty store, the views laid out, the Start button waiting.
#pragma once

#include "core/text.h"

#include <span>

namespace quillon {

/// A column of a view: its head and its width in twips; 0 hides it.
struct ViewColumn {
    TextView head;
    int width;
};

/// The columns of a race's data view (RaceLineView), from column 0.
std::span<const ViewColumn> lineViewColumns();

/// The columns of a race view (EntrySummaryView), from column 0.
std::span<const ViewColumn> entryViewColumns();

inline constexpr TextView startCaption = "Start";            ///< before a card
inline constexpr TextView viewRacesCaption = "View Races";   ///< for a card recalled from file
inline constexpr TextView selectRaceCaption = "Select Race"; ///< after a load
inline constexpr TextView windowCaption = "Quillon Professional Version";

/// Runs once, before the first command. Resumes at failures.
void StartUp();

/// Heads of the data views 1 to 25.
void FlexGrid1();

/// Heads of the race views 1 to 23.
void MSFlex2();

} // namespace quillon
