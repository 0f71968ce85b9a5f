#include "reports/condensed_program.h"

#include "card/card_files.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/formats.h"
#include "reports/ranked_row.h"
#include "reports/report_writer.h"
#include "screen/ports.h"

#include <algorithm>

namespace quillon {
namespace {

// clang-format off
constexpr const char* title       = "The Quillon Selections by Tarnbeck Software";
constexpr const char* raceLine    = "RACE {}  Post Time: {}   {}    CR: {}   {} Mi";
constexpr const char* purseLine   = "PURSE: {} {}";
constexpr const char* wagerLine   = "WAGERING:  {}";
constexpr const char* heading     =
    "Date    Track  CD   Purse        Class  CR    1/4    1/2    3/4  Final PP"
    "   1C      2C      3C    SC Fn  Horses Times   Driver       ";
constexpr const char* entryLine   = "@@@ {}   @@@@  {} Driver: {} {}";
constexpr const char* raceCells   = "{} {} {} @@@@@@@ @@@@@@@@@@@@ {} {} {} {} {} ";
constexpr const char* callCells   = "{} {}{}{}{}{}{}{}{}{}{}{}{}";
constexpr const char* finishCells = " {} {}  {} {} {}{}";
constexpr const char* choiceLine  = "Selections: @@-@@-@@-@@";
// clang-format on

constexpr int linesShown = 4;
constexpr int driverWidth = 14;
constexpr int nameWidth = 30;
constexpr int purseWidth = 7;
constexpr int ruleWidth = 129;

// Filled with blanks on the right; a longer text stays whole.
Text padded(TextView text, int width) {
    return filledTo(text, std::max(width, static_cast<int>(text.size())));
}

// How much of the conditions is shown: up to the first wide gap, else up to the first full stop.
int conditionsShown(TextView conditions) {
    constexpr int most = 105;
    constexpr TextView wideGap = "    ";
    int shown = placeOf(wideGap, conditions);
    if (shown == 0) shown = placeOf(".", conditions);
    return shown == 0 ? most : std::min(shown, most);
}

Text shortDate(TextView yyyymmdd) {
    Text date{midOf(yyyymmdd, 5, 2)};
    date += '-';
    date += rightOf(yyyymmdd, 2);
    date += '-';
    return date += midOf(yyyymmdd, 3, 2);
}

Text shownRating(TextView rating) {
    constexpr double unusable = 100;
    if (lenientNumber(rating) >= unusable) rating = "99.9";
    return Text{leftOf(formatted("##.0", "@@@@", rating), 4)};
}

void addHead(ReportWriter& program) {
    const RaceInfo& first = card.raceInfo[{1}];
    program.line("");
    program.line(title);
    program.line("");
    program.line("{}", first.trackCode);
    program.line("{}", first.trackInfo);
    program.line("{}", card.cardDate);
    program.line("");
}

void addRaceHead(ReportWriter& program, const RaceInfo& info) {
    program.line(raceLine, info.label, info.postTime, info.gait, info.todaysCr, info.distance);
    program.line(purseLine, info.purse, leftOf(info.classText, conditionsShown(info.classText)));
    program.line(wagerLine, info.wagering);
    program.line("");
    program.line(heading);
}

void addEntry(ReportWriter& program, int post, RaceEntry& entry) {
    if (entry.horseName.text() <= "A") return;
    entry.horseName = padded(entry.horseName, nameWidth);
    program.line("");
    program.line(entryLine, entry.programNumber, listNumber(post), entry.morningOdds, entry.horseName,
                 entry.driverName, entry.driverUdr);
    program.line("");
}

void addRunningLine(ReportWriter& program, const PastLine& l) {
    const Text rating = shownRating(l.rating);
    program.part(raceCells, shortDate(l.DATE), l.TRACK, l.COND, leftOf(l.PURSE, purseWidth), l.CLASS, l.CR,
                 l.LEAD_TM_1Q, l.LEAD_TM_2Q, l.LEAD_TM_3Q, l.LEAD_TM_FN);
    program.part(callCells, l.POST, l.CALL_1Q_BF, l.CALL_1Q_PO, l.CALL_1Q_PK, l.CALL_1Q_AF, l.CALL_2Q_BF,
                 l.CALL_2Q_PO, l.CALL_2Q_PK, l.CALL_2Q_AF, l.CALL_3Q_BF, l.CALL_3Q_PO, l.CALL_3Q_PK,
                 l.CALL_3Q_AF);
    program.line(finishCells, l.CALL_ST_PO, l.CALL_FN_PO, l.HRSE_TM_4Q, l.HRSE_TM_FN,
                 padded(l.driverName, driverWidth), rating);
}

void addEntryLines(ReportWriter& program, int race, int post) {
    for (int at = 1; at <= linesShown; ++at) {
        const PastLine& line = card.pastLine.read(race, post, at);
        const bool loaded = line.lineNumber > 0;
        if (!loaded) return;
        if (at == 1) addEntry(program, post, card.entry(race, post));
        if (!line.DATE.empty()) attempt([&] { addRunningLine(program, line); });
    }
}

void addRace(ReportWriter& program, int race) {
    addRaceHead(program, card.raceInfo(race));
    for (int post = 1; post <= ratedEntries; ++post) addEntryLines(program, race, post);
    program.line("");
    const auto pn = [&](int place) { return rankedRow(race, place).pn; };
    program.line(choiceLine, pn(1), pn(2), pn(3), pn(4));
    program.line("{}", Text(ruleWidth, '-'));
}

// The rule after a race ends its page. Track and first race stand out; headings, entries and selections do
// so after a dash.
void printProgramLine(int number, TextView line) {
    constexpr int trackLine = 4;
    constexpr int firstRaceLine = 8;
    if (line.starts_with('-') || line.starts_with('=')) {
        ports.printPage();
    } else if (number == trackLine || number == firstRaceLine) {
        ports.printLine(Text{line}, PrintStyle::emphasised);
    } else if (line.starts_with("Date") || line.starts_with("Sel") || contains(line, "Driver")) {
        ports.printLine(" - " + Text{line}, PrintStyle::emphasised);
    } else {
        ports.printLine(Text{line}, PrintStyle::plain);
    }
}

} // namespace

void Condensed_PPP() {
    const Step step{"Condensed_PPP"};
    ReportWriter program;
    addHead(program);
    for (int race = 1; race <= ratedRaces; ++race)
        if (!card.raceInfo(race).postTime.empty()) addRace(program, race);
    attempt([&] { writeFile(cardFile(Folder::programs, "ppp"), program.content()); });
}

void PrintCondensedProgram() { printCondensedProgram({}); }

void printCondensedProgram(const std::function<void()>& lastPages) {
    const Step step{"PrintCondensedProgram"};
    ports.message("Check Printer ON", "");
    if (card.cardFileName.empty()) return;
    const Text program = readFile(cardFile(Folder::programs, "ppp"));
    ports.printLine("", PrintStyle::plain);
    LineReader lines{program};
    int number = 0;
    while (const auto line = lines.next()) printProgramLine(++number, *line);
    if (lastPages) lastPages();
    ports.printEnd();
    ports.message("Turn printer 'ON' then click 'OK' ", "");
}

} // namespace quillon
