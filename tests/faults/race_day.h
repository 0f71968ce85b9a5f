// A working folder as a user has it after two nights of racing, made once for all tests of a program.
#pragma once

#include <filesystem>

namespace faults {

/// The card of the first night is saved and archived. The second night's is loaded, has its results, and is
/// saved, but not archived; its tables still lie there.
const std::filesystem::path& raceDay();

/// The file in which the second night's card is saved.
inline constexpr const char* openCard = "MVR_20260315.pmd";

/// Brings the second night's card back.
inline constexpr const char* recall = "RecallRaceCard\nChooseFile MVR_20260315.pmd\n";

/// Stands at the end of every script, and so of every transcript that was not cut short.
inline constexpr const char* lastCommand = "Version\n";
bool reachesItsEnd(const std::string& transcript);

} // namespace faults
