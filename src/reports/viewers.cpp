#include "reports/viewers.h"

#include "card/card_files.h"
#include "core/failure.h"
#include "screen/ports.h"

namespace quillon {

void showInViewer(const FilePlace& file) {
    Text batch = "NOTEPAD " + shownPath(file);
    batch += crLf;
    attempt([&] { writeFile({Folder::working, "Archives.bat"}, batch); });
    ports.view(file);
}

void ViewSummary() {
    const Step step{"ViewSummary"};
    showInViewer(cardFile(Folder::selections, "pms"));
}

void Pick3Selections() {
    const Step step{"Pick3Selections"};
    showInViewer(cardFile(Folder::selections2, "pmr2"));
}

void ViewCondensedProgram() {
    const Step step{"ViewCondensedProgram"};
    showInViewer(cardFile(Folder::programs, "ppp"));
}

void DriverList() {
    const Step step{"DriverList"};
    showInViewer(cardFile(Folder::drivers, "pmd2"));
}

void NotePad() {
    const Step step{"NotePad"};
    showInViewer(cardFile(Folder::results, "pmr"));
}

void PrintSummary() {
    const Step step{"PrintSummary"};
    showInViewer({Folder::working, "Todays Results.txt"});
}

void TestResults() {
    const Step step{"TestResults"};
    showInViewer({Folder::working, "TEST.txt"});
}

} // namespace quillon
