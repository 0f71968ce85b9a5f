#include "core/packing.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace quillon {
namespace {

template <class Value>
Text packed(const Value& value) {
    Packer out;
    pack(out, value);
    return out.bytes();
}

/// The value of these bytes, all of them; nothing for bytes that are none.
template <class Value>
std::optional<Value> unpacked(TextView bytes) {
    Unpacker in{bytes};
    Value value{};
    if (!unpack(in, value) || !in.atEnd()) return std::nullopt;
    return value;
}

TEST(Packing, NumbersComeBackAndSmallOnesTakeAByte) {
    using Limits = std::numeric_limits<std::int64_t>;
    for (const std::int64_t number : {std::int64_t{0}, std::int64_t{1}, std::int64_t{-1}, std::int64_t{63},
                                      std::int64_t{-64}, std::int64_t{64}, Limits::min(), Limits::max()})
        EXPECT_EQ(number, unpacked<std::int64_t>(packed(number))) << number;
    // Seven bits a byte, the sign among them: 63 is 126 of 127, 64 is 128.
    EXPECT_EQ(1U, packed(63).size());
    EXPECT_EQ(1U, packed(-64).size());
    EXPECT_EQ(2U, packed(64).size());
    EXPECT_EQ(10U, packed(Limits::min()).size()); // 64 bits in groups of 7
    for (const double number : {0.0, -0.0, 61.3, -1e300})
        EXPECT_EQ(number, unpacked<double>(packed(number))) << number;
}

TEST(Packing, ANumberThatDoesNotFitIsNone) {
    EXPECT_EQ(std::nullopt, unpacked<std::int16_t>(packed(32'768)));
    EXPECT_EQ(std::nullopt, unpacked<std::int16_t>(packed(-32'769)));
    EXPECT_EQ(std::int16_t{-32'768}, unpacked<std::int16_t>(packed(-32'768)));
    EXPECT_EQ(std::nullopt, unpacked<bool>(Text{"\2"}));
    EXPECT_EQ(std::nullopt, unpacked<std::uint64_t>(Text(11, '\x80'))); // it goes on and on
    EXPECT_EQ(std::nullopt, unpacked<std::uint64_t>(""));
}

TEST(Packing, TextsOptionalsAndListsComeBack) {
    const std::vector<std::optional<Text>> list{"Oughta Be Famous", std::nullopt, "", Text{"\0\xE9", 2}};
    EXPECT_EQ(list, unpacked<std::vector<std::optional<Text>>>(packed(list)));
}

TEST(Packing, EveryCutIsNoticed) {
    const std::vector<Text> list{"one", "", "three"};
    const Text whole = packed(list);
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(std::nullopt, unpacked<std::vector<Text>>(TextView{whole}.substr(0, size))) << size;
}

TEST(Packing, ALengthIsNotBelieved) {
    Packer huge;
    huge.putNumber(std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(std::nullopt, unpacked<Text>(huge.bytes() + "abc"));
    EXPECT_EQ(std::nullopt, unpacked<std::vector<Text>>(huge.bytes() + "abc"));
}

TEST(Packing, WhatWasSharedIsSharedAgain) {
    const auto text = std::make_shared<const Text>("a long text that stands in many places");
    const std::vector<std::shared_ptr<const Text>> list{text, nullptr, text,
                                                        std::make_shared<const Text>(*text)};
    Packer out;
    pack(out, list);
    EXPECT_LT(out.bytes().size(), 3 * text->size()); // twice, and not three times
    Unpacker in{out.bytes()};
    std::vector<std::shared_ptr<const Text>> again;
    ASSERT_TRUE(unpack(in, again));
    ASSERT_EQ(4U, again.size());
    EXPECT_EQ(*text, *again[0]);
    EXPECT_EQ(nullptr, again[1]);
    EXPECT_EQ(again[0], again[2]);
    EXPECT_EQ(*again[0], *again[3]);
    EXPECT_NE(again[0], again[3]);
}

TEST(Packing, AnObjectIsNotTakenForOneOfAnotherType) {
    Packer out;
    pack(out, std::make_shared<const Text>("a text"));
    out.putNumber(2); // where a shared object stands: the first one that was written
    Unpacker in{out.bytes()};
    std::shared_ptr<const Text> text;
    std::shared_ptr<std::vector<Text>> list;
    ASSERT_TRUE(unpack(in, text));
    EXPECT_FALSE(unpack(in, list));
}

TEST(Packing, AReferenceToWhatIsNotThereYetIsNone) {
    Packer out;
    out.putNumber(3);
    Unpacker in{out.bytes()};
    std::shared_ptr<const Text> text;
    EXPECT_FALSE(unpack(in, text));
    Unpacker piece{out.bytes()};
    Text repeated;
    EXPECT_FALSE(unpackRepeated(piece, repeated));
}

TEST(Packing, TablesShareTheirRowsAgain) {
    Table<Text, 3, 2> table;
    table[{1, 1}] = "second row";
    const Table<Text, 3, 2> copy = table;
    Table<Text, 3, 2> changed = table;
    changed[{2, 0}] = "third row";
    Packer out;
    for (const Table<Text, 3, 2>& one : {table, copy, changed}) pack(out, one);
    Unpacker in{out.bytes()};
    Table<Text, 3, 2> first;
    Table<Text, 3, 2> second;
    Table<Text, 3, 2> third;
    ASSERT_TRUE(unpack(in, first) && unpack(in, second) && unpack(in, third) && in.atEnd());
    EXPECT_TRUE(first == table);
    EXPECT_TRUE(second == copy);
    EXPECT_TRUE(third == changed);
    const auto& firstRead = std::as_const(first);
    EXPECT_EQ(&firstRead(1, 1), &std::as_const(second)(1, 1));
    EXPECT_EQ(&firstRead(1, 1), &std::as_const(third)(1, 1));
}

TEST(Packing, ARepeatedPieceIsWrittenOnce) {
    const Text text(100, 'x');
    Packer out;
    for (int i = 0; i < 50; ++i) packRepeated(out, text);
    EXPECT_LT(out.bytes().size(), 200U); // the piece with two lengths, and a byte for each of the others
    Unpacker in{out.bytes()};
    for (int i = 0; i < 50; ++i) {
        Text again;
        ASSERT_TRUE(unpackRepeated(in, again));
        EXPECT_EQ(text, again);
    }
    EXPECT_TRUE(in.atEnd());
}

TEST(Packing, PiecesDoNotGrowBeyondReason) {
    // The piece takes 100,007 bytes, each of the 10,999 others one. These 111,006 may stand for 1,024 times
    // as many and a megabyte: 114,718,720 / 100,003 is 1,147 pieces besides the first.
    const Text text(100'000, 'x');
    Packer out;
    for (int i = 0; i < 11'000; ++i) packRepeated(out, text);
    Unpacker in{out.bytes()};
    int taken = 0;
    for (Text again; taken < 11'000 && unpackRepeated(in, again);) ++taken;
    EXPECT_EQ(1'148, taken);
}

TEST(Packing, ASealedTextOpensAndADamagedOneDoesNot) {
    const Text whole = sealed("MVR_20260314.pmd, 7 changes");
    EXPECT_EQ("MVR_20260314.pmd, 7 changes", opened(whole));
    EXPECT_EQ("", opened(sealed("")));
    for (std::size_t at = 0; at < whole.size(); ++at) {
        EXPECT_EQ(std::nullopt, opened(TextView{whole}.substr(0, at))) << at;
        for (const int flip : {1, 2, 4, 8, 16, 32, 64, 128}) {
            Text damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ flip);
            EXPECT_EQ(std::nullopt, opened(damaged)) << at << ' ' << flip;
        }
    }
    EXPECT_EQ(std::nullopt, opened(whole + "x"));
}

} // namespace
} // namespace quillon
