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
    fileName_ = fileName;
    tell("the table is missing");
}

void TableCursor::openContent(Text content, TextView fileName) {
    static std::uint64_t opened = 0;
    *this = TableCursor{};
    serial_ = ++opened;
    fileName_ = fileName;
    content_ = std::move(content);
    format_ = tableFormat(content_);
    for (const Text& damage : format_.damage) tell(damage);

    for (std::size_t i = 0; i < format_.fields.size(); ++i)
        numbers_.try_emplace(format_.fields[i].name, static_cast<int>(i) + 1); // of two the first wins
    findRows();
}

// Notes where the rows lie that are not deleted.
void TableCursor::findRows() {
    rows_.reserve(format_.rows);
    for (std::size_t i = 0; i < format_.rows; ++i) {
        const std::size_t start = format_.firstRow + i * format_.rowLength;
        if (content_[start] == endOfTable) {
            tell("the end mark stands in front of row " + std::to_string(i + 1));
            return;
        }
        if (content_[start] != deletedFlag) rows_.push_back(start);
    }
}

void TableCursor::tell(TextView damage) const { reportFault(fileName_ + ": " + Text{damage}); }

void TableCursor::beginAt(int row) {
    rows_.erase(rows_.begin(), rows_.begin() + std::clamp(row - 1, 0, rowCount()));
    MoveFirst();
}

void TableCursor::MoveFirst() { row_ = 1; }

void TableCursor::MoveNext() {
    if (!Eof()) ++row_;
}

void TableCursor::MoveLast() { row_ = std::max(rowCount(), 1); }

bool TableCursor::Eof() const { return row_ > rowCount(); }

int TableCursor::fieldNumber(TextView name) const {
    if (const auto found = numbers_.find(name); found != numbers_.end()) return found->second;
    const bool told = std::any_of(missing_.begin(), missing_.end(),
                                  [=](const Text& other) { return sameIgnoringCase(name, other); });
    if (format_.fields.empty() || told) return 0; // of a table that isn't one all fields are missing
    missing_.emplace_back(name);
    tell("no field " + Text{name});
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

int TableCursor::rowCount() const { return static_cast<int>(rows_.size()); }

int TableCursor::fieldCount() const { return static_cast<int>(format_.fields.size()); }

TextView TableCursor::fieldName(int number) const {
    if (number < 1 || number > fieldCount()) return {};
    return format_.fields[static_cast<std::size_t>(number) - 1].name;
}

Text TableCursor::field(int row, int number) const {
    Text text;
    const auto [form, bytes] = stored(row, number);
    readStored(form, bytes, text);
    return text;
}

TableCursor::StoredField TableCursor::stored(int row, int number) const {
    if (row < 1 || row > rowCount() || number < 1 || number > fieldCount()) return {};
    const TableField& field = format_.fields[static_cast<std::size_t>(number) - 1];
    const std::size_t start = rows_[static_cast<std::size_t>(row) - 1] + field.start;
    return {field.form, {content_.data() + start, field.width}};
}

int TableCursor::row() const { return row_; }

} // namespace quillon
