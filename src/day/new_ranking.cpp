#include "day/new_ranking.h"

#include "core/failure.h"
#include "reports/selection_sheet.h"
#include "results/board.h"

namespace quillon {

void showSelections(const std::array<Text, 4>& programNumbers) {
    for (int box = 0; box < selectionBoxes; ++box) setBox(box, programNumbers[static_cast<std::size_t>(box)]);
}

void rankOnBoard(int race, const Ranking& ranking) {
    rankRace(race, ranking);
    std::array<Text, selectionBoxes> numbers;
    for (int box = 0; box < selectionBoxes; ++box)
        numbers[static_cast<std::size_t>(box)] = rankedEntry(race, box + 1).programNumber;
    showSelections(numbers);
}

void CloseRanking() {
    const Step step{"CloseRanking"};
    attempt(DeadHeat);
    attempt(Get_Textbox_Data);
    attempt(SelectionSheet);
}

} // namespace quillon
