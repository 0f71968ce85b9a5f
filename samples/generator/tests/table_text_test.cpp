#include "table_text.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace {

using samples::readTableText;
using samples::Table;
using samples::TextError;

Table tableOf(std::string_view text) {
    const auto read = readTableText(text);
    const auto* error = std::get_if<TextError>(&read);
    EXPECT_EQ(nullptr, error) << error->line << ": " << error->message;
    return error ? Table{} : std::get<Table>(read);
}

TextError errorOf(std::string_view text) {
    const auto read = readTableText(text);
    const auto* error = std::get_if<TextError>(&read);
    EXPECT_NE(nullptr, error) << "read without an error";
    return error ? *error : TextError{};
}

TEST(TableText, FieldsWithTypeWidthAndDecimals) {
    const Table table =
        tableOf("RACE N3|CARD_ID C1 | TRACK C5|DISTANCE N6.4|DAY D|IN L|COUNT I|RATE B|PURSE Y|ODDS F7.2");
    struct {
        const char* name;
        char type;
        unsigned width, decimals;
    } const expected[] = {{"RACE", 'N', 3, 0},     {"CARD_ID", 'C', 1, 0}, {"TRACK", 'C', 5, 0},
                          {"DISTANCE", 'N', 6, 4}, {"DAY", 'D', 8, 0},     {"IN", 'L', 1, 0},
                          {"COUNT", 'I', 4, 0},    {"RATE", 'B', 8, 0},    {"PURSE", 'Y', 8, 0},
                          {"ODDS", 'F', 7, 2}};
    ASSERT_EQ(std::size(expected), table.fields.size());
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(expected[i].name, table.fields[i].name);
        EXPECT_EQ(expected[i].type, table.fields[i].type);
        EXPECT_EQ(expected[i].width, table.fields[i].width);
        EXPECT_EQ(expected[i].decimals, table.fields[i].decimals);
    }
}

TEST(TableText, RowsAreTrimmedCells) {
    const Table table = tableOf("A C5|B C3\r\n"
                                "# a remark\r\n"
                                "\r\n"
                                "  MVR | 1A \r\n"
                                "|\n");
    ASSERT_EQ(2U, table.rows.size());
    EXPECT_EQ((std::vector<std::string>{"MVR", "1A"}), table.rows[0].cells);
    EXPECT_EQ((std::vector<std::string>{"", ""}), table.rows[1].cells);
}

TEST(TableText, StarMarksADeletedRow) {
    const Table table = tableOf("A C5|B C3\n*x|y\nx|*\n\\x2A|y");
    ASSERT_EQ(3U, table.rows.size());
    EXPECT_TRUE(table.rows[0].deleted);
    EXPECT_EQ("x", table.rows[0].cells[0]);
    EXPECT_FALSE(table.rows[1].deleted); // a favourite's mark in a later cell
    EXPECT_EQ("*", table.rows[1].cells[1]);
    EXPECT_FALSE(table.rows[2].deleted);
    EXPECT_EQ("*", table.rows[2].cells[0]);
}

TEST(TableText, EscapesGiveBytes) {
    const Table table = tableOf("A C5|B C5\n\\xBA\\xba|\\x20x\\x7C\n");
    EXPECT_EQ("\xBA\xBA", table.rows[0].cells[0]);
    EXPECT_EQ(" x|", table.rows[0].cells[1]);
}

TEST(TableText, Utf8BecomesTheCodePage) {
    // e acute U+00E9 is E9, the ring U+00BA is BA, the euro U+20AC is 80, the apostrophe U+2019 is 92.
    const Table table = tableOf("A C9\n\xC3\xA9 \xC2\xBA\xE2\x82\xAC\xE2\x80\x99\n");
    EXPECT_EQ("\xE9 \xBA\x80\x92", table.rows[0].cells[0]);
}

struct ErrorCase {
    const char* shows;
    const char* text;
    std::size_t line;
    const char* message;
};

void PrintTo(const ErrorCase& row, std::ostream* out) { *out << row.shows; }

class TableTextError : public testing::TestWithParam<ErrorCase> {};

TEST_P(TableTextError, NamesTheLine) {
    const TextError error = errorOf(GetParam().text);
    EXPECT_EQ(GetParam().line, error.line);
    EXPECT_EQ(GetParam().message, error.message);
}

const ErrorCase errorCases[] = {
    {"empty text", "", 0, "no line that names the fields"},
    {"remarks only", "# nothing\n", 1, "no line that names the fields"},
    {"too many cells", "A C5|B C3\n\n1|2|3\n", 3, "3 cells for 2 fields"},
    {"too few cells", "A C5|B C3\n1\n", 2, "1 cells for 2 fields"},
    {"text too wide", "A C2\nMVR\n", 2, "A: wider than its field: \"MVR\""},
    {"chess knight is in no code page", "A C9\n\xE2\x99\x9E\n", 2,
     "A: not in the code page: \"\xE2\x99\x9E\""},
    {"half a UTF-8 character", "A C9\n\xC3\n", 2, "A: not in the code page: \"\xC3\""},
    {"escape without digits", "A C9\nx\\xG1\n", 2, "A: not in the code page: \"x\\xG1\""},
    {"escape cut short", "A C9\n\\xB\n", 2, "A: not in the code page: \"\\xB\""},
    {"name alone", "A\n", 1, "no field: \"A\""},
    {"text without a width", "A C\n", 1, "no field: \"A C\""},
    {"text too wide for a table", "A C255\n", 1, "no field: \"A C255\""},
    {"number too wide for a table", "A N21\n", 1, "no field: \"A N21\""},
    {"no room for the point and a digit", "A N4.3\n", 1, "no field: \"A N4.3\""},
    {"unknown type", "A Q4\n", 1, "no field: \"A Q4\""},
    {"date with a width", "A D8\n", 1, "no field: \"A D8\""},
    {"lower-case name", "lower C4\n", 1, "no field: \"lower C4\""},
    {"name of eleven characters", "ELEVENCHARS C4\n", 1, "no field: \"ELEVENCHARS C4\""},
    {"empty field", "A C4||B C4\n", 1, "no field: \"\""},
};

INSTANTIATE_TEST_SUITE_P(Lines, TableTextError, testing::ValuesIn(errorCases));

} // namespace
