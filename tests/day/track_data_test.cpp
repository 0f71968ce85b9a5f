#include "day/card_frame.h"
#include "tables/track_table_test.h"

namespace quillon {

using TrackDataTest = TrackTableTest;

TEST_F(TrackDataTest, TrackDataTakesTodaysTrackFromItsFirstRow) {
    useTracks(trackRow("YR", "1/2") + trackRow("M1  :", "1.M", "57.0", "00") + trackRow("M1", "7/8") +
              trackRow("M1", "5/8"));
    raceAt("M");
    TrackData();
    EXPECT_EQ("7/8", card.trackSize); // "M1  :" is another key
    EXPECT_EQ(990, card.stretchLength);
    EXPECT_EQ(10, card.maxPosts);
    EXPECT_EQ(1, card.raceCount);
    EXPECT_EQ("M1", card.raceInfo(1).trackCode);
    // Columns 13 to 65 of a row of 57: 24 blanks, the size, and what follows it.
    EXPECT_EQ(blanks(24) + "7/8   990*   57.0  10", card.raceInfo(1).trackInfo);
    EXPECT_EQ(card.raceInfo(1).trackInfo, screen.header.trackInfo);
    EXPECT_EQ("M1", screen.header.track.caption);
}

TEST_F(TrackDataTest, TrackDataFillsTheLastRaceAndShowsTheFirst) {
    useTracks(trackRow("YR", "1/2"));
    raceAt("YR");
    card.raceCount = 3;
    card.raceInfo(1).trackInfo = "Freehold";
    card.raceInfo(1).trackCode = "FHL";
    TrackData();
    EXPECT_EQ(3, card.raceCount);
    EXPECT_EQ("YR", card.raceInfo(3).trackCode);
    EXPECT_EQ(blanks(24) + "1/2   990*   57.0  10", card.raceInfo(3).trackInfo);
    EXPECT_EQ("Freehold", screen.header.trackInfo);
    EXPECT_EQ("FHL", screen.header.track.caption);
}

TEST_F(TrackDataTest, TrackDataGivesAnUnknownTrackItsCodeAndLeavesTheRest) {
    useTracks(trackRow("YR", "1/2"));
    raceAt("ZZ");
    card.trackSize = "5/8";
    card.stretchLength = 500;
    card.maxPosts = 9;
    card.raceInfo(1).trackInfo = "as it was";
    TrackData();
    EXPECT_EQ("5/8", card.trackSize);
    EXPECT_EQ(500, card.stretchLength);
    EXPECT_EQ(9, card.maxPosts);
    EXPECT_EQ(1, card.raceCount);
    EXPECT_EQ("ZZ", card.raceInfo(1).trackCode);
    EXPECT_EQ("as it was", card.raceInfo(1).trackInfo);
    EXPECT_EQ("as it was", screen.header.trackInfo);
    EXPECT_EQ("ZZ", screen.header.track.caption);
}

TEST_F(TrackDataTest, TrackDataWithoutATrackFileSetsTheCodeAlone) {
    readTrackTable();
    raceAt("YR");
    card.trackSize = "1.M";
    TrackData();
    EXPECT_EQ("1.M", card.trackSize);
    EXPECT_EQ(0, card.maxPosts);
    EXPECT_EQ("YR", screen.header.track.caption);
}

} // namespace quillon
