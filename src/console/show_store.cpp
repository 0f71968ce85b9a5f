#include "console/show_store.h"

#include "card/fields.h"
#include "card/race_card.h"
#include "core/numbers.h"

#include <span>

namespace quillon {
namespace {

bool isEmpty(const Text& text) { return text.empty(); }
bool isEmpty(const TextCell& cell) { return cell.empty(); }
bool isEmpty(double number) { return number == 0; }
bool isEmpty(Integer number) { return number == 0; }

const Text& textOf(const Text& text) { return text; }
const Text& textOf(const TextCell& cell) { return cell.text(); }
Text textOf(double number) { return numberText(number); }
Text textOf(Integer number) { return std::to_string(number); }

// "RaceEntry(1,3)"
Text indexed(const char* table, std::span<const int> index) {
    Text name = table;
    char before = '(';
    for (const int part : index) {
        name += before;
        name += std::to_string(part);
        before = ',';
    }
    return name += ')';
}

// The next index of a table in the order that a reader counts, the last part fastest. False behind the last.
template <std::size_t parts>
bool advance(std::array<int, parts>& index, const std::array<int, parts>& extents) {
    for (std::size_t part = parts; part-- > 0;) {
        if (++index[part] < extents[part]) return true;
        index[part] = 0;
    }
    return false;
}

class StorePrinter {
public:
    explicit StorePrinter(Transcript& transcript) : transcript_(transcript) {}

    // The fields of a record; each one's name stands behind what `prefix()` gives.
    template <class List, class Record, class Prefix>
    void record(const List& fields, const Record& record, Prefix prefix) {
        forEachField(fields, record, [&](TextView field, const auto& value) {
            if (!isEmpty(value)) line(prefix() + Text{field}, textOf(value));
        });
    }

    // The cells of a table without records.
    template <class Element, int... extents>
    void cells(const char* name, const Table<Element, extents...>& table) {
        each(table, [&](const auto& index, const Element& value) { cell(name, index, value); });
    }

    template <class Value>
    void cell(const char* table, std::span<const int> index, const Value& value) {
        if (!isEmpty(value)) line(indexed(table, index), textOf(value));
    }

    // The records of a table, field by field.
    template <class Element, int... extents, class List>
    void records(const char* name, const Table<Element, extents...>& table, const List& fields) {
        each(table, [&](const auto& index, const Element& element) {
            record(fields, element, [&] { return indexed(name, index) + '.'; });
        });
    }

    template <class Element, int... extents, class Visit>
    void each(const Table<Element, extents...>& table, Visit visit) {
        typename Table<Element, extents...>::Index index{};
        do visit(index, table[index]);
        while (advance(index, table.extents));
    }

private:
    void line(Text name, TextView value) {
        name += '\t';
        name += value;
        transcript_.line(name);
    }

    Transcript& transcript_;
};

void showEntries(StorePrinter& printer) {
    printer.each(card.entry, [&](const auto& index, const RaceEntry& entry) {
        const auto name = [&] { return indexed("RaceEntry", index); };
        printer.record(raceEntryFields, entry, [&] { return name() + '.'; });
        printer.record(pastLineFields, entry.chosen, [&] { return name() + ".chosen."; });
    });
}

void showPastLines(StorePrinter& printer) {
    constexpr std::array extents{raceExtent, wideEntryExtent, lineExtent};
    std::array<int, extents.size()> index{};
    do
        printer.record(pastLineFields, card.pastLine.read(index[0], index[1], index[2]),
                       [&] { return indexed("PastLine", index) + '.'; });
    while (advance(index, extents));
}

void showLineCells(StorePrinter& printer) {
    std::array<int, card.lineCells.extents.size()> index{};
    do printer.cell("LineCells", index, Text{card.lineCells.read(index[0], index[1])});
    while (advance(index, card.lineCells.extents));
}

} // namespace

void showStore(Transcript& transcript) {
    StorePrinter printer{transcript};
    printer.record(cardScalars, card, [] { return Text{}; });
    printer.records("RaceInfo", card.raceInfo, raceInfoFields);
    showEntries(printer);
    showPastLines(printer);
    printer.records("DriverTable", card.driverTable, driverFields);
    printer.cells("TrainerTable", card.trainerTable);
    showLineCells(printer);
    printer.cells("rankEntry", card.rankEntry);
    printer.records("SelectionSet", card.selection, selectionFields);
    printer.cells("RaceOutcome", card.raceOutcome);
    printer.cells("PayoffRecord", card.payoffRecord);
    printer.cells("PickPayoff", card.pickPayoff);
    printer.cells("PickLegs", card.pickLegs);
    printer.cells("keyPicks", card.keyPicks);
    printer.cells("winHeat", card.winHeat);
    printer.cells("placeHeat", card.placeHeat);
    printer.cells("heatPost", card.heatPost);
    printer.cells("heatRating", card.heatRating);
    printer.record(lineCursorFields, cursor, [] { return Text{"LineCursor."}; });
}

} // namespace quillon
