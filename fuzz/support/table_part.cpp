#include "support/table_part.h"

#include "core/files.h"
#include "core/numbers.h"
#include "dbf_writer.h"

#include <algorithm>
#include <string>
#include <utility>

namespace quillon::fuzz {
namespace {

constexpr std::size_t mostFields = 255;

std::pair<TextView, TextView> cutAt(TextView text, char mark) {
    const auto place = text.find(mark);
    if (place == TextView::npos) return {text, {}};
    return {text.substr(0, place), text.substr(place + 1)};
}

samples::Field fieldOf(TextView words) {
    constexpr unsigned plainWidth = 10;
    constexpr double longestField = 254;
    constexpr std::size_t longestName = 10;
    constexpr TextView types = "CNFDLIBY";
    const auto [name, form] = cutAt(trimmed(words), blank);
    samples::Field field{.name = Text{name.substr(0, longestName)}, .width = plainWidth};
    const TextView type = trimmed(form);
    if (!type.empty() && contains(types, type.substr(0, 1))) field.type = type[0];
    const auto [width, decimals] = cutAt(type.empty() ? type : type.substr(1), '.');
    const double given = std::clamp(lenientNumber(width), 0.0, longestField);
    if (given >= 1) field.width = static_cast<unsigned>(given);
    const double places = std::clamp(lenientNumber(decimals), 0.0, 9.0);
    field.decimals = std::min(static_cast<unsigned>(places), field.width - 1);
    if (const unsigned fixed = samples::fixedWidth(field.type); fixed > 0) field.width = fixed;
    return field;
}

samples::Row rowOf(TextView line, std::size_t fields) {
    samples::Row row;
    row.deleted = line.starts_with('*');
    if (row.deleted) line.remove_prefix(1);
    while (!line.empty() && row.cells.size() < fields) {
        const auto [cell, rest] = cutAt(line, '|');
        row.cells.emplace_back(trimmed(cell));
        line = rest;
    }
    return row;
}

} // namespace

Text tableOfText(TextView text) {
    samples::Table table;
    LineReader lines{text};
    TextView heads = lines.next().value_or("");
    while (!heads.empty() && table.fields.size() < mostFields) {
        const auto [head, rest] = cutAt(heads, '|');
        table.fields.push_back(fieldOf(head));
        heads = rest;
    }
    while (const auto line = lines.next())
        if (!line->empty()) table.rows.push_back(rowOf(*line, table.fields.size()));
    return samples::tableBytes(table);
}

} // namespace quillon::fuzz
