#include "app/table_export.h"

#include "core/failure.h"
#include "core/json_writer.h"
#include "core/separated_text.h"
#include "reports/card_overview.h"
#include "screen/analysis_tables.h"
#include "screen/ports.h"

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

namespace quillon {
namespace {

using Form = TableExport::Form;
using Cells = std::vector<Text>;

// The first word of a text, which loses it and the blank after it.
TextView takeWord(TextView& text) {
    const TextView word = text.substr(0, text.find(blank));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    return word;
}

// --- Which table --------------------------------------------------------------------------------------------

template <std::size_t count>
std::optional<Grid> viewOf(const std::array<Grid, count>& views, TextView number) {
    for (std::size_t at = 0; at < count; ++at)
        if (number == std::to_string(at)) return views[at];
    return std::nullopt;
}

std::optional<Grid> raceView(TextView& rest) { return viewOf(screen.raceView, takeWord(rest)); }
std::optional<Grid> dataView(TextView& rest) { return viewOf(screen.dataView, takeWord(rest)); }
std::optional<Grid> overview(TextView&) { return cardOverview(); }

// A table that is named by more than a word takes the others off what is left.
struct NamedTable {
    TextView name;
    std::optional<Grid> (*take)(TextView& rest);
};
constexpr std::array namedTables{
    NamedTable{"raceview", raceView},
    NamedTable{"dataview", dataView},
    NamedTable{"overview", overview},
};

std::optional<Grid> takeTable(TextView& words) {
    const TextView name = takeWord(words);
    for (const NamedTable& row : namedTables)
        if (row.name == name) return row.take(words);
    for (const AnalysisTable& row : analysisTables)
        if (row.name == name) return screen.*row.grid;
    return std::nullopt;
}

// --- In which form ------------------------------------------------------------------------------------------

struct Ending {
    TextView ending;
    Form form;
};
constexpr std::array endings{Ending{".csv", Form::csv}, Ending{".tsv", Form::tsv},
                             Ending{".json", Form::json}};

std::optional<Form> formOf(TextView file) {
    for (const Ending& row : endings)
        if (sameIgnoringCase(rightOf(file, static_cast<int>(row.ending.size())), row.ending)) return row.form;
    return std::nullopt;
}

// --- Writing ------------------------------------------------------------------------------------------------

// Rows that are made when they are looked at are not made for this.
int columnsWithText(const Grid& table) {
    if (table.hasMadeRows()) return table.columns();
    int columns = 0;
    for (int row = 0; row < table.rows(); ++row)
        for (int column = columns; column < table.columns(); ++column)
            if (!table.text(row, column).empty()) columns = column + 1;
    return columns;
}

Cells cellsOf(const Grid& table, int row, int columns) {
    Cells cells;
    cells.reserve(static_cast<std::size_t>(columns));
    for (int column = 0; column < columns; ++column) cells.push_back(table.text(row, column));
    return cells;
}

bool hasText(const Cells& cells) {
    return std::any_of(cells.begin(), cells.end(), [](const Text& cell) { return !cell.empty(); });
}

// Each row from the heads to the last one with a text.
void forEachRow(const Grid& table, const std::function<void(const Cells& cells)>& visit) {
    const int columns = columnsWithText(table);
    int empty = 0;
    for (int row = 0; row < table.rows(); ++row) {
        const Cells cells = cellsOf(table, row, columns);
        if (!hasText(cells)) {
            ++empty;
            continue;
        }
        for (; empty > 0; --empty) visit(Cells(cells.size()));
        visit(cells);
    }
}

void writeRecords(PreparedFile& file, const Grid& table, Separator separator) {
    forEachRow(table, [&](const Cells& cells) { file.write(separatedRecord(cells, separator)); });
}

void addCells(JsonWriter& json, const Cells& cells) {
    json.beginArray();
    for (const Text& cell : cells) json.text(cell);
    json.endArray();
}

void writeJson(PreparedFile& file, const TableExport& wanted) {
    JsonWriter json;
    json.beginObject();
    json.member("table", wanted.part);
    json.key("columns");
    bool areHeads = true;
    forEachRow(wanted.table, [&](const Cells& cells) {
        addCells(json, cells);
        if (areHeads) json.key("rows");
        if (areHeads) json.beginArray();
        areHeads = false;
        file.write(json.take());
    });
    if (areHeads) { // of a table without any text
        addCells(json, {});
        json.key("rows");
        json.beginArray();
    }
    json.endArray();
    json.endObject();
    file.write(json.take() + "\n");
}

void write(const TableExport& wanted) {
    PreparedFile file{wanted.file};
    switch (wanted.form) {
    case Form::csv: writeRecords(file, wanted.table, Separator::comma); break;
    case Form::tsv: writeRecords(file, wanted.table, Separator::tab); break;
    case Form::json: writeJson(file, wanted); break;
    }
    file.putInPlace();
}

} // namespace

std::optional<TableExport> tableExport(TextView words) {
    TextView rest = trimmed(words);
    auto table = takeTable(rest);
    const TextView file = trimmed(rest);
    const auto form = formOf(file);
    if (!table || !form) return std::nullopt;
    const TextView part = trimmed(words).substr(0, trimmed(words).size() - rest.size());
    return TableExport{Text{trimmed(part)}, std::move(*table), *form, {Folder::given, Text{file}}};
}

void Export(const Text& words) {
    const Step step{"Export"};
    const auto wanted = tableExport(words);
    if (!wanted) fail("nothing to export: " + words);
    if (!attempt([&] { write(*wanted); })) ports.error("File can't be written: " + shownPath(wanted->file));
}

} // namespace quillon
