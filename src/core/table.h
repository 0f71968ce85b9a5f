// Tables that know their bounds.
#pragma once

#include "core/failure.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <memory>
#include <span>
#include <string>

namespace quillon {

class Packer;
class Unpacker;

/// A table of Extents... elements; each index runs from 0 to its extent less 1.
///
/// table(r, e) is for indices that come from data: outside the bounds it fails by the failure policy, so a
/// store beyond a bound is lost and nothing is clipped. table[{r, e}] is for code that knows: it asserts.
///
/// A row is all elements of one first index (of a list: all there are). Rows are made when they are first
/// written, and a copy of a table shares its rows until one of the two writes there: a copy of the whole
/// store costs next to nothing. A reference to an element holds until the table is copied or cleared.
template <class Element, int... Extents>
class Table {
public:
    using Index = std::array<int, sizeof...(Extents)>;
    static constexpr Index extents{Extents...};

    template <class... Indices>
    Element& operator()(Indices... indices) {
        return written(checked({static_cast<int>(indices)...}));
    }
    template <class... Indices>
    const Element& operator()(Indices... indices) const {
        return read(checked({static_cast<int>(indices)...}));
    }

    Element& operator[](const Index& index) { return written(known(index)); }
    const Element& operator[](const Index& index) const { return read(known(index)); }

    void clear() { rows_ = {}; }

    /// Lets go of rows of its own that are the same as the other's, and shares those.
    void shareWith(const Table& other) {
        for (std::size_t row = 0; row < rowCount; ++row)
            if (same(rows_[row], other.rows_[row])) rows_[row] = other.rows_[row];
    }

    bool operator==(const Table& other) const {
        return std::equal(rows_.begin(), rows_.end(), other.rows_.begin(), same);
    }

    /// Fails as an index outside the bounds does, for a caller whose own bounds are narrower.
    [[noreturn]] static void failOutside(const Index& index) {
        Text shown;
        for (const int part : index) shown += (shown.empty() ? "" : ", ") + std::to_string(part);
        fail("index (" + shown + ") is out of bounds");
    }

private:
    template <class Kept, int... extents>
    friend void pack(Packer& out, const Table<Kept, extents...>& table);
    template <class Kept, int... extents>
    friend bool unpack(Unpacker& in, Table<Kept, extents...>& table);

    static constexpr std::size_t elementCount = (static_cast<std::size_t>(Extents) * ...);
    static constexpr std::size_t rowCount = sizeof...(Extents) > 1 ? extents[0] : 1;
    static constexpr std::size_t rowLength = elementCount / rowCount;
    using Row = std::array<Element, rowLength>;

    using SharedRow = std::shared_ptr<Row>;

    /// A row that was never written is one of empty elements.
    static bool same(const SharedRow& left, const SharedRow& right) {
        const auto isEmpty = [](const Row& row) {
            return std::all_of(row.begin(), row.end(), [](const Element& one) { return one == Element{}; });
        };
        if (left == right) return true;
        if (left && right) return *left == *right;
        return isEmpty(left ? *left : *right);
    }

    Element& written(std::size_t at) {
        SharedRow& row = rows_[at / rowLength];
        if (row.use_count() != 1) row = row ? std::make_shared<Row>(*row) : std::make_shared<Row>();
        return (*row)[at % rowLength];
    }

    const Element& read(std::size_t at) const {
        static const Element none{};
        const SharedRow& row = rows_[at / rowLength];
        return row ? (*row)[at % rowLength] : none;
    }

    static constexpr bool within(const Index& index) {
        for (std::size_t i = 0; i < index.size(); ++i)
            if (index[i] < 0 || index[i] >= extents[i]) return false;
        return true;
    }

    static constexpr std::size_t flat(const Index& index) {
        std::size_t at = 0;
        for (std::size_t i = 0; i < index.size(); ++i)
            at = at * static_cast<std::size_t>(extents[i]) + static_cast<std::size_t>(index[i]);
        return at;
    }

    static std::size_t checked(const Index& index) {
        if (!within(index)) failOutside(index);
        return flat(index);
    }

    static std::size_t known(const Index& index) {
        assert(within(index));
        return flat(index);
    }

    std::array<SharedRow, rowCount> rows_{};
};

} // namespace quillon
