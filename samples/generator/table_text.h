#pragma once

#include "dbf_writer.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

namespace samples {

struct TextError {
    std::size_t line = 0; // from 1
    std::string message{};
};

// Reads a table written for people, in UTF-8:
//
//     # two entries of the first race
//     RACE N3 | HORSE_NAME C25  | PP N2 | FAV C1
//     1       | Plain Biscuit   | 1     |
//     *1      | Taken Back      | 2     | \x2A
//
// The first line names the fields: name, type, and for C, N and F the width, N and F with decimals as N6.4.
// Each further line is a row. Blanks round a cell don't count. Empty lines and lines that start with # are
// skipped; a row that starts with * is marked deleted; \xBA stands for the byte BA, so \x20 keeps a blank and
// \x7C is a bar. Other characters become Windows-1252. A line that can't be read ends it with an error.
std::variant<Table, TextError> readTableText(std::string_view text);

} // namespace samples
