#include "reports/selection_sheet.h"

#include "card/card_files.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "reports/bet_mark.h"
#include "reports/pick_sheet.h"
#include "reports/ranked_row.h"
#include "reports/report_writer.h"
#include "screen/screen.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

// clang-format off
constexpr const char* title        = "QUILLON Selections - Professional Version";
constexpr const char* raceLine     = "RACE: {}  POST TIME: {} {} {}   {} Mi";
constexpr const char* purseLine    = "${}  {}";
constexpr const char* sheetHeading =
    " PN   PP       ML  ENTRY                          DRIVER   UDR     PR      Scr Adj*";
constexpr const char* starsHeading =
    " PN   PP       ML  ENTRY                          DRIVER   UDR     PR ";
constexpr const char* entryLine    = "@@@@  @@@  @@@@@@@  {}  @@@@@@@@@@@@@@@  @@@@@";
constexpr const char* fifthLine    = "@@@@  {}  @@@@@@@  {}  @@@@@@@@@@@@@@@  @@@@@";
constexpr const char* firstPick    = "SELECTIONS: @@@@";
constexpr const char* furtherPick  = "  -{}";
constexpr const char* scratchNote  =
    "*Scr_Adj:  If an entry with a Post Position that is INSIDE the Selection, "
    "DEDUCT the Scr_Adj from the PR.";
// clang-format on

constexpr double starMargin = 5;
constexpr Integer lowestStarOdds = 3;
constexpr Integer highestStarOdds = 5;

/// The gap from S1 to S2 from which S1 stands alone, and those after S2 and S3 that end the picks there.
constexpr double singleGap = 5;
constexpr double secondGap = 0.75;
constexpr double thirdGap = 0.5;

/// What the ratings of a race say: the margin of S1 as its sheet takes it, and the gap after each place.
struct Gaps {
    Text margin = "0";
    std::array<Integer, 4> behind{}; ///< whole gaps after S1 to S3, from 1
};

Gaps gapsOf(int race) {
    std::array<double, 5> rating{};
    for (int place = 1; place <= 4; ++place)
        rating[static_cast<std::size_t>(place)] = lenientNumber(rankedRow(race, place).pr);
    Gaps gaps;
    attempt([&] { gaps.margin = marginOf(race); });
    for (std::size_t place = 1; place <= 3; ++place)
        attempt([&] { gaps.behind[place] = toInteger(rating[place + 1] - rating[place]); });
    return gaps;
}

// The percentage of past wins never came into use; the stars profile counts them instead.
void WinPct() {}

void addRaceLine(ReportWriter& report, const RaceInfo& info) {
    report.line(raceLine, info.label, info.postTime, info.gait, info.todaysCr, info.distance);
}

void addEntry(ReportWriter& report, const RankedRow& row) {
    report.line(entryLine, row.pn, row.pp, row.ml, row.name, row.driverText, row.pr);
}

void addStar(ReportWriter& stars, int race) {
    addRaceLine(stars, card.raceInfo(race));
    stars.line(starsHeading);
    stars.line("{}", card.starPercentage);
    addEntry(stars, rankedRow(race, 1));
    stars.line("");
}

void addRanking(ReportWriter& sheet, int race) {
    for (int place = 1; place < fifthPlace; ++place) addEntry(sheet, rankedRow(race, place));
    const RankedRow fifth = rankedRow(race, fifthPlace);
    sheet.line(fifthLine, fifth.pn, fifth.pp, fifth.ml, fifth.name, fifth.driverText, fifth.pr);
    sheet.line("");
    sheet.line("");
}

/// How many of the four are picks.
int pickCount(const Gaps& gaps) {
    if (gaps.behind[1] >= singleGap) return 1;
    if (gaps.behind[2] > secondGap) return 2;
    if (gaps.behind[3] > thirdGap) return 3;
    return 4;
}

// One pick or four end their line themselves, so that a line more is left empty after them.
void addPicks(ReportWriter& sheet, int race, int picks) {
    sheet.part(firstPick, rankedRow(race, 1).pn);
    for (int pick = 2; pick <= picks; ++pick) sheet.part(furtherPick, rankedRow(race, pick).pn);
    if (picks == 1 || picks == 4) sheet.endLine();
    sheet.endLine();
    sheet.endLine();
}

// Picks that this ranking doesn't have keep those of an earlier sheet.
void keepPicks(int race, int picks) {
    for (int pick = 1; pick <= picks; ++pick) card.keyPicks(race, pick) = Text{rankedRow(race, pick).pn};
}

void addRace(ReportWriter& sheet, ReportWriter& stars, int race, Integer& odds) {
    const RaceInfo& info = card.raceInfo(race);
    const Gaps gaps = gapsOf(race);
    const double margin = lenientNumber(gaps.margin);
    addRaceLine(sheet, info);
    sheet.line(purseLine, info.purse, info.classText);
    sheet.line("{}", info.wagering);
    sheet.line(sheetHeading);
    if (contains(rankedRow(race, 1).ml, "/"))
        attempt([&] { odds = toInteger(oddsOf(rankedRow(race, 1).ml)); });
    else
        passOver(); // nobody was rated
    WinPct();
    sheet.line("{}", betMark(margin));
    addRanking(sheet, race);
    if (margin >= starMargin && odds >= lowestStarOdds && odds <= highestStarOdds) addStar(stars, race);
    const int picks = pickCount(gaps);
    addPicks(sheet, race, picks);
    keepPicks(race, picks);
    card.starPercentage = listNumber(0);
}

Integer shownRaces() {
    const auto first = screen.raceButtons.begin() + 1;
    return static_cast<Integer>(
        std::count_if(first, screen.raceButtons.end(), [](const Button& button) { return button.visible; }));
}

} // namespace

void SelectionSheet() {
    const Step step{"SelectionSheet"};
    card.raceCount = shownRaces();
    ReportWriter sheet;
    ReportWriter stars;
    addCardHead(sheet, title);
    addCardHead(stars, title);
    Integer odds = 0; // odds that can't be told are those of the race before
    for (int race = 1; race <= card.raceCount; ++race) addRace(sheet, stars, race, odds);
    sheet.line(scratchNote);
    attempt([&] { writeFile({Folder::working, "Stars.txt"}, stars.content()); });
    attempt([&] { writeFile(cardFile(Folder::selections, "pms"), sheet.content()); });
    screen.item(CommandId::ViewSummary).enabled = true;
    attempt(KeyHorses);
}

} // namespace quillon
