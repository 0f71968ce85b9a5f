#include "table_text.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <vector>

namespace samples {

namespace {

constexpr unsigned longestText = 254; // widths that dBASE itself allows
constexpr unsigned longestNumber = 20;
constexpr std::size_t longestName = 10;

// Windows-1252 bytes 80 to 9F; 0 where the code page has no character.
constexpr std::array<std::uint32_t, 32> codePageMiddle{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,      //
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178, //
};

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const auto end = text.find(separator);
        parts.push_back(trimmed(text.substr(0, end)));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

// The whole text as a number of the given base, or nothing.
std::optional<unsigned> wholeNumber(std::string_view text, int base = 10) {
    unsigned value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::optional<char> codePageByte(std::uint32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<char>(codePoint);
    for (std::size_t i = 0; i < codePageMiddle.size(); ++i)
        if (codePageMiddle[i] != 0 && codePageMiddle[i] == codePoint) return static_cast<char>(0x80 + i);
    return std::nullopt;
}

// Takes one character off the front of UTF-8 text; nothing when the bytes are no UTF-8. Longer than three
// bytes is never in the code page and is refused as well.
std::optional<std::uint32_t> takeCodePoint(std::string_view& text) {
    const auto byte = [&](std::size_t i) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(text[i]));
    };
    const std::uint32_t lead = byte(0);
    const std::size_t size = lead < 0x80 ? 1 : lead >> 5 == 0b110 ? 2 : lead >> 4 == 0b1110 ? 3 : 0;
    if (size == 0 || size > text.size()) return std::nullopt;
    std::uint32_t codePoint = size == 1 ? lead : size == 2 ? lead & 0x1F : lead & 0x0F;
    for (std::size_t i = 1; i < size; ++i) {
        if (byte(i) >> 6 != 0b10) return std::nullopt;
        codePoint = codePoint << 6 | (byte(i) & 0x3F);
    }
    text.remove_prefix(size);
    return codePoint;
}

// The bytes of a cell: escapes resolved, the rest brought into the code page.
std::optional<std::string> cellBytes(std::string_view text) {
    constexpr std::size_t escapeSize = 4; // \xBA
    std::string bytes;
    while (!text.empty()) {
        if (text.starts_with("\\x")) {
            const auto value = wholeNumber(text.substr(2, 2), 16);
            if (text.size() < escapeSize || !value) return std::nullopt;
            bytes += static_cast<char>(*value);
            text.remove_prefix(escapeSize);
            continue;
        }
        const auto codePoint = takeCodePoint(text);
        const auto byte = codePoint ? codePageByte(*codePoint) : std::nullopt;
        if (!byte) return std::nullopt;
        bytes += *byte;
    }
    return bytes;
}

bool isFieldName(std::string_view name) {
    return !name.empty() && name.size() <= longestName &&
           name.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_") == std::string_view::npos;
}

// "DISTANCE N6.4" as a field, or nothing when it is none.
std::optional<Field> readField(std::string_view text) {
    const auto blank = text.find(' ');
    if (blank == std::string_view::npos || !isFieldName(text.substr(0, blank))) return std::nullopt;
    const auto form = trimmed(text.substr(blank));
    Field field{.name = std::string{text.substr(0, blank)}, .type = form.front()};
    const auto size = form.substr(1);
    if (const unsigned width = fixedWidth(field.type); width > 0) {
        field.width = width;
        return size.empty() ? std::optional{field} : std::nullopt;
    }
    const auto point = size.find('.');
    const auto width = wholeNumber(size.substr(0, point));
    const auto decimals = point == std::string_view::npos ? 0U : wholeNumber(size.substr(point + 1));
    if (!width || !decimals || *width == 0) return std::nullopt;
    field.width = *width;
    field.decimals = *decimals;
    const bool isText = field.type == 'C' && field.width <= longestText && field.decimals == 0;
    const bool isNumber = (field.type == 'N' || field.type == 'F') && field.width <= longestNumber &&
                          (field.decimals == 0 || field.decimals + 2 <= field.width);
    return isText || isNumber ? std::optional{field} : std::nullopt;
}

// Fills the table's fields; a message when the line can't be read.
std::optional<std::string> readFields(std::string_view line, Table& table) {
    for (const auto part : split(line, '|')) {
        const auto field = readField(part);
        if (!field) return "no field: \"" + std::string{part} + "\"";
        table.fields.push_back(*field);
    }
    return std::nullopt;
}

// Adds a row to the table; a message when the line can't be read.
std::optional<std::string> readRow(std::string_view line, Table& table) {
    Row row;
    if (line.starts_with('*')) {
        row.deleted = true;
        line.remove_prefix(1);
    }
    const auto parts = split(line, '|');
    if (parts.size() != table.fields.size())
        return std::to_string(parts.size()) + " cells for " + std::to_string(table.fields.size()) + " fields";
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const Field& field = table.fields[i];
        auto cell = cellBytes(parts[i]);
        if (!cell) return field.name + ": not in the code page: \"" + std::string{parts[i]} + "\"";
        const bool isBinary = field.type == 'I' || field.type == 'B' || field.type == 'Y';
        if (!isBinary && cell->size() > field.width)
            return field.name + ": wider than its field: \"" + std::string{parts[i]} + "\"";
        row.cells.push_back(std::move(*cell));
    }
    table.rows.push_back(std::move(row));
    return std::nullopt;
}

std::string_view takeLine(std::string_view& text) {
    const auto end = text.find('\n');
    auto line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    return trimmed(line);
}

} // namespace

std::variant<Table, TextError> readTableText(std::string_view text) {
    Table table;
    std::size_t number = 0;
    while (!text.empty()) {
        const auto line = takeLine(text);
        ++number;
        if (line.empty() || line.starts_with('#')) continue;
        const auto wrong = table.fields.empty() ? readFields(line, table) : readRow(line, table);
        if (wrong) return TextError{number, *wrong};
    }
    if (table.fields.empty()) return TextError{number, "no line that names the fields"};
    return table;
}

} // namespace samples
