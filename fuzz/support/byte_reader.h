// An input as a row of small decisions.
#pragma once

#include "core/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace quillon::fuzz {

class ByteReader {
public:
    explicit ByteReader(TextView bytes) : bytes_(bytes) {}

    bool atEnd() const { return bytes_.empty(); }

    /// The next byte; 0 after the end.
    std::uint8_t byte() {
        if (bytes_.empty()) return 0;
        const auto first = static_cast<std::uint8_t>(bytes_.front());
        bytes_.remove_prefix(1);
        return first;
    }

    /// One of `count` things, counted from 0.
    std::size_t choice(std::size_t count) { return byte() % count; }

    template <class Value, std::size_t count>
    const Value& oneOf(const std::array<Value, count>& values) {
        return values[choice(count)];
    }

    /// The next bytes as they stand, as many as there are up to `count`.
    TextView text(std::size_t count) {
        const TextView taken = bytes_.substr(0, count);
        bytes_.remove_prefix(taken.size());
        return taken;
    }

private:
    TextView bytes_;
};

} // namespace quillon::fuzz
