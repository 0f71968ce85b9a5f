#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace samples {

// One column of a table. Types: C text, N and F decimal text, D date (yyyymmdd), L logical (T or F), and the
// binary ones: I 32-bit integer, B double, Y currency (64-bit, ten-thousandths).
struct Field {
    std::string name{}; // at most 10 characters
    char type = 'C';
    unsigned width = 0; // bytes in a record
    unsigned decimals = 0;
};

// Bytes that a field of a binary, date or logical type always takes; 0 for C, N and F, which choose theirs.
unsigned fixedWidth(char type);

// Cells are text, one a field, in Windows-1252 bytes; a missing cell at the end is blank.
struct Row {
    std::vector<std::string> cells{};
    bool deleted = false;
};

struct Table {
    std::vector<Field> fields{};
    std::vector<Row> rows{};
};

// What a table file says of itself.
struct TableForm {
    std::uint8_t version = 0x30; // 0x30 FoxPro 3, 0x03 and 0x83 dBASE III, 0x04 and 0x8B dBASE IV, ...
    bool endMark = true;         // the byte 1A after the last record
    std::chrono::year_month_day lastUpdate{std::chrono::year{2026}, std::chrono::month{3},
                                           std::chrono::day{13}};
};

// The table as the bytes of a .DBF file. A text too long for its field is cut; a number too long for its
// field becomes asterisks, as in dBASE; a binary cell that is no number is 0.
std::string tableBytes(const Table& table, const TableForm& form = {});

// Writes that file, with the folders above it. False when it can't be written.
[[nodiscard]] bool writeTable(const std::filesystem::path& path, const Table& table,
                              const TableForm& form = {});

} // namespace samples
