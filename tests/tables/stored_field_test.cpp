#include "tables/stored_field.h"
#include "tables/table_builder.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>

namespace quillon {
namespace {

using namespace std::string_view_literals;

Text read(FieldForm form, TextView stored) {
    Text text = "what was there before";
    readStored(form, stored, text);
    return text;
}

struct Reading {
    TextView stored;
    TextView text;
};

TEST(StoredField, NumbersReadAsPlainDecimalText) {
    constexpr Reading readings[] = {
        // clang-format off
        {"   29",                 "29"},
        {" 29.0",                 "29"},
        {"29.50",                 "29.5"},
        {"  .30",                 "0.3"},
        {" -.50",                 "-0.5"},
        {"-1.25",                 "-1.25"},
        {"  007",                 "7"},
        {"-007.70",               "-7.7"},
        {"  100",                 "100"},
        {"10.00",                 "10"},
        {"   +5",                 "5"},
        {"   5.",                 "5"},
        {"5    ",                 "5"},
        {"    0",                 "0"},
        {"0.000",                 "0"},
        {"   -0",                 "0"},
        {" -.00",                 "0"},
        {"  -97",                 "-97"},
        {"0.1000000000000000055", "0.1000000000000000055"}, // more digits than a double has
        {"12345678901234567890",  "12345678901234567890"},
        {"     ",                 ""},
        {"",                      ""},
        // clang-format on
    };
    for (const Reading& reading : readings) EXPECT_EQ(reading.text, read(FieldForm::digits, reading.stored));
}

TEST(StoredField, StarsAndZeroBytesAroundANumberArePadding) {
    constexpr Reading readings[] = {
        {"*****"sv, ""},      {"\0\0\0\0\0"sv, ""},    {"***29"sv, "29"},
        {"29.0\0\0"sv, "29"}, {"\0 29.50 "sv, "29.5"}, {" 7 * "sv, "7"},
    };
    for (const Reading& reading : readings) EXPECT_EQ(reading.text, read(FieldForm::digits, reading.stored));
}

TEST(StoredField, WhatIsNoNumberInANumericFieldReadsAsItStands) {
    constexpr Reading readings[] = {
        {" 1A  "sv, "1A"},
        {"8/5 "sv, "8/5"},
        {"1.5E3 "sv, "1.5E3"},
        {" 1.2.3"sv, "1.2.3"},
        {" 1 2 "sv, "1 2"},
        {"  -  "sv, "-"},
        {"  .  "sv, "."},
        {"**x**"sv, "x"},
        {" 00\0"
         "5"sv,
         "00\0"
         "5"sv},
    };
    for (const Reading& reading : readings) EXPECT_EQ(reading.text, read(FieldForm::digits, reading.stored));
}

TEST(StoredField, ACharacterFieldKeepsItsBlanksOnBothSides) {
    EXPECT_EQ("  1 1/4  ", read(FieldForm::characters, "  1 1/4  "));
    EXPECT_EQ("   ", read(FieldForm::characters, "   "));
    EXPECT_EQ("\xB0\xBA", read(FieldForm::characters, "\xB0\xBA"));
}

TEST(StoredField, ZeroBytesAfterATextAreNoPartOfIt) {
    EXPECT_EQ("Ada", read(FieldForm::characters, "Ada\0\0\0"sv));
    EXPECT_EQ("", read(FieldForm::characters, "\0\0\0"sv));
    EXPECT_EQ("A\0b "sv, read(FieldForm::characters, "A\0b "sv));
}

TEST(StoredField, ADateReadsAsStoredAndEmptyWhenBlank) {
    EXPECT_EQ("20260314", read(FieldForm::date, "20260314"));
    EXPECT_EQ("", read(FieldForm::date, "        "));
    EXPECT_EQ("", read(FieldForm::date, "\0\0\0\0\0\0\0\0"sv));
}

TEST(StoredField, ALogicalFieldReadsAsTrueOrFalseOrUnknown) {
    for (const TextView stored : {"T", "t", "Y", "y"}) EXPECT_EQ("T", read(FieldForm::logical, stored));
    for (const TextView stored : {"F", "f", "N", "n"}) EXPECT_EQ("F", read(FieldForm::logical, stored));
    for (const TextView stored : {"?"sv, " "sv, "\0"sv, "x"sv})
        EXPECT_EQ("", read(FieldForm::logical, stored));
}

TEST(StoredField, ABinaryIntegerIsLowestByteFirst) {
    EXPECT_EQ("258", read(FieldForm::integer32, "\x02\x01\x00\x00"sv)); // 2 + 1 * 256
    EXPECT_EQ("0", read(FieldForm::integer32, "\0\0\0\0"sv));
    EXPECT_EQ("-97", read(FieldForm::integer32, "\x9F\xFF\xFF\xFF")); // 0x9F is 159, 159 - 256 is -97
    EXPECT_EQ("-2147483648", read(FieldForm::integer32, "\x00\x00\x00\x80"sv));
}

TEST(StoredField, CurrencyIsInTenThousandths) {
    const auto read64 = [](std::int64_t amount) {
        return read(FieldForm::currency, bytesOf(static_cast<std::uint64_t>(amount), 8));
    };
    EXPECT_EQ("12.5", read64(125000));
    EXPECT_EQ("0.0001", read64(1));
    EXPECT_EQ("-0.05", read64(-500));
    EXPECT_EQ("8000", read64(80000000));
    EXPECT_EQ("0", read64(0));
    EXPECT_EQ("922337203685477.5807", read64(std::numeric_limits<std::int64_t>::max()));
    EXPECT_EQ("-922337203685477.5808", read64(std::numeric_limits<std::int64_t>::min()));
}

TEST(StoredField, ADoubleReadsAsANumberWithoutAFormat) {
    const auto readDouble = [](double number) {
        return read(FieldForm::real64, bytesOf(std::bit_cast<std::uint64_t>(number), 8));
    };
    EXPECT_EQ("29.3", readDouble(29.3));
    EXPECT_EQ("-0.5", readDouble(-0.5));
    EXPECT_EQ("9.9", readDouble(70.0 - 60.1)); // 9.899999999999999 in the double, 15 digits are shown
    EXPECT_EQ("0", readDouble(-0.0));
    EXPECT_EQ("", readDouble(std::numeric_limits<double>::infinity()));
    EXPECT_EQ("", readDouble(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ("29.5", read(FieldForm::real64, "\x00\x00\x00\x00\x00\x80\x3D\x40"sv)); // 1.84375 * 2^4
}

TEST(StoredField, ADayAndTimeReadsAsItsDate) {
    const auto readDay = [](std::int32_t day) {
        return read(FieldForm::dayAndTime, bytesOf(static_cast<std::uint32_t>(day), 4) + bytesOf(3600000, 4));
    };
    EXPECT_EQ("20000101", readDay(2451545));                               // the astronomers' epoch
    EXPECT_EQ("20260314", readDay(2451545 + 26 * 365 + 7 + 31 + 28 + 13)); // leap years 2000, 2004 to 2024
    EXPECT_EQ("00010101", readDay(1721426));
    EXPECT_EQ("99991231", readDay(5373484));
    for (const std::int32_t day : {0, -1, 1721425, 5373485, 0x20202020}) EXPECT_EQ("", readDay(day));
}

TEST(StoredField, OrderedNumbersHaveTheHighestByteFirstAndTheSignTurned) {
    EXPECT_EQ("258", read(FieldForm::orderedInteger32, "\x80\x00\x01\x02"sv));
    EXPECT_EQ("-1", read(FieldForm::orderedInteger32, "\x7F\xFF\xFF\xFF"));
    // 29.5 is 40 3D 80 00 ...; with its sign bit turned C0. Of -29.5, C0 3D 80 00 ..., every bit is turned.
    EXPECT_EQ("29.5", read(FieldForm::orderedReal64, "\xC0\x3D\x80\x00\x00\x00\x00\x00"sv));
    EXPECT_EQ("-29.5", read(FieldForm::orderedReal64, "\x3F\xC2\x7F\xFF\xFF\xFF\xFF\xFF"sv));
}

TEST(StoredField, AFieldThatLiesElsewhereIsEmpty) { EXPECT_EQ("", read(FieldForm::unread, "        12")); }

} // namespace
} // namespace quillon
