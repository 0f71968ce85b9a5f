#include "console/show_store.h"

#include "card/fields.h"
#include "card/race_card.h"
#include "core/numbers.h"

#include <span>
#include <type_traits>

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

// The next index of a table in the order that a reader counts, the last part fastest. False after the last.
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

    // The fields of a record; each one's name stands after what `prefix()` gives.
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

// A table of the store, by what it holds.
template <class Record, int... extents>
constexpr auto fieldsOf(const Table<Record, extents...>&) {
    if constexpr (std::is_same_v<Record, RaceInfo>) return raceInfoFields;
    if constexpr (std::is_same_v<Record, Driver>) return driverFields;
    if constexpr (std::is_same_v<Record, Selection>) return selectionFields;
}

template <class Record, int... extents>
void show(StorePrinter& printer, const char* name, const Table<Record, extents...>& table) {
    if constexpr (std::is_void_v<decltype(fieldsOf(table))>)
        printer.cells(name, table);
    else
        printer.records(name, table, fieldsOf(table));
}

void show(StorePrinter& printer, const char* table,
          const Table<RaceEntry, raceExtent, entryExtent>& entries) {
    printer.each(entries, [&](const auto& index, const RaceEntry& entry) {
        const auto name = [&] { return indexed(table, index); };
        printer.record(raceEntryFields, entry, [&] { return name() + '.'; });
        printer.record(pastLineFields, entry.chosen, [&] { return name() + ".chosen."; });
    });
}

void show(StorePrinter& printer, const char* table, const PastLineTable& lines) {
    constexpr std::array extents{raceExtent, wideEntryExtent, lineExtent};
    std::array<int, extents.size()> index{};
    do
        printer.record(pastLineFields, lines.read(index[0], index[1], index[2]),
                       [&] { return indexed(table, index) + '.'; });
    while (advance(index, extents));
}

void show(StorePrinter& printer, const char* table, const LineCellTable& lines) {
    std::array<int, LineCellTable::extents.size()> index{};
    do printer.cell(table, index, Text{lines.read(index[0], index[1])});
    while (advance(index, LineCellTable::extents));
}

} // namespace

void showStore(Transcript& transcript) {
    StorePrinter printer{transcript};
    const RaceCard& store = card;
    printer.record(cardScalars, store, [] { return Text{}; });
    forEachField(cardTables, store,
                 [&](TextView name, const auto& table) { show(printer, name.data(), table); });
    printer.record(lineCursorFields, cursor, [] { return Text{"LineCursor."}; });
}

} // namespace quillon
