#include "analysis/todays_results.h"

#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/numbers.h"
#include "reports/report_writer.h"
#include "screen/screen.h"
#include "screen/view_columns.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

constexpr int ruleWidth = 173;

// clang-format off
constexpr const char* groups  =
    "         Selections        Results";
constexpr const char* heading =
    "         S1  S2  S3  S4    R1  R2  R3  R4     Win   Place    Show"
    "     E1/2     E1-2   E1/2-3   E1-2-3 E1-2-3-4"
    "    T1/2-3  T1/2-3-4    T1-2-3   S1/2-3-4   S1,2/3-4   S1-2-3-4";
constexpr const char* totalsMargin = "       ";

/// What a field shows where its cell is not above 0.
enum class Otherwise { theCell, theFieldBefore, blanks };

/// Columns of the summary as fields of a line, one after the other; columns not named here have no field,
/// S1-2-3-4 among them, which has a heading all the same.
struct Fields { SummaryColumn::Number first; SummaryColumn::Number last; int width; Otherwise otherwise; };
constexpr std::array fields{
    Fields{SummaryColumn::label,              SummaryColumn::label,               7, Otherwise::theCell},
    // No wins repeat those of the selection before.
    Fields{SummaryColumn::s1,                 SummaryColumn::s4,                  4, Otherwise::theFieldBefore},
    Fields{SummaryColumn::afterSelections,    SummaryColumn::afterSelections,     2, Otherwise::blanks},
    Fields{SummaryColumn::r1,                 SummaryColumn::r4,                  4, Otherwise::blanks},
    Fields{SummaryColumn::win,                SummaryColumn::show,                8, Otherwise::blanks},
    Fields{SummaryColumn::exacta1With2,       SummaryColumn::exactaBox1234,       9, Otherwise::blanks},
    Fields{SummaryColumn::trifecta1With23,    SummaryColumn::trifectaBox123,     10, Otherwise::blanks},
    Fields{SummaryColumn::superfecta1With234, SummaryColumn::superfecta2With134, 11, Otherwise::blanks},
};
// clang-format on

Text rowText(int row) {
    Text line;
    Text field;
    for (const Fields& columns : fields)
        for (int column = columns.first; column <= columns.last; ++column) {
            const Text& cell = screen.summary.read(row, column).text;
            if (columns.otherwise == Otherwise::theCell || lenientNumber(cell) > 0)
                field = rightAligned(cell, columns.width);
            else if (columns.otherwise == Otherwise::blanks)
                field = blanks(columns.width);
            line += field;
        }
    return line;
}

void addRule(ReportWriter& report) { report.line("{}", Text(ruleWidth, '-')); }

void addRow(ReportWriter& report, TextView margin, int row) {
    report.part("{}{}", margin, rowText(row));
    report.returnLine();
}

void addHead(ReportWriter& report) {
    addCardHead(report, "QUILLON Selections");
    addRule(report);
    report.line(groups);
    report.line(heading);
    addRule(report);
    report.returnLine();
}

// Totals stand on their own lines, seven places to the right of their headings.
void addTotals(ReportWriter& report) {
    addRow(report, totalsMargin, SummaryRow::totals);
    addRule(report);
    report.returnLine();
    addRow(report, totalsMargin, SummaryRow::percentages);
    addRule(report);
}

// A card that starts above race 1 is reported without totals, but for one of as many races as the totals' row
// is numbered.
bool hasTotals() { return card.raceOffset == 0 || card.raceCount == SummaryRow::totals; }

} // namespace

void TodaysResults() {
    const Step step{"TodaysResults"};
    ReportWriter report;
    addHead(report);
    const int lastRace = std::min<int>(card.raceCount, screen.summary.rows() - 1);
    for (int race = 1; race <= lastRace; ++race) addRow(report, "", race);
    addRule(report);
    // Races 21 and 22 lie on the rows of the totals. Such a card too has its totals after its last race.
    if (hasTotals()) addTotals(report);
    writeFile({Folder::working, "Todays Results.txt"}, report.content());
}

} // namespace quillon
