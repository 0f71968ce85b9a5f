#include "day/driver_change.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/formats.h"
#include "day/new_ranking.h"
#include "results/board.h"
#include "screen/race_views.h"
#include "screen/screen.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr TextView exitLine = "EXIT";
constexpr int udrCharacters = 4;   ///< a line of the list ends in the driver's UDR
constexpr int nameCharacters = 15; ///< and begins with his name

bool isThere(int race, int row) {
    return race >= 1 && race <= ratedRaces && row >= 1 && row <= ratedEntries &&
           !trimmed(card.entry[{race, row}].horseName).empty();
}

void moveRating(RaceEntry& entry, double oldUdr, double newUdr) {
    const auto rating = numberIn(entry.rating);
    if (!rating) return passOver(); // without a rating there is none to move
    entry.rating = formatted("##.0", "@@@@", *rating + driverCredit(oldUdr) - driverCredit(newUdr));
}

void changeDriver(RaceEntry& entry, Grid& view, int row) {
    const Text& choice = screen.driverChoice;
    const TextView udr = rightOf(choice, udrCharacters);
    attempt([&] { moveRating(entry, lenientNumber(view.text(row, RaceColumn::udr)), lenientNumber(udr)); });
    entry.driverName = leftOf(choice, nameCharacters);
    entry.chosenDriver = entry.driverName;
    attempt([&] { entry.driverUdr = formatted("#.#00", "@@@@@", udr); });
    view(row, RaceColumn::driver).text = entry.driverName;
    view(row, RaceColumn::udr).text = udr;
    view(row, RaceColumn::rating).text = entry.rating;
}

// The fifth horse keeps its place: it is the entry whose number stands in the race's outcome.
void renewFifth(int race) {
    const TextView number = trimmed(card.raceOutcome[{race, OutcomeCell::fifth}]);
    if (number.empty()) return;
    for (int index = 1; index <= ratedEntries; ++index) {
        const RaceEntry& entry = card.entry[{race, index}];
        if (trimmed(entry.programNumber) != number) continue;
        renewSelection(card.selection[{race, rankedPlaces}], entry);
        return;
    }
}

} // namespace

double driverCredit(double udr) {
    if (udr >= 0.300) return 1.0;
    if (udr >= 0.190) return 0;
    if (udr > 0.150) return -0.5;
    if (udr > 0.100) return 0; // a band without a step, though the drivers round it have one
    return -1.0;
}

void DriverColumn(int row) {
    const Step step{"DriverColumn"};
    if (!isThere(raceOnShow(), row)) return;
    const Text content = fileContent({Folder::working, "DriverList.txt"}).value_or("");
    screen.driverRow = row;
    screen.driverList.lines.clear();
    LineReader lines{content};
    while (const auto line = lines.next()) screen.driverList.lines.emplace_back(*line);
    screen.driverList.lines.emplace_back(exitLine);
    screen.driverList.visible = true;
}

void DriverChoice(const Text& line) {
    const Step step{"DriverChoice"};
    const auto& lines = screen.driverList.lines;
    const TextView choice = trimmed(line);
    const bool listed =
        std::any_of(lines.begin(), lines.end(), [&](const Text& row) { return trimmed(row) == choice; });
    if (!screen.driverList.visible || !listed) return;
    screen.driverList.visible = false;
    if (choice == exitLine || choice.empty()) return;
    screen.driverChoice = choice;
    PROFILE3();
}

void PROFILE3() {
    const Step step{"PROFILE3"};
    const int race = raceOnShow();
    const int row = screen.driverRow;
    if (!isThere(race, row)) return;
    attempt([&] { changeDriver(card.entry[{race, row}], raceViewOf(race), row); });
    rankOnBoard(race, fourStages);
    renewSelections(race, fourStages.stages, Posts::renewed);
    renewFifth(race);
    CloseRanking();
}

} // namespace quillon
