#include "import/member_path.h"

namespace quillon {

bool leadsOut(TextView path) {
    constexpr TextView separators = "/\\";
    if (path.empty()) return false;
    if (separators.find(path.front()) != TextView::npos || path.find(':') != TextView::npos) return true;
    while (true) {
        const auto end = path.find_first_of(separators);
        TextView part = path.substr(0, end);
        while (part.ends_with(' ')) part.remove_suffix(1); // some systems drop these
        if (part == "..") return true;
        if (end == TextView::npos) return false;
        path.remove_prefix(end + 1);
    }
}

} // namespace quillon
