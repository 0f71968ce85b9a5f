#include "dbf_writer.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace {

using samples::Table;
using samples::tableBytes;
using namespace std::string_literals;
using namespace std::string_view_literals;

Table twoRaces() {
    return {.fields = {{"RACE", 'N', 3, 0}, {"CARD_ID", 'C', 1, 0}},
            .rows = {{.cells = {"1", "A"}}, {.cells = {"12", ""}, .deleted = true}}};
}

TEST(DbfWriter, HeadOfAFoxProTable) {
    // Two rows. Header: 32 + 2 fields x 32 + 1 end + 263 backlink = 360 = 0168. Record: 1 + 3 + 1 = 5.
    const std::string expected = "\x30\x7E\x03\x0D"s         // FoxPro 3, 1900 + 126 = 2026, March, 13
                                 "\x02\0\0\0\x68\x01\x05\0"s // least significant byte first
                                 "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x03\0\0"s;
    EXPECT_EQ(expected, tableBytes(twoRaces()).substr(0, 32));
}

TEST(DbfWriter, FieldsOfAFoxProTable) {
    const std::string race = "RACE\0\0\0\0\0\0\0N\x01\0\0\0\x03\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s;
    const std::string card =
        "CARD_ID\0\0\0\0C\x04\0\0\0\x01\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s; // after RACE: 1 + 3
    EXPECT_EQ(race + card + "\x0D", tableBytes(twoRaces()).substr(32, 65));
}

TEST(DbfWriter, RecordsFollowTheBacklink) {
    const std::string bytes = tableBytes(twoRaces());
    EXPECT_EQ(std::string(263, '\0'), bytes.substr(97, 263));
    EXPECT_EQ("   1A"
              "* 12 "
              "\x1A",
              bytes.substr(360));
}

TEST(DbfWriter, OtherVersionsHaveNeitherBacklinkNorOffsets) {
    for (const int number : {0x03, 0x04, 0x83, 0x8B}) {
        const auto version = static_cast<std::uint8_t>(number);
        const std::string bytes = tableBytes(twoRaces(), {.version = version});
        EXPECT_EQ(static_cast<char>(version), bytes[0]);
        EXPECT_EQ('\x61', bytes[8]); // 32 + 2 x 32 + 1 = 97 = 61
        EXPECT_EQ('\0', bytes[32 + 12]);
        EXPECT_EQ("   1A* 12 \x1A", bytes.substr(97));
    }
}

TEST(DbfWriter, EndMarkCanBeLeftOut) {
    EXPECT_EQ("* 12 ", tableBytes(twoRaces(), {.endMark = false}).substr(365));
}

// The bytes of one cell in a table of one field, without the deletion mark and the end mark.
std::string cellBytes(const samples::Field& field, const std::string& cell) {
    const Table table{.fields = {field}, .rows = {{.cells = {cell}}}};
    return tableBytes(table, {.version = 0x03, .endMark = false}).substr(32 + 32 + 1 + 1);
}

struct CellCase {
    const char* shows;
    char type;
    unsigned width, decimals;
    std::string_view cell, expected;
};

void PrintTo(const CellCase& row, std::ostream* out) { *out << row.shows; }

class DbfCell : public testing::TestWithParam<CellCase> {};

TEST_P(DbfCell, IsStoredAsItsTypeSays) {
    const auto& [shows, type, width, decimals, cell, expected] = GetParam();
    EXPECT_EQ(expected, cellBytes({"F", type, width, decimals}, std::string{cell}));
}

constexpr CellCase cellCases[] = {
    {"text is blank filled", 'C', 5, 0, "MVR", "MVR  "},
    {"text is cut", 'C', 3, 0, "Biscuit", "Bis"},
    {"code page bytes pass", 'C', 2, 0, "\xBA", "\xBA "},
    {"number is right-aligned", 'N', 4, 0, "12", "  12"},
    {"places are filled up", 'N', 6, 4, "1", "1.0000"},
    {"places that are there stay", 'F', 7, 4, "1.0625", " 1.0625"},
    {"negative number", 'N', 6, 1, "-99", " -99.0"},
    {"no number stays as it is", 'N', 5, 1, "x.", "   x."},
    {"empty number is blanks", 'N', 3, 1, "", "   "},
    {"too long a number is asterisks", 'N', 3, 1, "100", "***"},
    {"date", 'D', 8, 0, "20260314", "20260314"},
    {"logical", 'L', 1, 0, "T", "T"},
    {"integer 258 = 0102", 'I', 4, 0, "258", "\x02\x01\0\0"sv},
    {"integer -2 in two's complement", 'I', 4, 0, "-2", "\xFE\xFF\xFF\xFF"sv},
    {"double 1.5 = 3FF8...", 'B', 8, 0, "1.5", "\0\0\0\0\0\0\xF8\x3F"sv},
    {"currency 2.5 is 25000 = 61A8", 'Y', 8, 0, "2.5", "\xA8\x61\0\0\0\0\0\0"sv},
    {"no number in binary is 0", 'I', 4, 0, "", "\0\0\0\0"sv},
};

INSTANTIATE_TEST_SUITE_P(Types, DbfCell, testing::ValuesIn(cellCases));

TEST(DbfWriter, MissingCellsAreBlank) {
    const Table table{.fields = {{"A", 'C', 2, 0}, {"B", 'N', 2, 0}}, .rows = {{.cells = {"x"}}}};
    EXPECT_EQ(" x   \x1A", tableBytes(table, {.version = 0x03}).substr(97));
}

TEST(DbfWriter, LongFieldNameIsCutToTen) {
    const Table table{.fields = {{"BULLETDATES", 'C', 8, 0}}, .rows = {}};
    EXPECT_EQ("BULLETDATE\0C"s, tableBytes(table).substr(32, 12));
}

} // namespace
