// Inputs that stand for several files. A line "@@ NAME" begins a part, which goes on up to the next such
// line; there are no counts to keep right, so that an input stays whole when bytes come in or fall out.
#pragma once

#include "core/text.h"

#include <vector>

namespace quillon::fuzz {

struct Part {
    TextView name;
    TextView content;
};

/// The parts in their order; what stands in front of the first one is left out.
inline std::vector<Part> partsOf(TextView input) {
    constexpr TextView mark = "@@ ";
    constexpr TextView nextMark = "\n@@ ";
    std::vector<Part> parts;
    if (!input.starts_with(mark)) {
        const auto first = input.find(nextMark);
        if (first == TextView::npos) return parts;
        input.remove_prefix(first + 1);
    }
    while (!input.empty()) {
        input.remove_prefix(mark.size());
        const auto next = input.find(nextMark);
        const TextView part = input.substr(0, next);
        input = next == TextView::npos ? TextView{} : input.substr(next + 1);
        const auto nameEnd = part.find('\n');
        if (nameEnd == TextView::npos) continue;
        parts.push_back({part.substr(0, nameEnd), part.substr(nameEnd + 1)});
    }
    return parts;
}

} // namespace quillon::fuzz
