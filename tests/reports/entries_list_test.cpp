#include "reports/entries_list.h"

#include "core/failure.h"
#include "sheet_test.h"
#include "tables/load_state.h"

namespace quillon {
namespace {

constexpr const char* listPath = "A Quillon PRO/Entries/M1_20260314.txt";
using Lines = std::vector<std::string>;

const std::string heading =
    "PP  PN   ML  ENTRY                                        DRIVER              PR";

} // namespace

class EntriesListTest : public SheetTest {
protected:
    EntriesListTest() {
        load = {};
        card.raceCount = 1;
    }
    ~EntriesListTest() override { load = {}; }

    static void addEntry(int race, int post, const Text& name) {
        card.entry(race, post).horseName = name;
        card.entry(race, post).postPosition = rightAligned(std::to_string(post), 3);
        card.entry(race, post).programNumber = rightAligned(std::to_string(post), 3);
        card.entry(race, post).morningOdds = " 5/2";
        card.entry(race, post).driverName = "Roe, C";
        card.entry(race, post).rating = " 6" + std::to_string(post) + ".0";
    }

    /// A table of one row with one field, CALL_ST_PO, two wide.
    static Text lineTable(const Text& stretchPosition) {
        Text table("\x03\0\0\0", 4);
        table += Text("\1\0\0\0", 4);   // rows
        table += Text("\x41\0\3\0", 4); // bytes of the head: 32, a field's 32 and the mark; bytes of a row
        table += Text(20, '\0');
        table += Text("CALL_ST_PO\0C", 12) + Text(4, '\0') + '\2' + Text(15, '\0');
        table += '\r';
        return table + ' ' + stretchPosition;
    }

    static void fill(int race, int entries) {
        for (int post = 1; post <= entries; ++post)
            addEntry(race, post, "H" + std::to_string(race) + "-" + std::to_string(post));
    }

    static std::string list() {
        Entries();
        return contentOf(listPath);
    }

    /// The lines after the list's heading, names alone of the entries, with their ratings.
    static Lines places() {
        Entries();
        Lines lines = linesOf(listPath);
        lines.erase(lines.begin(), lines.begin() + 6);
        for (std::string& line : lines) {
            const auto name = line.find('H');
            if (name == std::string::npos) continue;
            const auto rating =
                line.find_last_not_of(' ') == line.rfind('C') ? "" : line.substr(line.rfind(' ') + 1);
            line = line.substr(name, line.find(' ', name) - name) + " " + rating;
        }
        return lines;
    }
};

TEST_F(EntriesListTest, WritesHeadAndEntriesAndShowsThem) {
    addEntry(1, 1, "Quick Silver        ");
    addEntry(1, 2, "Oak");
    card.entry(1, 2).programNumber = " 1A";
    card.entry(1, 2).morningOdds = "10/1";
    card.entry(1, 2).driverName = "  Vandersloot, J ";
    card.entry(1, 2).rating = "";
    EXPECT_EQ(
        "M1 Meadowlands  1.M\r\n"
        "03-14-2026\r\n"
        "\r\n" // no row of the running lines is at hand
        "\r\n"
        "\r\n" +
            heading + "\r\n" + "Race  1 \r\n" + "  1    1  5/2 Quick Silver        " +
            std::string(20 - 4, ' ') + "Roe, C" + std::string(20 - 6, ' ') + "61.0\r\n" + //
            "  2   1A 10/1 Oak" + std::string(20 - 4, ' ') + "Vandersloot, J" + std::string(20 - 14, ' ') +
            "\r\n" +                                //
            "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n", // slots 3 to 11; the twelfth ends the race and the list
        list());
    EXPECT_EQ(Lines{"view: C:\\A Quillon PRO\\Entries\\M1_20260314.txt"}, shown);
    EXPECT_EQ("NOTEPAD C:\\A Quillon PRO\\Entries\\M1_20260314.txt\r\n", contentOf("Archives.bat"));
}

TEST_F(EntriesListTest, TheThirdLineIsTheStretchPositionOfTheRowAtHand) {
    load.lineRows.openContent(lineTable("5 "), "RUNLINHR.DBF");
    Entries();
    EXPECT_EQ("5 ", linesOf(listPath).at(2));
    load.lineRows.MoveNext(); // as a load leaves it
    Entries();
    EXPECT_EQ("", linesOf(listPath).at(2));
}

TEST_F(EntriesListTest, ARaceOfEightGivesThreeEmptyLinesBeforeTheNextHeading) {
    card.raceCount = 2;
    fill(1, 8);
    fill(2, 1);
    EXPECT_EQ((Lines{"Race  1 ",  "H1-1 61.0", "H1-2 62.0", "H1-3 63.0", "H1-4 64.0", "H1-5 65.0",
                     "H1-6 66.0", "H1-7 67.0", "H1-8 68.0", "",          "",          "",
                     "Race  2 ",  "H2-1 61.0", "",          "",          "",          "",
                     "",          "",          "",          "",          "",          ""}),
              places());
}

TEST_F(EntriesListTest, TheRatingGoesByTheLinesPrintedNotByThePost) {
    addEntry(1, 1, "H1");
    addEntry(1, 3, "H3");
    addEntry(1, 4, "H4");
    card.entry(1, 2).rating = " 70.0";
    const Lines lines = places();
    EXPECT_EQ("H1 61.0", lines.at(1));
    EXPECT_EQ("", lines.at(2));
    EXPECT_EQ("H3 70.0", lines.at(3)); // the second line printed: entry 2's
    EXPECT_EQ("H4 63.0", lines.at(4)); // the third: entry 3's
}

TEST_F(EntriesListTest, AFullRaceRunsOnIntoTheNextUnderItsHeading) {
    card.raceCount = 2;
    fill(1, 12);
    fill(2, 2);
    card.entry(1, 13).rating = " 80.0"; // thirteenth line under the heading of race 1
    const Lines lines = places();
    const Lines expected{"H1-12 612.0", "H2-1 80.0", "H2-2 ", "", "", "", "", "", "", "", "", "", "Race  2 "};
    ASSERT_EQ(1 + 11 + expected.size() + 11, lines.size()); // race 3's slots follow, empty, and end the list
    EXPECT_EQ(expected, Lines(lines.begin() + 12, lines.begin() + 25));
}

TEST_F(EntriesListTest, NothingIsLostAfterTwoFullRaces) {
    card.raceCount = 3;
    fill(1, 12);
    fill(2, 12);
    fill(3, 1);
    const Lines lines = places();
    EXPECT_EQ("H2-9 ", lines.at(12 + 9)); // line 21: there is no entry 21 to rate it
    EXPECT_EQ("H2-12 ", lines.at(24));
    EXPECT_EQ("H3-1 ", lines.at(25));
}

TEST_F(EntriesListTest, ListsPostsOneToTwelveOfNamedEntries) {
    addEntry(1, 0, "H0");
    addEntry(1, 13, "H13");
    addEntry(1, 2, std::string(20, ' ')); // a blank name is none
    EXPECT_EQ((Lines{"Race  1 ", "", "", "", "", "", "", "", "", "", "", ""}), places());
}

TEST_F(EntriesListTest, ReachesRaceTwentyThree) {
    card.raceCount = 25;
    fill(23, 1);
    const Lines lines = places();
    ASSERT_EQ(23U * 12 + 1, lines.size()); // a heading and eleven slots a race, and the heading of race 24
    EXPECT_EQ("Race  23 ", lines.at(22 * 12));
    EXPECT_EQ("H23-1 61.0", lines.at(22 * 12 + 1));
    EXPECT_EQ("Race  24 ", lines.back());
}

TEST_F(EntriesListTest, ACellTooWideForItsColumnLeavesItsLineOut) {
    addEntry(1, 1, "H1");
    addEntry(1, 2, "H2");
    addEntry(1, 3, "H3");
    card.entry(1, 2).driverName = "A Driver Without Comma"; // 22 characters
    const Lines lines = places();
    EXPECT_EQ("H1 61.0", lines.at(1));
    EXPECT_EQ("H3 63.0", lines.at(2)); // and it counts for the ratings
    EXPECT_EQ("", lines.at(3));
}

TEST_F(EntriesListTest, ARecalledCardShowsTheRowsPostAndTheDriverThatWasShown) {
    addEntry(1, 7, "H7");
    card.entry(1, 7).postPosition = "";
    card.entry(1, 7).driverName = "";
    card.entry(1, 7).chosenDriver = "Adams, B";
    card.entry(1, 7).morningOdds = "5/2";
    Entries();
    EXPECT_EQ("  7    7 5/2 H7" + std::string(20 - 3, ' ') + "Adams, B" + std::string(20 - 8, ' '),
              linesOf(listPath).at(7 + 6));
}

TEST_F(EntriesListTest, StopsWithNoCardOpen) {
    card.cardFileName.clear();
    attempt(Entries);
    EXPECT_TRUE(shown.empty());
    EXPECT_FALSE(exists("A Quillon PRO/Entries"));
}

} // namespace quillon
