#include "day/recall.h"

#include "analysis/analysis_view.h"
#include "card/card_files.h"
#include "card/race_card.h"
#include "cardfiles/card_file.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/formats.h"
#include "rating/rating_display.h"
#include "results/auto_record.h"
#include "results/race_display.h"
#include "screen/race_views.h"
#include "screen/screen.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

constexpr int noPost = 99;

bool isShown(const RaceEntry& entry) { return !trimmed(entry.horseName).empty(); }

// The eight characters after the first "_".
TextView dateInName(TextView cardFileName) {
    constexpr int dateLength = 8;
    const int bar = placeOf("_", cardFileName);
    return bar == 0 ? TextView{} : midOf(cardFileName, bar + 1, dateLength);
}

bool isSaved(int race) { return race >= 1 && race <= ratedRaces; }

bool isSaved(int race, int entry) { return isSaved(race) && entry >= 1 && entry <= ratedEntries; }

void ClearWindowCounts() {
    for (int race = 0; race < raceExtent; ++race)
        for (int at = 0; at < entryExtent; ++at) {
            RaceEntry& entry = card.entry[{race, at}];
            entry.linesInLastWindow = 0;
            entry.linesInFiftyDays = 0;
        }
}

// The fields of a saved race that no file carries.
void forgetUnsaved(int race) {
    RaceInfo& info = card.raceInfo[{race}];
    info.ratingNote = 0;
    card.raceOutcome[{race, OutcomeCell::fifth}].clear();
    card.selection[{race, rankedPlaces}] = {};
    for (int place = 1; place < rankedPlaces; ++place) card.selection[{race, place}].selectionPost.clear();
}

// A race that no file has room for.
void forgetRace(int race) {
    card.raceInfo[{race}] = {};
    for (int cell = 1; cell <= OutcomeCell::fifth; ++cell) card.raceOutcome[{race, cell}].clear();
    for (int cell = 1; cell <= PayoffCell::last; ++cell) card.payoffRecord[{race, cell}].clear();
    for (int place = 1; place <= rankedPlaces; ++place) card.selection[{race, place}] = {};
}

// The entry's fields that no file carries.
void forgetUnsaved(RaceEntry& entry) {
    entry.postPosition.clear();
    entry.driverNumber = 0;
    entry.driverName.clear();
    entry.chosenLineNumber = 0;
}

// What a card before it left in the store and no file carries would pass for the recalled card's own: another
// driver beside a horse, another card's lines. The dead-heat counters stay, since only the passes that record
// results begin them anew.
void ForgetWhatNoFileCarries() {
    const Step step{"ForgetWhatNoFileCarries"};
    for (int race = 0; race < raceExtent; ++race) {
        if (isSaved(race))
            forgetUnsaved(race);
        else
            forgetRace(race);
        for (int at = 0; at < entryExtent; ++at)
            if (isSaved(race, at))
                forgetUnsaved(card.entry[{race, at}]);
            else
                card.entry[{race, at}] = {};
    }
    card.pastLine.clear();
    card.driverTable.clear();
    card.trainerTable.clear();
    card.pickPayoff.clear();
    card.pickLegs.clear();
    card.heatPost.clear();
    card.heatRating.clear();
    card.labelledRaces = 0;
    card.raceOffset = 0;
    card.trackSize.clear();
    card.stretchLength = 0;
    card.maxPosts = 0;
    card.totalLines = 0;
}

// A missing card file leaves the store as it is.
void ReadCardFile() {
    const Step step{"ReadCardFile"};
    const FilePlace place{Folder::raceCards, card.cardFileName};
    card.unreadFile = shownPath(place);
    const Text content = readFile(place);
    card.unreadFile.clear();
    ForgetWhatNoFileCarries();
    takeCardFile(content, card);
}

// Without an archive the card has no lines; those of another card would be shown, and saved, as its own.
void ReadArchive() {
    const Step step{"ReadArchive"};
    Text content;
    attempt([&] {
        const FilePlace place = cardFile(Folder::archives, "pmx");
        const bool read = attempt([&] { content = readFile(place); });
        if (!read && fileExists(place)) card.unreadFile = shownPath(place);
    });
    takeArchive(content, card);
}

// The counters that tell a dead heat are in no file; the results text brings them back. Each pass counts all
// races again.
void RecountDeadHeats() {
    const Step step{"RecountDeadHeats"};
    for (int race = 1; race <= ratedRaces; ++race)
        if (lenientNumber(card.payoffRecord[{race, PayoffCell::deadHeat}]) > 0) attempt(AutoRecord2);
}

// An entry's name, odds and program number stand in column 0 beside its first three lines; those of the next
// entry overwrite them where an entry has fewer.
void headEntry(int race, int row, int lineNumber) {
    const int post = toInteger(lenientNumber(card.lineCells.read(lineNumber, DataColumn::post)));
    const RaceEntry& headed = card.entry(race, post == noPost ? 0 : post);
    Grid& view = dataViewOf(race);
    int at = row;
    for (const TextCell* head : {&headed.horseName, &headed.morningOdds, &headed.programNumber}) {
        attempt([&] { view(at, DataColumn::entry).text = head->text(); });
        ++at;
    }
}

void copyLine(int race, int row, int lineNumber) {
    const auto cells = dataViewOf(race).cellsOf(row);
    for (int column = DataColumn::date; column <= archiveColumns; ++column)
        cells[static_cast<std::size_t>(column)].text = card.lineCells.read(lineNumber, column);
}

// The race that a kept line was run up to; 0 where none is kept under this number.
double raceOf(int lineNumber) {
    return lenientNumber(card.lineCells.read(lineNumber, DataColumn::todaysRace));
}

// The number of the card's first race less 1, which no file carries. Its label tells it; a lost one is taken
// for race 1. Where that is a race after the first line's, or leaves the last line after the card's last
// race, the first line is one of the card's first race.
double racesBeforeTheCard() {
    double firstLine = 0;
    double lastLine = 0;
    for (int number = 1; number <= archiveRows; ++number) {
        const double race = raceOf(number);
        if (race < 1) continue;
        if (firstLine < 1) firstLine = race;
        lastLine = race;
    }
    const double first = std::max(lenientNumber(card.raceInfo[{1}].label), 1.0);
    const bool linesFit = first <= firstLine && lastLine - first + 1 <= card.raceCount;
    return (linesFit ? first : std::max(firstLine, 1.0)) - 1;
}

// The lines of the card, each into the view of its race after the lines before it. A change of HN begins an
// entry. Lines beyond a view's last row are not shown.
void RebuildDataViews() {
    const Step step{"RebuildDataViews"};
    struct Filling {
        int row = 0;
        double horse = 0;
    };
    std::array<Filling, ratedRaces + 1> fillings{};
    const double before = racesBeforeTheCard();
    for (int number = 1; number <= archiveRows; ++number) {
        const double race = raceOf(number) - before;
        if (race < 1 || race > ratedRaces || race != static_cast<int>(race)) continue;
        const int at = static_cast<int>(race);
        Filling& filling = fillings[static_cast<std::size_t>(at)];
        const int row = ++filling.row;
        const double horse = lenientNumber(card.lineCells.read(number, DataColumn::horse));
        const bool newEntry = horse > 0 && horse != filling.horse;
        if (newEntry) filling.horse = horse;
        if (row >= dataViewRows) continue;
        if (newEntry) attempt([&] { headEntry(at, row, number); });
        copyLine(at, row, number);
    }
}

void ShowRaceButtons() {
    for (int race = 1; race <= ratedRaces; ++race)
        screen.raceButtons[static_cast<std::size_t>(race)].visible = race <= card.raceCount;
}

void CaptionEntryButtons() {
    for (int at = 1; at <= ratedEntries; ++at) {
        const TextCell& number = card.entry[{1, at}].programNumber;
        screen.entryButtons[static_cast<std::size_t>(at)].caption =
            number.given() ? aligned("@@@", number) : "";
    }
}

void ShowRaceOneAlone() {
    screen.dataViewVisible.fill(false);
    screen.raceViewVisible.fill(false);
    screen.raceViewVisible[1] = true;
    dataViewOf(ratedRaces)(0, DataColumn::entry).text = "RACE " + std::to_string(ratedRaces);
}

// Races up to the last one that shows an entry.
void CountRaces() {
    for (int race = 1; race <= ratedRaces; ++race)
        for (int at = 1; at <= ratedEntries; ++at)
            if (isShown(card.entry[{race, at}])) card.raceCount = static_cast<Integer>(race);
}

void fillEntryRow(int race, int at) {
    RaceEntry& entry = card.entry[{race, at}];
    if (entry.morningOdds.given()) entry.morningOdds = trimmed(entry.morningOdds);
    entry.chosen.TRACK = Text{trimmed(entry.chosen.TRACK)};
    Grid& view = raceViewOf(race);
    fillRaceViewRow(view, at, entry);
    view(at, RaceColumn::post).text = std::to_string(at);
    colourSaddleCloth(view(at, RaceColumn::programNumber));
}

void FillRaceViews() {
    for (int race = 1; race <= ratedRaces; ++race) {
        screen.raceButtons[static_cast<std::size_t>(race)].caption = card.raceInfo[{race}].label;
        for (int at = 1; at <= ratedEntries; ++at)
            if (isShown(card.entry[{race, at}])) fillEntryRow(race, at);
    }
}

void ShowRaceOne() {
    cursor.race = 1;
    const bool laterRaceWasHeaded = numberAtEnd(screen.tote[0]) > 1;
    for (Button& button : screen.raceButtons) button.current = false;
    screen.raceButtons[1].current = true;
    screen.raceButtons[1].enabled = true;
    screen.header.track.visible = true;
    showRaceHeader(1);
    showBoard(1);
    // The heading that a recall writes over that of a later race has always been in small letters.
    if (laterRaceWasHeaded) screen.tote[0] = "Race:  " + screen.header.race;
}

} // namespace

void RecallRaceCard() {
    const Step step{"RecallRaceCard"};
    card.recallMode = "R";
    screen.fileList = {.lines = filesIn(Folder::raceCards, ".pmd"), .visible = true};
    for (std::size_t at = 1; at < screen.entryButtons.size(); ++at) screen.entryButtons[at].enabled = true;
    for (const CommandId item : {CommandId::NewRC, CommandId::RecallRaceCard})
        screen.item(item).enabled = false;
    for (const CommandId item : {CommandId::SelectionResults, CommandId::Entries, CommandId::ViewSummary,
                                 CommandId::ViewCondensedProgram, CommandId::PrintCondensedProgram})
        screen.item(item).enabled = true;
    screen.raceChecks[1].visible = true;
    screen.raceChecks[1].caption = "1";
}

void ChooseFile(const Text& fileName) {
    const Step step{"ChooseFile"};
    card.cardFileName = fileName;
    card.recallMode =
        "R"; // also where a move of the races or a results pass has ended it since the list came up
    screen.fileList.visible = false;
    screen.item(CommandId::ViewSummary).enabled = true;
    screen.start.enabled = true;
    screen.record.enabled = false; // until the card's own summary
    card.raceCount = 0;
    ClearWindowCounts();
    screen.clearCardViews(); // of a card that was loaded since the list came up
    screen.lineTaken.clear();
    attempt(ReadCardFile);
    attempt(ReadArchive);
    attempt(Recall);
    RecountDeadHeats();
    screen.boardsToTakeIn.clear(); // they were taken in before the card was saved
    screen.offer(StartOffer::viewRaces);
    screen.mode = CardMode::recalled;
    attempt(RebuildDataViews);
    attempt(ShowRaceOneAlone);
    ShowRaceButtons();
    CaptionEntryButtons();
    attempt(MainScreen);
}

void Recall() {
    const Step step{"Recall"};
    if (card.recallMode == "R") {
        screen.raceButtons[1].caption = card.raceInfo[{1}].label;
        screen.raceButtons[1].visible = true;
        card.raceCount = 0;
        card.cardDate = dateInName(card.cardFileName);
        screen.header.date = {.caption = card.cardDate, .visible = true};
    }
    CountRaces();
    attempt(FillRaceViews);
    attempt(ShowRaceOne);
    FillRaceList();
}

} // namespace quillon
