#include "results/card_notes.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "results/on_show.h"
#include "screen/ports.h"
#include "screen/race_views.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr std::size_t printedWidth = 76; // as the program's own lines, so that its letters stay as large
constexpr TextView indent = "    ";

void printPlain(const Text& line) { ports.printLine(line, PrintStyle::plain); }

// Broken at blanks where it is long.
void printNote(const NoteLine& note) {
    const Text whole = note.name + ", " + note.date + " " + note.card + ": " + note.text;
    TextView rest = whole;
    Text before;
    while (rest.size() > printedWidth) {
        const auto gap = rest.rfind(blank, printedWidth);
        const std::size_t length = gap == TextView::npos || gap == 0 ? printedWidth : gap;
        printPlain(before + Text{rest.substr(0, length)});
        rest = trimmedLeft(rest.substr(length));
        before = indent;
    }
    if (!rest.empty()) printPlain(before + Text{rest});
}

std::vector<NoteLine> notesIn(int race) {
    std::vector<NoteLine> found = notes.onRace(race);
    for (int row = Grid::firstRow; row <= ratedEntries; ++row)
        for (NoteLine& note : notesOnEntry(race, row))
            if (std::find(found.begin(), found.end(), note) == found.end()) found.push_back(std::move(note));
    return found;
}

} // namespace

EntryNames entryNames(int race, int row) {
    const Text horse = horseIn(race, row);
    if (horse.empty()) return {};
    return {horse, Text{trimmed(raceViewOf(race).text(row, RaceColumn::driver))},
            Text{trimmed(card.entry[{race, row}].trainerName)}};
}

std::vector<NoteLine> notesOnEntry(int race, int row) {
    std::vector<NoteLine> found;
    const EntryNames names = entryNames(race, row);
    for (const Text& name : {names.horse, names.driver, names.trainer})
        for (NoteLine& note : notes.on(name)) found.push_back(std::move(note));
    return found;
}

void PrintCardNotes() {
    notes.takeUp();
    bool any = false;
    for (int race = 1; race <= std::min<int>(card.raceCount, ratedRaces); ++race) {
        const std::vector<NoteLine> found = notesIn(race);
        if (found.empty()) continue;
        if (!any) ports.printPage();
        if (!any) ports.printLine("Notes", PrintStyle::emphasised);
        any = true;
        ports.printLine("RACE " + std::to_string(race), PrintStyle::emphasised);
        for (const NoteLine& note : found) printNote(note);
    }
}

} // namespace quillon
