#include "rating/diagnostic_log.h"

#include "card/race_card.h"
#include "core/files.h"
#include "core/formats.h"
#include "screen/screen.h"

#include <utility>

namespace quillon {
namespace {

Text keptLog;

FilePlace logFile() { return {Folder::working, "TEST.txt"}; }

// clang-format off
constexpr TextView logHeading =
    " RACE  PP    LQC    POST   LH     PO     POW    POD    QU     CL     FAV    WPS";
// clang-format on

Text logIndex(Integer index) { return formatted("####", "@@@@", static_cast<double>(index)) + blank; }

} // namespace

bool diagnosticLogIsOn() { return screen.item(MenuItem::Diagnostic).checked; }

void beginLogLine() {
    keptLog += crCrLf;
    keptLog += logIndex(cursor.race);
    keptLog += logIndex(cursor.entry);
}

void addToLogLine(TextView figure) { keptLog += figure; }

void endLogLine(TextView rating) {
    keptLog += rating;
    keptLog += crLf;
}

void clearDiagnosticLog() { keptLog.clear(); }

void appendDiagnosticLog() { appendToFile(logFile(), std::exchange(keptLog, {})); }

void Diagnostic() {
    const Step step{"Diagnostic"};
    MenuState& item = screen.item(MenuItem::Diagnostic);
    const bool switchedOn = !item.checked;
    if (switchedOn) writeFile(logFile(), Text{logHeading}.append(crLf));
    item.checked = switchedOn;
}

} // namespace quillon
