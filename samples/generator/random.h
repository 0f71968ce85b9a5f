#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace samples {

// A seeded stream of numbers (SplitMix64). The standard library's distributions differ between systems; cards
// must come out the same everywhere, so everything here is whole-number arithmetic.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next() {
        state_ += 0x9E3779B97F4A7C15;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
        return mixed ^ (mixed >> 31);
    }

    // Both ends included.
    int between(int low, int high) {
        assert(low <= high);
        const auto count = static_cast<std::uint64_t>(high - low) + 1;
        return low + static_cast<int>(next() % count);
    }

    // The mean of two throws: figures near the middle come more often.
    int around(int middle, int spread) {
        return middle + (between(-spread, spread) + between(-spread, spread)) / 2;
    }

    bool chance(int percent) { return between(1, 100) <= percent; }

    template <class Table>
    const auto& pick(const Table& table) {
        return table[static_cast<std::size_t>(between(0, static_cast<int>(std::size(table)) - 1))];
    }

    template <class T>
    void shuffle(std::vector<T>& items) {
        for (std::size_t left = items.size(); left > 1; --left)
            std::swap(items[left - 1],
                      items[static_cast<std::size_t>(between(0, static_cast<int>(left) - 1))]);
    }

private:
    std::uint64_t state_;
};

} // namespace samples
