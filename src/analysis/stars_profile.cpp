#include "analysis/stars_profile.h"

#include "analysis/analysis_view.h"
#include "analysis/archive_scan.h"
#include "core/failure.h"
#include "core/formats.h"
#include "screen/screen.h"
#include "screen/view_columns.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <deque>
#include <limits>
#include <memory>
#include <utility>

namespace quillon {
namespace {

constexpr double raceBet = 12;
constexpr Integer allMargins = 50;
constexpr TextView allOdds = "ALL Odds";
constexpr TextView exitRow = "EXIT";

// clang-format off
struct MarginRow { TextView text; Integer margin; };
constexpr std::array marginRows{
    MarginRow{"$",     1},
    MarginRow{"$$",    2},
    MarginRow{"$$$",   3},
    MarginRow{"$$$$",  4},
    MarginRow{"$$$$$", 5},
    MarginRow{"ALL Margins", allMargins},
};

constexpr std::array<TextView, 18> oddsRows{
    "1/1", "6/5", "7/5", "8/5", "9/5", "2/1", "5/2", "3/1", "7/2", "4/1", "9/2",
    "5/1", "6/1", "7/1", "8/1", "9/1", "10/1", allOdds,
};

// Where the view and the filter read a record. Both read a place beside the record's own here and there: of race
// 12 they see the 2, of a margin of 10.3 the 0.3.
namespace starPlaces {
constexpr Places cardLabel  { 1, 15};
constexpr Places race       {17,  2};
constexpr Places margin     {26,  4};
constexpr Places marginMark {26,  3};
constexpr Places decimalOdds{35,  5};
constexpr Places shownOdds  {40,  5};
constexpr Places odds       {41,  4};
constexpr Places bet        {51,  6};
constexpr Places shownPayoff{60,  5};
constexpr Places payoff     {60,  6};
} // namespace starPlaces
// clang-format on

constexpr std::uint64_t noLabel = std::numeric_limits<std::uint64_t>::max();
constexpr char noWin = '\0';

/// A row of the view by what it is made of.
struct StarRow {
    std::uint64_t record = 0;      ///< where its line begins in the file
    std::uint64_t label = noLabel; ///< and the line that it shows before it
    char win = noWin;
};

/// The rows of the view. A file may have millions of lines, so a row is read when it is looked at.
struct StarTable {
    std::deque<StarRow> rows{}; ///< grows without moving
    PiecesAhead file{starsPlace()};
};

/// A line as far as it is shown.
Text lineAt(PiecesAhead& file, std::uint64_t start) {
    constexpr int shownPlaces = starPlaces::shownPayoff.first + starPlaces::shownPayoff.width - 1;
    return Text{LineReader{file.read(start, shownPlaces)}.next().value_or("")};
}

void fillRow(std::span<Cell> cells, const StarRow& row, PiecesAhead& file) {
    const auto text = [&](StarColumn::Number column) -> Text& { return cells[column].text; };
    if (row.label != noLabel) text(StarColumn::card) = cellIn(lineAt(file, row.label), starPlaces::cardLabel);
    const Text record = lineAt(file, row.record);
    const auto at = [&](Places places) { return cellIn(record, places); };
    text(StarColumn::race) = formatted("##", at(starPlaces::race));
    attempt([&] { text(StarColumn::margin) = formatted("###.#", at(starPlaces::margin)); });
    text(StarColumn::decimalOdds) = at(starPlaces::decimalOdds);
    text(StarColumn::odds) = trimmed(at(starPlaces::shownOdds));
    text(StarColumn::bet) = trimmed(at(starPlaces::bet));
    text(StarColumn::payoff) = Text{at(starPlaces::shownPayoff)} + "0"; // the last digit is not read
    if (row.win != noWin) text(StarColumn::win) = row.win;
}

void clearTable() { layOut(screen.stars, 0, starColumns()); }

void showTable(const std::shared_ptr<StarTable>& table) {
    clearTable();
    const auto make = [table](int row, std::span<Cell> cells) {
        attempt([&] { fillRow(cells, table->rows[static_cast<std::size_t>(row) - 1], table->file); });
    };
    screen.stars.showRows(1, {static_cast<int>(table->rows.size()), make});
}

/// The win mark of a line is its last character; short ones leave it as it is.
void takeWin(char& win, TextView line) {
    constexpr std::size_t shortLine = 50;
    if (line.size() > shortLine) win = line.back();
}

bool isCardHeading(TextView line) { return !line.empty() && leftOf(line, 1) >= "A"; }

/// Goes through the lines of the stars file and where they begin. False when the user cancels. Fails when the
/// file can't be read.
template <class Visit>
bool eachLine(Visit visit) {
    LinesForwards lines{starsPlace()};
    LongWork work{lines.size()};
    while (const auto line = lines.next()) {
        if (!work.goesOn(line->size() + crLf.size())) return false;
        visit(*line, lines.lineStart());
    }
    return true;
}

double marginOf(TextView record) {
    constexpr double level = 0.01; // as good as level: a margin of 9.9
    if (cellIn(record, starPlaces::marginMark) == "9.9") return level;
    return lenientNumber(cellIn(record, starPlaces::margin));
}

/// The walk of Profile5 over the lines.
struct StarFilter {
    StarTable& table;
    StarChoice choice{};
    StarSums sums{};
    Text cardLabel{}; ///< waits for a race of the card that passes
    std::uint64_t cardStart = noLabel;
    Text labelAbove{starColumns()[StarColumn::card].head}; ///< what the row above shows
    char win = noWin;

    void take(TextView line, std::uint64_t start);
    void addRow(std::uint64_t record);
};

void StarFilter::take(TextView line, std::uint64_t start) {
    if (isCardHeading(line)) {
        cardLabel = cellIn(line, starPlaces::cardLabel);
        cardStart = start;
        return;
    }
    takeWin(win, line);
    if (!passes(line, choice)) return;
    addRow(start);
    ++sums.races;
    const double payoff = lenientNumber(cellIn(line, starPlaces::payoff));
    if (payoff <= 0) return;
    ++sums.wins;
    sums.returned += payoff;
}

// The label that stands in the row above already stays waiting.
void StarFilter::addRow(std::uint64_t record) {
    const bool isNew = cardLabel != labelAbove;
    const bool shows = isNew && !cardLabel.empty();
    table.rows.push_back({record, shows ? cardStart : noLabel, win});
    labelAbove = isNew ? std::exchange(cardLabel, {}) : Text{};
}

/// Wins in per cent of the races, as they are shown: next to never all of them, and few wins twice.
Text winPercentage(const StarSums& sums) {
    constexpr int shownCharacters = 4;
    double percentage = quotient(sums.wins, sums.races) * 100;
    if (percentage >= 99)
        percentage = 95;
    else if (percentage <= 5)
        percentage *= 2;
    return Text{leftOf(numberText(percentage), shownCharacters)};
}

Text dollars(double amount) { return formatted("######.00", "$@@@@@@@@@", amount); }

Text returnOnBets(double net, double bets) {
    constexpr int shownCharacters = 5;
    return Text{leftOf(numberText(quotient(net, bets) * 100), shownCharacters)};
}

Text averagePayoff(const StarSums& sums) {
    constexpr int shownCharacters = 6;
    return Text{leftOf(numberText(quotient(sums.returned, sums.wins)), shownCharacters)};
}

// --- The lists --------------------------------------------------------------------------------------------

constexpr TextView marginCaption = "Margin";
constexpr TextView oddsCaption = "Odds";
constexpr TextView maxOddsCaption = "Max Odds";

void addOddsRows(ChoiceList& list) {
    list.lines.assign(oddsRows.begin(), oddsRows.end());
    list.lines.emplace_back(exitRow);
}

void openLists() {
    screen.marginList = {.visible = true, .caption = Text{marginCaption}};
    for (const MarginRow& row : marginRows) screen.marginList.lines.emplace_back(row.text);
    screen.marginList.lines.emplace_back(exitRow);
    screen.oddsList = {.caption = Text{oddsCaption}};
    screen.maxOddsList = {.caption = Text{maxOddsCaption}};
    addOddsRows(screen.oddsList);
    addOddsRows(screen.maxOddsList);
    screen.marginChoice = 0;
    screen.oddsChoice.clear();
}

/// Puts a choice on the list's button. False for a text that is no row of the list.
bool take(ChoiceList& list, TextView row, TextView caption) {
    if (std::find(list.lines.begin(), list.lines.end(), row) == list.lines.end()) return false;
    const bool leaves = row == exitRow;
    list.caption = leaves ? caption : row;
    if (leaves) list.visible = false;
    return true;
}

} // namespace

bool passes(TextView record, const StarChoice& choice) {
    const double margin = marginOf(record);
    const Integer least = choice.margin;
    if (least != allMargins && !(margin >= least && margin < least + 1)) return false;
    return choice.odds == allOdds || choice.odds == trimmed(cellIn(record, starPlaces::odds));
}

StarFigures starFigures(const StarSums& sums) {
    const double bets = sums.races * raceBet;
    const double net = lenientNumber(formatted("######.00", sums.returned - bets)); // as it is shown
    StarFigures shown{std::nullopt, numberText(sums.races), numberText(sums.wins)};
    if (sums.races > 0) attempt([&] { shown[3] = formatted("###.0", "@@@@@%", winPercentage(sums)); });
    attempt([&] { shown[4] = dollars(bets); });
    attempt([&] { shown[5] = dollars(sums.returned); });
    attempt([&] { shown[6] = dollars(net); });
    if (sums.races > 0) attempt([&] { shown[7] = formatted("###.0", "@@@@@%", returnOnBets(net, bets)); });
    if (sums.wins > 0) attempt([&] { shown[8] = formatted("###.00", "$@@@@@", averagePayoff(sums)); });
    return shown;
}

void Star() {
    const Step step{"Star"};
    openLists();
    screen.starsFields.fill({});
    clearTable();
    showAnalysisView(&Screen::starsVisible);
    const auto table = std::make_shared<StarTable>();
    char win = noWin;
    const bool whole = eachLine([&](TextView line, std::uint64_t start) {
        takeWin(win, line);
        table->rows.push_back({start, start, win});
    });
    if (whole) showTable(table);
}

void MarginChoice(const Text& row) {
    const Step step{"MarginChoice"};
    if (!take(screen.marginList, row, marginCaption)) return;
    for (const MarginRow& choice : marginRows)
        if (choice.text == row) screen.marginChoice = choice.margin;
    screen.oddsList.visible = true;
}

void OddsChoice(const Text& row) {
    const Step step{"OddsChoice"};
    if (!take(screen.oddsList, row, oddsCaption)) return;
    if (row != exitRow) screen.oddsChoice = trimmed(row);
    screen.maxOddsList.visible = true;
}

void MaxOddsChoice(const Text& row) {
    const Step step{"MaxOddsChoice"};
    if (take(screen.maxOddsList, row, maxOddsCaption) && row != exitRow) Profile5();
}

void Profile5() {
    const Step step{"Profile5"};
    clearTable();
    const auto table = std::make_shared<StarTable>();
    StarFilter filter{*table, {screen.marginChoice, screen.oddsChoice}};
    if (!eachLine([&](TextView line, std::uint64_t start) { filter.take(line, start); })) return;
    showTable(table);
    const StarFigures figures = starFigures(filter.sums);
    for (std::size_t field = 0; field < figures.size(); ++field)
        if (figures[field]) screen.starsFields[field] = *figures[field];
}

} // namespace quillon
