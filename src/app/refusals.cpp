#include "app/refusals.h"

#include "card/card_files.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "screen/screen.h"

namespace quillon {
namespace {

bool isThere(const FilePlace& place) {
    bool found = false;
    attempt([&] { found = fileExists(place); });
    return found;
}

Text reasonAgainstResults() {
    if (screen.mode == CardMode::none) return "No card is open to record results for.";
    const FilePlace results = cardFile(Folder::results, "pmr");
    if (isThere(results)) return {};
    return "There is no results text of this card yet: open it with Navigation > Results (F11), paste the "
           "page "
           "into it and save it.";
}

} // namespace

Text reasonAgainst(CommandId id) {
    const bool noCard = screen.mode == CardMode::none;
    switch (id) {
    case CommandId::Start:
        if (noCard && screen.startOffer == StartOffer::viewRaces)
            return "The card is closed: recall a saved card, or start Quillon again for another day's "
                   "tables.";
        return {};
    case CommandId::NewRC:
        if (isThere({Folder::working, "FileManager.exe"})) return {};
        return "The program that fetches a new race card, FileManager.exe, is not in Quillon's folder.";
    case CommandId::SelectionResults:
        if (noCard) return "No card is open: start or recall one to see what its selections earned.";
        return {};
    case CommandId::Save:
        if (noCard) return "No card is open that could be saved.";
        return {};
    case CommandId::NotePad:
        if (noCard) return "No card is open: its results text has no name yet.";
        return {};
    case CommandId::Command7:
        if (!screen.pastPerformanceOpen)
            return "Open the past lines of an entry first, by its program number: the line is taken for it.";
        return {};
    case CommandId::AutoRecord:
    case CommandId::EBET: return reasonAgainstResults();
    default: return {};
    }
}

} // namespace quillon
