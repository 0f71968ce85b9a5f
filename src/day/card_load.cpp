#include "day/card_load.h"

#include "card/race_card.h"
#include "core/dates.h"
#include "core/failure.h"
#include "core/formats.h"
#include "day/card_frame.h"
#include "day/close_load.h"
#include "rating/diagnostic_log.h"
#include "rating/line_factors.h"
#include "rating/line_selection.h"
#include "screen/screen.h"
#include "tables/source_tables.h"
#include "tables/track_table.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <unordered_map>

namespace quillon {
namespace {

constexpr int lastWindowDays = 33;
constexpr int longWindowDays = 50;
constexpr int firstShadedColumn = 1;
constexpr int lastShadedColumn = 39;

constexpr const char* noCell = "  --  ";
constexpr const char* noCall = "-";
constexpr const char* noFinalTime =
    "2:59.0"; // stands in for a horse without a time: slow enough to lose to any
constexpr const char* noLeaderTime = "29";

// The row that a line's cells are written to.
struct LineRow {
    std::span<Cell> row;
    Text& operator[](std::size_t column) const { return row[column].text; }
};

// What the line loop keeps from line to line beside the cursor.
struct LineLoop {
    std::unordered_map<Text, int> lastRowOfHorse; ///< the last row of the horse table with this HN
    std::optional<int> cardDay;                   ///< the card's date, by the current race row
    int daysFromCard = 0; ///< the line's date less the card's; an unreadable date leaves it as it was
    LineRow cells;        ///< the line's row of the data view
};
LineLoop loop;

void IndexHorses() {
    loop.lastRowOfHorse.clear();
    TableCursor& rows = sourceTables.horseRows;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        ReadSourceHorse();
        loop.lastRowOfHorse[Text{trimmed(sourceHorse.HN)}] = rows.row();
    }
    rows.MoveFirst();
    ReadSourceHorse();
}

Grid* dataViewOf(int race) {
    if (race < 1 || race > ratedRaces) return nullptr;
    return &screen.dataView[static_cast<std::size_t>(race)];
}

// Name, driver and morning line of the horse row in column 0, in the first three rows of its lines. Rows of
// the next entry overwrite those of an entry with fewer than three lines. The horse row is asked and not the
// entry, since horses without a post share theirs.
void WriteHorseInView(int gap) {
    const Step step{"WriteHorseInView"};
    Grid* view = dataViewOf(cursor.race);
    if (view == nullptr || sourceTables.horseRows.Eof()) return;
    RaceEntry horse;
    takeHorseRow(horse);
    attempt([&] { (*view)(cursor.row, 0).text = horse.horseName; });
    attempt([&] {
        (*view)(cursor.row + 1, 0).text = horse.driverName + blanks(gap) + "(" + horse.driverUdr + ")";
    });
    attempt([&] { (*view)(cursor.row + 2, 0).text = horse.morningOdds; });
}

void TakeCardDay() {
    loop.cardDay.reset();
    attempt([] { loop.cardDay = dayNumber(raceField("BULLETDATE")); });
}

// The race table moves on one race: its conditions, label and button come up, also when none of its entries
// has a line.
void BeginRace() {
    const Step step{"BeginRace"};
    sourceTables.raceRows.MoveNext();
    if (raceField("CARD_ID") >= "A") attempt([] { countUp(card.labelledRaces); });
    attempt(ReadConditions);
    TakeCardDay();
}

// Forward to the horse of the line; the entries passed over are first-time starters. False where no later
// horse is the line's: the cursor moves one row then.
bool moveToHorse() {
    TableCursor& rows = sourceTables.horseRows;
    const Text wanted{trimmed(sourceLine.HN)};
    const auto found = loop.lastRowOfHorse.find(wanted);
    const bool comesLater = found != loop.lastRowOfHorse.end() && found->second > rows.row();
    do {
        rows.MoveNext();
        ReadSourceHorse();
    } while (comesLater && trimmed(sourceHorse.HN) != wanted);
    return comesLater;
}

// The next race begins: that of the horse row where the line has its horse, so that races without lines are
// passed over.
void changeRace(bool lineHasItsHorse) {
    const auto reached = [&] { return !lineHasItsHorse || !laterRaceRow(raceIndex(sourceHorse.RACE)); };
    do BeginRace();
    while (!holdsOrFails(reached));
    attempt([] { cursor.race = raceIndex(sourceLine.TODAYSRACE); });
    cursor.row = 1;
}

// The line's date against the card's, and the counts of recent lines. Entry 0 counts under entry 1 here, and
// stays 1 until the rating takes the post position again.
void CountWindows() {
    const Step step{"CountWindows"};
    if (loop.cardDay) attempt([] { loop.daysFromCard = dayNumber(sourceLine.DATE) - *loop.cardDay; });
    if (cursor.entry == 0) cursor.entry = 1;
    RaceEntry& entry = card.entry(cursor.race, cursor.entry);
    if (loop.daysFromCard >= -lastWindowDays) attempt([&] { countUp(entry.linesInLastWindow); });
    if (loop.daysFromCard >= -longWindowDays) attempt([&] { countUp(entry.linesInFiftyDays); });
}

// Yellow for lines of the last window, cyan for those of the long one. The first line of an entry is shaded
// whatever its age, and the second test may turn a row that the first made yellow.
void ShadeRow() {
    const Step step{"ShadeRow"};
    Grid* view = dataViewOf(cursor.race);
    const auto shade = [&](Colour colour) {
        attempt([] { countUp(cursor.shadedRows); });
        if (view == nullptr) return;
        attempt([&] { view->shade(cursor.row, firstShadedColumn, lastShadedColumn, colour); });
    };
    const auto isRecent = [] {
        return cursor.shadedRows <= card.entry(cursor.race, cursor.entry).linesInLastWindow;
    };
    const auto isInFiftyDays = [] {
        return cursor.shadedRows <= card.entry(cursor.race, cursor.entry).linesInFiftyDays;
    };
    if (holdsOrFails(isRecent))
        shade(recentYellow);
    else if (holdsOrFails(isInFiftyDays))
        shade(olderCyan);
    if (holdsOrFails([&] { return !isRecent() && isInFiftyDays(); })) shade(olderCyan);
}

Text lastFour(TextView text) { return Text{rightOf(text, 4)}; }

// The leader's third time, with what stands in for a missing one.
Text leaderThirdTime() {
    if (lenientNumber(sourceLine.LEAD_TM_3Q) > 0) return sourceLine.LEAD_TM_3Q;
    const TextView finalTime = leftOf(sourceLine.LEAD_TM_FN, 4);
    return Text{finalTime.empty() ? noLeaderTime : finalTime};
}

bool hasFinalTime() {
    return lenientNumber(sourceLine.HRSE_TM_FN) > 0 && !contains(sourceLine.HRSE_TM_FN, "@");
}

// Cells 17 to 31 of a line with calls, and what the factors keep of them.
void FillCalls() {
    const SourceLine& line = sourceLine;
    cursor.postNumber = lenientNumber(line.POST);
    cursor.firstCall = line.CALL_1Q_PO;
    cursor.secondCall = line.CALL_2Q_PO;
    cursor.thirdCall = line.CALL_3Q_PO;
    cursor.firstPark = line.CALL_1Q_PK;
    cursor.secondPark = line.CALL_2Q_PK;
    cursor.thirdPark = line.CALL_3Q_PK;
    auto& cells = loop.cells;
    cells[17] = line.POST;
    cells[18] = line.CALL_1Q_BF;
    cells[19] = line.CALL_1Q_PO;
    cells[20] = line.CALL_1Q_PK;
    cells[21] = line.CALL_1Q_AF;
    cells[22] = line.CALL_2Q_BF;
    cells[23] = line.CALL_2Q_PO;
    cells[24] = line.CALL_2Q_PK;
    cells[25] = line.CALL_2Q_AF;
    cells[26] = line.CALL_3Q_BF;
    cells[27] = line.CALL_3Q_PO;
    cells[28] = line.CALL_3Q_PK;
    cells[29] = line.CALL_3Q_AF;
    cells[30] = line.CALL_ST_PO;
    cells[31] = line.CALL_FN_PO;
}

// Without calls the factors keep the positions and park marks of the line before.
void FillNoCalls() {
    auto& cells = loop.cells;
    cells[17] = noCell;
    cells[18] = sourceLine.CALL_1Q_BF;
    for (std::size_t column = 19; column <= 31; ++column) cells[column] = noCall;
}

Text shownOdds() {
    const bool none = lenientNumber(sourceLine.ODDS) < 0;
    return formatted("##.#0", none ? TextView{"0"} : TextView{sourceLine.ODDS});
}

void FillLineCells() {
    const Step step{"FillLineCells"};
    const SourceLine& line = sourceLine;
    auto& cells = loop.cells;
    cells[1] = line.DATE;
    cells[2] = line.TODAYSRACE;
    cells[3] = sourceHorse.PROGRAM;
    cells[4] = sourceHorse.PP;
    cells[5] = sourceHorse.HN;
    cells[7] = line.TRACK == "M" ? "M1" : line.TRACK;
    cells[8] = line.DIST_MILES;
    cells[9] = line.COND;
    attempt([&] { cells[10] = numberText(lenientNumber(line.PURSE) * 1000); });
    cells[11] = line.CLASS;
    cells[12] = lenientNumber(line.CR) > 0 ? line.CR : "NA";
    cells[13] = line.LEAD_TM_1Q;
    cells[14] = line.LEAD_TM_2Q;
    cells[15] = leaderThirdTime();
    cells[16] = line.LEAD_TM_FN;
    cursor.leaderFinal = lastFour(cells[15]);
    if (lenientNumber(line.POST) > 0)
        FillCalls();
    else
        FillNoCalls();
    cells[32] = line.HRSE_TM_4Q.size() == 2 ? line.HRSE_TM_4Q + ".0" : line.HRSE_TM_4Q;
    const bool hasTime = hasFinalTime();
    cells[33] = hasTime ? line.HRSE_TM_FN : noCell;
    cursor.horseFinal = lastFour(hasTime ? TextView{line.HRSE_TM_FN} : noFinalTime);
    cells[34] = line.FAV;
    attempt([&] { card.entry(cursor.race, cursor.entry).favMark = line.FAV; });
    attempt([&] { cells[35] = shownOdds(); });
    cells[36] = line.DN;
    attempt([&] { cells[37] = card.driverTable(toInteger(lenientNumber(line.DN))).name; });
}

void NumberLine() {
    attempt([] { countUp(card.totalLines); });
    attempt([] { countUp(cursor.lineNumberInRace); });
    loop.cells[39] = std::to_string(cursor.lineNumberInRace);
}

void ShowRaceButton() {
    if (cursor.race < 1 || cursor.race > ratedRaces) return;
    Button& button = screen.raceButtons[static_cast<std::size_t>(cursor.race)];
    button.caption = card.raceInfo[{cursor.race}].label;
    button.visible = true;
    button.enabled = true;
}

// A line of a race without a view, or behind its last row, is filled in and stored all the same.
void TakeRow() {
    static std::array<Cell, dataViewColumns> outside;
    Grid* view = dataViewOf(cursor.race);
    const bool shown = view != nullptr && attempt([&] { loop.cells.row = view->cellsOf(cursor.row); });
    if (shown) return;
    outside.fill({});
    loop.cells.row = outside;
}

void LoadLine() {
    const Step step{"LoadLine"};
    attempt([] { cursor.race = currentRaceIndex(); });
    if (trimmed(sourceHorse.HN) != trimmed(sourceLine.HN)) {
        attempt(ChangeHorseName);
        cursor.line = 1;
        attempt([] { cursor.race = raceIndex(sourceLine.TODAYSRACE); });
        attempt([] { cursor.entry = entryIndex(sourceHorse.PP); });
        cursor.shadedRows = 0;
    }
    TakeRow();
    attempt(CountWindows);
    attempt(ShadeRow);
    attempt(FillLineCells);
    attempt(NumberLine);
    attempt(RateLine);
    loop.cells[38] = closedRating(cursor.lineValue);
    attempt(GetTextboxData2);
    ShowRaceButton();
}

void LoadLines() {
    const Step step{"LoadLines"};
    loop = {};
    IndexHorses();
    TakeCardDay();
    cursor = {};
    cursor.row = 1;
    attempt([] { cursor.entry = entryIndex(sourceHorse.PP); });
    TableCursor& rows = sourceTables.lineRows;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        ReadSourceLine();
        attempt(LoadLine);
        attempt([] { countUp(cursor.row); });
        attempt([] { countUp(cursor.line); });
    }
    while (sourceTables.raceRows.row() < sourceTables.raceRows.rowCount()) BeginRace();
}

// Heads the first race's view with the first horse before any line is read.
void ShowFirstHorse() {
    const Step step{"ShowFirstHorse"};
    screen.dataView[1](0, 0).text = "RACE 1";
    cursor.race = 1;
    cursor.row = 1;
    constexpr int gapBeforeUdr = 2;
    attempt([] { WriteHorseInView(gapBeforeUdr); });
}

void OpenTables() {
    const Step step{"OpenTables"};
    sourceTables.raceRows.open("RACESHR.DBF");
    sourceTables.horseRows.open("HORSEHR.DBF");
    sourceTables.lineRows.open("RUNLINHR.DBF");
    sourceTables.driverRows.open("DRIVERHR.DBF");
    sourceTables.trainerRows.open("TRAINRHR.DBF");
}

void ShowLineTable() {
    screen.dataView[lineTableView].bind(
        sourceTables.lineRows.rowCount(), sourceTables.lineRows.fieldCount() + 1,
        [](int row, int column) { return sourceTables.lineRows.field(row, column); });
    for (int field = 1; field <= sourceTables.lineRows.fieldCount(); ++field)
        screen.dataView[lineTableView](0, field).text = sourceTables.lineRows.fieldName(field);
}

} // namespace

void GetTextboxData2() {
    const Step step{"GetTextboxData2"};
    std::array<TextView, lineCellColumns> cells;
    for (std::size_t column = firstShadedColumn; column <= lastShadedColumn; ++column)
        cells[column] = loop.cells[column];
    card.lineCells.writeLine(card.totalLines, cells);
}

void ChangeHorseName() {
    const Step step{"ChangeHorseName"};
    const Integer outgoingRace = cursor.race;
    const Text outgoingDriver = sourceHorse.DN;
    const bool raceEnds = lenientNumber(sourceHorse.RACE) != lenientNumber(sourceLine.TODAYSRACE);
    cursor.wasFavourite.clear();
    if (raceEnds) cursor.lineNumberInRace = 0;
    if (raceEnds && !(lenientNumber(raceField("RACE")) > 0)) return;
    attempt([&] {
        card.entry(outgoingRace, cursor.entry).driverNumber = toInteger(lenientNumber(outgoingDriver));
    });
    const bool found = moveToHorse();
    // A line that names a wrong race, of a horse in the race at hand, must not move the card on.
    const bool raceAtHand = found && lenientNumber(sourceHorse.RACE) == lenientNumber(raceField("RACE"));
    if (raceEnds && !raceAtHand) changeRace(found);
    constexpr int gapBeforeUdr = 3;
    attempt([] { WriteHorseInView(gapBeforeUdr); });
}

void Start() {
    const Step step{"Start"};
    if (screen.start.caption == viewRacesCaption) return;
    OpenTables();
    if (sourceTables.raceRows.Eof()) return;

    ShowLineTable();
    screen.lineTaken.clear();
    card.unreadFile.clear();
    readTrackTable();
    FrameCard();
    attempt(ReadDrivers);
    attempt(ReadTrainers);
    attempt(ReadEntries);
    attempt(ShowFirstHorse);
    LoadLines();
    if (sourceTables.lineRows.rowCount() > 0) attempt(appendDiagnosticLog);
    SelectLines();
    PrintWidths();
    CloseLoad();
}

} // namespace quillon
