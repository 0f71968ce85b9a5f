#include "tables/stored_field.h"

#include "core/numbers.h"

#include <bit>
#include <chrono>
#include <cmath>

namespace quillon {
namespace {

// A whole number, highest byte first.
template <class Whole>
constexpr Whole highFirst(TextView bytes) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < sizeof(Whole); ++i) value = value << 8 | static_cast<std::uint8_t>(bytes[i]);
    return static_cast<Whole>(value);
}

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

struct PlainNumber {
    bool isNumber = false;
    bool negative = false;
    TextView digits; ///< with the point, but without needless zeros: empty for 0, ".3" for 0.30
};

PlainNumber plainNumberIn(TextView text) {
    PlainNumber number;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        number.negative = text[0] == '-';
        text.remove_prefix(1);
    }
    std::size_t place = 0;
    const auto passDigits = [&] {
        while (place < text.size() && isDigit(text[place])) ++place;
    };
    passDigits();
    const std::size_t wholeEnd = place;
    if (place < text.size() && text[place] == '.') ++place;
    const std::size_t decimalsStart = place;
    passDigits();
    number.isNumber = place == text.size() && (wholeEnd > 0 || place > decimalsStart);
    if (!number.isNumber) return number;

    std::size_t start = 0;
    while (start < wholeEnd && text[start] == '0') ++start;
    while (place > decimalsStart && text[place - 1] == '0') --place;
    const std::size_t end = place > decimalsStart ? place : wholeEnd; // a point needs decimals
    number.digits = text.substr(start, end - start);
    return number;
}

// Blanks, 00, and the stars that stand for a number too long for its field.
constexpr bool isPadding(char c) { return c == ' ' || c == '\0' || c == '*'; }

TextView withoutPadding(TextView text) {
    while (!text.empty() && isPadding(text.front())) text.remove_prefix(1);
    while (!text.empty() && isPadding(text.back())) text.remove_suffix(1);
    return text;
}

// Works on the digits, so that no figure changes on its way through a double.
void readDigits(TextView stored, Text& text) {
    stored = withoutPadding(stored);
    const PlainNumber number = plainNumberIn(stored);
    if (!number.isNumber) {
        text.assign(stored);
        return;
    }
    text.assign(number.digits);
    const bool isZero = text.empty();
    if (isZero || text[0] == '.') text.insert(0, 1, '0');
    if (number.negative && !isZero) text.insert(0, 1, '-');
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

} // namespace

void readStored(FieldForm form, TextView stored, Text& text) {
    if (form == FieldForm::characters) {
        text.assign(charactersIn(stored));
        return;
    }
    if (form == FieldForm::digits) {
        readDigits(stored, text);
        return;
    }
    text.clear();
    switch (form) {
    case FieldForm::date: text = trimmed(charactersIn(stored)); break;
    case FieldForm::logical: readLogical(stored[0], text); break;
    case FieldForm::integer32: text = std::to_string(lowFirst<std::int32_t>(stored)); break;
    case FieldForm::currency: readCurrency(lowFirst<std::int64_t>(stored), text); break;
    case FieldForm::real64: readReal(std::bit_cast<double>(lowFirst<std::uint64_t>(stored)), text); break;
    case FieldForm::dayAndTime: readDay(lowFirst<std::int32_t>(stored), text); break;
    case FieldForm::orderedInteger32: text = std::to_string(orderedInteger(stored)); break;
    case FieldForm::orderedReal64: readReal(orderedReal(stored), text); break;
    case FieldForm::characters:
    case FieldForm::digits:
    case FieldForm::unread: break;
    }
}

} // namespace quillon
