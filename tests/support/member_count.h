// How many members a struct has, to hold its list of fields against it.
#pragma once

#include <cstddef>
#include <optional>
#include <utility>

namespace quillon {
namespace counting {

template <class Value>
inline constexpr bool isOptional = false;
template <class Value>
inline constexpr bool isOptional<std::optional<Value>> = true;

// Becomes any member. An optional takes anything by itself.
struct Anything {
    template <class Member>
    requires(!isOptional<Member>) operator Member() const; // NOLINT(google-explicit-constructor)
};

template <class Record, std::size_t... at>
constexpr bool takes(std::index_sequence<at...>) {
    return requires { Record{((void)at, Anything{})...}; };
}

template <class Record, std::size_t most>
constexpr std::size_t count() {
    if constexpr (takes<Record>(std::make_index_sequence<most>{}))
        return most;
    else
        return count<Record, most - 1>();
}

} // namespace counting

/// The members of a struct without constructors, of a hundred at most; a base counts as one.
template <class Record>
constexpr std::size_t memberCount = counting::count<Record, 100>();

} // namespace quillon
