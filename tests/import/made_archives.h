// Archives made by hand.
#pragma once

#include "core/text.h"

#include <vector>

namespace quillon {

struct MadeMember {
    enum class Kind { file, folder, symbolicLink };

    Text path{};
    Text content{}; ///< of a link where it leads to
    Kind kind = Kind::file;
};

/// A zip archive of these members in their order, encrypted where a password is given.
Text madeZip(const std::vector<MadeMember>& members, const Text& password = {});

/// The same archive with a program in front. Some makers count the places in the archive from its own beginning,
/// others from that of the file.
enum class PlacesFrom { archive, file };
Text behindProgram(const Text& zip, PlacesFrom places);

/// A tar archive with a file, and a hard link of another name to it.
Text tarWithHardLink(const Text& file, const Text& link);

} // namespace quillon
