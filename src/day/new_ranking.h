// What follows a new ranking of the race on show: its selections on the board, in the store and on the sheet.
#pragma once

#include "rating/race_ranking.h"

namespace quillon {

/// Shows the program numbers of S1 to S4 in the first four boxes.
void showSelections(const std::array<Text, 4>& programNumbers);

/// Ranks the race and shows its S1 to S4 in the first four boxes.
void rankOnBoard(int race, const Ranking& ranking);

/// What closes every new ranking: tints S1 and S2, stores the board, and writes the selection sheet anew.
/// Resumes at failures.
void CloseRanking();

} // namespace quillon
