// Tables that know their bounds.
#pragma once

#include "core/failure.h"

#include <array>
#include <cassert>
#include <memory>
#include <span>
#include <string>

namespace quillon {

/// A table of Extents... elements; each index runs from 0 to its extent less 1.
///
/// table(r, e) is for indices that come from data: outside the bounds it fails by the failure policy, so a
/// store beyond a bound is lost and nothing is clipped. table[{r, e}] is for code that knows: it asserts.
template <class Element, int... Extents>
class Table {
public:
    using Index = std::array<int, sizeof...(Extents)>;
    static constexpr Index extents{Extents...};

    Table() : elements_(std::make_unique<Elements>()) {}

    template <class... Indices>
    Element& operator()(Indices... indices) {
        return (*elements_)[checked({static_cast<int>(indices)...})];
    }
    template <class... Indices>
    const Element& operator()(Indices... indices) const {
        return (*elements_)[checked({static_cast<int>(indices)...})];
    }

    Element& operator[](const Index& index) { return (*elements_)[known(index)]; }
    const Element& operator[](const Index& index) const { return (*elements_)[known(index)]; }

    void clear() {
        for (Element& element : *elements_) element = Element{};
    }

private:
    static constexpr std::size_t elementCount = (static_cast<std::size_t>(Extents) * ...);
    using Elements = std::array<Element, elementCount>;

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

    [[noreturn]] static void failOutside(const Index& index) {
        Text shown;
        for (const int part : index) shown += (shown.empty() ? "" : ", ") + std::to_string(part);
        fail("index (" + shown + ") is out of bounds");
    }

    std::unique_ptr<Elements> elements_;
};

} // namespace quillon
