// Lines of the archive that are no cards, and files that change while their rows are shown.
#include "analysis/analysis_view.h"
#include "analysis/archive_scan.h"
#include "analysis/betting_profiles.h"
#include "analysis/stars_profile.h"
#include "analysis/summary.h"
#include "core/journal.h"
#include "support/card_test.h"

#include <vector>

namespace quillon {
namespace {

class ArchiveDamageTest : public CardTest {
protected:
    /// A star record with its margin field as it is, six wide at place 24.
    static Text starLine(const Text& margin) {
        return "                1      " + margin + "     2.50   5/2      12.00\r\n";
    }

    /// A card of ten races with sums of 30.00 and these superfectas, ten wide each.
    static Text archiveLine(const Text& superfectas) {
        Text line = "   M1_20260314 10    4    3    2    1";
        for (int sum = 0; sum < 11; ++sum) line += "    30.00";
        return line + superfectas + "  2\r\n";
    }

    static Text star(int row, int column) { return screen.stars.text(row, column); }
    static Text profile(int row, int column) { return screen.profile.text(row, column); }
};

// 1e99 is a number that no format can show: its cell stays empty and the others are shown.
TEST_F(ArchiveDamageTest, AMarginBeyondItsFormatEmptiesItsCellAlone) {
    put("Stars5.ini", starLine("  1e99") + starLine("   5.3"));
    Star();
    const std::vector<Text> expected{"", "1", "", "2.50 ", "5/2", "12.00", "0", "0"};
    for (int column = 1; column < 8; ++column)
        EXPECT_EQ(expected[static_cast<std::size_t>(column)], star(1, column)) << column;
    EXPECT_EQ("5.3", star(2, 2));
}

// 1e300 begins with a 1, and is beyond the format of the superfectas' cells: they keep it as it is.
TEST_F(ArchiveDamageTest, ASuperfectaBeyondItsFormatStaysAsTheArchiveHasIt) {
    put("HRA.ini", archiveLine("     1e300     1e300   1000.00"));
    ALL();
    EXPECT_EQ("     1e300", profile(11, 17));
    EXPECT_EQ("     1e300", profile(11, 19));
    EXPECT_EQ("1000.00", profile(11, 18));
    EXPECT_EQ("  2", profile(11, 20));
    EXPECT_TRUE(screen.profile.read(11, 6).bold);   // 30.00 times 6 is above 10 times 12
    EXPECT_FALSE(screen.profile.read(11, 10).bold); // times 3 it is not
}

// A track without a card, a card without a superfecta and races without a winner are no damage.
TEST_F(ArchiveDamageTest, NothingToDivideByIsNoFault) {
    put("HRA.ini", "   M1_20260314 10    0    0    0    0" + Text(11 * 9 + 3 * 10, ' ') + "  0\r\n");
    put("Stars5.ini", starLine("   5.3"));
    ALL();
    EXPECT_EQ("", profile(6, 17));
    screen.profileFilter = "LEX";
    Profile2();
    EXPECT_EQ("0 Race Cards", profile(9, 0));
    EXPECT_EQ("", profile(10, 2));
    Star();
    for (const char* odds : {"5/2", "1/1"}) {
        MarginChoice("ALL Margins");
        OddsChoice(odds);
        MaxOddsChoice(odds);
        EXPECT_EQ("", screen.starsFields[8]) << odds;
    }
    EXPECT_EQ("-100.0%", screen.starsFields[7]); // of the race at 5/2
    EXPECT_EQ(0U, journal.count());
}

TEST_F(ArchiveDamageTest, RowsOfAStarsFileThatIsGoneAreEmpty) {
    put("Stars5.ini", "M1_20260314\r\n" + starLine("   5.3"));
    Star();
    std::filesystem::remove("Stars5.ini");
    EXPECT_EQ(3, screen.stars.rows());
    for (int row = 1; row < 3; ++row)
        for (int column = 0; column < 8; ++column) EXPECT_EQ("", star(row, column)) << row << ' ' << column;
}

TEST_F(ArchiveDamageTest, RecordsThatAreAddedLaterLeaveTheRowsAsTheyAre) {
    const Text before = "M1_20260314\r\n" + starLine("   5.3");
    put("Stars5.ini", before);
    Star();
    put("Stars5.ini", before + "M1_20260315\r\n" + starLine("   7.1"));
    EXPECT_EQ(3, screen.stars.rows());
    EXPECT_EQ("M1_20260314", star(1, 0));
    EXPECT_EQ("5.3", star(2, 2));
}

// The card of a row may be named megabytes before it, and a line may be of any length.
TEST_F(ArchiveDamageTest, ARowFindsItsCardFarInFrontOfIt) {
    const Text longLine = starLine("   2.0");
    Text content = "M1_20260314 and a line of its own\r\n";
    for (int line = 0; line < 20000; ++line) content += longLine; // margins that do not pass
    content += Text(300000, 'x') + "\r\n";                        // a card of this name
    content += starLine("   5.3") + starLine("   5.4");
    content += "LEX_20260315\r\n" + starLine("   5.5");
    put("Stars5.ini", content);
    Star();
    MarginChoice("$$$$$");
    OddsChoice("ALL Odds");
    MaxOddsChoice("ALL Odds");
    ASSERT_EQ(4, screen.stars.rows());
    EXPECT_EQ(Text(15, 'x'), star(1, 0));
    EXPECT_EQ("5.3", star(1, 2));
    EXPECT_EQ("", star(2, 0));
    EXPECT_EQ("5.4", star(2, 2));
    EXPECT_EQ("LEX_20260315", star(3, 0));
    EXPECT_EQ("5.5", star(3, 2));
    EXPECT_EQ(Text(15, 'x'), star(1, 0)); // backwards again
}

TEST_F(ArchiveDamageTest, LinesTellWhereTheyBegin) {
    Text content;
    std::vector<std::uint64_t> starts;
    for (std::size_t line = 0; line < 5000; ++line) {
        starts.push_back(content.size());
        content += Text(line * 7 % 400, 'x') + (line % 3 == 0 ? "\n" : "\r\n");
    }
    starts.push_back(content.size());
    content += "without an end";
    put("HRA.ini", content);
    LinesForwards lines{archivePlace()};
    for (const std::uint64_t start : starts) {
        ASSERT_TRUE(lines.next());
        ASSERT_EQ(start, lines.lineStart());
    }
    EXPECT_FALSE(lines.next());
}

TEST_F(ArchiveDamageTest, PiecesEndWithTheFile) {
    Text content;
    for (int number = 0; number < 30000; ++number) content += std::to_string(number) + ' ';
    put("HRA.ini", content);
    PiecesAhead pieces{archivePlace()};
    for (const std::size_t start : {std::size_t{0}, std::size_t{65530}, std::size_t{10}, content.size() - 5,
                                    content.size(), content.size() + 100, std::size_t{70000}}) {
        const Text expected = start < content.size() ? content.substr(start, 20) : Text{};
        EXPECT_EQ(expected, pieces.read(start, 20)) << start;
    }
}

TEST_F(ArchiveDamageTest, TheSummaryTakesThePlaceOfEveryOtherView) {
    for (bool Screen::*const view :
         {&Screen::profileVisible, &Screen::tracksVisible, &Screen::picksVisible, &Screen::starsVisible}) {
        showAnalysisView(view);
        SelectionResults();
        EXPECT_TRUE(screen.summaryVisible);
        EXPECT_FALSE(screen.*view);
    }
}

} // namespace
} // namespace quillon
