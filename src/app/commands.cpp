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
#include "card/race_card.h"
#include "core/failure.h"
#include "day/card_load.h"
#include "day/driver_change.h"
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
#include "results/heats.h"
#include "results/race_display.h"

#include <algorithm>

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
bool isToteBox(const Arguments& arguments) { return numberWithin(arguments, 1, 11); }
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
    return screen.item(MenuItem::HeatWinner).checked && buttonOf(screen.heatButtons, arguments) != nullptr;
}

bool scratchButtonIsThere(const Arguments& arguments) {
    return numberWithin(arguments, 0, ratedEntries) && canScratch(arguments.numbers[0]);
}

// clang-format off
constexpr std::array commands{
    // The Start button and the card's files
    Command{"Start",           "Start",             Menu::none,       Takes::nothing, "", run<Start>, {}, startIsThere},
    Command{"NewRC",           "New Race Card",     Menu::file,       Takes::nothing, "", run<NewRC>, MenuItem::NewRC},
    Command{"RecallRaceCard",  "Recall Race Card",  Menu::file,       Takes::nothing, "", run<RecallRaceCard>, MenuItem::RecallRaceCard},
    Command{"ChooseFile",      "",                  Menu::none,       Takes::text, "TEXT", run<ChooseFile>, {}, listIsShown<&Screen::fileList>},
    Command{"Save",            "Save Race Card",    Menu::file,       Takes::nothing, "", run<Save>, MenuItem::Save},
    Command{"CloseRC",         "Close Race Card",   Menu::file,       Takes::nothing, "", run<CloseRC>, MenuItem::CloseRC},
    Command{"PrintSummary",    "Print",             Menu::file,       Takes::nothing, "", run<PrintSummary>, MenuItem::PrintSummary},
    Command{"PrintCondensedProgram", "Print Condensed Program", Menu::file, Takes::nothing, "", run<PrintCondensedProgram>, MenuItem::PrintCondensedProgram},
    Command{"Exit_QL",         "Exit",              Menu::file,       Takes::nothing, "", run<Exit_QL>, MenuItem::Exit_QL},
    Command{"CloseWindow",     "",                  Menu::none,       Takes::nothing, "", run<CloseWindow>, {}},

    // Walking the races
    Command{"MainScreen",      "Main Screen",       Menu::navigation, Takes::nothing, "", run<MainScreen>, MenuItem::MainScreen},
    Command{"RaceButton",      "",                  Menu::none,       Takes::number, "n", run<RaceButton>, {}, raceButtonShows},
    Command{"Next",            "Next Race",         Menu::none,       Takes::nothing, "", run<Next>, {}},
    Command{"Previous",        "Previous Race",     Menu::none,       Takes::nothing, "", run<Previous>, {}},
    Command{"RaceList",        "",                  Menu::none,       Takes::text, "TEXT", run<RaceList>, {}},
    Command{"EntryButton",     "",                  Menu::none,       Takes::number, "i", run<EntryButton>, {}, entryButtonIsThere},

    // The board and the race view
    Command{"Box",             "",                  Menu::none,       Takes::numberAndText, "n TEXT", run<TypeBox>, {}, isSelectionOrFinishBox},
    Command{"Tote",            "",                  Menu::none,       Takes::numberAndText, "n TEXT", run<TypeTote>, {}, isToteBox},
    Command{"Refunds",         "",                  Menu::none,       Takes::text, "TEXT", run<TypeRefunds>, {}},
    Command{"Cell",            "",                  Menu::none,       Takes::cell, "race row column TEXT", run<TypeCell>, {}},

    // Scratches, line choices, drivers
    Command{"Command4",        "Scr",               Menu::none,       Takes::number, "n", run<Command4>, {}, scratchButtonIsThere},
    Command{"Command3",        "",                  Menu::none,       Takes::number, "n", run<Command3>, {}, isLineButton},
    Command{"Command7",        "Race Editor",       Menu::none,       Takes::nothing, "", run<Command7>, {}},
    Command{"DriverColumn",    "",                  Menu::none,       Takes::number, "row", run<DriverColumn>, {}},
    Command{"DriverChoice",    "",                  Menu::none,       Takes::text, "TEXT", run<DriverChoice>, {}, listIsShown<&Screen::driverList>},

    // Heats and results
    Command{"HeatWinner",      "Heat Winner ",      Menu::tools,      Takes::nothing, "", run<HeatWinner>, MenuItem::HeatWinner},
    Command{"ViewHeat",        "View Heat",         Menu::tools,      Takes::nothing, "", run<ViewHeat>, MenuItem::ViewHeat},
    Command{"HeatChoice",      "",                  Menu::none,       Takes::number, "i", run<HeatChoice>, {}, heatChoiceShows},
    Command{"AutoRecord",      "Auto Record Payoffs", Menu::tools,    Takes::nothing, "", run<AutoRecord>, MenuItem::AutoRecord},
    Command{"EBET",            "TRC Auto Record",   Menu::tools,      Takes::nothing, "", run<EBET>, MenuItem::EBET},

    // Reports in the viewer
    Command{"Entries",         "View Entries List", Menu::navigation, Takes::nothing, "", run<Entries>, MenuItem::Entries},
    Command{"ViewSummary",     "View Selections",   Menu::navigation, Takes::nothing, "", run<ViewSummary>, MenuItem::ViewSummary},
    Command{"Pick3Selections", "View Pick 3-4-5-6  Selections", Menu::navigation, Takes::nothing, "", run<Pick3Selections>, MenuItem::Pick3Selections},
    Command{"ViewCondensedProgram", "View Condensed  Program", Menu::navigation, Takes::nothing, "", run<ViewCondensedProgram>, MenuItem::ViewCondensedProgram},
    Command{"DriverList",      "Driver Ratings",    Menu::navigation, Takes::nothing, "", run<DriverList>, MenuItem::DriverList},
    Command{"NotePad",         "Results",           Menu::navigation, Takes::nothing, "", run<NotePad>, MenuItem::NotePad},

    // What the selections earned
    Command{"SelectionResults", "Selections & Results Summary", Menu::analysis, Takes::nothing, "", run<SelectionResults>, MenuItem::SelectionResults},
    Command{"Record",          "Record",            Menu::none,       Takes::nothing, "", run<Record>, {}, recordIsThere},

    Command{"ALL",             "All Tracks",        Menu::profiles,   Takes::nothing, "", run<ALL>, MenuItem::ALL},
    Command{"Select",          "Select Track",      Menu::profiles,   Takes::nothing, "", run<Select>, MenuItem::Select},
    Command{"SelectTrack",     "",                  Menu::none,       Takes::text, "TEXT", run<SelectTrack>, {}, listIsShown<&Screen::trackList>},
    Command{"HALF",            "1/2",               Menu::profiles,   Takes::nothing, "", run<HALF>, MenuItem::HALF},
    Command{"FIVE",            "5/8",               Menu::profiles,   Takes::nothing, "", run<FIVE>, MenuItem::FIVE},
    Command{"Seven",           "7/8",               Menu::profiles,   Takes::nothing, "", run<Seven>, MenuItem::Seven},
    Command{"MILE",            "1.M",               Menu::profiles,   Takes::nothing, "", run<MILE>, MenuItem::MILE},
    Command{"QUARTER",         "1.Q",               Menu::profiles,   Takes::nothing, "", run<QUARTER>, MenuItem::QUARTER},
    Command{"Print2",          "Print ",            Menu::file,       Takes::nothing, "", run<Print2>, MenuItem::Print2},
    Command{"Star",            "Stars",             Menu::analysis,   Takes::nothing, "", run<Star>, MenuItem::Star},
    Command{"MarginChoice",    "",                  Menu::none,       Takes::text, "TEXT", run<MarginChoice>, {}, listIsShown<&Screen::marginList>},
    Command{"OddsChoice",      "",                  Menu::none,       Takes::text, "TEXT", run<OddsChoice>, {}, listIsShown<&Screen::oddsList>},
    Command{"MaxOddsChoice",   "",                  Menu::none,       Takes::text, "TEXT", run<MaxOddsChoice>, {}, listIsShown<&Screen::maxOddsList>},
    Command{"Track_Profile",   "Tracks Profile",    Menu::analysis,   Takes::nothing, "", run<Track_Profile>, MenuItem::Track_Profile},
    Command{"Pick3Results",    "Pick 3-4-5-6  Results", Menu::analysis, Takes::nothing, "", run<Pick3Results>, MenuItem::Pick3Results},

    // Settings, tools and help
    Command{"ArchivesEditor",  "Archives Editor",   Menu::editor,     Takes::nothing, "", run<ArchivesEditor>, MenuItem::ArchivesEditor},
    Command{"TrackEditor",     "Track Editor",      Menu::editor,     Takes::nothing, "", run<TrackEditor>, MenuItem::TrackEditor},
    Command{"EXE",             "TrackMaster EXE URL Edit", Menu::editor, Takes::nothing, "", run<EXE>, MenuItem::EXE},
    Command{"Diagnostic",      "Diagnostic",        Menu::tools,      Takes::nothing, "", run<Diagnostic>, MenuItem::Diagnostic},
    Command{"TestResults",     "Display Test Results", Menu::tools,   Takes::nothing, "", run<TestResults>, MenuItem::TestResults},
    Command{"Reset",           "TrackMaster",       Menu::tools,      Takes::nothing, "", run<Reset>, MenuItem::Reset},
    Command{"USTA",            "USTA",              Menu::tools,      Takes::nothing, "", run<USTA>, MenuItem::USTA},
    Command{"RTN",             "RTN",               Menu::tools,      Takes::nothing, "", run<RTN>, MenuItem::RTN},
    Command{"Weather",         "Race Track Weather Forecast", Menu::tools, Takes::nothing, "", run<Weather>, MenuItem::Weather},
    Command{"TRC",             "Download Results",  Menu::tools,      Takes::nothing, "", run<TRC>, MenuItem::TRC},
    Command{"QLR",             "Quillon Revisions", Menu::help,       Takes::nothing, "", run<QLR>, MenuItem::QLR},
    Command{"About",           "About",             Menu::help,       Takes::nothing, "", run<About>, MenuItem::About},
    Command{"Version",         "Version",           Menu::help,       Takes::nothing, "", run<Version>, MenuItem::Version},
};
// clang-format on

} // namespace

std::span<const Command> commandTable() { return commands; }

const Command* findCommand(TextView name) {
    const auto found =
        std::find_if(commands.begin(), commands.end(), [&](const Command& row) { return row.name == name; });
    return found == commands.end() ? nullptr : &*found;
}

bool isAvailable(const Command& command, const Arguments& arguments) {
    if (command.item) {
        const MenuState& state = screen.item(*command.item);
        if (!state.visible || !state.enabled) return false;
    }
    return command.available == nullptr || command.available(arguments);
}

void runCommand(const Command& command, const Arguments& arguments) {
    const Step step{command.name};
    attempt([&] { command.run(arguments); });
}

} // namespace quillon
