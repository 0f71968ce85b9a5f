#include "analysis/archive_records.h"

#include "analysis/summary.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/files.h"
#include "core/formats.h"
#include "reports/report_writer.h"
#include "screen/screen.h"

#include <array>

namespace quillon {
namespace {

constexpr int keyLength = 14;
constexpr int trackLength = 5;
constexpr int datePlace = 7;
constexpr int dateLength = 8;

constexpr int winPayCell = 1;
constexpr double winBet = 6; ///< a bet of 12 in units of the track's 2

// clang-format off
/// What stands behind a card's key and number of races: cells of the summary's totals row.
struct ArchiveField { int column; int width; };
constexpr std::array archiveFields{
    ArchiveField{ 1,  5}, ArchiveField{ 2,  5}, ArchiveField{ 3,  5}, ArchiveField{ 4,  5}, // wins
    ArchiveField{11,  9}, ArchiveField{12,  9}, ArchiveField{13,  9}, // Win, Place, Show
    ArchiveField{15,  9}, ArchiveField{16,  9}, ArchiveField{17,  9}, // E1/2, E1-2, E1/2-3
    ArchiveField{18,  9}, ArchiveField{19,  9},                       // E1-2-3, E1-2-3-4
    ArchiveField{22,  9}, ArchiveField{23,  9}, ArchiveField{24,  9}, // T1/2-3, T1/2-3-4, T1-2-3
    ArchiveField{26, 10}, ArchiveField{28, 10}, ArchiveField{27, 10}, // S1/2-3-4, S1-2-3-4, S2-1/3-4
};

//                                  race    margin    odds   line     bet      return of a winner
constexpr const char* starLine   = "               @@@     @@@@@@    @@@@@  {}      12.00";
constexpr const char* winnerPart = "    @@@@@@@@1";
// clang-format on

FilePlace archiveFile() { return {Folder::working, "HRA.ini"}; }
FilePlace starsFile() { return {Folder::working, "Stars5.ini"}; }

Text archiveLine() {
    Text line = archiveKey(card.cardFileName);
    line += aligned("@@@", std::to_string(card.raceCount));
    for (const ArchiveField& field : archiveFields)
        line += rightAligned(screen.summary.read(totalsRow, field.column).text, field.width);
    line += aligned("@@@", std::to_string(card.superfectaRaces));
    return line += crLf;
}

// How far S1 stands before S2, cut to the characters that a margin has. Level horses are set apart by a
// trace, which the one decimal of the record then leaves out.
Text margin(int race) {
    constexpr double level = 0.01;
    constexpr double twoDigits = 10;
    const double gap = lenientNumber(card.selection(race, 2).selectionRating) -
                       lenientNumber(card.selection(race, 1).selectionRating);
    const Text shown = numberText(gap == 0 ? level : gap);
    return formatted(" ##.# ", leftOf(shown, gap < twoDigits ? 3 : 4));
}

// The morning line as a number: 5/2 is 2.5. Of the divisor only the last digit is read.
Text decimalOdds(TextView morningLine) {
    constexpr int shownCharacters = 5;
    const TextView dividend = leftOf(morningLine, placeOf("/", morningLine) - 1);
    const double odds = quotient(lenientNumber(dividend), lenientNumber(rightOf(morningLine, 1)));
    return formatted("##.00", leftOf(numberText(odds), shownCharacters));
}

bool wonByS1(int race) {
    return lenientNumber(screen.summary.read(race, firstFinisherColumn).text) ==
           lenientNumber(screen.summary.read(race, firstSelectionColumn).text);
}

Text winReturn(int race) {
    return formatted(" ###.00  ", lenientNumber(card.payoffRecord(race, winPayCell)) * winBet);
}

void addStarRecord(ReportWriter& stars, int race) {
    const Text& morningLine = card.selection(race, 1).selectionOdds;
    const Text odds = decimalOdds(morningLine);
    const Text returned = wonByS1(race) ? winReturn(race) : Text{};
    stars.part(starLine, formatted("## ", race), margin(race), odds, morningLine);
    if (!returned.empty()) stars.part(winnerPart, returned);
    stars.endLine();
}

void addStarRecords(ReportWriter& stars) {
    if (card.raceCount < 1) return;
    stars.line("{}", leftOf(card.cardFileName, placeOf(".", card.cardFileName) - 1));
    for (int race = 1; race <= card.raceCount; ++race) addStarRecord(stars, race);
}

} // namespace

Text archiveKey(TextView cardFileName) {
    constexpr int extensionLength = 4;
    const TextView name = leftOf(cardFileName, static_cast<int>(cardFileName.size()) - extensionLength);
    return rightAligned(leftOf(name, keyLength), keyLength);
}

// Track and date tell a card, so that a line that was edited by hand still does. The key itself counts too:
// it holds neither at its place for a card whose name ends in ".pmd2".
bool isArchived(TextView cardFileName) {
    const Text key = archiveKey(cardFileName);
    const int gap = placeOf("_", cardFileName);
    const TextView track = leftOf(cardFileName, gap - 1);
    const TextView date = midOf(cardFileName, gap + 1, dateLength);
    const auto archive = fileContent(archiveFile());
    if (!archive) return false;
    LineReader lines{*archive};
    while (const auto line = lines.next()) {
        const bool sameCard =
            trimmed(leftOf(*line, trackLength)) == track && midOf(*line, datePlace, dateLength) == date;
        if (sameCard || line->starts_with(key)) return true;
    }
    return false;
}

void Record() {
    const Step step{"Record"};
    appendToFile(archiveFile(), archiveLine());
    screen.record.enabled = false;
    ReportWriter stars;
    attempt([&] { addStarRecords(stars); }); // a race that can't be told ends them; those before it are kept
    if (!stars.content().empty()) appendToFile(starsFile(), stars.content());
}

} // namespace quillon
