#include "app/start_up.h"
#include "card/columns.h"
#include "support/card_test.h"

namespace quillon {

using StartUpTest = CardTest;

TEST_F(StartUpTest, TheStartButtonWaitsAndMainScreenIsHidden) {
    StartUp();
    EXPECT_EQ("Start", screen.start.caption);
    EXPECT_TRUE(screen.start.enabled);
    EXPECT_FALSE(screen.item(CommandId::MainScreen).visible);
    EXPECT_TRUE(screen.item(CommandId::NewRC).enabled);
    EXPECT_TRUE(screen.item(CommandId::RecallRaceCard).enabled);
    for (const Button& button : screen.raceButtons) EXPECT_FALSE(button.visible);
    EXPECT_TRUE(screen.raceButtons[1].current);
    EXPECT_EQ("1", screen.header.race);
    EXPECT_EQ(1, cursor.race);
}

TEST_F(StartUpTest, ResultKeysAreDisabledBeforeACard) {
    StartUp();
    for (const Button& key : screen.entryButtons) EXPECT_FALSE(key.enabled);
}

struct HeadRow {
    int column;
    const char* head;
    int width;
};

constexpr HeadRow lineHeads[] = {
    {0, "", 1900},      {1, "Date", 920},    {2, "", 0},           {3, "", 0},       {4, "", 0},
    {5, "", 0},         {6, "", 0},          {7, "Track", 590},    {8, "Dis", 500},  {9, "CD", 345},
    {10, "Purse", 640}, {11, "Class", 1200}, {12, "CR", 300},      {13, "L1", 500},  {14, "L2", 500},
    {15, "L3", 500},    {16, "LF", 500},     {17, "PP", 290},      {18, "", 230},    {19, "P1", 285},
    {20, "", 240},      {21, "", 230},       {22, "", 230},        {23, "P2", 285},  {24, "", 240},
    {25, "", 230},      {26, "", 230},       {27, "P3", 285},      {28, "", 240},    {29, "", 230},
    {30, "PS", 290},    {31, "PF", 290},     {32, "TQ", 450},      {33, "Fin", 575}, {34, "F", 175},
    {35, "Odds", 550},  {36, "", 0},         {37, "Driver", 1300}, {38, "PR", 500},  {39, "Line #", 900},
};

constexpr HeadRow entryHeads[] = {
    {0, "ENTRY", 1900},      {1, "ML", 450},     {2, "PN", 375},  {3, "PP", 375},   {4, "Track", 590},
    {5, "Purse", 640},       {6, "Class", 1300}, {7, "CR", 325},  {8, "L1", 500},   {9, "L2", 500},
    {10, "L3", 500},         {11, "LF", 500},    {12, "PP", 320}, {13, "", 230},    {14, "P1", 320},
    {15, "", 230},           {16, "", 230},      {17, "", 230},   {18, "P2", 320},  {19, "", 230},
    {20, "", 230},           {21, "", 230},      {22, "P3", 320}, {23, "", 230},    {24, "", 230},
    {25, "PS", 310},         {26, "PF", 310},    {27, "TQ", 450}, {28, "Fin", 600}, {29, "F", 170},
    {30, "Todays Dr", 1070}, {31, "UDR", 500},   {32, "PR", 500},
};

TEST_F(StartUpTest, ViewsHaveTheirHeadsAndWidths) {
    StartUp();
    for (const HeadRow& row : lineHeads) {
        EXPECT_EQ(row.width, dataColumns()[static_cast<std::size_t>(row.column)].width) << row.column;
        if (row.column > 0) {
            EXPECT_EQ(row.head, screen.dataView[25].text(0, row.column)) << row.column;
        }
    }
    for (const HeadRow& row : entryHeads) {
        EXPECT_EQ(row.width, raceColumns()[static_cast<std::size_t>(row.column)].width) << row.column;
        EXPECT_EQ(row.head, screen.raceView[23].text(0, row.column)) << row.column;
    }
    EXPECT_EQ(red, screen.dataView[1].read(0, 0).foreground);
    EXPECT_EQ("RACE ", screen.dataView[1].text(0, 0));
}

struct CrossoverRow {
    const char* shows;
    const char* content;
    const char* track;
    const char* date;
};

constexpr CrossoverRow crossovers[] = {
    {"the last line counts", "old\r\nxxxxxMea0314abcde\r\n", "Mea", "0314"},
    {"without a last line end", "Mea0314abcde", "Mea", "0314"},
    {"a short line", "Mea0314", "Mea", "0314"},
    {"no letter in front", "12345670abcde\r\n", "", ""},
    {"an empty file", "", "", ""},
};

TEST_F(StartUpTest, TheCrossoverTextIsTheFirstSevenOfTheLastTwelve) {
    for (const CrossoverRow& row : crossovers) {
        put("CrossOver.ini", row.content);
        StartUp();
        EXPECT_EQ(row.track, screen.header.track.caption) << row.shows;
        EXPECT_EQ(row.date, screen.header.date.caption) << row.shows;
        EXPECT_FALSE(screen.header.track.visible) << row.shows;
    }
}

TEST_F(StartUpTest, AMissingCrossoverIsSilent) {
    StartUp();
    EXPECT_TRUE(shown.empty());
    EXPECT_EQ("", screen.header.track.caption);
    EXPECT_TRUE(journalTells("CrossOver.ini can't be read"));
}

} // namespace quillon
