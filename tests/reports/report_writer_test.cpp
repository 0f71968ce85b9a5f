#include "reports/report_writer.h"

#include "card/text_cell.h"
#include "sheet_test.h"

namespace quillon {

static_assert(fieldCount("") == 0);
static_assert(fieldCount("no field, { or } alone") == 0);
static_assert(fieldCount("@@@@  @@@  {}") == 3);
static_assert(fieldCount("{}{}@@{}") == 4);

TEST(ReportWriter, ARunOfSignsRightAlignsAndKeepsALongerTextWhole) {
    const auto inFour = [](TextView value) {
        ReportWriter report;
        report.part("<@@@@>", value);
        return report.content();
    };
    EXPECT_EQ("<    >", inFour(""));
    EXPECT_EQ("<  1A>", inFour("1A"));
    EXPECT_EQ("<1234>", inFour("1234"));
    EXPECT_EQ("<12345>", inFour("12345"));
    EXPECT_EQ("<  3 >", inFour("3 ")); // blanks of the text are text
}

TEST(ReportWriter, BracesTakeATextAsItIsAndTheRestStands) {
    ReportWriter report;
    report.line("RACE: {}  {}@@@{}. { }", Text{"1"}, TextCell{" x "}, TextView{"y"}, "z");
    EXPECT_EQ("RACE: 1   x   yz. { }\r\n", report.content());
}

TEST(ReportWriter, SignsInAValueAreNoFields) {
    ReportWriter report;
    report.line("{}|@@@@@|{}", "{}@@", "@@", "end");
    EXPECT_EQ("{}@@|   @@|end\r\n", report.content());
}

TEST(ReportWriter, NamesItsLineEnds) {
    ReportWriter report;
    report.part("a");
    report.part("b");
    report.endLine();
    report.returnLine();
    report.line("");
    EXPECT_EQ("ab\r\n\r\r\n\r\n", report.content());
}

class CardHeadTest : public SheetTest {};

TEST_F(CardHeadTest, TellsTitlePublisherTrackAndDate) {
    ReportWriter report;
    addCardHead(report, "A title");
    EXPECT_EQ("A title\r\n"
              "Tarnbeck Software\r\n"
              "Handicapping for harness racing, trot and pace\r\n"
              "Questions and ideas: the Quillon desk at Tarnbeck Software\r\n"
              "M1 Meadowlands  1.M\r\n"
              "03-14-2026\r\n"
              "\r\n",
              report.content());
}

} // namespace quillon
