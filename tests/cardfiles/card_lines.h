// Where a value stands in a saved card's files, counted by hand from the layout, and the lines themselves.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

constexpr std::string_view cardPath = "A Quillon PRO/Race Cards/M1_20260314.pmd";
constexpr std::string_view archivePath = "A Quillon PRO/Archives/M1_20260314.pmx";

/// Block 1: 12 entries a race, 44 values an entry.
constexpr int entryLine(int race, int entry, int value) { return ((race - 1) * 12 + entry - 1) * 44 + value; }
/// Block 2 begins after 23 x 12 x 44 = 12,144 lines; 8 cells a race.
constexpr int outcomeLine(int race, int cell) { return 12'144 + (race - 1) * 8 + cell; }
/// Block 3 begins 23 x 8 = 184 lines later; 21 cells a race.
constexpr int payoffLine(int race, int cell) { return 12'328 + (race - 1) * 21 + cell; }
/// Block 4 begins 23 x 21 = 483 lines later; 4 selections of 4 values a race.
constexpr int selectionLine(int race, int place, int value) {
    return 12'811 + (race - 1) * 16 + (place - 1) * 4 + value;
}
/// The archive: 39 columns a row.
constexpr int archiveLine(int row, int column) { return (row - 1) * 39 + column; }

/// The lines of a file that ends each of them in CR LF, without these ends; element 0 is empty, so that a
/// line's number is its index. A line end of another kind stays in its line, where a comparison shows it.
std::vector<std::string> linesOf(std::string_view content);

/// The lines of a card file without a value in it.
std::vector<std::string> emptyCardLines();

/// The first `count` lines of such a file, with this text on line `number`.
std::string cardFileWithLine(int number, std::string_view line, int count = 13'179);

/// The file of these lines, line 1 first.
std::string fileOf(const std::vector<std::string>& lines);

} // namespace quillon
