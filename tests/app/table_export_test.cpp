#include "app/table_export.h"

#include "card/race_card.h"
#include "support/card_test.h"

namespace quillon {
namespace {

class TableExportTest : public CardTest {
protected:
    static void fill(Grid& table, int row, const std::vector<Text>& cells) {
        for (std::size_t column = 0; column < cells.size(); ++column)
            table(row, static_cast<int>(column)).text = cells[column];
    }
};

TEST_F(TableExportTest, ATableIsWrittenAsItStands) {
    Grid& view = screen.raceView[3];
    fill(view, 0, {"ENTRY", "ML", ""});
    fill(view, 1, {"Prewitt's \"Whim\"", " 7/2", "-1.5"});
    fill(view, 3, {"Doe, J", "=1+1"}); // no text in row 2, and none after row 3
    Export("raceview 3 entries.csv");
    EXPECT_EQ("ENTRY,ML,\r\n"
              "\"Prewitt's \"\"Whim\"\"\", 7/2,-1.5\r\n"
              ",,\r\n"
              "\"Doe, J\",'=1+1,\r\n",
              contentOf("entries.csv"));
    Export("raceview 3 entries.TSV");
    EXPECT_EQ("ENTRY\tML\t\r\n"
              "\"Prewitt's \"\"Whim\"\"\"\t 7/2\t-1.5\r\n"
              "\t\t\r\n"
              "Doe, J\t'=1+1\t\r\n",
              contentOf("entries.TSV"));
    Export("raceview 3 entries.json");
    EXPECT_EQ(
        R"({"table":"raceview 3","columns":["ENTRY","ML",""],"rows":[["Prewitt's \"Whim\""," 7/2","-1.5"],)"
        R"(["","",""],["Doe, J","=1+1",""]]})"
        "\n",
        contentOf("entries.json"));
    EXPECT_TRUE(shown.empty());
}

TEST_F(TableExportTest, AFileThatIsThereIsReplacedWhole) {
    put("old.csv", "a much longer text than what comes");
    screen.stars = Grid{2, 2};
    screen.stars(1, 1).text = "9";
    Export("stars old.csv");
    EXPECT_EQ(",\r\n,9\r\n", contentOf("old.csv"));
}

TEST_F(TableExportTest, ATableWithoutATextIsAnEmptyFile) {
    screen.summary = Grid{3, 3};
    Export("summary empty.csv");
    EXPECT_EQ("", contentOf("empty.csv"));
    Export("summary empty.json");
    EXPECT_EQ("{\"table\":\"summary\",\"columns\":[],\"rows\":[]}\n", contentOf("empty.json"));
}

TEST_F(TableExportTest, RowsThatAreMadeWhenTheyAreLookedAtAreWritten) {
    screen.profile = Grid{1, 2};
    fill(screen.profile, 0, {"Card", "Races"});
    screen.profile.layOut(3, 2);
    fill(screen.profile, 0, {"Card", "Races"});
    screen.profile.showRows(1,
                            {2, [](int row, std::span<Cell> cells) { cells[1].text = std::to_string(row); }});
    Export("profile p.csv");
    EXPECT_EQ("Card,Races\r\n,1\r\n,2\r\n", contentOf("p.csv"));
}

TEST_F(TableExportTest, TheOverviewIsThatOfTheCard) {
    card.raceCount = 1;
    card.raceInfo[{1}] = {.label = "1", .purse = "4500", .gait = "TROT"};
    Export("overview card.csv");
    EXPECT_EQ("Race,Post Time,Gait,Dis,CR,Purse,S1,S2,S3,S4,Margin,Bet\r\n"
              "1,,TROT,,,4500,,,,,,\r\n",
              contentOf("card.csv"));
}

TEST_F(TableExportTest, ThePathMayHaveFoldersAndBlanks) {
    std::filesystem::create_directory("my tables");
    Export("picks my tables/the picks.csv");
    EXPECT_TRUE(exists("my tables/the picks.csv"));
}

TEST_F(TableExportTest, AFileThatCanNotBeWrittenIsTold) {
    Export("picks no such folder/p.csv");
    EXPECT_EQ((std::vector<std::string>{"error: File can't be written: no such folder/p.csv"}), shown);
}

TEST_F(TableExportTest, OnlyAKnownTableAndEndingHaveForm) {
    for (const char* words : {"", "overview", "overview ", "overview card.txt", "overview card",
                              "raceview x.csv", "raceview 24 x.csv", "dataview -1 x.csv", "raceview 3",
                              "archive x.csv", "archive by=track x.csv", "nothing x.csv", "Overview x.csv"})
        EXPECT_FALSE(tableExport(words)) << words;
    for (const char* words : {"raceview 23 x.csv", "dataview 25 x.json", "overview x.tsv", "summary x.csv",
                              "profile x.csv", "tracks x.csv", "picks x.csv", "stars x.CSV"})
        EXPECT_TRUE(tableExport(words)) << words;
}

} // namespace
} // namespace quillon
