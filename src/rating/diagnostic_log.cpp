#include "rating/diagnostic_log.h"

#include "card/race_card.h"
#include "core/files.h"
#include "core/formats.h"
#include "screen/screen.h"
#include "tables/load_state.h"

#include <utility>

namespace quillon {
namespace {

FilePlace logFile() { return {Folder::working, "TEST.txt"}; }

// clang-format off
constexpr TextView logHeading =
    " RACE  PP    LQC    POST   LH     PO     POW    POD    QU     CL     FAV    WPS";
// clang-format on

Text logIndex(Integer index) { return formatted("####", "@@@@", static_cast<double>(index)) + blank; }

} // namespace

bool diagnosticLogIsOn() { return screen.item(CommandId::Diagnostic).checked; }

void beginLogLine() {
    load.log += crCrLf;
    load.log += logIndex(cursor.race);
    load.log += logIndex(cursor.entry);
}

void addToLogLine(TextView figure) { load.log += figure; }

void endLogLine(TextView rating) {
    load.log += rating;
    load.log += crLf;
}

void clearDiagnosticLog() { load.log.clear(); }

void appendDiagnosticLog() { appendToFile(logFile(), std::exchange(load.log, {})); }

void Diagnostic() {
    const Step step{"Diagnostic"};
    MenuState& item = screen.item(CommandId::Diagnostic);
    const bool switchedOn = !item.checked;
    if (switchedOn) writeFile(logFile(), Text{logHeading}.append(crLf));
    item.checked = switchedOn;
}

} // namespace quillon
