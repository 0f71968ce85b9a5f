#include "app/frame.h"

#include "app/ports.h"
#include "app/screen.h"
#include "app/start_up.h"
#include "core/failure.h"

#include <array>
#include <filesystem>
#include <system_error>

namespace quillon {
namespace {

constexpr std::array sourceFiles{"DAMHR.DBF",  "RUNLINHR.DBF", "HORSEHR.DBF", "RACESHR.DBF",
                                 "SIREHR.DBF", "TRAINRHR.DBF", "PTTRHR.DBF",  "DRIVERHR.DBF"};

// What an analysis view may have hidden.
constexpr std::array mainScreenItems{
    MenuItem::NewRC,
    MenuItem::RecallRaceCard,
    MenuItem::ViewCondensedProgram,
    MenuItem::ViewSummary,
    MenuItem::PrintCondensedProgram,
    MenuItem::CloseRC,
    MenuItem::SelectionResults,
    MenuItem::AutoRecord,
    MenuItem::EBET,
    MenuItem::Reset,
};

constexpr std::array newCardItems{
    MenuItem::SelectionResults,      MenuItem::Entries, MenuItem::ViewSummary, MenuItem::ViewCondensedProgram,
    MenuItem::PrintCondensedProgram,
};

void HideSourceFile(const char* name) {
    const FilePlace place{Folder::sourceTables, name};
    std::error_code error;
    if (!std::filesystem::exists(pathOnDisk(place), error)) fail(Text{name} + " is not there to be hidden");
    ports.hide(place);
}

} // namespace

void NewRC() {
    const Step step{"NewRC"};
    for (const char* name : sourceFiles) attempt([&] { HideSourceFile(name); });
    screen.start.enabled = true;
    screen.header.track.visible = true;
    screen.header.date.visible = true;
    for (const MenuItem item : newCardItems) screen.item(item).enabled = true;
    ports.run("FileManager.exe");
    ports.end();
}

void Exit_QL() { ports.end(); }

void CloseWindow() {
    if (ports.question("Are you sure you want to exit Quillon?", "")) ports.end();
}

void MainScreen() {
    const Step step{"MainScreen"};
    for (const std::size_t workView : {std::size_t{pastPerformanceView}, std::size_t{0}}) {
        screen.dataView[workView].clear();
        screen.dataViewVisible[workView] = false;
    }
    screen.pastPerformanceOpen = false;
    screen.racePanelsVisible = true;
    screen.summaryVisible = screen.profileVisible = false;
    screen.tracksVisible = screen.picksVisible = screen.starsVisible = false;
    screen.caption = windowCaption;
    screen.width = 16250;
    screen.height = 11200;
    for (const MenuItem item : mainScreenItems) screen.item(item).visible = true;
    for (const MenuItem item : {MenuItem::PrintSummary, MenuItem::Print2, MenuItem::MainScreen})
        screen.item(item).visible = false;
}

} // namespace quillon
