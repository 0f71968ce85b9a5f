#include "reports/viewers.h"

#include "card/card_files.h"
#include "core/failure.h"
#include "screen/ports.h"

namespace quillon {
namespace {

void showCardFile(Folder folder, TextView ending) { showInViewer(cardFile(folder, ending)); }

void showWorkingFile(const char* name) { showInViewer({Folder::working, name}); }

} // namespace

void showInViewer(const FilePlace& file) {
    Text batch = "NOTEPAD " + shownPath(file);
    batch += crLf;
    attempt([&] { writeFile({Folder::working, "Archives.bat"}, batch); });
    ports.view(file);
}

// clang-format off
void ViewSummary()          { showCardFile(Folder::selections,  "pms"); }
void Pick3Selections()      { showCardFile(Folder::selections2, "pmr2"); }
void ViewCondensedProgram() { showCardFile(Folder::programs,    "ppp"); }
void DriverList()           { showCardFile(Folder::drivers,     "pmd2"); }
void NotePad()              { showCardFile(Folder::results,     "pmr"); }

void PrintSummary()         { showWorkingFile("Todays Results.txt"); }
void TestResults()          { showWorkingFile("TEST.txt"); }

void ArchivesEditor()       { showWorkingFile("HRA.ini"); }
void TrackEditor()          { showWorkingFile("TrackEditor.ini"); }
void EXE()                  { showWorkingFile("Webpage.ini"); }
// clang-format on

} // namespace quillon
