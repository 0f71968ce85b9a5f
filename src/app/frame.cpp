#include "app/frame.h"

#include "core/failure.h"
#include "screen/ports.h"
#include "screen/screen.h"

#include <array>
#include <filesystem>
#include <system_error>

namespace quillon {
namespace {

constexpr std::array sourceFiles{"DAMHR.DBF",  "RUNLINHR.DBF", "HORSEHR.DBF", "RACESHR.DBF",
                                 "SIREHR.DBF", "TRAINRHR.DBF", "PTTRHR.DBF",  "DRIVERHR.DBF"};

constexpr std::array newCardItems{
    CommandId::SelectionResults,      CommandId::Entries,
    CommandId::ViewSummary,           CommandId::ViewCondensedProgram,
    CommandId::PrintCondensedProgram,
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
    for (const CommandId item : newCardItems) screen.item(item).enabled = true;
    ports.run("FileManager.exe");
    ports.end();
}

void Exit_QL() { ports.end(); }

void CloseWindow() {
    if (ports.question("Are you sure you want to exit Quillon?", "")) ports.end();
}

} // namespace quillon
