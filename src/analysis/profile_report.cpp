#include "analysis/profile_report.h"

#include "analysis/profile_cards.h"
#include "core/failure.h"
#include "reports/report_writer.h"
#include "reports/viewers.h"
#include "screen/screen.h"

namespace quillon {
namespace {

// clang-format off
constexpr const char* heading =
    "               Races    S1    S2    S3    S4       Win     Place      Show      E1/2      E1-2    E1/2-3"
    "    E1-2-3  E1-2-3-4    T1/2-3  T1/2-3-4    T1-2-3  S1/2-3-4  S2-1/3-4  S1-2-3-4";
constexpr const char* winPercentages = "       Win Pct       ";
constexpr const char* shift          = "                              "; // in place of the six of column 1
constexpr const char* labelField     = "@@@@@@@@@@@@@@";
constexpr const char* countField     = "@@@@@@";
constexpr const char* betField       = "@@@@@@@@@@";
// clang-format on

void addRow(ReportWriter& report, int row) {
    const bool shifted = row >= ProfileRow::adjustedWin && row < ProfileRow::winningCards;
    report.part(labelField, screen.profile.text(row, ProfileColumn::card));
    if (shifted)
        report.part(shift);
    else
        report.part(countField, screen.profile.text(row, ProfileColumn::races));
    for (int column = ProfileColumn::s1Wins; column <= ProfileColumn::s4Wins; ++column)
        report.part(countField, screen.profile.text(row, column));
    for (int column = ProfileColumn::win; column <= ProfileColumn::superfectaBox1234; ++column)
        report.part(betField, screen.profile.text(row, column));
    report.returnLine();
}

Text rowText(int row) {
    ReportWriter report;
    if (row == ProfileRow::percentages) {
        report.line("");
        report.part(winPercentages);
    }
    if (row == ProfileRow::firstCard) report.line("");
    addRow(report, row);
    return report.content();
}

FilePlace reportPlace() { return {Folder::working, "Profile Results.txt"}; }

/// False when the user cancels.
bool writeReport() {
    const int rows = screen.profile.rows();
    PreparedFile file{reportPlace()};
    LongWork work{static_cast<std::uint64_t>(rows)};
    file.write(heading);
    file.write(crLf);
    for (int row = 1; row < rows; ++row) {
        if (!work.goesOn(1)) return false;
        file.write(rowText(row));
    }
    file.putInPlace();
    return true;
}

} // namespace

void Print2() {
    const Step step{"Print2"};
    bool whole = true;
    attempt([&] { whole = writeReport(); });
    if (whole) showInViewer(reportPlace());
}

} // namespace quillon
