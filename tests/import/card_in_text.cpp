#include "import/card_in_text.h"

#include "dbf_writer.h"
#include "table_text.h"

#include <stdexcept>

namespace quillon {

Text tableFrom(const Text& text) {
    const auto read = samples::readTableText(text);
    if (const auto* error = std::get_if<samples::TextError>(&read)) throw std::runtime_error(error->message);
    return samples::tableBytes(std::get<samples::Table>(read));
}

std::vector<VendorTable> smallCard(const std::map<TextView, Text>& changed) {
    std::map<TextView, Text> texts{
        {raceTable, "RACE N2 | TRACK C5 | BULLETDATE C8\n"
                    "1 | MVR | 20260314\n"
                    "2 | MVR | 20260314\n"},
        {horseTable, "RACE N2 | HN N4 | PP N2 | HORSE_NAME C25 | DN N3 | TN N3\n"
                     "1 | 1 | 1 | Plain Biscuit | 1 | 1\n"
                     "1 | 2 | 2 | Uncle Fen | 2 | 1\n"
                     "2 | 3 | 1 | Rumor In Dayton | 1 | 2\n"},
        {lineTable, "TODAYSRACE N2 | HN N4 | DATE C8\n"
                    "1 | 1 | 20260307\n"
                    "1 | 2 | 20260228\n"
                    "2 | 3 | 20260307\n"},
        {driverTable, "DRIVERNAME C25 | DRS_UDR N5.3\n"
                      "Stoltzfuss, Barry D | 0.076\n"
                      "Merriwether, Dan | 0.274\n"},
        {trainerTable, "TRAINNAME C25\n"
                       "Eberlin, Earl E\n"
                       "Kilduff, Owen\n"},
    };
    for (const auto& [name, text] : changed) texts[name] = text;
    std::vector<VendorTable> tables;
    for (const TextView name : vendorTables)
        if (const Text& text = texts[name]; !text.empty())
            tables.push_back({name, tableFrom(text), Text{name}});
    return tables;
}

} // namespace quillon
