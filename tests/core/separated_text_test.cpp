#include "core/separated_text.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillon {
namespace {

std::string csv(const std::vector<Text>& cells) { return separatedRecord(cells, Separator::comma); }
std::string tsv(const std::vector<Text>& cells) { return separatedRecord(cells, Separator::tab); }

TEST(SeparatedText, ARecordIsALineWithCellsAsTheyStand) {
    EXPECT_EQ("ENTRY,ML,,PR\r\n", csv({"ENTRY", "ML", "", "PR"}));
    EXPECT_EQ("ENTRY\tML\t\tPR\r\n", tsv({"ENTRY", "ML", "", "PR"}));
    EXPECT_EQ("  1, 89.8\r\n", csv({"  1", " 89.8"}));
}

TEST(SeparatedText, OnlyWhatWouldBeMisreadStandsBetweenQuotes) {
    EXPECT_EQ("\"Doe, J\",\"the \"\"Whim\"\"\",\"two\nlines\"\r\n",
              csv({"Doe, J", "the \"Whim\"", "two\nlines"}));
    EXPECT_EQ("Doe, J\t\"a\tb\"\r\n", tsv({"Doe, J", "a\tb"}));
    EXPECT_EQ("a\tb\r\n", csv({"a\tb"}));
}

TEST(SeparatedText, NoCellIsAFormula) {
    EXPECT_EQ("'=1+1,'+A1,'-A1,'@SUM(A1),'--,'\ta\r\n", csv({"=1+1", "+A1", "-A1", "@SUM(A1)", "--", "\ta"}));
    EXPECT_EQ("\"'\ra\"\r\n", csv({"\ra"}));
    EXPECT_EQ("\"'=HYPERLINK(\"\"x\"\",\"\"y\"\")\"\r\n", csv({"=HYPERLINK(\"x\",\"y\")"}));
    EXPECT_EQ("'=1\t\"'\ta\"\r\n", tsv({"=1", "\ta"}));
}

TEST(SeparatedText, NumbersStayNumbers) {
    EXPECT_EQ("-3.5,+2,-.50,5/2, - \r\n", csv({"-3.5", "+2", "-.50", "5/2", " - "}));
}

TEST(SeparatedText, IsUtf8) { EXPECT_EQ("\xC2\xBA\r\n", csv({"\xBA"})); }

} // namespace
} // namespace quillon
