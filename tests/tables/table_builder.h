// Tables for the tests, put together byte by byte. Every count of the header can be made to lie.
#pragma once

#include "core/text.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quillon {

/// A whole number in `bytes` bytes, lowest first.
inline Text bytesOf(std::uint64_t number, int bytes) {
    Text text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>(number >> (8 * i) & 0xFF);
    return text;
}

/// A text in a field, with blanks after it.
inline Text inField(TextView text, std::size_t width) {
    Text field{text};
    field.resize(width, ' ');
    return field;
}

struct BuiltField {
    Text name;
    char type = 'C';
    int width = 0;
    int decimals = 0;
};

struct BuiltTable {
    std::vector<BuiltField> fields;
    std::vector<Text> rows; ///< with their deletion flags

    int mark = 0x03;
    Text fieldsEnd = "\x0D";
    Text behindFieldsEnd{};
    Text end = "\x1A";
    std::optional<std::size_t> rowCount{};
    std::optional<std::size_t> headerLength{};
    std::optional<std::size_t> rowLength{};
    int nameLength = 11; ///< 32 in the longer descriptors of dBASE 7

    Text descriptor(const BuiltField& field) const {
        const bool level7 = nameLength == 32;
        Text bytes = field.name;
        bytes.resize(static_cast<std::size_t>(nameLength), '\0');
        bytes += field.type;
        if (!level7) bytes += bytesOf(0, 4);
        bytes += static_cast<char>(field.width);
        bytes += static_cast<char>(field.decimals + (field.width >> 8)); // of a long text the high byte
        bytes.resize(level7 ? 48 : 32, '\0');
        return bytes;
    }

    Text bytes() const {
        Text descriptors;
        std::size_t width = 1;
        for (const BuiltField& field : fields) {
            descriptors += descriptor(field);
            width += static_cast<std::size_t>(field.width);
        }
        const std::size_t headLength = nameLength == 32 ? 68 : 32;
        const std::size_t length =
            headLength + descriptors.size() + fieldsEnd.size() + behindFieldsEnd.size();
        Text head{static_cast<char>(mark)};
        head += "\x7E\x03\x0E"; // written on March 14th, 2026
        head += bytesOf(rowCount.value_or(rows.size()), 4);
        head += bytesOf(headerLength.value_or(length), 2);
        head += bytesOf(rowLength.value_or(width), 2);
        head.resize(headLength, '\0');
        Text all = head + descriptors + fieldsEnd + behindFieldsEnd;
        for (const Text& row : rows) all += row;
        return all + end;
    }
};

} // namespace quillon
