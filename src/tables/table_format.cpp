#include "tables/table_format.h"

#include <algorithm>
#include <optional>

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
    std::size_t end = 0; ///< in the header, with its end mark
    bool ended = false;  ///< by its end mark, and not by the end of the header or file
};

DescriptorList descriptorsIn(TextView header, const HeaderShape& shape) {
    DescriptorList list;
    std::size_t place = shape.headLength;
    while (place + shape.descriptorLength <= header.size() && header[place] != endOfFields &&
           header[place] != '\0') { // no name starts so: padding, its end mark lost
        list.fields.push_back(descriptorIn(header.substr(place, shape.descriptorLength), shape));
        place += shape.descriptorLength;
    }
    list.ended = place < header.size() && header[place] == endOfFields;
    list.end = place + (list.ended ? 1 : 0);
    return list;
}

std::size_t rowLengthOf(const std::vector<Descriptor>& fields, bool wide) {
    std::size_t length = 1; // the deletion flag
    for (const Descriptor& field : fields) length += field.widthIn(wide);
    return length;
}

// A field in its place in the row. One that its type or the row has no room for is there, but reads empty.
TableField fieldIn(const Descriptor& descriptor, Family family, std::size_t start, std::size_t width,
                   std::size_t rowLength) {
    const TypeRule* rule = typeRule(family, descriptor.type);
    const bool known = rule != nullptr && (rule->width == anyWidth || rule->width == width);
    if (!known || start + width > rowLength) return {descriptor.name, FieldForm::unread, 0, 0};
    return {descriptor.name, rule->form, start, width};
}

void layOut(const std::vector<Descriptor>& descriptors, Family family, bool wide, TableFormat& format) {
    std::size_t start = 1;
    for (const Descriptor& descriptor : descriptors) {
        const std::size_t width = descriptor.widthIn(wide);
        if (descriptor.type != hiddenType)
            format.fields.push_back(fieldIn(descriptor, family, start, width, format.rowLength));
        start += width;
    }
    const auto isUnplaced = [](const TableField& field) { return field.start == 0; };
    const auto first = std::find_if(format.fields.begin(), format.fields.end(), isUnplaced);
    if (first == format.fields.end()) return;
    format.damage.push_back("fields that can't be read for their type or width: " +
                            std::to_string(std::count_if(first, format.fields.end(), isUnplaced)) +
                            ", the first is field " + std::to_string(first - format.fields.begin() + 1));
}

std::size_t wholeRows(TextView content, std::size_t firstRow, std::size_t rowLength) {
    const std::size_t counted = lowFirst<std::uint32_t>(content, rowCountPlace);
    return std::min(counted, (content.size() - firstRow) / rowLength);
}

// True where all that is counted is there, and the end of the table right after it.
bool fillTheFile(TextView content, std::size_t firstRow, std::size_t rowLength) {
    const std::size_t counted = lowFirst<std::uint32_t>(content, rowCountPlace);
    if (counted != wholeRows(content, firstRow, rowLength)) return false;
    const TextView rest = content.substr(firstRow + counted * rowLength);
    return rest.empty() ? content.back() != endOfTable : rest[0] == endOfTable;
}

// True where each row begins with a flag and none holds the end mark: rows that are cut in the wrong places
// begin with anything.
bool areWellCut(TextView content, std::size_t firstRow, std::size_t rowLength) {
    const std::size_t rows = wholeRows(content, firstRow, rowLength);
    for (std::size_t row = 0; row < rows; ++row) {
        const char flag = content[firstRow + row * rowLength];
        if (flag == endOfTable) return true;
        if (flag != blank && flag != deletedFlag) return false;
    }
    const bool endsTheFile = firstRow + rows * rowLength == content.size();
    return rows == 0 || !endsTheFile || content.back() != endOfTable;
}

struct RowPlace {
    std::size_t firstRow;
    std::size_t rowLength;
};

// Where the counted rows lie when the last one ends the file: the place of the first where the header's
// length lies.
std::optional<RowPlace> placeFromTheEnd(TextView content, std::size_t headerEnd, std::size_t rowLength) {
    const std::size_t counted = lowFirst<std::uint32_t>(content, rowCountPlace);
    const std::size_t end = content.size() - (content.back() == endOfTable ? 1 : 0);
    if (counted == 0 || counted > end / rowLength || end - counted * rowLength < headerEnd)
        return std::nullopt;
    const RowPlace place{end - counted * rowLength, rowLength};
    if (!areWellCut(content, place.firstRow, rowLength)) return std::nullopt;
    return place;
}

// Where the rows lie as the file bears it out: the header may lie about where they start or about how long
// they are, and then the fields' widths and the end of the file tell it. Nothing where neither does.
std::optional<RowPlace> provenPlace(TextView content, std::size_t headerEnd, RowPlace said,
                                    std::size_t ofFields) {
    if (said.firstRow > content.size()) return std::nullopt;
    const auto fills = [&](std::size_t length) {
        return length > 0 && fillTheFile(content, said.firstRow, length);
    };
    const auto cutsWell = [&](std::size_t length) {
        return length > 0 && areWellCut(content, said.firstRow, length);
    };
    const bool addsUp = said.rowLength == ofFields;
    if (addsUp && fills(ofFields)) return said;
    for (const std::size_t length : {said.rowLength, ofFields})
        if (fills(length) && cutsWell(length)) return RowPlace{said.firstRow, length};

    const std::size_t counted = lowFirst<std::uint32_t>(content, rowCountPlace);
    const bool fits = cutsWell(ofFields) && counted == wholeRows(content, said.firstRow, ofFields);
    if (!fits)
        if (const auto place = placeFromTheEnd(content, headerEnd, ofFields)) return place;
    for (const std::size_t length : {said.rowLength, ofFields})
        if (cutsWell(length) && (addsUp || wholeRows(content, said.firstRow, length) > 0))
            return RowPlace{said.firstRow, length};
    return std::nullopt;
}

// Counts the whole rows that both the header and the file know of.
void countRows(TextView content, TableFormat& format) {
    const std::size_t counted = lowFirst<std::uint32_t>(content, rowCountPlace);
    const std::size_t whole = (content.size() - format.firstRow) / format.rowLength;
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
    const std::size_t lengthOfFields = rowLengthOf(list.fields, wide);
    const bool addsUp = lengthOfFields == format.rowLength;
    const RowPlace said{format.firstRow, format.rowLength};
    const auto proven = provenPlace(content, list.end, said, lengthOfFields);
    if (proven) {
        format.firstRow = proven->firstRow;
        format.rowLength = proven->rowLength;
    }
    layOut(list.fields, maker->family, wide, format);

    if (!addsUp) damaged("the widths of the fields don't add up to the length of a row");
    if (!list.ended) damaged("the list of fields has no end");
    if (said.firstRow > content.size())
        damaged("the file ends inside the header");
    else if (!proven || proven->firstRow != said.firstRow)
        damaged("the rows don't begin where the header says");

    // A list that breaks off leaves no telling where the rows start, unless its fields fill a row.
    const bool headerHolds = proven && (list.ended || addsUp);
    const bool anythingToRead = std::any_of(format.fields.begin(), format.fields.end(),
                                            [](const TableField& field) { return field.width > 0; });
    if (headerHolds && anythingToRead) countRows(content, format);
    return format;
}

} // namespace quillon
