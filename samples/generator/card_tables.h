#pragma once

#include "card_model.h"
#include "dbf_writer.h"

#include <filesystem>
#include <string_view>
#include <vector>

namespace samples {

struct NamedTable {
    std::string_view name; // without extension
    Table table;
};

// The vendor's eight tables of a card.
std::vector<NamedTable> cardTables(const Card& card);

// Where the tables lie below a working folder.
std::filesystem::path tableFolder(const std::filesystem::path& workingFolder);

// Writes the eight tables below a working folder. False when one can't be written.
[[nodiscard]] bool writeCard(const Card& card, const std::filesystem::path& workingFolder);

} // namespace samples
