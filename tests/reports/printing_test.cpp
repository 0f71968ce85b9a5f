#include "core/failure.h"
#include "reports/condensed_program.h"
#include "sheet_test.h"

namespace quillon {
namespace {

constexpr const char* programPath = "A Quillon PRO/Programs/M1_20260314.ppp";
using Lines = std::vector<std::string>;

} // namespace

class PrintingTest : public SheetTest {};

TEST_F(PrintingTest, PrintsLineByLineWithItsEmphasis) {
    put(programPath, "\r\n"
                     "The Quillon Selections\r\n"
                     "\r\n"
                     "M1\r\n" // line 4
                     "Meadowlands\r\n"
                     "20260314\r\n"
                     "\r\n"
                     "RACE 1\r\n" // line 8
                     "PURSE: 12000 \r\n"
                     "Date    Track  Driver\r\n"
                     "  2  2    Quick Silver  Driver: Roe, C\r\n"
                     " Date\r\n"
                     "02-28-26\r\n"
                     "Selections:  2\r\n"
                     "-----\r\n"
                     "RACE 2\r\n"
                     "=====\r\n");
    PrintCondensedProgram();
    EXPECT_EQ((Lines{"message: Check Printer ON",
                     "print: ",
                     "print: ",
                     "print: The Quillon Selections",
                     "print: ",
                     "print emphasised: M1",
                     "print: Meadowlands",
                     "print: 20260314",
                     "print: ",
                     "print emphasised: RACE 1",
                     "print: PURSE: 12000 ",
                     "print emphasised:  - Date    Track  Driver",
                     "print emphasised:  -   2  2    Quick Silver  Driver: Roe, C",
                     "print:  Date",
                     "print: 02-28-26",
                     "print emphasised:  - Selections:  2",
                     "print new page",
                     "print: RACE 2",
                     "print new page",
                     "print end",
                     "message: Turn printer 'ON' then click 'OK' "}),
              shown);
}

TEST_F(PrintingTest, ARuleInAnEmphasisedPlaceEndsThePageAllTheSame) {
    put(programPath, "\r\n\r\n\r\n---\r\n");
    PrintCondensedProgram();
    EXPECT_EQ("print new page", shown.at(5)); // after the message, the first empty line and three lines
}

TEST_F(PrintingTest, PrintsWhatTheCondensedProgramWrote) {
    card.raceInfo(1).postTime = "7:15";
    Condensed_PPP();
    PrintCondensedProgram();
    ASSERT_EQ(1U + 1 + 7 + 8 + 2, shown.size()); // message, empty line, head, race, end and message
    EXPECT_EQ("print emphasised: M1", shown.at(5));
    EXPECT_TRUE(shown.at(9).starts_with("print emphasised: RACE ")) << shown.at(9);
    EXPECT_EQ("print new page", shown.at(1 + 1 + 7 + 7));
}

TEST_F(PrintingTest, AsksForThePrinterAndStopsWithNoCardOpen) {
    card.cardFileName.clear();
    PrintCondensedProgram();
    EXPECT_EQ(Lines{"message: Check Printer ON"}, shown);
}

TEST_F(PrintingTest, PrintsNothingWithoutAProgram) {
    attempt(PrintCondensedProgram);
    EXPECT_EQ(Lines{"message: Check Printer ON"}, shown);
    EXPECT_TRUE(journalTells("M1_20260314.ppp can't be read"));
}

} // namespace quillon
