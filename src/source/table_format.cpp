#include "source/table_format.h"

#include "core/numbers.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstdint>

namespace quillon {
namespace {

// Places in the header and in a field's descriptor, counted from 0.
struct HeaderShape {
    std::size_t headLength;
    std::size_t descriptorLength;
    std::size_t nameLength;
    std::size_t typePlace;
    std::size_t widthPlace;
    std::size_t decimalsPlace; ///< of a character field the high byte of its width
};

// clang-format off
constexpr HeaderShape usualShape {32, 32, 11, 11, 16, 17};
constexpr HeaderShape level7Shape{68, 48, 32, 32, 33, 34};
// clang-format on

constexpr std::size_t rowCountPlace = 4;
constexpr std::size_t headerLengthPlace = 8;
constexpr std::size_t rowLengthPlace = 10;
constexpr std::size_t countsEnd = 12;
constexpr char endOfFields = '\x0D';
constexpr char endOfTable = '\x1A';

enum class Family { dBase, foxPro3, level7 };

struct Maker {
    unsigned char mark; ///< the first byte of the file
    Family family;
};

constexpr Maker makers[] = {
    {0x03, Family::dBase},   // dBASE III, IV and FoxBASE+ without memos
    {0x05, Family::dBase},   // dBASE V
    {0x43, Family::dBase},   // dBASE IV SQL table
    {0x63, Family::dBase},   // dBASE IV SQL system table
    {0x7B, Family::dBase},   // dBASE IV with memos
    {0x83, Family::dBase},   // dBASE III with memos
    {0x8B, Family::dBase},   // dBASE IV with memos
    {0x8E, Family::dBase},   // dBASE IV SQL table with memos
    {0xCB, Family::dBase},   // dBASE IV SQL table with memos
    {0xE5, Family::dBase},   // Clipper with memos
    {0xF5, Family::dBase},   // FoxPro 2 with memos
    {0xFB, Family::dBase},   // FoxBASE
    {0x30, Family::foxPro3}, // FoxPro 3 and later
    {0x31, Family::foxPro3}, // with self-counting fields
    {0x32, Family::foxPro3}, // with fields of varying width
    {0x04, Family::level7},  // dBASE 7
    {0x8C, Family::level7},  // dBASE 7 with memos
};

constexpr std::size_t anyWidth = 0;

struct TypeRule {
    char type;
    FieldForm form;
    std::size_t width; ///< the only one that can be read
};

constexpr TypeRule usualTypes[] = {
    {'C', FieldForm::characters, anyWidth},
    {'V', FieldForm::characters, anyWidth},
    {'N', FieldForm::digits, anyWidth},
    {'F', FieldForm::digits, anyWidth},
    {'D', FieldForm::date, anyWidth},
    {'L', FieldForm::logical, 1},
    {'I', FieldForm::integer32, 4},
    {'Y', FieldForm::currency, 8},
    {'T', FieldForm::dayAndTime, 8},
    {'M', FieldForm::unread, anyWidth}, // memos, pictures and objects lie in a file of their own
    {'G', FieldForm::unread, anyWidth},
    {'P', FieldForm::unread, anyWidth},
    {'W', FieldForm::unread, anyWidth},
    {'Q', FieldForm::unread, anyWidth},
    {'B', FieldForm::unread, anyWidth},
};

// Where a family differs from the usual.
constexpr TypeRule foxPro3Types[] = {
    {'B', FieldForm::real64, 8},
};
constexpr TypeRule level7Types[] = {
    {'I', FieldForm::orderedInteger32, 4},
    {'+', FieldForm::orderedInteger32, 4},
    {'O', FieldForm::orderedReal64, 8},
    {'@', FieldForm::unread, 8},
};

constexpr char hiddenType = '0'; // FoxPro's null flags: in the row, but no field to anyone

constexpr std::uint8_t byteAt(TextView bytes, std::size_t place) {
    return static_cast<std::uint8_t>(bytes[place]);
}

// A whole number, lowest byte first.
template <class Whole>
constexpr Whole lowFirst(TextView bytes, std::size_t place) {
    std::uint64_t value = 0;
    for (std::size_t i = sizeof(Whole); i-- > 0;) value = value << 8 | byteAt(bytes, place + i);
    return static_cast<Whole>(value);
}

// A whole number, highest byte first.
template <class Whole>
constexpr Whole highFirst(TextView bytes) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < sizeof(Whole); ++i) value = value << 8 | byteAt(bytes, i);
    return static_cast<Whole>(value);
}

template <std::size_t count>
const TypeRule* ruleIn(const TypeRule (&rules)[count], char type) {
    const auto rule = std::find_if(std::begin(rules), std::end(rules),
                                   [=](const TypeRule& candidate) { return candidate.type == type; });
    return rule == std::end(rules) ? nullptr : rule;
}

const TypeRule* typeRule(Family family, char type) {
    const TypeRule* rule = nullptr;
    if (family == Family::foxPro3) rule = ruleIn(foxPro3Types, type);
    if (family == Family::level7) rule = ruleIn(level7Types, type);
    return rule != nullptr ? rule : ruleIn(usualTypes, type);
}

// A field's descriptor as it stands.
struct Descriptor {
    Text name;
    char type;
    std::size_t width;     ///< the width byte alone
    std::size_t wideWidth; ///< with the high byte that a character field may have

    std::size_t widthIn(bool wide) const { return wide ? wideWidth : width; }
};

Descriptor descriptorIn(TextView bytes, const HeaderShape& shape) {
    const TextView name = bytes.substr(0, shape.nameLength);
    const char type = bytes[shape.typePlace];
    const std::size_t width = byteAt(bytes, shape.widthPlace);
    const std::size_t high = type == 'C' ? byteAt(bytes, shape.decimalsPlace) : 0U;
    return {Text{trimmed(name.substr(0, name.find('\0')))}, type, width, high * 256 + width};
}

struct DescriptorList {
    std::vector<Descriptor> fields;
    bool ended = false; ///< by its end mark, and not by the end of the header or file
};

DescriptorList descriptorsIn(TextView header, const HeaderShape& shape) {
    DescriptorList list;
    std::size_t place = shape.headLength;
    while (place < header.size() && header[place] != endOfFields &&
           header.size() - place >= shape.descriptorLength) {
        list.fields.push_back(descriptorIn(header.substr(place, shape.descriptorLength), shape));
        place += shape.descriptorLength;
    }
    list.ended = place < header.size() && header[place] == endOfFields;
    return list;
}

std::size_t rowLengthOf(const std::vector<Descriptor>& fields, bool wide) {
    std::size_t length = 1; // the deletion flag
    for (const Descriptor& field : fields) length += field.widthIn(wide);
    return length;
}

// Lays the fields out in the row. One that does not fit its type or the row is there, but reads empty.
void layOut(const std::vector<Descriptor>& descriptors, Family family, bool wide, TableFormat& format) {
    std::size_t start = 1;
    for (const Descriptor& descriptor : descriptors) {
        const std::size_t width = descriptor.widthIn(wide);
        const std::size_t end = start + width;
        if (descriptor.type != hiddenType) {
            const TypeRule* rule = typeRule(family, descriptor.type);
            TableField field{descriptor.name, FieldForm::unread, 0, 0};
            if (rule == nullptr)
                format.damage.push_back("field " + field.name + " has an unknown type");
            else if (rule->width != anyWidth && rule->width != width)
                format.damage.push_back("field " + field.name + " has a width that its type can't have");
            else if (end <= format.rowLength)
                field = {descriptor.name, rule->form, start, width};
            format.fields.push_back(std::move(field));
        }
        start = end;
    }
}

// Counts the whole rows that both the header and the file know of.
void countRows(TextView content, TableFormat& format) {
    const std::size_t counted = lowFirst<std::uint32_t>(content, rowCountPlace);
    const std::size_t room = content.size() - format.firstRow;
    const std::size_t whole = room / format.rowLength;
    format.rows = std::min(counted, whole);
    const TextView rest = content.substr(format.firstRow + format.rows * format.rowLength);
    if (counted > whole) {
        format.damage.push_back("the header counts " + std::to_string(counted) +
                                " rows, the file has room for " + std::to_string(whole));
        if (!rest.empty() && rest[0] != endOfTable)
            format.damage.push_back("row " + std::to_string(whole + 1) + " is cut");
    } else if (rest.size() >= format.rowLength && (rest[0] == ' ' || rest[0] == '*')) {
        format.damage.push_back("rows lie behind the " + std::to_string(counted) + " that the header counts");
    }
}

} // namespace

TableFormat tableFormat(TextView content) {
    TableFormat format;
    const auto damaged = [&](const char* what) { format.damage.emplace_back(what); };

    const auto maker = std::find_if(std::begin(makers), std::end(makers), [&](const Maker& candidate) {
        return !content.empty() && candidate.mark == byteAt(content, 0);
    });
    if (maker == std::end(makers) || content.size() < countsEnd) {
        damaged("no table");
        return format;
    }
    const HeaderShape& shape = maker->family == Family::level7 ? level7Shape : usualShape;
    format.firstRow = lowFirst<std::uint16_t>(content, headerLengthPlace);
    format.rowLength = lowFirst<std::uint16_t>(content, rowLengthPlace);

    const DescriptorList list = descriptorsIn(content.substr(0, format.firstRow), shape);
    // Some makers leave other things in the high byte; it counts only where the row is that long.
    const bool wide = rowLengthOf(list.fields, true) <= format.rowLength;
    const bool addsUp = rowLengthOf(list.fields, wide) == format.rowLength;
    layOut(list.fields, maker->family, wide, format);

    if (!addsUp) damaged("the widths of the fields don't add up to the length of a row");
    if (!list.ended) damaged("the list of fields has no end");
    if (format.firstRow > content.size()) damaged("the file ends inside the header");

    // A list that breaks off leaves no telling where the rows start, unless its fields fill a row.
    const bool headerHolds = format.firstRow <= content.size() && (list.ended || addsUp);
    const bool anythingToRead = std::any_of(format.fields.begin(), format.fields.end(),
                                            [](const TableField& field) { return field.width > 0; });
    if (headerHolds && anythingToRead) countRows(content, format);
    return format;
}

namespace {

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The parts of a number, as they stand in its text.
struct NumberParts {
    bool isNumber = false;
    bool negative = false;
    TextView whole;    ///< without leading zeros
    TextView decimals; ///< without trailing zeros
};

NumberParts numberParts(TextView text) {
    NumberParts parts;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        parts.negative = text[0] == '-';
        text.remove_prefix(1);
    }
    std::size_t place = 0;
    while (place < text.size() && isDigit(text[place])) ++place;
    const std::size_t wholeEnd = place;
    if (place < text.size() && text[place] == '.') ++place;
    const std::size_t decimalsStart = place;
    while (place < text.size() && isDigit(text[place])) ++place;
    parts.isNumber = place == text.size() && (wholeEnd > 0 || place > decimalsStart);
    if (!parts.isNumber) return parts;

    std::size_t wholeStart = 0;
    while (wholeStart < wholeEnd && text[wholeStart] == '0') ++wholeStart;
    while (place > decimalsStart && text[place - 1] == '0') --place;
    parts.whole = text.substr(wholeStart, wholeEnd - wholeStart);
    parts.decimals = text.substr(decimalsStart, place - decimalsStart);
    return parts;
}

// Blanks, 00, and the stars that stand for a number too long for its field.
constexpr bool isPadding(char c) {
    return c == ' ' || c == '\0' || c == '*';
}

TextView withoutPadding(TextView text) {
    while (!text.empty() && isPadding(text.front())) text.remove_prefix(1);
    while (!text.empty() && isPadding(text.back())) text.remove_suffix(1);
    return text;
}

// Works on the digits, so that no figure changes on its way through a double.
void readDigits(TextView stored, Text& text) {
    stored = withoutPadding(stored);
    const NumberParts parts = numberParts(stored);
    if (!parts.isNumber) {
        text.assign(stored);
        return;
    }
    text.clear();
    const bool isZero = parts.whole.empty() && parts.decimals.empty();
    if (parts.negative && !isZero) text += '-';
    if (parts.whole.empty()) text += '0';
    text += parts.whole;
    if (parts.decimals.empty()) return;
    text += '.';
    text += parts.decimals;
}

void readCurrency(std::int64_t tenThousandths, Text& text) {
    constexpr std::uint64_t unit = 10000;
    const bool negative = tenThousandths < 0;
    const auto bits = static_cast<std::uint64_t>(tenThousandths);
    const std::uint64_t amount = negative ? 0 - bits : bits;
    const Text decimals = std::to_string(unit + amount % unit).substr(1); // the 1 in front keeps the zeros
    readDigits((negative ? "-" : "") + std::to_string(amount / unit) + "." + decimals, text);
}

void readReal(double number, Text& text) {
    if (std::isfinite(number)) text = numberText(number);
}

void readDay(std::int32_t dayNumber, Text& text) {
    constexpr std::int32_t dayNumberOf1970 = 2440588; // days of the Julian period, January 1st
    constexpr std::int32_t firstDay = 1721426;        // January 1st of the year 1
    constexpr std::int32_t lastDay = 5373484;         // December 31st of 9999
    if (dayNumber < firstDay || dayNumber > lastDay) return;
    const std::chrono::year_month_day date{
        std::chrono::sys_days{std::chrono::days{dayNumber - dayNumberOf1970}}};
    const int yyyymmdd = static_cast<int>(date.year()) * 10000 +
                         static_cast<int>(static_cast<unsigned>(date.month())) * 100 +
                         static_cast<int>(static_cast<unsigned>(date.day()));
    const Text digits = std::to_string(yyyymmdd);
    text.assign(8 - digits.size(), '0');
    text += digits;
}

void readLogical(char stored, Text& text) {
    if (contains("TtYy", TextView{&stored, 1})) text = "T";
    if (contains("FfNn", TextView{&stored, 1})) text = "F";
}

double orderedReal(TextView stored) {
    constexpr std::uint64_t signBit = std::uint64_t{1} << 63;
    const auto bits = highFirst<std::uint64_t>(stored);
    return std::bit_cast<double>((bits & signBit) != 0 ? bits ^ signBit : ~bits);
}

std::int32_t orderedInteger(TextView stored) {
    constexpr std::uint32_t signBit = std::uint32_t{1} << 31;
    return static_cast<std::int32_t>(highFirst<std::uint32_t>(stored) ^ signBit);
}

// 00 behind a text is padding of a row that was never filled in.
TextView withoutZeros(TextView text) {
    return text.substr(0, text.find_last_not_of('\0') + 1);
}

} // namespace

void readStored(FieldForm form, TextView stored, Text& text) {
    if (form == FieldForm::characters) {
        text.assign(withoutZeros(stored));
        return;
    }
    if (form == FieldForm::digits) {
        readDigits(stored, text);
        return;
    }
    text.clear();
    switch (form) {
    case FieldForm::date: text = trimmed(withoutZeros(stored)); break;
    case FieldForm::logical: readLogical(stored[0], text); break;
    case FieldForm::integer32: text = std::to_string(lowFirst<std::int32_t>(stored, 0)); break;
    case FieldForm::currency: readCurrency(lowFirst<std::int64_t>(stored, 0), text); break;
    case FieldForm::real64: readReal(std::bit_cast<double>(lowFirst<std::uint64_t>(stored, 0)), text); break;
    case FieldForm::dayAndTime: readDay(lowFirst<std::int32_t>(stored, 0), text); break;
    case FieldForm::orderedInteger32: text = std::to_string(orderedInteger(stored)); break;
    case FieldForm::orderedReal64: readReal(orderedReal(stored), text); break;
    case FieldForm::characters:
    case FieldForm::digits:
    case FieldForm::unread: break;
    }
}

} // namespace quillon
