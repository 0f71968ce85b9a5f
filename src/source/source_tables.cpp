#include "source/source_tables.h"

#include <array>
#include <cstdint>

namespace quillon {

SourceTables sourceTables;
SourceLine sourceLine;

namespace {

struct LineField {
    const char* name;
    Text SourceLine::*text;
};

constexpr LineField lineFields[] = {
    {"TODAYSRACE", &SourceLine::TODAYSRACE},
    {"HN", &SourceLine::HN},
    {"DATE", &SourceLine::DATE},
    {"TRACK", &SourceLine::TRACK},
    {"TRACKSIZE", &SourceLine::TRACKSIZE},
    {"COND", &SourceLine::COND},
    {"PURSE", &SourceLine::PURSE},
    {"CLASS", &SourceLine::CLASS},
    {"CR", &SourceLine::CR},
    {"DIST_MILES", &SourceLine::DIST_MILES},
    {"LEAD_TM_1Q", &SourceLine::LEAD_TM_1Q},
    {"LEAD_TM_2Q", &SourceLine::LEAD_TM_2Q},
    {"LEAD_TM_3Q", &SourceLine::LEAD_TM_3Q},
    {"LEAD_TM_FN", &SourceLine::LEAD_TM_FN},
    {"POST", &SourceLine::POST},
    {"CALL_1Q_BF", &SourceLine::CALL_1Q_BF},
    {"CALL_1Q_PO", &SourceLine::CALL_1Q_PO},
    {"CALL_1Q_PK", &SourceLine::CALL_1Q_PK},
    {"CALL_1Q_AF", &SourceLine::CALL_1Q_AF},
    {"CALL_2Q_BF", &SourceLine::CALL_2Q_BF},
    {"CALL_2Q_PO", &SourceLine::CALL_2Q_PO},
    {"CALL_2Q_PK", &SourceLine::CALL_2Q_PK},
    {"CALL_2Q_AF", &SourceLine::CALL_2Q_AF},
    {"CALL_3Q_BF", &SourceLine::CALL_3Q_BF},
    {"CALL_3Q_PO", &SourceLine::CALL_3Q_PO},
    {"CALL_3Q_PK", &SourceLine::CALL_3Q_PK},
    {"CALL_3Q_AF", &SourceLine::CALL_3Q_AF},
    {"CALL_ST_PO", &SourceLine::CALL_ST_PO},
    {"CALL_FN_PO", &SourceLine::CALL_FN_PO},
    {"HRSE_TM_4Q", &SourceLine::HRSE_TM_4Q},
    {"HRSE_TM_FN", &SourceLine::HRSE_TM_FN},
    {"FAV", &SourceLine::FAV},
    {"ODDS", &SourceLine::ODDS},
    {"DN", &SourceLine::DN},
};

// The numbers of these fields in the table at hand: names are looked up once a table, not once a line.
struct LineFieldNumbers {
    std::uint64_t table = 0;
    std::array<int, std::size(lineFields)> numbers{};
};

const LineFieldNumbers& numbersIn(const TableCursor& table) {
    static LineFieldNumbers known;
    if (known.table != table.serial() || table.serial() == 0) {
        known.table = table.serial();
        for (std::size_t i = 0; i < std::size(lineFields); ++i)
            known.numbers[i] = table.fieldNumber(lineFields[i].name);
    }
    return known;
}

} // namespace

void ReadSourceLine() {
    const TableCursor& rows = sourceTables.lineRows;
    const auto& numbers = numbersIn(rows).numbers;
    for (std::size_t i = 0; i < std::size(lineFields); ++i) {
        Text& text = sourceLine.*lineFields[i].text;
        rows.fieldTo(text, numbers[i]);
        text.resize(trimmedRight(text).size());
    }
}

} // namespace quillon
