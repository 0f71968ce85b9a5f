#include "import/placing.h"

#include "core/dates.h"
#include "core/failure.h"
#include "core/files.h"
#include "import/checked_card.h"
#include "import/zip_writing.h"

#include <algorithm>
#include <memory>

namespace quillon {
namespace {

FilePlace placeOf(TextView table) { return {Folder::sourceTables, Text{table}}; }

bool isAmong(const std::vector<VendorTable>& tables, TextView name) {
    return std::any_of(tables.begin(), tables.end(),
                       [=](const VendorTable& table) { return table.name == name; });
}

// "MVR_20260314 kept 20260322 201405.zip": the card that the tables were of, and when they were put away.
FilePlace keptPlace(const std::vector<VendorTable>& old) {
    std::vector<VendorTable> races = old;
    std::erase_if(races, [](const VendorTable& table) { return table.name != raceTable; });
    const CheckedCard card = checkedCard(races);
    Text name = card.track.empty() || card.date.empty() ? Text{"Tables"} : card.track + "_" + card.date;
    std::erase_if(name, [](char letter) {
        const bool isPlain = (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z') ||
                             (letter >= 'a' && letter <= 'z') || letter == '_';
        return !isPlain;
    });
    return {Folder::imported, name + " kept " + localTime() + ".zip"};
}

void keep(const FilePlace& place, const std::vector<VendorTable>& old) {
    for (const TextView name : vendorTables)
        if (!isAmong(old, name) && fileExists(placeOf(name))) fail(Text{name} + " can't be read to be kept");
    const auto archive = zipOf(old);
    if (!archive) fail("the old tables can't be packed");
    writeFile(place, *archive);
}

void replaceTables(const std::vector<VendorTable>& tables) {
    makeFolder(Folder::sourceTables);
    std::vector<std::unique_ptr<PreparedFile>> written;
    written.reserve(tables.size());
    for (const VendorTable& table : tables)
        written.push_back(std::make_unique<PreparedFile>(placeOf(table.name), table.content));
    std::vector<PreparedFile*> files;
    files.reserve(written.size());
    for (const auto& file : written) files.push_back(file.get());
    std::vector<FilePlace> gone;
    for (const TextView name : vendorTables)
        if (!isAmong(tables, name) && fileExists(placeOf(name))) gone.push_back(placeOf(name));
    putInPlaceTogether(files, gone);
}

} // namespace

std::vector<VendorTable> tablesInPlace() {
    std::vector<VendorTable> tables;
    for (const TextView name : vendorTables)
        if (auto content = fileContent(placeOf(name)))
            tables.push_back({name, std::move(*content), Text{name}});
    return tables;
}

bool areInPlace(const std::vector<VendorTable>& tables) {
    const std::vector<VendorTable> there = tablesInPlace();
    return there.size() == tables.size() &&
           std::all_of(there.begin(), there.end(), [&](const VendorTable& old) {
               return std::any_of(tables.begin(), tables.end(), [&](const VendorTable& table) {
                   return table.name == old.name && table.content == old.content;
               });
           });
}

bool putInPlace(const std::vector<VendorTable>& tables) {
    const Step step{"putInPlace"};
    const std::vector<VendorTable> old = tablesInPlace();
    const FilePlace kept = keptPlace(old);
    if (!old.empty() && !attempt([&] { keep(kept, old); })) return false;
    if (attempt([&] { replaceTables(tables); })) return true;
    if (!old.empty()) attempt([&] { removeFile(kept); });
    return false;
}

} // namespace quillon
