#include "analysis/archive_records.h"

#include "analysis/archive_scan.h"
#include "card/card_files.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/formats.h"
#include "reports/bet_mark.h"
#include "reports/report_writer.h"
#include "screen/screen.h"
#include "screen/view_columns.h"

#include <array>

namespace quillon {
namespace {

constexpr double winBet = 6; ///< a bet of 12 in units of the track's 2

// clang-format off
/// The totals of the summary in the order of the archive's wins and sums.
constexpr std::array winTotals{
    SummaryColumn::s1, SummaryColumn::s2, SummaryColumn::s3, SummaryColumn::s4,
};
constexpr std::array sumTotals{
    SummaryColumn::win,                SummaryColumn::place,             SummaryColumn::show,
    SummaryColumn::exacta1With2,       SummaryColumn::exactaBox12,       SummaryColumn::exacta1With23,
    SummaryColumn::exactaBox123,       SummaryColumn::exactaBox1234,
    SummaryColumn::trifecta1With23,    SummaryColumn::trifecta1With234,  SummaryColumn::trifectaBox123,
    SummaryColumn::superfecta1With234, SummaryColumn::superfectaBox1234, SummaryColumn::superfecta2With134,
};
static_assert(winTotals.size() == archivePlaces::wins.size());
static_assert(sumTotals.size() == archivePlaces::sums.size());

//                                  race    margin    odds   line     bet      return of a winner
constexpr const char* starLine   = "               @@@     @@@@@@    @@@@@  {}      12.00";
constexpr const char* winnerPart = "    @@@@@@@@1";
// clang-format on

Text totalField(SummaryColumn::Number column, Places places) {
    return rightAligned(screen.summary.read(SummaryRow::totals, column).text, places.width);
}

Text archiveLine() {
    Text line = archiveKey(card.cardFileName);
    line += aligned("@@@", std::to_string(card.raceCount));
    for (std::size_t at = 0; at < winTotals.size(); ++at)
        line += totalField(winTotals[at], archivePlaces::wins[at]);
    for (std::size_t at = 0; at < sumTotals.size(); ++at)
        line += totalField(sumTotals[at], archivePlaces::sums[at]);
    line += aligned("@@@", std::to_string(card.superfectaRaces));
    return line += crLf;
}

// How far S1 stands before S2, cut to the characters that a margin has. Level horses are set apart by a
// trace, which the one decimal of the record then leaves out.
Text recordedMargin(double gap) {
    constexpr double level = 0.01;
    constexpr double twoDigits = 10;
    const Text shown = numberText(gap == 0 ? level : gap);
    return formatted(" ##.# ", leftOf(shown, gap < twoDigits ? 3 : 4));
}

Text recordedOdds(double odds) {
    constexpr int shownCharacters = 5;
    return formatted("##.00", leftOf(numberText(odds), shownCharacters));
}

bool wonByS1(int race) {
    return lenientNumber(screen.summary.read(race, SummaryColumn::r1).text) ==
           lenientNumber(screen.summary.read(race, SummaryColumn::s1).text);
}

Text winReturn(int race) {
    return formatted(" ###.00  ", lenientNumber(card.payoffRecord(race, PayoffCell::win)) * winBet);
}

void addStarRecord(ReportWriter& stars, int race) {
    const Text& morningLine = card.selection(race, 1).selectionOdds;
    const Text odds = recordedOdds(oddsOf(morningLine));
    const Text returned = wonByS1(race) ? winReturn(race) : Text{};
    stars.part(starLine, formatted("## ", race), recordedMargin(gapAfterS1(race)), odds, morningLine);
    if (!returned.empty()) stars.part(winnerPart, returned);
    stars.endLine();
}

void addStarRecords(ReportWriter& stars) {
    if (card.raceCount < 1) return;
    stars.line("{}", cardNameOf(card.cardFileName));
    for (int race = 1; race <= card.raceCount; ++race) addStarRecord(stars, race);
}

} // namespace

Text archiveKey(TextView cardFileName) {
    constexpr int extensionLength = 4;
    const TextView name = leftOf(cardFileName, static_cast<int>(cardFileName.size()) - extensionLength);
    return rightAligned(leftOf(name, archivePlaces::key.width), archivePlaces::key.width);
}

// Track and date tell a card, so that a line that was edited by hand still does. The key itself counts too:
// it holds neither at its place for a card whose name ends in ".pmd2".
bool isArchived(TextView cardFileName) {
    const Text key = archiveKey(cardFileName);
    const TextView track = cardTrackOf(cardFileName);
    const TextView date = cardDateOf(cardFileName);
    const auto archive = fileContent(archivePlace());
    if (!archive) return false;
    LineReader lines{*archive};
    while (const auto line = lines.next()) {
        const bool sameCard = trackIn(*line) == track && cellIn(*line, archivePlaces::date) == date;
        if (sameCard || line->starts_with(key)) return true;
    }
    return false;
}

void Record() {
    const Step step{"Record"};
    appendToFile(archivePlace(), archiveLine());
    screen.record.enabled = false;
    ReportWriter stars;
    attempt([&] { addStarRecords(stars); }); // a race that can't be told ends them; those before it are kept
    if (!stars.content().empty()) appendToFile(starsPlace(), stars.content());
}

} // namespace quillon
