// clang-format off
// A scenario is a folder that claims what the program does:
//
//     script.txt               console commands, and # remarks
//     script2.txt ...          what a second fresh process in the same folder is given
//     card/                    tables for the source folder: readable texts *.txt, which become .DBF, or others
//     folder/                  files of the working folder, as they stand
//     uses                     "sample": starts from the sample working folder
//     expected/transcript.txt  what the console prints; transcript2.txt ... for the other scripts
//     expected/files/          files of the working folder afterwards
//     expected/ignored.txt     paths that may be new, changed or gone, one a line
//
// clang-format on
// Where the console keeps its fixed folders on a drive of their own, they lie there while it runs, and in the
// working folder before and afterwards.
//
// All is compared byte for byte. Nothing writes an expectation but its author.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace scenarios {

struct Setting {
    std::filesystem::path console;      ///< the program
    std::filesystem::path sampleFolder; ///< the sample working folder
    std::filesystem::path workFolder;   ///< where scenarios run, each in a folder of its own name
    std::string launcher{};             ///< the program that starts the console ("wine"), if one does
    std::filesystem::path drive{};      ///< where the fixed folders lie, if not in the working folder
};

/// Runs a scenario and tells what is not as expected, a paragraph each; none when all is.
std::vector<std::string> complaintsAbout(const std::filesystem::path& scenario, const Setting& setting);

} // namespace scenarios
