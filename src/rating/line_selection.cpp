#include "rating/line_selection.h"

#include "card/line_fields.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/formats.h"
#include "rating/race_ranking.h"
#include "rating/rating_display.h"
#include "rating/search_notes.h"
#include "screen/race_views.h"
#include "tables/load_state.h"

#include <vector>

namespace quillon {
namespace {

constexpr double noRealLastQuarter = 9.9; ///< a last quarter of at most this was not timed
constexpr double leastSearched = 40.0;    ///< the search passes by ratings that are not above
constexpr double aboveAllRatings = 100;
constexpr TextView alsoEligible = "AE";
constexpr TextView searchesNoLine = "0/1"; ///< as a morning line, compared as the cell stands

// The search for the line of one entry. Slots are places among the entry's past lines, 1 being the latest;
// slot 0 holds no line.
struct LineSearch {
    int race;
    int entry;
    int limit = 0;    ///< last slot of the first full search
    int position = 0; ///< slot that the search is at
    int tidied = -1;  ///< ratings up to this slot are in their print form
    double bestValue = aboveAllRatings;
    int found = 0; ///< best slot that the search has met
    int chosenSlot = 0;
    SearchNotes* notes = nullptr; ///< for a user who asks why

    RaceEntry& shared() const { return card.entry[{race, entry}]; }
    const PastLine& line(int slot) const { return card.pastLine.read(race, entry, slot); }
    double rating(int slot) const { return lenientNumber(line(slot).rating); }

    /// The number of lines that count: those of the window, and those that the search has added.
    Integer& window() const { return shared().linesInLastWindow; }
};

void copyLine(const PastLine& line, PastLine& chosen) {
    for (const LineField& field : lineFields)
        if (isChosen(field)) chosen.*field.cell = line.*field.cell;
}

// A line without a class rating is a qualifier's, or no line at all.
void takeLine(LineSearch& search, int slot) {
    search.chosenSlot = slot;
    PastLine& chosen = search.shared().chosen;
    attempt([&] { copyLine(search.line(slot), chosen); });
    if (lenientNumber(chosen.CR) <= 0) chosen.CR = "QUA";
}

Text ratedText(const LineSearch& search, int slot) { return Text{trimmed(search.line(slot).rating)}; }

// "59.9 of line 2"
Text lineText(const LineSearch& search, int slot) {
    const Text rated = ratedText(search, slot);
    const Text line = "line " + std::to_string(slot);
    return rated.empty() ? "0 that the missing " + line + " counts as" : rated + " of " + line;
}

// An entry with no line in the window still counts its latest, and a latest line without a real last quarter
// brings in the next older one.
void admitOlderLines(const LineSearch& search) {
    Integer& window = search.window();
    if (window <= 0 && search.rating(1) > 0) {
        window = 1;
        if (search.notes) search.notes->widen("none is of the last 33 days, so the latest counts");
    }
    if (window == 1 && lenientNumber(search.line(1).HRSE_TM_4Q) <= noRealLastQuarter &&
        search.rating(2) > 0) {
        window = 2;
        if (search.notes) search.notes->widen("the latest has no real last quarter, so line 2 counts too");
    }
}

// Where the next older line has no rating, only a last quarter of exactly this text brings it in.
void admitUnratedLine(const LineSearch& search) {
    if (search.line(1).HRSE_TM_4Q != "9.9" || search.window() != 1) return;
    ++search.window();
    if (search.notes) search.notes->widen("the latest has no real last quarter, so line 2 counts too");
}

void tidyRating(Text& rating) { rating = formatted("##.0", "@@@@@", trimmed(rating)); }

// Puts the ratings of slot 0 to the window's last into their print form. A second time would change nothing,
// so each slot is done once. Slot 0 becomes five blanks.
void tidyRatings(LineSearch& search) {
    for (; search.tidied < search.window(); ++search.tidied)
        attempt(
            [&] { tidyRating(card.pastLine.write(search.race, search.entry, search.tidied + 1).rating); });
}

// The lowest of three, the more recent of equals.
int lowestOfThree(double first, double second, double third) {
    if (second >= first && third >= first) return 1;
    if (first >= second && third >= second) return 2;
    return 3;
}

// The slot that the number of lines alone decides; 0 where the search must. None of the search's filters
// apply here.
int slotByCount(const LineSearch& search) {
    switch (search.window()) {
    case 1: return 1;
    case 2:
        if (search.rating(2) > search.rating(1)) return 1;
        return search.rating(2) < search.rating(1) ? 2 : 0;
    case 3: return lowestOfThree(search.rating(1), search.rating(2), search.rating(3));
    default: return 0;
    }
}

// The line that the count decided on, against the others that count.
void noteByCount(const LineSearch& search, int chosen) {
    if (!search.notes) return;
    const int lines = search.window();
    for (int slot = 1; slot <= lines; ++slot)
        if (slot != chosen)
            search.notes->passOver(slot,
                                   ratedText(search, slot) + ", not below the " + lineText(search, chosen));
    search.notes->choose(chosen, lines == 1 ? ratedText(search, chosen) + ", the only line that counts"
                                            : ratedText(search, chosen) + ", the lowest of the " +
                                                  std::to_string(lines) + " lines that count");
}

// An also-eligible gets its post for a program number, and its lines are not searched in this pass.
bool losesAlsoEligibleMark(const LineSearch& search) {
    TextCell& programNumber = search.shared().programNumber;
    if (!contains(programNumber, alsoEligible)) return false;
    programNumber = aligned("@@@", std::to_string(search.entry));
    if (search.notes) search.notes->skip("an also-eligible's lines are not searched");
    return true;
}

bool isNeverSearched(const LineSearch& search) {
    if (search.shared().morningOdds.text() != searchesNoLine) return false;
    if (search.notes) search.notes->skip("at a morning line of 0/1 no line is searched");
    return true;
}

// What the search has against a line.
enum class Against { nothing, noCalls, tooLow, notBetter };

Against against(const LineSearch& search, int slot) {
    const double rating = search.rating(slot);
    if (lenientNumber(search.line(slot).POST) <= 0) return Against::noCalls;
    if (rating <= leastSearched) return Against::tooLow;
    return rating < search.bestValue ? Against::nothing : Against::notBetter;
}

void notePassedOver(const LineSearch& search, Against what) {
    const int slot = search.position;
    if (!search.notes || slot == 0) return;
    const Text rated = ratedText(search, slot);
    if (what == Against::noCalls) search.notes->passOver(slot, rated + ", but it has no calls");
    if (what == Against::tooLow) search.notes->passOver(slot, rated + ": 40 and less is not searched");
    if (what == Against::notBetter)
        search.notes->passOver(slot, rated + ", not below the " +
                                         (search.found > 0 ? lineText(search, search.found) : Text{"100"}));
}

// The best so far, in place of the one before.
void noteFound(const LineSearch& search, int slot, int before) {
    if (!search.notes) return;
    if (before > 0)
        search.notes->passOver(before,
                               ratedText(search, before) + ", not below the " + lineText(search, slot));
    search.notes->choose(slot, ratedText(search, slot) + ", the lowest of the lines searched");
}

// Of equal ratings the more recent line stays.
void considerLine(LineSearch& search) {
    const int slot = search.position;
    Against what = Against::nothing;
    attempt([&] { what = against(search, slot); });
    if (what != Against::nothing) return notePassedOver(search, what);
    const int before = search.found;
    attempt([&] { search.bestValue = search.rating(slot); });
    search.found = slot;
    takeLine(search, slot);
    attempt([&] { noteFound(search, slot, before); });
}

// One pass of the search at its position. True when the next one follows at once.
bool searchesOn(LineSearch& search) {
    if (losesAlsoEligibleMark(search) || isNeverSearched(search)) return false;
    considerLine(search);
    return ++search.position <= search.limit;
}

// After the search: no line was found and there is one more, or there is none, its post being no number. The
// latter also holds for an entry whose best line was found among lines that all lie in the window: it falls
// back on its latest line below, which is how the ratings are meant to come out.
bool wantsOlderLine(const LineSearch& search) {
    return holdsOrFails([&] {
        const auto post = numberIn(search.line(search.position).POST);
        if (!post) passOver();
        return !post || (search.found <= 0 && *post > 0);
    });
}

bool isNoStarter(const LineSearch& search) {
    const RaceEntry& entry = search.shared();
    return entry.horseName.empty() || contains(entry.programNumber, alsoEligible);
}

// The latest line stands, whatever the search found.
void noteLatest(const LineSearch& search) {
    SearchNotes* const notes = search.notes;
    if (!notes) return;
    if (search.found > 1)
        notes->passOver(search.found,
                        ratedText(search, search.found) +
                            ", the lowest, but with no line after those searched the latest stands");
    const Text why = search.found > 0           ? Text{"no line comes after those searched"}
                     : notes->skipped().empty() ? Text{"no line up to 50 days back will do"}
                                                : notes->skipped();
    notes->choose(1, ratedText(search, 1) + ", the latest: " + why);
}

// Adds one line to those that count. False when that settles it: at the 50-day count the latest stands.
bool searchesFurther(LineSearch& search) {
    attempt([&] { search.window() = toInteger(search.window() + 1.0); });
    if (search.window() >= search.shared().linesInFiftyDays) {
        takeLine(search, 1);
        noteLatest(search);
        return false;
    }
    if (search.notes && search.found <= 0)
        search.notes->widen("none would do, so line " + std::to_string(search.window()) + " counts too");
    return search.found <= 0;
}

// False when the entry is passed over.
bool choosesLine(LineSearch& search) {
    admitOlderLines(search);
    search.limit = search.window();
    for (;;) {
        admitUnratedLine(search);
        tidyRatings(search);
        if (const int slot = slotByCount(search); slot > 0) {
            takeLine(search, slot);
            noteByCount(search, slot);
            return true;
        }
        if (searchesOn(search)) continue;
        if (!wantsOlderLine(search)) return true;
        if (isNoStarter(search)) return false;
        if (!searchesFurther(search)) return true;
    }
}

// The chosen line in a race view: as the table has it, not the cleaned forms of the data views.
Text shownInRaceView(int column, const Text& value) {
    switch (column) {
    case RaceColumn::purse: return numberText(lenientNumber(value) * 1000);
    case RaceColumn::classRating: {
        const auto number = numberIn(value);
        return number && *number > 0 ? value : "NA";
    }
    case RaceColumn::lastQuarter: return value.size() == 2 ? value + ".0" : value;
    default: return value;
    }
}

/// Where the running-line table has the field that a race view shows in a column.
struct ShownField {
    int column;
    int number;
};

std::vector<ShownField> shownFields() {
    std::vector<ShownField> fields;
    for (const LineField& field : lineFields)
        if (isChosen(field)) fields.push_back({field.raceColumn, load.lineRows.fieldNumber(field.name)});
    fields.push_back({RaceColumn::favourite, load.lineRows.fieldNumber("FAV")});
    return fields;
}

// A field of the running-line table. Row 0, of an entry without a line, is the head: the fields' names.
Text tableCell(int row, int field) {
    const TableCursor& lines = load.lineRows;
    if (row == 0) return Text{lines.fieldName(field)};
    Text value = lines.field(row, field);
    value.resize(trimmedRight(value).size());
    return value;
}

Text loadedCell(int row, int column, int field) { return shownInRaceView(column, tableCell(row, field)); }

void writeRow(int race, int index, const std::vector<ShownField>& fields) {
    Grid& view = raceViewOf(race);
    RaceEntry& entry = card.entry[{race, index}];
    view(index, RaceColumn::horseName).text = entry.horseName;
    view(index, RaceColumn::morningOdds).text = entry.morningOdds;
    view(index, RaceColumn::programNumber).text = entry.programNumber;
    view(index, RaceColumn::post).text = std::to_string(index);
    for (const auto& [column, number] : fields)
        attempt([&, column = column, number = number] {
            view(index, column).text = loadedCell(entry.chosenLineNumber, column, number);
        });
    entry.chosenDriver = entry.driverName;
    view(index, RaceColumn::driver).text = entry.driverName;
    view(index, RaceColumn::udr).text = entry.driverUdr;
    view(index, RaceColumn::rating).text = entry.rating;
    Colors();
}

void selectLine(const std::vector<ShownField>& fields) {
    LineSearch search{.race = cursor.race, .entry = cursor.entry};
    if (searchNotes && searchNotes->isFor(search.race, search.entry)) search.notes = searchNotes;
    if (!choosesLine(search)) {
        if (search.notes) search.notes->skip("an also-eligible, or no horse: the entry is passed over");
        return;
    }
    if (search.notes) search.notes->close(search.chosenSlot);
    RaceEntry& entry = search.shared();
    attempt([&] { entry.rating = search.line(search.chosenSlot).rating; });
    attempt([&] { entry.chosenLineNumber = search.line(search.chosenSlot).lineNumber; });
    writeRow(search.race, search.entry, fields);
}

} // namespace

std::vector<LoadedCell> loadedCells(int line) {
    std::vector<LoadedCell> cells;
    for (const auto& [column, number] : shownFields())
        attempt([&, column = column, number = number] {
            cells.push_back({column, loadedCell(line, column, number)});
        });
    return cells;
}

void SelectLines() {
    const Step step{"SelectLines"};
    const std::vector<ShownField> fields = shownFields();
    cursor.line = 0;
    for (cursor.race = 1; cursor.race <= ratedRaces; ++cursor.race) {
        for (cursor.entry = 1; cursor.entry <= ratedEntries; ++cursor.entry)
            attempt([&] { selectLine(fields); });
        cursor.entry = 0;
        attempt(RankRace);
        if (cursor.race == card.raceCount) break;
    }
}

} // namespace quillon
