#include "import/vendor_tables.h"

#include <algorithm>
#include <utility>

namespace quillon {

std::optional<TextView> vendorTableAt(TextView path) {
    const auto folders = path.find_last_of("/\\");
    const TextView name = folders == TextView::npos ? path : path.substr(folders + 1);
    const auto found = std::find_if(vendorTables.begin(), vendorTables.end(),
                                    [=](TextView table) { return sameIgnoringCase(table, name); });
    if (found == vendorTables.end()) return std::nullopt;
    return *found;
}

const VendorTable* Gathered::find(TextView name) const {
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [=](const VendorTable& table) { return table.name == name; });
    return found == tables.end() ? nullptr : &*found;
}

void Gathered::take(VendorTable table) {
    if (const VendorTable* other = find(table.name)) {
        refusal = "There are two tables " + Text{table.name} + ", " + pathInWords(other->path) + " and " +
                  pathInWords(table.path) + ", and nothing says which one is meant.";
        return;
    }
    tables.push_back(std::move(table));
}

Text pathInWords(TextView path) {
    constexpr std::size_t longest = 80;
    Text words{path.substr(0, longest)};
    for (char& letter : words)
        if (letter >= 0 && letter < ' ') letter = '?';
    return path.size() > longest ? words + "..." : words;
}

} // namespace quillon
