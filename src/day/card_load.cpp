#include "day/card_load.h"

#include "card/line_fields.h"
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
#include "tables/load_state.h"
#include "tables/table_rows.h"
#include "tables/track_table.h"

#include <algorithm>
#include <array>
#include <span>

namespace quillon {
namespace {

constexpr int lastWindowDays = 33;
constexpr int longWindowDays = 50;

constexpr const char* noCell = "  --  ";
constexpr const char* noCall = "-";
constexpr const char* noFinalTime =
    "2:59.0"; // stands in for a horse without a time: slow enough to lose to any
constexpr const char* noLeaderTime = "29";

// The cells of the line at work, in its row of the data view.
std::span<Cell> lineCells;

Text& cell(int column) { return lineCells[static_cast<std::size_t>(column)].text; }

void IndexHorses() {
    load.lastRowOfHorse.clear();
    TableCursor& rows = load.horseRows;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        ReadSourceHorse();
        load.lastRowOfHorse[Text{trimmed(load.horse.HN)}] = rows.row();
    }
    rows.MoveFirst();
    ReadSourceHorse();
}

Grid* viewOfLines(int race) {
    if (race < 1 || race > ratedRaces) return nullptr;
    return &screen.dataView[static_cast<std::size_t>(race)];
}

// Name, driver and morning line of the horse row in column 0, in the first three rows of its lines. Rows of
// the next entry overwrite those of an entry with fewer than three lines. The horse row is asked and not the
// entry, since horses without a post share theirs.
void WriteHorseInView(int gap) {
    const Step step{"WriteHorseInView"};
    Grid* view = viewOfLines(cursor.race);
    if (view == nullptr || load.horseRows.Eof()) return;
    RaceEntry horse;
    takeHorseRow(horse);
    attempt([&] { (*view)(cursor.row, DataColumn::entry).text = horse.horseName; });
    attempt([&] {
        (*view)(cursor.row + 1, DataColumn::entry).text =
            horse.driverName + blanks(gap) + "(" + horse.driverUdr + ")";
    });
    attempt([&] { (*view)(cursor.row + 2, DataColumn::entry).text = horse.morningOdds; });
}

void TakeCardDay() {
    load.cardDay.reset();
    attempt([] { load.cardDay = dayNumber(raceField("BULLETDATE")); });
}

// The race table moves on one race: its conditions, label and button come up, also when none of its entries
// has a line.
void BeginRace() {
    const Step step{"BeginRace"};
    load.raceRows.MoveNext();
    if (raceField("CARD_ID") >= "A") attempt([] { countUp(card.labelledRaces); });
    attempt(ReadConditions);
    TakeCardDay();
}

// Forward to the horse of the line; the entries passed over are first-time starters. False where no later
// horse is the line's: the cursor moves one row then.
bool moveToHorse() {
    TableCursor& rows = load.horseRows;
    const Text wanted{trimmed(load.line.HN)};
    const auto found = load.lastRowOfHorse.find(wanted);
    const bool comesLater = found != load.lastRowOfHorse.end() && found->second > rows.row();
    do {
        rows.MoveNext();
        ReadSourceHorse();
    } while (comesLater && trimmed(load.horse.HN) != wanted);
    return comesLater;
}

// The next race begins: that of the horse row where the line has its horse, so that races without lines are
// passed over.
void changeRace(bool lineHasItsHorse) {
    const auto reached = [&] { return !lineHasItsHorse || !laterRaceRow(raceIndex(load.horse.RACE)); };
    do BeginRace();
    while (!holdsOrFails(reached));
    attempt([] { cursor.race = raceIndex(load.line.TODAYSRACE); });
    cursor.row = 1;
}

// The line's date against the card's, and the counts of recent lines. Entry 0 counts under entry 1 here, and
// stays 1 until the rating takes the post position again.
void CountWindows() {
    const Step step{"CountWindows"};
    if (load.cardDay) attempt([] { load.daysFromCard = dayNumber(load.line.DATE) - *load.cardDay; });
    if (cursor.entry == 0) cursor.entry = 1;
    RaceEntry& entry = card.entry(cursor.race, cursor.entry);
    if (load.daysFromCard >= -lastWindowDays) attempt([&] { countUp(entry.linesInLastWindow); });
    if (load.daysFromCard >= -longWindowDays) attempt([&] { countUp(entry.linesInFiftyDays); });
}

// Yellow for lines of the last window, cyan for those of the long one. The first line of an entry is shaded
// whatever its age, and the second test may turn a row that the first made yellow.
void ShadeRow() {
    const Step step{"ShadeRow"};
    Grid* view = viewOfLines(cursor.race);
    const auto shade = [&](Colour colour) {
        attempt([] { countUp(cursor.shadedRows); });
        if (view == nullptr) return;
        attempt([&] { view->shade(cursor.row, DataColumn::date, DataColumn::lineNumber, colour); });
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
    if (lenientNumber(load.line.LEAD_TM_3Q) > 0) return load.line.LEAD_TM_3Q;
    const TextView finalTime = leftOf(load.line.LEAD_TM_FN, 4);
    return Text{finalTime.empty() ? noLeaderTime : finalTime};
}

bool hasFinalTime() {
    return lenientNumber(load.line.HRSE_TM_FN) > 0 && !contains(load.line.HRSE_TM_FN, "@");
}

// What the factors keep of a line with calls.
void KeepCalls() {
    const SourceLine& line = load.line;
    cursor.postNumber = lenientNumber(line.POST);
    cursor.firstCall = line.CALL_1Q_PO;
    cursor.secondCall = line.CALL_2Q_PO;
    cursor.thirdCall = line.CALL_3Q_PO;
    cursor.firstPark = line.CALL_1Q_PK;
    cursor.secondPark = line.CALL_2Q_PK;
    cursor.thirdPark = line.CALL_3Q_PK;
}

// Without calls the factors keep the positions and park marks of the line before.
void ShowNoCalls() {
    cell(DataColumn::linePost) = noCell;
    for (int column = DataColumn::firstCall; column <= DataColumn::finish; ++column) cell(column) = noCall;
}

Text shownOdds() {
    const bool none = lenientNumber(load.line.ODDS) < 0;
    return formatted("##.#0", none ? TextView{"0"} : TextView{load.line.ODDS});
}

void FillLineCells() {
    const Step step{"FillLineCells"};
    const SourceLine& line = load.line;
    for (const LineField& field : lineFields) cell(field.dataColumn) = line.*field.cell;
    cell(DataColumn::todaysRace) = line.TODAYSRACE;
    cell(DataColumn::program) = load.horse.PROGRAM;
    cell(DataColumn::post) = load.horse.PP;
    cell(DataColumn::horse) = load.horse.HN;
    if (line.TRACK == "M") cell(DataColumn::track) = "M1";
    cell(DataColumn::purse).clear();
    attempt([&] { cell(DataColumn::purse) = numberText(lenientNumber(line.PURSE) * 1000); });
    if (lenientNumber(line.CR) <= 0) cell(DataColumn::classRating) = "NA";
    cell(DataColumn::leaderThreeQuarters) = leaderThirdTime();
    cursor.leaderFinal = lastFour(cell(DataColumn::leaderThreeQuarters));
    if (lenientNumber(line.POST) > 0)
        KeepCalls();
    else
        ShowNoCalls();
    if (line.HRSE_TM_4Q.size() == 2) cell(DataColumn::lastQuarter) += ".0";
    const bool hasTime = hasFinalTime();
    if (!hasTime) cell(DataColumn::finalTime) = noCell;
    cursor.horseFinal = lastFour(hasTime ? TextView{line.HRSE_TM_FN} : noFinalTime);
    cell(DataColumn::favourite) = line.FAV;
    attempt([&] { card.entry(cursor.race, cursor.entry).favMark = line.FAV; });
    attempt([&] { cell(DataColumn::odds) = shownOdds(); });
    cell(DataColumn::driverNumber) = line.DN;
    attempt([&] { cell(DataColumn::driver) = card.driverTable(toInteger(lenientNumber(line.DN))).name; });
}

void NumberLine() {
    attempt([] { countUp(card.totalLines); });
    attempt([] { countUp(cursor.lineNumberInRace); });
    cell(DataColumn::lineNumber) = std::to_string(cursor.lineNumberInRace);
}

void ShowRaceButton() {
    if (cursor.race < 1 || cursor.race > ratedRaces) return;
    Button& button = screen.raceButtons[static_cast<std::size_t>(cursor.race)];
    button.caption = card.raceInfo[{cursor.race}].label;
    button.visible = true;
    button.enabled = true;
}

// A line of a race without a view, or after its last row, is filled in and stored all the same.
void TakeRow() {
    static std::array<Cell, dataViewColumns> outside;
    Grid* view = viewOfLines(cursor.race);
    const bool shown = view != nullptr && attempt([&] { lineCells = view->cellsOf(cursor.row); });
    if (shown) return;
    outside.fill({});
    lineCells = outside;
}

void LoadLine() {
    const Step step{"LoadLine"};
    attempt([] { cursor.race = currentRaceIndex(); });
    if (trimmed(load.horse.HN) != trimmed(load.line.HN)) {
        attempt(ChangeHorseName);
        cursor.line = 1;
        attempt([] { cursor.race = raceIndex(load.line.TODAYSRACE); });
        attempt([] { cursor.entry = entryIndex(load.horse.PP); });
        cursor.shadedRows = 0;
    }
    TakeRow();
    attempt(CountWindows);
    attempt(ShadeRow);
    attempt(FillLineCells);
    attempt(NumberLine);
    attempt(RateLine);
    cell(DataColumn::rating) = closedRating(cursor.lineValue);
    attempt(GetTextboxData2);
    ShowRaceButton();
}

// Heads the first race's view with the first horse before any line is read.
void ShowFirstHorse() {
    const Step step{"ShowFirstHorse"};
    screen.dataView[1](0, DataColumn::entry).text = "RACE 1";
    cursor.race = 1;
    cursor.row = 1;
    constexpr int gapBeforeUdr = 2;
    attempt([] { WriteHorseInView(gapBeforeUdr); });
}

void OpenTables() {
    const Step step{"OpenTables"};
    load.raceRows.open("RACESHR.DBF");
    load.horseRows.open("HORSEHR.DBF");
    load.lineRows.open("RUNLINHR.DBF");
    load.driverRows.open("DRIVERHR.DBF");
    load.trainerRows.open("TRAINRHR.DBF");
}

// The running-line table as it stands: a row a line, a column a field, from 1.
void ShowLineTable() {
    Grid& view = screen.dataView[lineTableView];
    const int fields = load.lineRows.fieldCount();
    view.layOut(1, fields + 1);
    for (int field = 1; field <= fields; ++field) view(0, field).text = load.lineRows.fieldName(field);
    view.showRows(Grid::firstRow, rowsOf(load.lineRows));
}

} // namespace

void LoadLines() {
    const Step step{"LoadLines"};
    load.lastRowOfHorse.clear();
    load.daysFromCard = 0;
    IndexHorses();
    TakeCardDay();
    cursor = {};
    cursor.row = 1;
    attempt([] { cursor.entry = entryIndex(load.horse.PP); });
    TableCursor& rows = load.lineRows;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        ReadSourceLine();
        attempt(LoadLine);
        attempt([] { countUp(cursor.row); });
        attempt([] { countUp(cursor.line); });
    }
    while (load.raceRows.row() < load.raceRows.rowCount()) BeginRace();
}

void GetTextboxData2() {
    const Step step{"GetTextboxData2"};
    static_assert(DataColumn::count <= lineCellColumns);
    std::array<TextView, lineCellColumns> cells;
    for (int column = DataColumn::date; column < DataColumn::count; ++column)
        cells[static_cast<std::size_t>(column)] = cell(column);
    card.lineCells.writeLine(card.totalLines, cells);
}

void ChangeHorseName() {
    const Step step{"ChangeHorseName"};
    const Integer outgoingRace = cursor.race;
    const Text outgoingDriver = load.horse.DN;
    const bool raceEnds = lenientNumber(load.horse.RACE) != lenientNumber(load.line.TODAYSRACE);
    cursor.wasFavourite.clear();
    if (raceEnds) cursor.lineNumberInRace = 0;
    if (raceEnds && !(lenientNumber(raceField("RACE")) > 0)) return;
    attempt([&] {
        card.entry(outgoingRace, cursor.entry).driverNumber = toInteger(lenientNumber(outgoingDriver));
    });
    const bool found = moveToHorse();
    // A line that names a wrong race, of a horse in the race at hand, must not move the card on.
    const bool raceAtHand = found && lenientNumber(load.horse.RACE) == lenientNumber(raceField("RACE"));
    if (raceEnds && !raceAtHand) changeRace(found);
    constexpr int gapBeforeUdr = 3;
    attempt([] { WriteHorseInView(gapBeforeUdr); });
}

void Start() {
    const Step step{"Start"};
    if (screen.startOffer == StartOffer::viewRaces) return;
    OpenTables();
    if (load.raceRows.Eof()) return;

    ShowLineTable();
    screen.lineTaken.clear();
    screen.boardsToTakeIn.clear();
    card.unreadFile.clear();
    readTrackTable();
    FrameCard();
    attempt(ReadDrivers);
    attempt(ReadTrainers);
    attempt(ReadEntries);
    attempt(ShowFirstHorse);
    LoadLines();
    if (load.lineRows.rowCount() > 0) attempt(appendDiagnosticLog);
    SelectLines();
    PrintWidths();
    CloseLoad();
}

} // namespace quillon
