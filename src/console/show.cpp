#include "console/show.h"

#include "console/show_notes.h"
#include "console/show_store.h"
#include "console/show_why.h"
#include "console/show_worth.h"
#include "console/words.h"
#include "core/journal.h"
#include "day/changes.h"
#include "day/recovery.h"
#include "results/card_json.h"
#include "screen/analysis_tables.h"
#include "screen/screen.h"

#include <array>
#include <optional>
#include <utility>

namespace quillon {
namespace {

// Prints "name=TEXT" unless the text is empty.
void printField(Transcript& transcript, const Text& name, const Text& text) {
    if (!text.empty()) transcript.line(name + "=" + text);
}

// "box 3": one of several of a kind.
Text numbered(const char* kind, std::size_t number) { return kind + (" " + std::to_string(number)); }

Text colourText(const Colour& colour) {
    return std::to_string(colour.red) + "," + std::to_string(colour.green) + "," +
           std::to_string(colour.blue);
}

// --- Tables -----------------------------------------------------------------------------------------------

// The table that words name: `raceview 3` or `summary`.
struct NamedGrid {
    const Grid* grid = nullptr; ///< none where no view has the number
    TextView usage{};           ///< what a usage line asks for, where the words name nothing
};

template <std::size_t count>
NamedGrid viewOf(const std::array<Grid, count>& views, std::optional<TextView> words, TextView usage) {
    const auto number = wholeNumber(words.value_or(TextView{}));
    if (!number) return {.usage = usage};
    const bool exists = *number >= 0 && *number < static_cast<int>(count);
    return {.grid = exists ? &views[static_cast<std::size_t>(*number)] : nullptr};
}

NamedGrid gridNamed(TextView words) {
    std::optional<TextView> rest = words;
    const TextView name = takeWord(rest);
    if (name == "raceview") return viewOf(screen.raceView, rest, "raceview R");
    if (name == "dataview") return viewOf(screen.dataView, rest, "dataview N");
    for (const AnalysisTable& row : analysisTables)
        if (row.name == words) return {.grid = &(screen.*row.grid)};
    return {.usage = "PART"};
}

void printTable(const Grid& grid, Transcript& transcript) {
    for (int row = 0; row < grid.rows(); ++row) {
        Text cells;
        for (int column = 0; column < grid.columns(); ++column) {
            const Text text = grid.text(row, column);
            if (!text.empty()) cells += "\t" + std::to_string(column) + "=" + text;
        }
        if (!cells.empty()) transcript.line(std::to_string(row) + cells);
    }
}

void printColours(const Grid& grid, Transcript& transcript) {
    for (int row = 0; row < grid.rows(); ++row) {
        for (int column = 0; column < grid.columns(); ++column) {
            const Cell& cell = grid.read(row, column);
            if (!cell.background && !cell.bold) continue;
            transcript.line(std::to_string(row) + "\t" + std::to_string(column) + "\t" +
                            (cell.background ? colourText(*cell.background) : Text{}) +
                            (cell.bold ? "\tbold" : ""));
        }
    }
}

using PrintGrid = void (*)(const Grid&, Transcript&);

void showGrid(const Text& command, TextView words, PrintGrid print, Transcript& transcript) {
    const NamedGrid named = gridNamed(words);
    if (named.grid != nullptr) print(*named.grid, transcript);
    if (!named.usage.empty()) transcript.line("usage: " + command + " " + Text{named.usage});
}

// --- Parts with a form of their own -----------------------------------------------------------------------

void printLines(const ChoiceList& list, Transcript& transcript) {
    for (const Text& line : list.lines)
        if (!line.empty()) transcript.line(line);
}

void printWhileShown(const ChoiceList& list, Transcript& transcript) {
    if (list.visible) printLines(list, transcript);
}

void showTrackList(Transcript& transcript) { printWhileShown(screen.trackList, transcript); }
void showDriverList(Transcript& transcript) { printWhileShown(screen.driverList, transcript); }
void showFileList(Transcript& transcript) { printWhileShown(screen.fileList, transcript); }
void showRaceList(Transcript& transcript) {
    printLines(screen.raceList, transcript); // a part of the screen, never put away
}

void showStarsFields(Transcript& transcript) {
    for (std::size_t at = 1; at < screen.starsFields.size(); ++at)
        printField(transcript, "Text" + std::to_string(at), screen.starsFields[at]);
}

void showBoard(Transcript& transcript) {
    for (std::size_t at = 0; at < screen.boxes.size(); ++at) {
        const Box& box = screen.boxes[at];
        const bool tinted = box.colour != white;
        if (box.text.empty() && !tinted) continue;
        transcript.line(numbered("box", at) + "=" + box.text + (tinted ? "\t" + colourText(box.colour) : ""));
    }
    for (std::size_t at = 0; at < screen.tote.size(); ++at)
        printField(transcript, numbered("tote", at), screen.tote[at]);
    printField(transcript, "refunds", screen.refunds);
}

void showHeader(Transcript& transcript) {
    const RaceHeader& header = screen.header;
    const auto labelled = [](const Label& label) { return label.visible ? label.caption : Text{}; };
    printField(transcript, "race", header.race);
    printField(transcript, "track", labelled(header.track));
    printField(transcript, "date", labelled(header.date));
    printField(transcript, "purse", header.purse);
    printField(transcript, "class", header.classText);
    printField(transcript, "cr", header.cr);
    printField(transcript, "wagering", header.wagering);
    printField(transcript, "posttime", header.postTime);
    printField(transcript, "gait", header.gait);
    printField(transcript, "distance", header.distance);
    printField(transcript, "trackinfo", header.trackInfo);
    printField(transcript, "caption", screen.caption);
}

void showButtons(Transcript& transcript) {
    const auto captioned = [&](const char* kind, const auto& buttons, std::size_t first) {
        for (std::size_t at = first; at < buttons.size(); ++at)
            if (buttons[at].visible) printField(transcript, numbered(kind, at), buttons[at].caption);
    };
    if (screen.start.visible)
        transcript.line("start=" + screen.start.caption + (screen.start.enabled ? "" : "\tdisabled"));
    for (std::size_t at = 1; at < screen.raceButtons.size(); ++at) {
        const Button& race = screen.raceButtons[at];
        if (!race.visible) continue;
        transcript.line(numbered("race", at) + "=" + race.caption + (race.current ? "\tred" : ""));
    }
    captioned("entry", screen.entryButtons, 1);
    captioned("scratch", screen.scratchButtons, 0);
}

void showMenu(std::span<const Command> commands, Transcript& transcript) {
    for (const Command& command : commands) {
        if (!isMenuItem(command)) continue;
        const MenuState& state = screen.item(command.id);
        const char* const shown = !state.visible ? "hidden" : state.enabled ? "enabled" : "disabled";
        transcript.line(Text{command.name} + "\t" + shown + (state.checked ? "\tchecked" : ""));
    }
}

void showFaults(Transcript& transcript) {
    for (const Fault& fault : journal.kept()) transcript.line(fault.step + "\t" + fault.what);
}

// --- Changes ------------------------------------------------------------------------------------------------

// "5 3 7 6"
Text joined(const TopFour& numbers) {
    Text text;
    for (const Text& number : numbers) text += (text.empty() ? "" : " ") + number;
    return text;
}

void showChanges(Transcript& transcript) {
    int number = 0;
    for (const Change& change : changes.standing()) {
        const Text where = change.race == 0 ? "card" : "race " + std::to_string(change.race);
        transcript.line(std::to_string(++number) + "\t" + where + "\t" + change.what + "\t" +
                        joined(change.before) + " -> " + joined(change.after));
    }
}

void showUnsaved(Transcript& transcript) {
    const std::size_t unsaved = changes.unsaved();
    transcript.line(unsaved == 0 ? Text{"saved"} : "unsaved " + std::to_string(unsaved));
}

void showPending(Transcript& transcript) {
    for (int race = 1; race < boardRaces; ++race)
        if (std::as_const(screen).boardsToTakeIn[{race}] != 0) transcript.line(std::to_string(race));
}

// "20260314 20:14:05"
Text timeOf(const RecoveryHeading& heading) {
    const TextView time = heading.time;
    return Text{leftOf(time, 9)} + Text{midOf(time, 10, 2)} + ":" + Text{midOf(time, 12, 2)} + ":" +
           Text{midOf(time, 14, 2)};
}

void showRecovery(Transcript& transcript) {
    const LeftBehind* const left = leftBehind();
    if (!left) return;
    const RecoveryHeading& heading = left->heading;
    transcript.line(heading.cardName + "\t" + std::to_string(heading.changes) + "\t" + timeOf(heading));
}

void showJson(Transcript& transcript) {
    const std::string document = cardAsJson();
    if (!document.empty()) transcript.utf8Line(document);
}

struct Part {
    TextView name;
    void (*print)(Transcript&);
};

constexpr std::array parts{
    Part{"tracklist", showTrackList}, Part{"driverlist", showDriverList},
    Part{"filelist", showFileList},   Part{"racelist", showRaceList},
    Part{"board", showBoard},         Part{"starsfields", showStarsFields},
    Part{"header", showHeader},       Part{"buttons", showButtons},
    Part{"faults", showFaults},       Part{"store", showStore},
    Part{"changes", showChanges},     Part{"unsaved", showUnsaved},
    Part{"pending", showPending},     Part{"recovery", showRecovery},
    Part{"json", showJson},
};

} // namespace

void show(TextView part, std::span<const Command> commands, Transcript& transcript) {
    if (part == "menu") return showMenu(commands, transcript);
    for (const Part& row : parts)
        if (row.name == part) return row.print(transcript);

    if (showWhy(part, transcript)) return;

    std::optional<TextView> rest = part;
    const TextView name = takeWord(rest);
    if (name == "fair") return showFair(rest, transcript);
    if (name == "ticket") return showTicket(rest, transcript);
    if (name == "notes") return showNotes(rest.value_or(TextView{}), transcript);
    if (name == "colours")
        showGrid("show colours", rest.value_or(TextView{}), printColours, transcript);
    else
        showGrid("show", part, printTable, transcript);
}

} // namespace quillon
