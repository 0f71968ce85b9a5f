#include "results/race_display.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "results/board.h"
#include "results/heat_slots.h"
#include "results/heats.h"
#include "screen/race_views.h"
#include "screen/screen.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

/// How far a way of showing a race puts away the race views and the check marks of other races. Previous and
/// the race list stop two short.
constexpr int allViews = ratedRaces;
constexpr int allViewsButTwo = 21;

constexpr int lineButtonRows = 15; ///< rows of past lines that can be taken by their number

void leaveLastRace() {
    screen.item(CommandId::HeatWinner).checked = false;
    for (std::size_t row = 1; row < screen.heatButtons.size(); ++row) screen.heatButtons[row].visible = false;
    ClosePastPerformances();
}

void showViews(int race, int lastPutAway) {
    for (int other = 1; other <= lastPutAway; ++other) {
        screen.raceViewVisible.at(other) = false;
        screen.raceChecks.at(other).visible = false;
    }
    for (Button& button : screen.raceButtons) button.current = false;
    if (race > ratedRaces) return;
    screen.raceViewVisible.at(race) = true;
    screen.raceButtons.at(race).current = true;
    screen.raceChecks.at(race).visible = true;
    screen.raceChecks.at(race).caption = card.raceInfo(race).label;
    if (screen.startOffer == StartOffer::load) screen.dataViewVisible.at(race) = true;
}

void captionEntryButtons(int race) {
    for (int entry = 1; entry <= ratedEntries; ++entry) {
        const Text& number = card.entry(race, entry).programNumber;
        Button& button = screen.entryButtons.at(entry);
        button.caption = lenientNumber(number) > 0 ? rightAligned(number, 3) : "";
        button.current = false;
    }
}

/// The common road of all the ways to show a race.
void show(int race, int lastPutAway) {
    if (race < 1 || race >= raceExtent) return;
    cursor.race = static_cast<Integer>(race);
    leaveLastRace();
    if (isHeat(race)) attempt([&] { fillHeatView(race); });
    attempt([&] { showViews(race, lastPutAway); });
    attempt([&] { captionEntryButtons(race); });
    showRaceHeader(race);
    showBoard(race);
}

int heldToButtons(double race) {
    return static_cast<int>(std::clamp(race, 1.0, static_cast<double>(lastButtonRace)));
}

/// The colour that tells how old the line in this row is: the rows of an entry run from its latest line back.
std::optional<Colour> shadeOfLine(const RaceEntry& entry, int row) {
    if (row <= entry.linesInLastWindow) return recentYellow;
    if (row <= entry.linesInFiftyDays) return olderCyan;
    return std::nullopt;
}

/// Copies the lines of the horse at this post out of the race's data view.
void fillPastPerformances(int race, int post) {
    const Grid& lines = dataViewOf(race);
    Grid& shown = screen.dataView[pastPerformanceView];
    shown.clear();
    int row = 0;
    for (int line = 1; line < lines.rows(); ++line) {
        if (lenientNumber(lines.text(line, DataColumn::post)) != post) continue;
        ++row;
        for (int column = DataColumn::date; column <= DataColumn::lineNumber; ++column)
            if (column != DataColumn::todaysRace) shown(row, column).text = lines.text(line, column);
        if (row <= lineButtonRows) shown(row, DataColumn::lineNumber).text = std::to_string(line);
        shown.shade(row, DataColumn::date, DataColumn::lineNumber, shadeOfLine(card.entry(race, post), row));
    }
}

/// What tells one line of a card from all others, in a data view as among the kept lines.
constexpr std::array identifyingColumns{DataColumn::date, DataColumn::todaysRace, DataColumn::post,
                                        DataColumn::horse, DataColumn::lineNumber};

} // namespace

bool isKeptLine(const Grid& lines, int line, int keptLine) {
    if (keptLine < 1 || keptLine >= lineNumberExtent) return false;
    return std::all_of(identifyingColumns.begin(), identifyingColumns.end(), [&](int column) {
        return lines.text(line, column) == card.lineCells.read(keptLine, column);
    });
}

void showRaceHeader(int race) {
    if (race < 1 || race >= raceExtent) return;
    const RaceInfo& info = card.raceInfo[{race}];
    RaceHeader& header = screen.header;
    header.race = std::to_string(race);
    header.purse = "$ " + info.purse;
    header.classText = info.classText;
    header.cr = info.todaysCr;
    header.wagering = info.wagering;
    header.postTime = info.postTime;
    header.gait = info.gait;
    header.trackInfo = info.trackInfo;
    header.distance = info.distance;
    if (!info.trackCode.empty() || !isHeat(race)) header.track.caption = info.trackCode;
}

void showBoard(int race) {
    if (race < 1 || race >= raceExtent) return;
    attempt(DeadHeat);
    int cell = cellOfBox(0);
    for (Box& box : screen.boxes) box.text = card.raceOutcome[{race, cell++}];
    if (isHeat(race)) attempt([&] { showHeatSelections(race); });
    for (const int box : cellsOfTheirBoxes) screen.tote.at(box) = card.payoffRecord[{race, box}];
    screen.tote[ToteBox::deadHeat] = card.payoffRecord[{race, PayoffCell::deadHeat}];
    screen.refunds = card.payoffRecord[{race, PayoffCell::refunds}];
    screen.tote[0] = "RACE:  " + std::to_string(race);
    // The boxes change one by one, but a dead heat is looked at only when all of them are the new race's.
    TEXT_56();
}

double numberAtEnd(TextView text) {
    text = trimmedRight(text);
    return lenientNumber(text.substr(text.find_last_not_of("0123456789") + 1));
}

void showRace(int race) { show(race, allViews); }

void RaceButton(int n) {
    const Step step{"RaceButton"};
    if (card.recallMode == "R") card.recallMode.clear();
    // A heat above race 20 has its view filled too, though what is shown is race 20.
    if (n > lastButtonRace && isHeat(n)) attempt([&] { fillHeatView(n); });
    show(heldToButtons(n), allViews);
}

void Next() {
    const Step step{"Next"};
    const int shown = raceOnShow();
    if (shown == 0) return;
    leaveLastRace();
    if (shown + 1 > card.raceCount) {
        attempt([&] { cursor.race = toInteger(card.labelledRaces + card.raceCount); });
        return;
    }
    attempt(Get_Textbox_Data);
    show(shown + 1, allViews);
    attempt(TEXT_56);
    attempt(DeadHeat);
}

void Previous() {
    const Step step{"Previous"};
    const int shown = raceOnShow();
    if (shown == 0) return;
    leaveLastRace();
    attempt(Get_Textbox_Data);
    if (shown == 1) {
        cursor.race = 1;
        return;
    }
    show(shown - 1, allViewsButTwo);
}

void TakeAllIn() {
    const Step step{"TakeAllIn"};
    const int shown = raceOnShow();
    if (shown == 0) return;
    const auto showAsNext = [](int race) {
        show(race, allViews);
        attempt(TEXT_56);
        attempt(DeadHeat);
    };
    attempt(Get_Textbox_Data);
    for (int race = 1; race <= card.raceCount; ++race) {
        showAsNext(race);
        attempt(Get_Textbox_Data);
    }
    showAsNext(shown);
}

void RaceList(const Text& line) {
    const Step step{"RaceList"};
    show(heldToButtons(numberAtEnd(line)), allViewsButTwo);
}

void FillRaceList() {
    screen.raceList.lines.clear();
    for (int race = 1; race <= card.raceCount && race < raceExtent; ++race)
        screen.raceList.lines.push_back("RACE " + std::to_string(race));
}

void EntryButton(int i) {
    const Step step{"EntryButton"};
    const int race = raceOnShow();
    if (i < 1 || i > ratedEntries || race < 1 || race > ratedRaces) return;
    const bool again = screen.pastPerformanceOpen && screen.currentEntry == i;
    ClosePastPerformances();
    if (again) return;

    // A recalled card has no offset: the figure at the end of its file name tells a partial one.
    if (card.recallMode == "R") card.raceOffset = toInteger(lenientNumber(rightOf(card.cardFileName, 1)));
    cursor.entry = static_cast<Integer>(i);
    screen.currentEntry = i;
    attempt([&] { fillPastPerformances(race, i); });
    raceViewOf(race).shade(i, RaceColumn::post, RaceColumn::last, recentYellow);
    const RaceEntry& entry = card.entry[{race, i}];
    screen.pastPerformanceHeading =
        Text{trimmed(entry.programNumber)} + "  " + Text{trimmed(entry.horseName)};
    screen.dataViewVisible.at(pastPerformanceView) = true;
    screen.pastPerformanceOpen = true;
}

LineInUse lineInUse() {
    const int race = raceOnShow();
    const int entry = screen.currentEntry;
    if (!screen.pastPerformanceOpen || entry < 1 || race < 1 || race > ratedRaces) return {};
    const Integer chosen = card.entry[{race, entry}].chosenLineNumber;
    const Integer taken = screen.lineTaken[{race, entry}];
    const Grid& lines = dataViewOf(race);
    LineInUse found;
    int row = 0;
    for (int line = 1; line < lines.rows(); ++line) {
        if (lenientNumber(lines.text(line, DataColumn::post)) != entry) continue;
        ++row;
        if (line == taken) found.row = row;
        if (found.programsRow == 0 && isKeptLine(lines, line, chosen)) found.programsRow = row;
    }
    if (taken == noLineTaken) found.row = found.programsRow;
    found.byUser = found.row > 0 && found.row != found.programsRow;
    return found;
}

void ClosePastPerformances() {
    ClearLastIndex();
    screen.currentEntry = 0;
    screen.pastPerformanceOpen = false;
    screen.dataViewVisible.at(pastPerformanceView) = false;
    screen.pastPerformanceHeading.clear();
}

void ClearLastIndex() {
    if (screen.currentEntry < 1 || raceOnShow() < 1) return;
    attempt([&] {
        raceViewOf(raceOnShow()).shade(screen.currentEntry, RaceColumn::post, RaceColumn::last, white);
    });
}

} // namespace quillon
