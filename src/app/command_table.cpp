#include "app/commands.h"

#include "analysis/analysis_view.h"
#include "analysis/archive_records.h"
#include "analysis/betting_profiles.h"
#include "analysis/pick_results.h"
#include "analysis/profile_report.h"
#include "analysis/stars_profile.h"
#include "analysis/summary.h"
#include "analysis/tracks_profile.h"
#include "app/frame.h"
#include "app/help.h"
#include "app/links.h"
#include "app/table_export.h"
#include "card/race_card.h"
#include "cardfiles/notes.h"
#include "day/card_load.h"
#include "day/changes.h"
#include "day/driver_change.h"
#include "day/keeping.h"
#include "day/re_calculation.h"
#include "day/recall.h"
#include "day/save.h"
#include "day/scratch.h"
#include "rating/diagnostic_log.h"
#include "reports/condensed_program.h"
#include "reports/entries_list.h"
#include "reports/viewers.h"
#include "results/auto_record.h"
#include "results/board.h"
#include "results/card_notes.h"
#include "results/heats.h"
#include "results/race_display.h"
#include "screen/screen.h"

#include <array>

namespace quillon {
namespace {

// A step as a command runs it, with the arguments that it takes.
template <void (*step)()>
void run(const Arguments&) {
    step();
}
template <void (*step)(int)>
void run(const Arguments& arguments) {
    step(arguments.numbers[0]);
}
template <void (*step)(const Text&)>
void run(const Arguments& arguments) {
    step(arguments.text);
}
template <void (*step)(int, const Text&)>
void run(const Arguments& arguments) {
    step(arguments.numbers[0], arguments.text);
}
template <void (*step)(int, int, int, const Text&)>
void run(const Arguments& arguments) {
    const auto& [race, row, column] = arguments.numbers;
    step(race, row, column, arguments.text);
}

// When a button or a list is there.

bool numberWithin(const Arguments& arguments, int first, int last) {
    return arguments.numbers[0] >= first && arguments.numbers[0] <= last;
}

template <std::size_t count>
const Button* buttonOf(const std::array<Button, count>& buttons, const Arguments& arguments) {
    if (!numberWithin(arguments, 1, static_cast<int>(count) - 1)) return nullptr;
    return &buttons[static_cast<std::size_t>(arguments.numbers[0])];
}

bool startIsThere(const Arguments&) { return screen.start.enabled; }

template <ChoiceList Screen::*list>
bool listIsShown(const Arguments&) {
    return (screen.*list).visible;
}

bool recordIsThere(const Arguments&) { return screen.record.enabled; }
bool isSelectionOrFinishBox(const Arguments& arguments) { return numberWithin(arguments, 0, 7); }
bool isToteBox(const Arguments& arguments) { return numberWithin(arguments, ToteBox::first, ToteBox::last); }
bool isLineButton(const Arguments& arguments) {
    return screen.pastPerformanceOpen && numberWithin(arguments, 0, 13);
}

bool raceButtonShows(const Arguments& arguments) {
    const Button* button = buttonOf(screen.raceButtons, arguments);
    return button != nullptr && button->visible;
}

bool entryButtonIsThere(const Arguments& arguments) {
    const Button* button = buttonOf(screen.entryButtons, arguments);
    return button != nullptr && button->enabled;
}

bool heatChoiceShows(const Arguments& arguments) {
    return screen.item(CommandId::HeatWinner).checked && buttonOf(screen.heatButtons, arguments) != nullptr;
}

bool scratchButtonIsThere(const Arguments& arguments) {
    return numberWithin(arguments, 0, ratedEntries) && canScratch(arguments.numbers[0]);
}

void Undo() { changes.undo(); }
void Redo() { changes.redo(); }
void UndoTo(int number) { changes.undoTo(static_cast<std::size_t>(number)); }

bool canUndo(const Arguments&) { return changes.canUndo(); }
bool canRedo(const Arguments&) { return changes.canRedo(); }
bool canUndoTo(const Arguments& arguments) {
    return numberWithin(arguments, 0, static_cast<int>(changes.standing().size()) - 1);
}
bool isLeftBehind(const Arguments&) { return canRecover(); }
bool cardIsOpen(const Arguments&) { return changes.isOpen(); }

bool isNote(const Text& words) { return noteWords(words).has_value(); }
bool isExport(const Text& words) { return tableExport(words).has_value(); }

void PrintNotes() {
    bool& wanted = screen.item(CommandId::PrintNotes).checked;
    wanted = !wanted;
}

void PrintProgram() {
    if (screen.item(CommandId::PrintNotes).checked)
        printCondensedProgram(PrintCardNotes);
    else
        PrintCondensedProgram();
}

using enum Effect;
using Id = CommandId;

// A row: its name, what runs, what becomes of the card; the item in the window with the letter that is
// underlined, keys, caption and hint; what it takes; when it is there.
// clang-format off
constexpr std::array commands{
    // The Start button and the card's files
    Command{Id::Start, "Start", run<Start>, opensCard,
        {Menu::walk, 'S', "F5", "Start", "Load and rate the card of the vendor's tables"},
        Takes::nothing, "", startIsThere},
    Command{Id::NewRC, "NewRC", run<NewRC>, keepsCard,
        {Menu::file, 'N', "", "New Race Card", "Start the program that fetches a new card, and end"}},
    Command{Id::RecallRaceCard, "RecallRaceCard", run<RecallRaceCard>, keepsCard,
        {Menu::file, 'R', "Ctrl+O", "Recall Race Card", "Open a saved race card"}},
    Command{Id::ChooseFile, "ChooseFile", run<ChooseFile>, opensCard,
        {.caption = "Recall Race Card"},
        Takes::text, "TEXT", listIsShown<&Screen::fileList>},
    Command{Id::Save, "Save", run<Save>, savesCard,
        {Menu::file, 'S', "Ctrl+S", "Save Race Card", "Save the race card with its results"}},
    Command{Id::CloseRC, "CloseRC", run<CloseRC>, closesCard,
        {Menu::file, 'C', "Ctrl+W", "Close Race Card", "Save the race card and clear the window"}},
    Command{Id::PrintSummary, "PrintSummary", run<PrintSummary>, keepsCard,
        {Menu::file, 'P', "", "Print", "Read the day's results in the text viewer, to print them"}},
    Command{Id::PrintCondensedProgram, "PrintCondensedProgram", run<PrintProgram>, keepsCard,
        {Menu::file, 'o', "Ctrl+P", "Print Condensed Program", "Print the condensed program, a page a race"}},
    Command{Id::PrintNotes, "PrintNotes", run<PrintNotes>, keepsCard,
        {Menu::fileFoot, 't', "", "Print Notes with Program", "Print the notes on the card after the condensed program", true}},
    Command{Id::Export, "Export", run<Export>, keepsCard,
        {.caption = "Export", .hint = "Write the table to a file that a spreadsheet or another program reads"},
        Takes::text, "PART FILE", nullptr, isExport},
    Command{Id::Exit_QL, "Exit_QL", run<Exit_QL>, keepsCard,
        {Menu::file, 'x', "Ctrl+Q", "Exit", "End Quillon; asks only where something is not saved"}},
    Command{Id::CloseWindow, "CloseWindow", run<CloseWindow>, keepsCard},

    // Changes, and the way back
    Command{Id::Undo, "Undo", run<Undo>, keepsCard,
        {Menu::edit, 'U', "Ctrl+Z", "Undo", "Take back the last change of the card"},
        Takes::nothing, "", canUndo},
    Command{Id::Redo, "Redo", run<Redo>, keepsCard,
        {Menu::edit, 'R', "Ctrl+Shift+Z; Ctrl+Y", "Redo", "Do the change again that was taken back last"},
        Takes::nothing, "", canRedo},
    Command{Id::UndoTo, "UndoTo", run<UndoTo>, keepsCard,
        {.caption = "Back to Here", .hint = "Take back all changes after this one"},
        Takes::number, "n", canUndoTo},
    Command{Id::TakeAllIn, "TakeAllIn", run<TakeAllIn>, changesCard,
        {Menu::edit, 'T', "", "Take All Boards In", "Show every race once, so that every board is taken into the store"},
        Takes::nothing, "", cardIsOpen},
    Command{Id::Recover, "Recover", run<Recover>, restoresCard,
        {Menu::edit, 'e', "", "Restore Card Left Behind", "Restore the card that was open when Quillon ended without a close"},
        Takes::nothing, "", isLeftBehind},
    Command{Id::Forget, "Forget", run<Forget>, keepsCard,
        {Menu::edit, 'P', "", "Put Away Card Left Behind", "Put away for good what was kept of the card"},
        Takes::nothing, "", isLeftBehind},

    // What was noted from card to card
    Command{Id::Note, "Note", run<Note>, keepsCard,
        {.caption = "Add Note", .hint = "Keep a note that is found again on every later card"},
        Takes::text, "NAME = TEXT", cardIsOpen, isNote},

    // Walking the races
    Command{Id::MainScreen, "MainScreen", run<MainScreen>, keepsCard,
        {Menu::navigation, 'M', "Ctrl+M", "Main Screen", "Back to the races"}},
    Command{Id::RaceButton, "RaceButton", run<RaceButton>, dropsTyping,
        {.hint = "Show race %1. The arrows keep what was typed on the board; this button does not."},
        Takes::number, "n", raceButtonShows},
    Command{Id::Previous, "Previous", run<Previous>, takesBoard,
        {Menu::walk, 'P', "Alt+Left", "Previous Race", "Store the board and go to the race before"}},
    Command{Id::Next, "Next", run<Next>, takesBoard,
        {Menu::walk, 'N', "Alt+Right", "Next Race", "Store the board and go to the next race"}},
    Command{Id::RaceList, "RaceList", run<RaceList>, dropsTyping,
        {.caption = "Races of the card",
         .hint = "A double click, or Enter, shows a race. What was typed on the board is kept by the arrows alone."},
        Takes::text, "TEXT"},
    Command{Id::EntryButton, "EntryButton", run<EntryButton>, keepsCard,
        {.hint = "Show the past lines of %1"},
        Takes::number, "i", entryButtonIsThere},

    // The board and the race view
    Command{Id::Box, "Box", run<TypeBox>, changesCard, {}, Takes::numberAndText, "n TEXT", isSelectionOrFinishBox},
    Command{Id::Tote, "Tote", run<TypeTote>, changesCard, {}, Takes::numberAndText, "n TEXT", isToteBox},
    Command{Id::Refunds, "Refunds", run<TypeRefunds>, changesCard,
        {.caption = "Refunds",
         .hint = "Program numbers scratched. A scratch adds them; what is typed here is not kept."},
        Takes::text, "TEXT"},
    Command{Id::Cell, "Cell", run<TypeCell>, changesCard, {}, Takes::cell, "race row column TEXT"},

    // Scratches, line choices, drivers
    Command{Id::Command4, "Command4", run<Command4>, changesCard,
        {.caption = "Scr", .hint = "Scratch %1 and record the refund"},
        Takes::number, "n", scratchButtonIsThere},
    Command{Id::Command3, "Command3", run<Command3>, changesCard,
        {.hint = "Take line %1"},
        Takes::number, "n", isLineButton},
    Command{Id::Command7, "Command7", run<Command7>, changesCard,
        {Menu::walk, 'i', "Ctrl+L", "Race Editor", "Take another past line for the entry on show, by its number"}},
    Command{Id::DriverColumn, "DriverColumn", run<DriverColumn>, keepsCard, {}, Takes::number, "row"},
    Command{Id::DriverChoice, "DriverChoice", run<DriverChoice>, changesCard,
        {.caption = "Change Driver"},
        Takes::text, "TEXT", listIsShown<&Screen::driverList>},

    // Heats and results
    Command{Id::HeatWinner, "HeatWinner", run<HeatWinner>, keepsCard,
        {Menu::tools, 'H', "", "Heat Winner ", "Enter the finishers of a heat for the final", true}},
    Command{Id::ViewHeat, "ViewHeat", run<ViewHeat>, keepsCard,
        {Menu::tools, 'V', "", "View Heat", "Read the log of a heat"}},
    Command{Id::HeatChoice, "HeatChoice", run<HeatChoice>, changesCard,
        {.caption = "Heat", .hint = "Enter the finish of %1 in a heat"},
        Takes::number, "i", heatChoiceShows},
    Command{Id::AutoRecord, "AutoRecord", run<AutoRecord>, changesAndDrops,
        {Menu::tools, 'A', "Ctrl+R", "Auto Record Payoffs", "Record finishes and payoffs from the card's results text"}},
    Command{Id::EBET, "EBET", run<EBET>, changesAndDrops,
        {Menu::tools, 'T', "Ctrl+Shift+R", "TRC Auto Record", "Record finishes and payoffs from a results text in words"}},

    // Reports in the viewer
    Command{Id::Entries, "Entries", run<Entries>, keepsCard,
        {Menu::navigation, 'E', "F9", "View Entries List", "Write the list of the card's entries and read it"}},
    Command{Id::ViewSummary, "ViewSummary", run<ViewSummary>, keepsCard,
        {Menu::navigation, 'V', "F6", "View Selections", "Read the selection sheet"}},
    Command{Id::Pick3Selections, "Pick3Selections", run<Pick3Selections>, keepsCard,
        {Menu::navigation, 'k', "F8", "View Pick 3-4-5-6  Selections", "Read the tickets of the pick wagers"}},
    Command{Id::ViewCondensedProgram, "ViewCondensedProgram", run<ViewCondensedProgram>, keepsCard,
        {Menu::navigation, 'C', "F7", "View Condensed  Program", "Read the condensed program"}},
    Command{Id::DriverList, "DriverList", run<DriverList>, keepsCard,
        {Menu::navigation, 'D', "Shift+F9", "Driver Ratings", "Read the drivers' ratings"}},
    Command{Id::NotePad, "NotePad", run<NotePad>, keepsCard,
        {Menu::navigation, 'R', "F11", "Results", "Open the results text of the card, to paste results into it"}},

    // What the selections earned
    Command{Id::SelectionResults, "SelectionResults", run<SelectionResults>, keepsCard,
        {Menu::analysis, 'S', "F12", "Selections & Results Summary", "What the selections of this card earned"}},
    Command{Id::Record, "Record", run<Record>, recordsCard,
        {.caption = "Record", .hint = "Add this card to the archive, once"},
        Takes::nothing, "", recordIsThere},
    Command{Id::ALL, "ALL", run<ALL>, keepsCard,
        {Menu::profiles, 'A', "", "All Tracks", "All recorded cards"}},
    Command{Id::Select, "Select", run<Select>, keepsCard,
        {Menu::profiles, 'S', "", "Select Track", "The cards of a track"}},
    Command{Id::SelectTrack, "SelectTrack", run<SelectTrack>, keepsCard,
        {.caption = "Select Track"},
        Takes::text, "TEXT", listIsShown<&Screen::trackList>},
    Command{Id::HALF, "HALF", run<HALF>, keepsCard,
        {Menu::profiles, '2', "", "1/2", "The cards of half-mile tracks"}},
    Command{Id::FIVE, "FIVE", run<FIVE>, keepsCard,
        {Menu::profiles, '5', "", "5/8", "The cards of five-eighths-mile tracks"}},
    Command{Id::Seven, "Seven", run<Seven>, keepsCard,
        {Menu::profiles, '7', "", "7/8", "The cards of seven-eighths-mile tracks"}},
    Command{Id::MILE, "MILE", run<MILE>, keepsCard,
        {Menu::profiles, 'M', "", "1.M", "The cards of mile tracks"}},
    Command{Id::QUARTER, "QUARTER", run<QUARTER>, keepsCard,
        {Menu::profiles, 'Q', "", "1.Q", "The cards of mile-and-a-quarter tracks"}},
    Command{Id::Print2, "Print2", run<Print2>, keepsCard,
        {Menu::file, 'P', "", "Print ", "Read the profile in the text viewer, to print it"}},
    Command{Id::Star, "Star", run<Star>, keepsCard,
        {Menu::analysis, 't', "", "Stars", "How the first selections did as win bets, by margin and odds"}},
    Command{Id::MarginChoice, "MarginChoice", run<MarginChoice>, keepsCard,
        {.caption = "Margin", .hint = "By how much the first selection stood out"},
        Takes::text, "TEXT", listIsShown<&Screen::marginList>},
    Command{Id::OddsChoice, "OddsChoice", run<OddsChoice>, keepsCard,
        {.caption = "Odds", .hint = "Morning line of the first selection"},
        Takes::text, "TEXT", listIsShown<&Screen::oddsList>},
    Command{Id::MaxOddsChoice, "MaxOddsChoice", run<MaxOddsChoice>, keepsCard,
        {.caption = "Max Odds", .hint = "The last pick, whichever it is: it fills the table and the fields"},
        Takes::text, "TEXT", listIsShown<&Screen::maxOddsList>},
    Command{Id::Track_Profile, "Track_Profile", run<Track_Profile>, keepsCard,
        {Menu::analysis, 'r', "", "Tracks Profile", "Wins of the first selections by track and by track size"}},
    Command{Id::Pick3Results, "Pick3Results", run<Pick3Results>, keepsCard,
        {Menu::analysis, 'P', "", "Pick 3-4-5-6  Results", "The picks beside the winners and the payoffs of the pick wagers"}},

    // Settings, tools and help
    Command{Id::ArchivesEditor, "ArchivesEditor", run<ArchivesEditor>, keepsCard,
        {Menu::editor, 'A', "", "Archives Editor", "Edit the archive of recorded cards"}},
    Command{Id::TrackEditor, "TrackEditor", run<TrackEditor>, keepsCard,
        {Menu::editor, 'T', "", "Track Editor", "Edit the table of tracks"}},
    Command{Id::EXE, "EXE", run<EXE>, keepsCard,
        {Menu::editor, 'U', "", "TrackMaster EXE URL Edit", "Edit the address of the data vendor's page"}},
    Command{Id::Diagnostic, "Diagnostic", run<Diagnostic>, keepsCard,
        {Menu::tools, 'D', "", "Diagnostic", "Write a log of every line's rating with the next load", true}},
    Command{Id::TestResults, "TestResults", run<TestResults>, keepsCard,
        {Menu::tools, 'i', "", "Display Test Results", "Read the log of the lines' ratings"}},
    Command{Id::Reset, "Reset", run<Reset>, keepsCard,
        {Menu::tools, 'M', "", "TrackMaster", "The data vendor's page in the browser"}},
    Command{Id::USTA, "USTA", run<USTA>, keepsCard,
        {Menu::tools, 'U', "", "USTA", "The racing site in the browser"}},
    Command{Id::RTN, "RTN", run<RTN>, keepsCard,
        {Menu::tools, 'R', "", "RTN", "The video site in the browser"}},
    Command{Id::Weather, "Weather", run<Weather>, keepsCard,
        {Menu::tools, 'W', "", "Race Track Weather Forecast", "The weather at the tracks in the browser"}},
    Command{Id::TRC, "TRC", run<TRC>, keepsCard,
        {Menu::tools, 'l', "", "Download Results", "The page of track results in the browser"}},
    Command{Id::QLR, "QLR", run<QLR>, keepsCard,
        {Menu::help, 'R', "", "Quillon Revisions", "What is new, in the browser"}},
    Command{Id::About, "About", run<About>, keepsCard,
        {Menu::help, 'A', "", "About", "Whose program this is"}},
    Command{Id::Version, "Version", run<Version>, keepsCard,
        {Menu::help, 'V', "", "Version", "Which version this is"}},
};
// clang-format on

consteval bool standInTheOrderOfTheirIds() {
    for (std::size_t at = 0; at < commands.size(); ++at)
        if (static_cast<std::size_t>(commands[at].id) != at) return false;
    return true;
}
static_assert(commands.size() == commandCount && standInTheOrderOfTheirIds());

} // namespace

std::span<const Command> commandTable() { return commands; }

} // namespace quillon
