#include "results/card_json.h"

#include "card/card_files.h"
#include "card/columns.h"
#include "card/fields.h"
#include "card/race_card.h"
#include "core/json_writer.h"
#include "core/numbers.h"
#include "reports/bet_mark.h"
#include "reports/ranked_row.h"
#include "results/entry_marks.h"
#include "screen/race_views.h"
#include "screen/screen.h"

#include <algorithm>
#include <array>

namespace quillon {
namespace {

// clang-format off
struct NamedCell { int cell; const char* name; };
constexpr std::array payoffCells{
    NamedCell{PayoffCell::win,         "win"},
    NamedCell{PayoffCell::place1,      "place1"},
    NamedCell{PayoffCell::show1,       "show1"},
    NamedCell{PayoffCell::place2,      "place2"},
    NamedCell{PayoffCell::show2,       "show2"},
    NamedCell{PayoffCell::show3,       "show3"},
    NamedCell{PayoffCell::exacta,      "exacta"},
    NamedCell{PayoffCell::trifecta,    "trifecta"},
    NamedCell{PayoffCell::superfecta,  "superfecta"},
    NamedCell{PayoffCell::deadHeat,    "deadHeat"},
    NamedCell{PayoffCell::dailyDouble, "dailyDouble"},
    NamedCell{PayoffCell::refunds,     "refunds"},
};
// Of a past line, beside the fields that the vendor's table has of it.
constexpr std::array furtherLineCells{
    NamedCell{DataColumn::odds,   "odds"},
    NamedCell{DataColumn::driver, "driver"},
};
// clang-format on

void addText(JsonWriter& json, TextView name, TextView text) {
    if (!trimmed(text).empty()) json.member(name, trimmed(text));
}

void addNumber(JsonWriter& json, TextView name, TextView text) { json.member(name, numberIn(text)); }

void addConditions(JsonWriter& json, const RaceInfo& info) {
    json.key("conditions");
    json.beginObject();
    addText(json, "postTime", info.postTime);
    addText(json, "gait", info.gait);
    addText(json, "distance", info.distance);
    addText(json, "purse", info.purse);
    addText(json, "classText", info.classText);
    addText(json, "todaysCr", info.todaysCr);
    addText(json, "wagering", info.wagering);
    addText(json, "trackCode", info.trackCode);
    addText(json, "trackInfo", info.trackInfo);
    json.endObject();
}

void addSelection(JsonWriter& json, int race, int place) {
    const RankedRow row = rankedRow(race, place);
    if (trimmed(row.pn).empty()) return;
    json.beginObject();
    json.member("place", "S" + std::to_string(place));
    addText(json, "number", row.pn);
    addText(json, "horse", row.name);
    addNumber(json, "rating", row.pr);
    json.endObject();
}

void addSelections(JsonWriter& json, int race) {
    json.key("selections");
    json.beginArray();
    for (int place = 1; place <= rankedPlaces; ++place) addSelection(json, race, place);
    json.endArray();
    const ShownMargin margin = shownMargin(race);
    addNumber(json, "margin", margin.margin);
    addText(json, "betMark", margin.mark);
}

void addResults(JsonWriter& json, int race) {
    json.key("results");
    json.beginObject();
    json.key("finish");
    json.beginArray();
    for (int cell = OutcomeCell::r1; cell <= OutcomeCell::r4; ++cell)
        json.text(trimmed(card.raceOutcome[{race, cell}]));
    json.endArray();
    json.key("payoffs");
    json.beginObject();
    for (const NamedCell& row : payoffCells) addText(json, row.name, card.payoffRecord[{race, row.cell}]);
    json.endObject();
    json.key("pickPayoffs"); // by the number of legs, at the race of the last one
    json.beginObject();
    for (int legs = 1; legs < card.pickPayoff.extents[1]; ++legs)
        addText(json, std::to_string(legs), card.pickPayoff[{race, legs}]);
    json.endObject();
    json.endObject();
}

void addChosenLine(JsonWriter& json, const PastLine& line) {
    json.key("line");
    json.beginObject();
    for (const LineField& field : lineFields)
        if (isChosen(field)) addText(json, field.name, line.*field.cell);
    json.endObject();
}

void addPastLine(JsonWriter& json, const Grid& lines, int row) {
    json.beginObject();
    for (const LineField& field : lineFields) addText(json, field.name, lines.text(row, field.dataColumn));
    for (const NamedCell& further : furtherLineCells)
        addText(json, further.name, lines.text(row, further.cell));
    addNumber(json, "rating", lines.text(row, DataColumn::rating));
    json.endObject();
}

// A recalled card has them in the views alone.
void addPastLines(JsonWriter& json, int race, int entry) {
    if (race > ratedRaces) return;
    const Grid& lines = dataViewOf(race);
    const Text post = std::to_string(entry);
    bool any = false;
    for (int row = Grid::firstRow; row < lines.rows(); ++row) {
        if (trimmed(lines.text(row, DataColumn::post)) != post) continue;
        if (!any) json.key("pastLines");
        if (!any) json.beginArray();
        any = true;
        addPastLine(json, lines, row);
    }
    if (any) json.endArray();
}

void addEntry(JsonWriter& json, int race, int at) {
    const RaceEntry& entry = card.entry[{race, at}];
    if (trimmed(entry.horseName).empty()) return;
    const EntryMarks marks = entryMarks(race, at);
    json.beginObject();
    json.member("entry", std::optional<double>{at});
    addText(json, "number", entry.programNumber);
    addText(json, "horse", entry.horseName);
    addText(json, "driver", entry.chosenDriver);
    addText(json, "driverUdr", entry.driverUdr);
    addText(json, "trainer", entry.trainerName);
    addText(json, "morningLine", entry.morningOdds);
    addNumber(json, "rating", entry.rating);
    json.key("scratched");
    json.boolean(marks.scratched);
    json.key("removed");
    json.boolean(marks.removed);
    addChosenLine(json, entry.chosen);
    addPastLines(json, race, at);
    json.endObject();
}

void addRace(JsonWriter& json, int race) {
    json.beginObject();
    json.member("race", std::optional<double>{race});
    addText(json, "label", card.raceInfo[{race}].label);
    addConditions(json, card.raceInfo[{race}]);
    addSelections(json, race);
    addResults(json, race);
    json.key("entries");
    json.beginArray();
    for (int entry = 1; entry < entryExtent; ++entry) addEntry(json, race, entry);
    json.endArray();
    json.endObject();
}

} // namespace

std::string cardAsJson() {
    if (screen.mode == CardMode::none) return {};
    const TextView name = cardNameOf(card.cardFileName);
    JsonWriter json;
    json.beginObject();
    json.key("card");
    json.beginObject();
    json.member("name", name);
    json.member("track", name.substr(0, name.find('_')));
    json.member("date", trimmed(card.cardDate));
    json.endObject();
    json.key("races");
    json.beginArray();
    for (int race = 1; race <= std::min<int>(card.raceCount, raceExtent - 1); ++race) addRace(json, race);
    json.endArray();
    json.endObject();
    return json.take();
}

} // namespace quillon
