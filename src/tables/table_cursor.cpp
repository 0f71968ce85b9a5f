#include "tables/table_cursor.h"

#include "core/failure.h"

#include <algorithm>

namespace quillon {
namespace {

constexpr unsigned char lower(char c) {
    return static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

} // namespace

std::size_t TableCursor::NameHash::operator()(TextView name) const {
    constexpr std::size_t multiplier = 31;
    std::size_t hash = name.size();
    for (const char c : name) hash = hash * multiplier + lower(c);
    return hash;
}

void TableCursor::open(TextView fileName) {
    if (auto content = fileContent({Folder::sourceTables, Text{fileName}})) {
        openContent(std::move(*content), fileName);
        return;
    }
    *this = TableCursor{};
    OpenedTable{.fileName = Text{fileName}}.tell("the table is missing");
}

void TableCursor::openContent(Text content, TextView fileName) {
    auto table = std::make_shared<OpenedTable>();
    table->fileName = fileName;
    table->read(std::move(content));
    for (const Text& damage : table->format.damage) table->tell(damage);
    table_ = std::move(table);
    row_ = 1;
}

void TableCursor::OpenedTable::read(Text bytes) {
    static std::uint64_t opened = 0;
    serial = ++opened;
    content = std::move(bytes);
    format = tableFormat(content);
    const auto& fields = format.fields;
    for (std::size_t i = 0; i < fields.size(); ++i)
        numbers.try_emplace(fields[i].name, static_cast<int>(i) + 1); // of two the first wins
    findRows();
}

// Notes where the rows lie that are not deleted.
void TableCursor::OpenedTable::findRows() {
    rows.reserve(format.rows);
    for (std::size_t i = 0; i < format.rows; ++i) {
        const std::size_t start = format.firstRow + i * format.rowLength;
        if (content[start] == endOfTable) {
            format.damage.push_back("the end mark stands in front of row " + std::to_string(i + 1));
            return;
        }
        if (content[start] != deletedFlag) rows.push_back(start);
    }
}

void TableCursor::OpenedTable::tell(TextView damage) const { reportFault(fileName + ": " + Text{damage}); }

void TableCursor::beginAt(int row) {
    if (!table_) return;
    auto table = std::make_shared<OpenedTable>(*table_);
    table->rows.erase(table->rows.begin(), table->rows.begin() + std::clamp(row - 1, 0, rowCount()));
    table_ = std::move(table);
    MoveFirst();
}

void TableCursor::MoveFirst() { row_ = 1; }

void TableCursor::MoveNext() {
    if (!Eof()) ++row_;
}

void TableCursor::MoveLast() { row_ = std::max(rowCount(), 1); }

bool TableCursor::Eof() const { return row_ > rowCount(); }

int TableCursor::fieldNumber(TextView name) const {
    if (!table_) return 0;
    if (const auto found = table_->numbers.find(name); found != table_->numbers.end()) return found->second;
    const bool told = std::any_of(table_->missing.begin(), table_->missing.end(),
                                  [=](const Text& other) { return sameIgnoringCase(name, other); });
    if (table_->format.fields.empty() || told) return 0; // of a table that isn't one all fields are missing
    table_->missing.emplace_back(name);
    table_->tell("no field " + Text{name});
    return 0;
}

Text TableCursor::field(int number) const { return field(row_, number); }

void TableCursor::trimmedFieldTo(Text& text, int number) const {
    const auto [form, bytes] = stored(row_, number);
    if (form == FieldForm::characters) {
        std::size_t length = bytes.size();
        while (length > 0 && (bytes[length - 1] == blank || bytes[length - 1] == '\0')) --length;
        text.assign(bytes.data(), length);
        return;
    }
    readStored(form, bytes, text);
    while (text.ends_with(blank)) text.pop_back();
}

int TableCursor::rowCount() const { return table_ ? static_cast<int>(table_->rows.size()) : 0; }

int TableCursor::fieldCount() const { return table_ ? static_cast<int>(table_->format.fields.size()) : 0; }

TextView TableCursor::fieldName(int number) const {
    if (number < 1 || number > fieldCount()) return {};
    return table_->format.fields[static_cast<std::size_t>(number) - 1].name;
}

Text TableCursor::field(int row, int number) const {
    Text text;
    const auto [form, bytes] = stored(row, number);
    readStored(form, bytes, text);
    return text;
}

TableCursor::StoredField TableCursor::stored(int row, int number) const {
    if (row < 1 || row > rowCount() || number < 1 || number > fieldCount()) return {};
    const TableField& field = table_->format.fields[static_cast<std::size_t>(number) - 1];
    const std::size_t start = table_->rows[static_cast<std::size_t>(row) - 1] + field.start;
    return {field.form, {table_->content.data() + start, field.width}};
}

int TableCursor::row() const { return row_; }

} // namespace quillon
