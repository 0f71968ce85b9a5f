// The vendor's eight tables, and those that were found in what a user brings.
#pragma once

#include "core/text.h"

#include <array>
#include <optional>
#include <vector>

namespace quillon {

inline constexpr TextView raceTable = "RACESHR.DBF"; ///< there is no card without it
inline constexpr TextView horseTable = "HORSEHR.DBF";
inline constexpr TextView lineTable = "RUNLINHR.DBF";
inline constexpr TextView driverTable = "DRIVERHR.DBF";
inline constexpr TextView trainerTable = "TRAINRHR.DBF";

/// Those that a load reads.
inline constexpr std::array tablesRead{raceTable, horseTable, lineTable, driverTable, trainerTable};

/// All that the vendor sends.
inline constexpr std::array vendorTables{raceTable,
                                         horseTable,
                                         lineTable,
                                         driverTable,
                                         trainerTable,
                                         TextView{"DAMHR.DBF"},
                                         TextView{"SIREHR.DBF"},
                                         TextView{"PTTRHR.DBF"}};

/// The table that a path names, in any case and whatever folders stand in front; nothing for other files.
std::optional<TextView> vendorTableAt(TextView path);

struct VendorTable {
    TextView name{}; ///< as in `vendorTables`
    Text content{};
    Text path{}; ///< where it was found, for the user
};

/// The tables of a folder or an archive.
struct Gathered {
    std::vector<VendorTable> tables{};
    Text refusal{}; ///< a sentence that says why nothing is taken; empty where all is well

    bool isRefused() const { return !refusal.empty(); }
    const VendorTable* find(TextView name) const;

    /// Takes a table. A second one of the same name is refused: nobody could say which is meant.
    void take(VendorTable table);
};

/// A path as a sentence can hold it: short, and without control characters.
Text pathInWords(TextView path);

} // namespace quillon
