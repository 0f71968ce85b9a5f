#include "dbf_writer.h"

#include "file_bytes.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <string_view>

namespace samples {

namespace {

constexpr std::uint8_t foxPro3 = 0x30;
constexpr std::size_t headSize = 32;        // also the size of one field's description
constexpr std::size_t foxProBacklink = 263; // room for the path of a database that owns the table
constexpr std::size_t nameSize = 11;        // field name with its closing zero
constexpr char headerEnd = 0x0D;
constexpr char fileEnd = 0x1A;
constexpr char codePage1252 = 0x03;

// Appends the lowest `size` bytes of the value, least significant first.
void appendLittleEndian(std::string& out, std::uint64_t value, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) out += static_cast<char>(value >> (8 * i) & 0xFF);
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

double numberOr0(std::string_view text) {
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

bool isPlainDecimal(std::string_view text) {
    const auto digits = text.substr(text.starts_with('-') ? 1 : 0);
    return digits.find_first_not_of("0123456789.") == std::string_view::npos &&
           digits.find_first_of("0123456789") != std::string_view::npos &&
           digits.find('.') == digits.rfind('.');
}

// Decimal text with the field's places filled up with zeros, right-aligned.
std::string numberCell(std::string_view cell, const Field& field) {
    std::string text{trimmed(cell)};
    if (field.decimals > 0 && isPlainDecimal(text)) {
        if (text.find('.') == std::string::npos) text += '.';
        const auto places = text.size() - text.find('.') - 1;
        if (places < field.decimals) text.append(field.decimals - places, '0');
    }
    if (text.size() > field.width) return std::string(field.width, '*');
    return std::string(field.width - text.size(), ' ') + text;
}

std::string textCell(std::string_view cell, const Field& field) {
    std::string text{cell.substr(0, field.width)};
    text.resize(field.width, ' ');
    return text;
}

// The stored value of a binary field, least significant byte first.
std::uint64_t binaryValue(std::string_view cell, char type) {
    constexpr double currencyUnits = 10000;
    const double value = numberOr0(trimmed(cell));
    if (type == 'B') return std::bit_cast<std::uint64_t>(value);
    return static_cast<std::uint64_t>(std::llround(type == 'Y' ? value * currencyUnits : value));
}

void appendCell(std::string& out, std::string_view cell, const Field& field) {
    switch (field.type) {
    case 'N':
    case 'F': out += numberCell(cell, field); break;
    case 'I':
    case 'B':
    case 'Y': appendLittleEndian(out, binaryValue(cell, field.type), field.width); break;
    default: out += textCell(cell, field);
    }
}

std::size_t recordSize(const Table& table) {
    std::size_t size = 1; // the deletion mark
    for (const Field& field : table.fields) size += field.width;
    return size;
}

std::size_t headerSize(const Table& table, const TableForm& form) {
    return headSize + headSize * table.fields.size() + 1 + (form.version == foxPro3 ? foxProBacklink : 0);
}

void appendHead(std::string& out, const Table& table, const TableForm& form) {
    constexpr int firstYear = 1900;
    out += static_cast<char>(form.version);
    out += static_cast<char>(static_cast<int>(form.lastUpdate.year()) - firstYear);
    out += static_cast<char>(static_cast<unsigned>(form.lastUpdate.month()));
    out += static_cast<char>(static_cast<unsigned>(form.lastUpdate.day()));
    appendLittleEndian(out, table.rows.size(), 4);
    appendLittleEndian(out, headerSize(table, form), 2);
    appendLittleEndian(out, recordSize(table), 2);
    out.append(17, '\0'); // transactions, encryption, users, index flag: none
    out += codePage1252;
    out.append(2, '\0');
}

void appendField(std::string& out, const Field& field, const TableForm& form, std::size_t offset) {
    std::string name = field.name.substr(0, nameSize - 1);
    name.resize(nameSize, '\0');
    out += name;
    out += field.type;
    appendLittleEndian(out, form.version == foxPro3 ? offset : 0, 4); // only FoxPro says where a field stands
    out += static_cast<char>(field.width);
    out += static_cast<char>(field.decimals);
    out.append(14, '\0');
}

} // namespace

unsigned fixedWidth(char type) {
    switch (type) {
    case 'D':
    case 'B':
    case 'Y': return 8;
    case 'I': return 4;
    case 'L': return 1;
    default: return 0;
    }
}

std::string tableBytes(const Table& table, const TableForm& form) {
    std::string out;
    out.reserve(headerSize(table, form) + recordSize(table) * table.rows.size() + 1);
    appendHead(out, table, form);
    std::size_t offset = 1;
    for (const Field& field : table.fields) {
        appendField(out, field, form, offset);
        offset += field.width;
    }
    out += headerEnd;
    if (form.version == foxPro3) out.append(foxProBacklink, '\0');
    for (const Row& row : table.rows) {
        out += row.deleted ? '*' : ' ';
        for (std::size_t i = 0; i < table.fields.size(); ++i)
            appendCell(out, i < row.cells.size() ? std::string_view{row.cells[i]} : std::string_view{},
                       table.fields[i]);
    }
    if (form.endMark) out += fileEnd;
    return out;
}

bool writeTable(const std::filesystem::path& path, const Table& table, const TableForm& form) {
    return writeFile(path, tableBytes(table, form));
}

} // namespace samples
