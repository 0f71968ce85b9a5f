#include "day/save.h"

#include "card/card_files.h"
#include "card/columns.h"
#include "card/race_card.h"
#include "cardfiles/card_file.h"
#include "core/failure.h"
#include "core/files.h"
#include "results/board.h"
#include "results/race_display.h"
#include "screen/ports.h"
#include "screen/screen.h"

#include <optional>
#include <utility>

namespace quillon {
namespace {

constexpr TextView firstCardName = "A"; // names below it, the empty one too, are no card to the menu item

// A user may have changed cells of the race views. Rows that a view doesn't show hold nothing to take back.
void TakeBackRaceViews() {
    const Step step{"TakeBackRaceViews"};
    for (int race = 1; race <= ratedRaces; ++race) {
        const Grid& view = screen.raceView[static_cast<std::size_t>(race)];
        for (int row = 1; row <= ratedEntries; ++row)
            if (!view.text(row, RaceColumn::horseName).empty())
                takeBackRaceViewRow(view, row, card.entry[{race, row}]);
    }
}

// The card's name: track and date as they head the screen. What the heading doesn't show stays as the card is
// named already.
Text nameOnShow() {
    const TextView name = card.cardFileName;
    const auto bar = name.find('_');
    const TextView trackSoFar = bar == TextView::npos ? TextView{} : name.substr(0, bar);
    TextView dateSoFar = bar == TextView::npos ? TextView{} : name.substr(bar + 1);
    dateSoFar = dateSoFar.substr(0, dateSoFar.find('.'));

    const TextView track = trimmed(screen.header.track.caption);
    const TextView date = trimmed(screen.header.date.caption);
    Text shown = upperCase(track.empty() ? trackSoFar : track);
    shown += '_';
    shown += date.empty() ? dateSoFar : date;
    return shown += ".pmd";
}

// A qualifier and a line without a class rating are saved with a dash. A rating with blanks round it is
// compared before it is trimmed, so that " -99" is saved as "-99".
void MarkMissingClassRatings() {
    const Step step{"MarkMissingClassRatings"};
    constexpr TextView noRating = "-99";
    for (int race = 1; race <= ratedRaces; ++race)
        for (int at = 1; at <= ratedEntries; ++at) {
            PastLine& chosen = card.entry[{race, at}].chosen;
            if (chosen.CLASS.starts_with('Q') || chosen.CR == noRating) chosen.CR = "--";
            chosen.CR = Text{trimmed(chosen.CR)};
        }
}

// A recalled card keeps the joined text that its file gave: what the recall made of it may be shorter, and
// joining that would lose the rest of the distance.
void JoinLabelsAndDistances() {
    const Step step{"JoinLabelsAndDistances"};
    const bool recalled = screen.startOffer == StartOffer::viewRaces;
    for (int race = 1; race <= ratedRaces; ++race) {
        RaceInfo& info = card.raceInfo[{race}];
        if (!recalled || info.raceLabelDistance.empty()) info.raceLabelDistance = info.label + info.distance;
    }
}

// One thing that a save must do. The user is told when it can't be done, and the save ends.
template <class Statement>
void insist(Statement&& statement, const Text& error) {
    if (attempt(std::forward<Statement>(statement))) return;
    ports.error(error);
    fail(error);
}

Text unreadCardError() { return "Card is not saved, since it couldn't be read: " + card.unreadFile; }

} // namespace

void Save() {
    const Step step{"Save"};
    if (card.cardFileName >= firstCardName) Save_It();
}

void Save_It() {
    const Step step{"Save_It"};
    insist(
        [] {
            if (!card.unreadFile.empty()) fail(unreadCardError());
        },
        unreadCardError());
    attempt(Get_Textbox_Data);
    TakeBackRaceViews();
    card.cardFileName = nameOnShow();

    const FilePlace saved{Folder::raceCards, card.cardFileName};
    const FilePlace archive = cardFile(Folder::archives, "pmx");
    const Text savedPath = shownPath(saved);
    const Text archivePath = shownPath(archive);
    insist([&] { makeFolder(saved.folder); }, "Path not found: " + savedPath);
    insist([&] { makeFolder(archive.folder); }, "Path not found: " + archivePath);

    MarkMissingClassRatings();
    JoinLabelsAndDistances();
    std::optional<PreparedFile> newCard;
    std::optional<PreparedFile> newArchive;
    insist([&] { newCard.emplace(saved, cardFileContent(card)); }, "File can't be written: " + savedPath);
    insist([&] { newArchive.emplace(archive, archiveContent(card)); },
           "File can't be written: " + archivePath);
    insist([&] { putInPlaceTogether(*newCard, *newArchive); },
           "Files can't be replaced: " + savedPath + ", " + archivePath);
}

void CloseRC() {
    const Step step{"CloseRC"};
    if (!card.unreadFile.empty())
        ports.error(unreadCardError()); // there is nothing to save, and it can be put away
    else if (!card.cardFileName.empty())
        Save_It();

    screen.item(CommandId::NewRC).enabled = true;
    screen.item(CommandId::RecallRaceCard).enabled = true;
    screen.clearCardViews();
    for (int race = 1; race <= ratedRaces; ++race)
        screen.dataView[static_cast<std::size_t>(race)](0, DataColumn::entry)
            .text.clear(); // "RACE " and the label
    screen.lineTaken.clear();
    screen.boardsToTakeIn.clear();
    screen.record.enabled = false;
    screen.summary.clearAll();
    screen.profile.clearAll();

    const bool trackVisible = screen.header.track.visible;
    const bool dateVisible = screen.header.date.visible;
    screen.header = {.track = {.visible = trackVisible}, .date = {.visible = dateVisible}};
    card.cardFileName.clear();
    screen.mode = CardMode::none;
    screen.tote.fill("");
    screen.refunds.clear();
    screen.finishLabels.fill("");
    screen.boxTenVisible = false;
    screen.boxes.fill({});

    ClosePastPerformances();
}

} // namespace quillon
