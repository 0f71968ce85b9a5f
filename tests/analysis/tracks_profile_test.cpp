#include "analysis/tracks_profile.h"

#include "profile_test.h"

#include <algorithm>
#include <map>
#include <random>

namespace quillon {
namespace {

class TracksProfileTest : public ProfileTest {
protected:
    static ArchiveCard card(const Text& track, int races, int wins) {
        ArchiveCard card;
        card.key = field(track, 5) + "_20260314";
        card.races = std::to_string(races);
        card.wins[0] = std::to_string(wins);
        return card;
    }

    static std::vector<Text> cells(int row, int first) {
        std::vector<Text> texts;
        for (int column = first; column < first + 4; ++column)
            texts.push_back(screen.tracks.text(row, column));
        return texts;
    }
    static std::vector<Text> track(int row) { return cells(row, 0); }
    static std::vector<Text> size(int row) { return cells(row, 6); }
};

const Text sixTracks = trackRow("AAA", "1/2") + trackRow("BBB", "5/8") + trackRow("CCC", "3/4") +
                       trackRow("DDD", "7/8") + trackRow("EEE", "1.M") + trackRow("FFF", "1.Q");

TEST_F(TracksProfileTest, TracksAndSizesHaveTheirWinsOfS1) {
    put("TrackEditor.ini", sixTracks + trackRow("GGG", "1/2"));
    archive(
        {card("AAA", 10, 4), card("GGG", 8, 1), card("AAA", 11, 3), card("EEE", 12, 12), card("XXX", 9, 9)});
    Track_Profile();
    EXPECT_EQ((std::vector<Text>{"TRACK", "RACES", "WINS", "PCT"}), track(0));
    EXPECT_EQ((std::vector<Text>{"AAA", "21", "7", "33.3%"}), track(1)); // 10 + 11 races, 4 + 3 wins
    EXPECT_EQ((std::vector<Text>{"EEE", "12", "12", "100.0%"}),
              track(2)); // in the order of the tracks' table
    EXPECT_EQ((std::vector<Text>{"GGG", "8", "1", "12.5%"}), track(3));
    EXPECT_EQ((std::vector<Text>{"", "", "", ""}), track(4));

    EXPECT_EQ((std::vector<Text>{"SIZE", "RACES", "WINS", "PCT"}), size(0));
    EXPECT_EQ((std::vector<Text>{"1/2", "   29", "    8", "27.6%"}), size(1)); // 8 of 29 are 27.586
    EXPECT_EQ((std::vector<Text>{"5/8", "", "", ""}), size(2));
    EXPECT_EQ((std::vector<Text>{"3/4", "", "", ""}), size(3));
    EXPECT_EQ((std::vector<Text>{"7/8", "", "", ""}), size(4));
    EXPECT_EQ((std::vector<Text>{"1.M", "   12", "   12", "100.0%"}), size(5));
    EXPECT_EQ((std::vector<Text>{"1.Q", "", "", ""}), size(6));
    EXPECT_EQ("  1/2     29      8    27.6%\r\n"
              "  5/8                  \r\n"
              "  3/4                  \r\n"
              "  7/8                  \r\n"
              "  1.M     12     12    100.0%\r\n"
              "  1.Q                  \r\n"
              "END\r\n",
              contentOf("Wins by Track.txt"));
    EXPECT_TRUE(screen.tracksVisible);
    EXPECT_FALSE(screen.racePanelsVisible);
    EXPECT_TRUE(screen.item(CommandId::MainScreen).visible);
}

TEST_F(TracksProfileTest, EverySizeHasItsRow) {
    put("TrackEditor.ini", sixTracks);
    archive({card("AAA", 11, 1), card("BBB", 12, 2), card("CCC", 13, 3), card("DDD", 14, 4),
             card("EEE", 15, 5), card("FFF", 16, 6)});
    Track_Profile();
    for (int row = 1; row <= 6; ++row) EXPECT_EQ(field(std::to_string(10 + row), 5), size(row)[1]) << row;
    EXPECT_EQ(" 9.1%", size(1)[3]); // 1 of 11
}

TEST_F(TracksProfileTest, SizeWithoutAWinHasItsPercentage) {
    put("TrackEditor.ini", sixTracks);
    archive({card("AAA", 10, 0)});
    Track_Profile();
    EXPECT_EQ((std::vector<Text>{"AAA", "10", "0", ".0%"}), track(1));
    EXPECT_EQ((std::vector<Text>{"1/2", "   10", "    0", "  .0%"}), size(1));
}

TEST_F(TracksProfileTest, OnlyTheLastTwoPlacesAreRead) {
    put("TrackEditor.ini", sixTracks);
    archive({card("AAA", 110, 12345)});
    Track_Profile();
    EXPECT_EQ((std::vector<Text>{"AAA", "10", "45", "450.0%"}), track(1));
}

TEST_F(TracksProfileTest, TracksOfTheArchiveAreMatchedInUpperCase) {
    put("TrackEditor.ini", sixTracks + trackRow("ggg", "1/2"));
    archive({card("aaa", 10, 5), card("ggg", 10, 5)});
    Track_Profile();
    EXPECT_EQ("AAA", track(1)[0]);
    EXPECT_EQ("", track(2)[0]); // a code in lower case in the tracks' table is never met
}

TEST_F(TracksProfileTest, ATrackListedTwiceCountsTwice) {
    put("TrackEditor.ini", trackRow("AAA", "1/2") + trackRow("AAA", "5/8"));
    archive({card("AAA", 10, 5)});
    Track_Profile();
    EXPECT_EQ((std::vector<Text>{"AAA", "10", "5", "50.0%"}), track(1));
    EXPECT_EQ((std::vector<Text>{"AAA", "10", "5", "50.0%"}), track(2));
    EXPECT_EQ("   10", size(1)[1]);
    EXPECT_EQ("   10", size(2)[1]);
}

TEST_F(TracksProfileTest, AHundredTracksAreWalked) {
    Text rows;
    std::vector<ArchiveCard> cards;
    for (int number = 1; number <= 101; ++number) {
        rows += trackRow("T" + std::to_string(number), "1/2");
        cards.push_back(card("T" + std::to_string(number), 10, 1));
    }
    put("TrackEditor.ini", rows);
    archive(cards);
    Track_Profile();
    EXPECT_EQ("T100", track(100)[0]);
    EXPECT_EQ(101, screen.tracks.rows());
    EXPECT_EQ(" 1000", size(1)[1]);
}

TEST_F(TracksProfileTest, ALineOnAnOlderMileGivesAllTracksToTheMile) {
    put("TrackEditor.ini", sixTracks);
    archive({card("AAA", 10, 1), card("EEE", 10, 2)});
    cursor.lineSize = "1";
    Track_Profile();
    EXPECT_EQ("   10", size(1)[1]);
    EXPECT_EQ("   20", size(5)[1]);
    EXPECT_EQ("    3", size(5)[2]);
}

TEST_F(TracksProfileTest, AMileAndAQuarterInTheOlderFormIsOne) {
    put("TrackEditor.ini", trackRow("AAA", "1 1/4") + trackRow("FFF", "1.Q"));
    archive({card("AAA", 10, 1), card("FFF", 11, 2)});
    Track_Profile();
    EXPECT_EQ("   21", size(6)[1]);
}

// 331 cards of 99 races are 32,769; the sum stays at 330 cards, and takes what fits after them.
TEST_F(TracksProfileTest, ASumBeyondSixteenBitsStays) {
    put("TrackEditor.ini", sixTracks);
    std::vector<ArchiveCard> cards(331, card("AAA", 99, 10));
    cards.push_back(card("AAA", 97, 10));
    cards.push_back(card("AAA", 1, 10));
    archive(cards);
    Track_Profile();
    EXPECT_EQ("32767", track(1)[1]); // 330 x 99 + 97
    EXPECT_EQ("3330", track(1)[2]);
    EXPECT_EQ("32767", size(1)[1]);
}

TEST_F(TracksProfileTest, AnEmptyArchiveGivesEmptyTablesAndSixSizes) {
    const Text empty =
        "  1/2                  \r\n  5/8                  \r\n  3/4                  \r\n"
        "  7/8                  \r\n  1.M                  \r\n  1.Q                  \r\nEND\r\n";
    put("TrackEditor.ini", sixTracks);
    put("HRA.ini", "");
    Track_Profile();
    EXPECT_EQ(empty, contentOf("Wins by Track.txt"));
    EXPECT_EQ("", track(1)[0]);
    for (int row = 1; row <= 6; ++row)
        for (const std::size_t column : {1, 2, 3}) EXPECT_EQ("", size(row)[column]);

    std::filesystem::remove("HRA.ini");
    std::filesystem::remove("TrackEditor.ini");
    put("Wins by Track.txt", "of the run before");
    Track_Profile();
    EXPECT_EQ(empty, contentOf("Wins by Track.txt"));
    EXPECT_TRUE(screen.tracksVisible);
}

TEST_F(TracksProfileTest, ThirtyCardsAddUp) {
    put("TrackEditor.ini", sixTracks);
    const Text sizes[] = {"1/2", "5/8", "3/4", "7/8", "1.M", "1.Q"};
    const std::map<Text, Text> sizeOf{{"AAA", "1/2"}, {"BBB", "5/8"}, {"CCC", "3/4"},
                                      {"DDD", "7/8"}, {"EEE", "1.M"}, {"FFF", "1.Q"}};
    std::mt19937 random{3};
    std::map<Text, std::pair<int, int>> sums;
    std::vector<ArchiveCard> cards;
    for (int number = 0; number < 30; ++number) {
        const Text code(3, static_cast<char>('A' + random() % 6));
        const int races = 8 + static_cast<int>(random() % 7);
        const int wins = static_cast<int>(random() % 8);
        cards.push_back(card(code, races, wins));
        sums[code].first += races;
        sums[code].second += wins;
    }
    archive(cards);
    Track_Profile();
    int row = 0;
    for (const auto& [code, sum] : sums) {
        ++row;
        EXPECT_EQ(code, track(row)[0]);
        EXPECT_EQ(std::to_string(sum.first), track(row)[1]);
        EXPECT_EQ(std::to_string(sum.second), track(row)[2]);
        const auto* const at = std::find(std::begin(sizes), std::end(sizes), sizeOf.at(code));
        EXPECT_EQ(field(std::to_string(sum.first), 5), size(1 + static_cast<int>(at - sizes))[1]);
    }
    EXPECT_EQ(6, row);
}

TEST_F(TracksProfileTest, ACancelledWalkLeavesTheFileAsItWas) {
    Text lines;
    for (int card = 0; card < 100000; ++card) lines += "  AAA\r\n";
    put("HRA.ini", lines);
    put("Wins by Track.txt", "of the run before");
    cancelAt(1);
    Track_Profile();
    EXPECT_EQ("of the run before", contentOf("Wins by Track.txt"));
    EXPECT_FALSE(screen.tracksVisible);
}

TEST_F(TracksProfileTest, NoContentStopsAProfile) {
    std::mt19937 random{20260314};
    constexpr char likely[] = " \r\n\t0123456789.-AB/18\x80\xFF";
    const auto noise = [&](std::size_t most) {
        Text bytes(random() % most, '\0');
        for (char& byte : bytes)
            byte = random() % 8 == 0 ? static_cast<char>(random() % 256)
                                     : likely[random() % (sizeof likely - 1)];
        return bytes;
    };
    for (int round = 0; round < 100; ++round) {
        const Text archive = noise(3000);
        put("HRA.ini", archive);
        put("TrackEditor.ini", noise(2000));
        Track_Profile();
        ASSERT_EQ(archive, contentOf("HRA.ini"));
    }
}

} // namespace
} // namespace quillon
