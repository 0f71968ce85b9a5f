// State packed into bytes and back, for files that only this program reads.
//
// A value is packed by a function `pack(Packer&, const Value&)` and taken out again by its twin
// `bool unpack(Unpacker&, Value&)`, which is false for bytes that are no such value. What is shared by
// pointer is written once and shared again afterwards, through the whole of one packer's bytes. Nothing that
// is unpacked is believed: a count takes no more room than there are bytes left to fill it.
#pragma once

#include "core/table.h"
#include "core/text.h"

#include <array>
#include <bit>
#include <concepts>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <type_traits>
#include <unordered_map>
#include <vector>

namespace quillon {

class Packer {
public:
    void putNumber(std::uint64_t number); ///< small ones take a byte
    void putBytes(TextView bytes) { bytes_ += bytes; }
    void putText(TextView text);

    /// What stands where a shared object does: a number when it was written before; otherwise `write` writes
    /// it now.
    template <class Value, class Write>
    void putShared(const std::shared_ptr<Value>& value, Write write);

    /// A packed piece, written once however often it comes. It shares nothing with what is outside it.
    void putRepeated(const Packer& piece);

    const Text& bytes() const { return bytes_; }

private:
    static constexpr std::uint64_t none = 0;
    static constexpr std::uint64_t isNew = 1;
    static constexpr std::uint64_t firstKnown = 2;
    friend class Unpacker;

    Text bytes_;
    std::unordered_map<const void*, std::uint64_t> shared_; ///< their numbers
    std::vector<std::shared_ptr<const void>> kept_;         ///< so that no address is used twice
    std::unordered_map<Text, std::uint64_t> repeated_;
};

class Unpacker {
public:
    /// The bytes must outlive it.
    explicit Unpacker(TextView bytes) : left_(bytes), repeatable_(mostRepeated(bytes.size())) {}

    std::size_t left() const { return left_.size(); } ///< bytes
    bool atEnd() const { return left_.empty(); }

    // Each is false where the bytes are no such thing.
    bool takeNumber(std::uint64_t& number);
    bool takeBytes(TextView& bytes, std::uint64_t count);
    bool takeText(TextView& text);
    bool takeCount(std::size_t& count); ///< of things that take a byte or more each

    /// `read` reads the object into a Value when it stands here.
    template <class Value, class Read>
    bool takeShared(std::shared_ptr<Value>& value, Read read);

    /// The bytes of a piece.
    bool takeRepeated(TextView& piece);

private:
    /// One for each type, so that an object is never taken for one of another type.
    template <class Value>
    static inline const char kind = 0;

    struct Known {
        const void* kind;
        std::shared_ptr<void> object;
    };

    // Pieces that refer to a long one over and over would fill any memory.
    static constexpr std::size_t mostRepeated(std::size_t size) { return (size << 10U) + (1U << 20U); }

    TextView left_;
    std::vector<Known> known_;
    std::vector<TextView> repeated_;
    std::size_t repeatable_; ///< bytes that pieces may still stand for
};

/// Packed bytes with a head and a checksum, as they are kept in a file.
Text sealed(TextView bytes);

/// The bytes of a sealed text; nothing for one that is damaged, cut, or from another version.
std::optional<TextView> opened(TextView sealedBytes);

template <class Value, class Write>
void Packer::putShared(const std::shared_ptr<Value>& value, Write write) {
    if (!value) return putNumber(none);
    if (const auto known = shared_.find(value.get()); known != shared_.end())
        return putNumber(firstKnown + known->second);
    putNumber(isNew);
    write(*value);
    shared_.emplace(value.get(), kept_.size());
    kept_.push_back(value);
}

template <class Value, class Read>
bool Unpacker::takeShared(std::shared_ptr<Value>& value, Read read) {
    using Object = std::remove_const_t<Value>;
    std::uint64_t mark = 0;
    if (!takeNumber(mark)) return false;
    if (mark == Packer::none) {
        value = nullptr;
        return true;
    }
    if (mark == Packer::isNew) {
        auto object = std::make_shared<Object>();
        if (!read(*object)) return false;
        known_.push_back({&kind<Object>, object});
        value = std::move(object);
        return true;
    }
    const std::uint64_t at = mark - Packer::firstKnown;
    if (at >= known_.size() || known_[at].kind != &kind<Object>) return false;
    value = std::static_pointer_cast<Object>(known_[at].object);
    return true;
}

// Numbers. Signs stand in the lowest bit, so that small negative numbers are short as well.

template <std::integral Number>
void pack(Packer& out, Number number) {
    if constexpr (std::unsigned_integral<Number>) {
        out.putNumber(number);
    } else {
        const auto wide = static_cast<std::int64_t>(number);
        out.putNumber(static_cast<std::uint64_t>(wide) << 1 ^
                      (wide < 0 ? ~std::uint64_t{0} : std::uint64_t{0}));
    }
}

template <std::integral Number>
bool unpack(Unpacker& in, Number& number) {
    std::uint64_t bits = 0;
    if (!in.takeNumber(bits)) return false;
    if constexpr (std::unsigned_integral<Number>) {
        if (bits > std::numeric_limits<Number>::max()) return false;
        number = static_cast<Number>(bits);
    } else {
        const auto wide = static_cast<std::int64_t>(bits >> 1 ^ (~(bits & 1) + 1));
        if (wide < std::numeric_limits<Number>::min() || wide > std::numeric_limits<Number>::max())
            return false;
        number = static_cast<Number>(wide);
    }
    return true;
}

void pack(Packer& out, double number);
bool unpack(Unpacker& in, double& number);

/// A value of an enum whose last one is known.
template <class Enum>
bool unpackEnum(Unpacker& in, Enum& value, Enum last) {
    unsigned number = 0;
    if (!unpack(in, number) || number > static_cast<unsigned>(last)) return false;
    value = static_cast<Enum>(number);
    return true;
}

// Texts and what is made of other values.

inline void pack(Packer& out, const Text& text) { out.putText(text); }
bool unpack(Unpacker& in, Text& text);

template <class Value>
void pack(Packer& out, const std::optional<Value>& value) {
    pack(out, value.has_value());
    if (value) pack(out, *value);
}

template <class Value>
bool unpack(Unpacker& in, std::optional<Value>& value) {
    bool given = false;
    value.reset();
    return unpack(in, given) && (!given || unpack(in, value.emplace()));
}

template <class Value, std::size_t count>
void pack(Packer& out, const std::array<Value, count>& values) {
    for (const Value& value : values) pack(out, value);
}

template <class Value, std::size_t count>
bool unpack(Unpacker& in, std::array<Value, count>& values) {
    for (Value& value : values)
        if (!unpack(in, value)) return false;
    return true;
}

template <class Value>
void pack(Packer& out, const std::vector<Value>& values) {
    out.putNumber(values.size());
    for (const Value& value : values) pack(out, value);
}

/// A value must take a byte or more.
template <class Value>
bool unpack(Unpacker& in, std::vector<Value>& values) {
    std::size_t count = 0;
    if (!in.takeCount(count)) return false;
    values.clear();
    constexpr std::size_t trusted = 64; // the rest is believed when it comes
    values.reserve(std::min(count, trusted));
    for (; count > 0; --count)
        if (!unpack(in, values.emplace_back())) return false;
    return true;
}

template <class Value>
void pack(Packer& out, const std::shared_ptr<Value>& value) {
    out.putShared(value, [&](const Value& object) { pack(out, object); });
}

template <class Value>
bool unpack(Unpacker& in, std::shared_ptr<Value>& value) {
    return in.takeShared(value, [&](std::remove_const_t<Value>& object) { return unpack(in, object); });
}

template <class Element, int... extents>
void pack(Packer& out, const Table<Element, extents...>& table) {
    for (const auto& row : table.rows_) pack(out, row);
}

template <class Element, int... extents>
bool unpack(Unpacker& in, Table<Element, extents...>& table) {
    for (auto& row : table.rows_)
        if (!unpack(in, row)) return false;
    return true;
}

/// A value without shared parts, which often stays as it is from one state to the next.
template <class Value>
void packRepeated(Packer& out, const Value& value) {
    Packer piece;
    pack(piece, value);
    out.putRepeated(piece);
}

template <class Value>
bool unpackRepeated(Unpacker& in, Value& value) {
    TextView bytes;
    if (!in.takeRepeated(bytes)) return false;
    Unpacker piece{bytes};
    return unpack(piece, value) && piece.atEnd();
}

} // namespace quillon
