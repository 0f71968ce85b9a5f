#include "core/json_writer.h"

#include "core/code_page.h"
#include "core/numbers.h"

#include <cmath>
#include <utility>

namespace quillon {
namespace {

// Two digits: the only characters that must be told by number are those below 32.
void addByNumber(std::string& out, unsigned char character) {
    constexpr std::string_view digits = "0123456789abcdef";
    out += "\\u00";
    out += digits[character / 16U];
    out += digits[character % 16U];
}

} // namespace

void JsonWriter::separate() {
    if (needsComma_) written_ += ',';
    needsComma_ = false;
}

void JsonWriter::open(char bracket) {
    separate();
    written_ += bracket;
}

void JsonWriter::close(char bracket) {
    written_ += bracket;
    needsComma_ = true;
}

void JsonWriter::bare(std::string_view value) {
    separate();
    written_ += value;
    needsComma_ = true;
}

void JsonWriter::quoted(TextView value) {
    written_ += '"';
    for (const char character : toUtf8(value)) {
        const auto code = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\') {
            written_ += '\\';
            written_ += character;
        } else if (code < ' ')
            addByNumber(written_, code);
        else
            written_ += character;
    }
    written_ += '"';
}

void JsonWriter::key(TextView name) {
    separate();
    quoted(name);
    written_ += ':';
}

void JsonWriter::text(TextView value) {
    separate();
    quoted(value);
    needsComma_ = true;
}

void JsonWriter::number(double value) { bare(std::isfinite(value) ? numberText(value) : "null"); }

void JsonWriter::member(TextView name, TextView value) {
    key(name);
    text(value);
}

void JsonWriter::member(TextView name, std::optional<double> value) {
    key(name);
    if (value)
        number(*value);
    else
        null();
}

std::string JsonWriter::take() { return std::exchange(written_, {}); }

} // namespace quillon
