#include "import/checked_card.h"

#include "core/dates.h"
#include "core/failure.h"
#include "core/numbers.h"
#include "tables/table_cursor.h"
#include "tables/table_format.h"
#include "tables/track_table.h"

#include <algorithm>
#include <map>

namespace quillon {
namespace {

/// How many of a table's rows fit the others.
struct Fit {
    int fitting = 0;
    int counted = 0;

    void count(bool fits) {
        ++counted;
        if (fits) ++fitting;
    }
    bool isPoor() const { return 2 * fitting < counted; }
};

// The vendor's tables, opened.
class Tables {
public:
    explicit Tables(const std::vector<VendorTable>& tables) : tables_{tables} {}

    bool has(TextView name) const { return find(name) != nullptr; }

    TableCursor open(TextView name) const {
        TableCursor rows;
        if (const VendorTable* table = find(name)) rows.openContent(table->content, name);
        return rows;
    }

private:
    const VendorTable* find(TextView name) const {
        const auto found = std::find_if(tables_.begin(), tables_.end(),
                                        [=](const VendorTable& table) { return table.name == name; });
        return found == tables_.end() ? nullptr : &*found;
    }

    const std::vector<VendorTable>& tables_;
};

Text fieldOf(const TableCursor& rows, TextView name) { return Text{trimmed(rows.field(name))}; }

bool isDate(TextView text) {
    return attempt([=] { dayNumber(text); });
}

// Of the form, before any row is read.
Text refusalOfForms(const std::vector<VendorTable>& tables) {
    for (const VendorTable& table : tables)
        if (tableFormat(table.content).fields.empty())
            return Text{table.name} + " is no table that can be read.";
    return {};
}

void tellDamage(const std::vector<VendorTable>& tables, CheckedCard& card) {
    for (const VendorTable& table : tables) {
        const TableFormat format = tableFormat(table.content);
        if (!format.damage.empty())
            card.remarks.push_back(Text{table.name} + ": " + format.damage.front() + ".");
    }
}

void checkRaces(TableCursor rows, CheckedCard& card) {
    card.races = rows.rowCount();
    if (card.races == 0) {
        card.refusal = Text{raceTable} + " holds no race.";
        return;
    }
    card.track = trackKeyOf(rows.field("TRACK"));
    card.date = fieldOf(rows, "BULLETDATE");
    if (card.track.empty()) card.refusal = Text{raceTable} + " does not say at which track its races are.";
    if (!isDate(card.date)) card.refusal = Text{raceTable} + " does not say on which day its races are.";
    for (rows.MoveFirst(); !rows.Eof() && !card.isRefused(); rows.MoveNext()) {
        if (trackKeyOf(rows.field("TRACK")) != card.track)
            card.refusal = Text{raceTable} + " holds races of two tracks, " + card.track + " and " +
                           trackKeyOf(rows.field("TRACK")) + ".";
        if (fieldOf(rows, "BULLETDATE") != card.date)
            card.refusal = Text{raceTable} + " holds races of two days.";
    }
}

using RaceOfHorse = std::map<Text, double>; ///< by HN

RaceOfHorse racesOfHorses(TableCursor rows) {
    RaceOfHorse races;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        races[fieldOf(rows, "HN")] = lenientNumber(rows.field("RACE"));
    return races;
}

void checkLines(TableCursor rows, const RaceOfHorse& races, CheckedCard& card) {
    Fit lines;
    Fit dates;
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext()) {
        const auto horse = races.find(fieldOf(rows, "HN"));
        lines.count(horse != races.end() && horse->second == lenientNumber(rows.field("TODAYSRACE")));
        dates.count(fieldOf(rows, "DATE") <= card.date);
    }
    if (lines.isPoor()) card.refusal = Text{lineTable} + " is of another card than " + Text{horseTable} + ".";
    if (dates.isPoor()) card.refusal = Text{lineTable} + " is of a later day than " + Text{raceTable} + ".";
}

// Row n of a table of people is person n.
void checkPeople(const Tables& tables, TextView people, TextView field, CheckedCard& card) {
    if (!tables.has(people)) return;
    const int count = tables.open(people).rowCount();
    Fit horses;
    TableCursor rows = tables.open(horseTable);
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        horses.count(lenientNumber(rows.field(field)) <= count);
    if (horses.isPoor()) card.refusal = Text{people} + " is of another card than " + Text{horseTable} + ".";
}

void tellMissing(const Tables& tables, CheckedCard& card) {
    std::vector<Text> missing;
    for (const TextView name : tablesRead)
        if (!tables.has(name)) missing.emplace_back(name);
    if (missing.empty()) return;
    Text names = missing.front();
    for (std::size_t at = 1; at < missing.size(); ++at)
        names += (at + 1 == missing.size() ? " and " : ", ") + missing[at];
    card.remarks.push_back(names + (missing.size() == 1 ? " is not among them." : " are not among them."));
}

} // namespace

CheckedCard checkedCard(const std::vector<VendorTable>& found) {
    const Step step{"checkedCard"};
    const Tables tables{found};
    CheckedCard card;
    if (!tables.has(raceTable))
        card.refusal = Text{raceTable} + " is not among them, and there is no card without it.";
    if (!card.isRefused()) card.refusal = refusalOfForms(found);
    if (!card.isRefused()) checkRaces(tables.open(raceTable), card);
    if (card.isRefused()) return card;
    if (tables.has(horseTable) && tables.has(lineTable))
        checkLines(tables.open(lineTable), racesOfHorses(tables.open(horseTable)), card);
    checkPeople(tables, driverTable, "DN", card);
    checkPeople(tables, trainerTable, "TN", card);
    tellMissing(tables, card);
    tellDamage(found, card);
    return card;
}

} // namespace quillon
