#include "card/race_card.h"
#include "support/card_test.h"

#include <array>
#include <gtest/gtest.h>

namespace quillon {

TEST_F(CardTest, ReadingAPastLineDoesNotMakeIt) {
    EXPECT_EQ("", card.pastLine.read(1, 3, 2).POST);
    card.pastLine.write(1, 3, 2) = {.POST = "4", .CALL_FN_PO = "1"};
    EXPECT_EQ("4", card.pastLine.read(1, 3, 2).POST);
    EXPECT_EQ("", card.pastLine.read(1, 3, 1).POST);
    EXPECT_TRUE(card.pastLine.has(1, 3, 2));
    EXPECT_FALSE(card.pastLine.has(1, 3, 1));
}

TEST_F(CardTest, ABlankLineStandsInTheSlotsOfRatedEntriesThatWereNotWritten) {
    card.pastLine.write(1, 3, 2).POST = "4";
    card.pastLine.fillRatedEntries(10, {.PURSE = "0", .POST = "  "});
    EXPECT_EQ("4", card.pastLine.read(1, 3, 2).POST);
    EXPECT_EQ("", card.pastLine.read(1, 3, 2).PURSE);
    for (const auto& [race, entry, line] : {std::array{1, 1, 0}, {1, 3, 1}, {23, 12, 9}}) {
        EXPECT_EQ("0", card.pastLine.read(race, entry, line).PURSE) << race << ' ' << entry << ' ' << line;
        EXPECT_FALSE(card.pastLine.has(race, entry, line));
    }
    for (const auto& [race, entry, line] :
         {std::array{0, 1, 0}, {24, 1, 0}, {1, 0, 0}, {1, 13, 0}, {1, 1, 10}})
        EXPECT_EQ("", card.pastLine.read(race, entry, line).PURSE) << race << ' ' << entry << ' ' << line;
}

TEST_F(CardTest, ALineWrittenIntoABlankSlotKeepsTheRestOfTheBlank) {
    card.pastLine.fillRatedEntries(10, {.PURSE = "0", .POST = "  "});
    card.pastLine.write(2, 5, 9).POST = "7";
    EXPECT_EQ("7", card.pastLine.read(2, 5, 9).POST);
    EXPECT_EQ("0", card.pastLine.read(2, 5, 9).PURSE);
    EXPECT_EQ("  ", card.pastLine.read(2, 5, 8).POST);
    card.pastLine.clear();
    EXPECT_EQ("", card.pastLine.read(2, 5, 8).PURSE);
    EXPECT_EQ("", card.pastLine.write(2, 5, 8).PURSE);
}

TEST_F(CardTest, APastLineHasRoomForEntriesUpTo20AndWideFieldsUpTo30) {
    EXPECT_TRUE(attempt([] { card.pastLine.write(1, 20, 1).POST = "1"; }));
    EXPECT_TRUE(attempt([] { card.pastLine.writeWide(1, 30, 30).CALL_2Q_BF = "1"; }));
    EXPECT_EQ("1", card.pastLine.read(1, 30, 30).CALL_2Q_BF);
    EXPECT_FALSE(attempt([] { card.pastLine.writeWide(1, 31, 1).CALL_2Q_BF = "1"; }));
    EXPECT_FALSE(attempt([] { card.pastLine.write(1, 21, 1).POST = "1"; }));
    EXPECT_FALSE(attempt([] { card.pastLine.write(1, 30, 30).POST = "1"; })); // though it is there
    EXPECT_EQ("", card.pastLine.read(1, 30, 30).POST);
    card.clear();
    EXPECT_FALSE(card.pastLine.has(1, 30, 30));
}

TEST_F(CardTest, AKeptLineHasItsCellsByColumn) {
    std::array<TextView, lineCellColumns> cells;
    cells[0] = "first";
    cells[2] = "12";
    cells[5] = "a longer one";
    cells[40] = "last";
    card.lineCells.writeLine(7, cells);
    for (int column = 0; column < lineCellColumns; ++column) {
        const TextView expected = column == 0    ? "first"
                                  : column == 2  ? "12"
                                  : column == 5  ? "a longer one"
                                  : column == 40 ? "last"
                                                 : "";
        EXPECT_EQ(expected, card.lineCells.read(7, column)) << column;
        EXPECT_EQ("", card.lineCells.read(6, column)) << column;
    }
    card.lineCells.clear();
    EXPECT_EQ("", card.lineCells.read(7, 5));
}

TEST_F(CardTest, ALineKeptAnewLeavesNothingOfTheOldOne) {
    std::array<TextView, lineCellColumns> cells;
    cells[1] = "20260304";
    cells[38] = " 61.3";
    writeLineCell(1, 2, "left by the line before");
    card.lineCells.writeLine(1, cells);
    EXPECT_EQ("20260304", card.lineCells.read(1, 1));
    EXPECT_EQ("", card.lineCells.read(1, 2));
    EXPECT_EQ(" 61.3", card.lineCells.read(1, 38));
    EXPECT_FALSE(attempt([&] { card.lineCells.writeLine(3001, cells); }));
}

TEST_F(CardTest, TheStoreHasTheBoundsOfACard) {
    EXPECT_TRUE(attempt([] { card.entry(30, 20).rating = "58.0"; }));
    EXPECT_FALSE(attempt([] { card.entry(31, 1).rating = "58.0"; }));
    EXPECT_FALSE(attempt([] { card.entry(1, 21).rating = "58.0"; }));
    EXPECT_TRUE(attempt([] { card.pastLine.write(1, 1, 30).POST = "1"; }));
    EXPECT_FALSE(attempt([] { card.pastLine.write(1, 1, 31).POST = "1"; }));
    EXPECT_TRUE(attempt([] { writeLineCell(3000, 39, "1"); }));
    EXPECT_FALSE(attempt([] { writeLineCell(3001, 39, "1"); }));
    for (const int column : {-1, 41}) EXPECT_FALSE(attempt([=] { (void)card.lineCells.read(1, column); }));
    EXPECT_FALSE(attempt([] { card.driverTable(301).name = "x"; }));
    EXPECT_FALSE(attempt([] { card.trainerTable(201) = "x"; }));
}

TEST_F(CardTest, ClearingEmptiesEverything) {
    card.cardFileName = "M1_20260314.pmd";
    card.raceCount = 12;
    card.entry(1, 3).chosen.CR = "QUA";
    card.pastLine.write(1, 3, 2).POST = "4";
    card.rankEntry(1) = 7;
    card.keyPicks(1, 2) = "  4";
    card.clear();
    EXPECT_EQ("", card.cardFileName);
    EXPECT_EQ(0, card.raceCount);
    EXPECT_EQ("", card.entry(1, 3).chosen.CR);
    EXPECT_EQ("", card.pastLine.read(1, 3, 2).POST);
    EXPECT_EQ(0, card.rankEntry(1));
    EXPECT_EQ("", card.keyPicks(1, 2));
}

TEST_F(CardTest, ATextCellKnowsWhetherItWasEverGivenAValue) {
    RaceEntry& entry = card.entry(1, 1);
    EXPECT_FALSE(entry.horseName.given());
    entry.horseName = "";
    EXPECT_TRUE(entry.horseName.given());
    EXPECT_TRUE(entry.horseName.empty());
}

} // namespace quillon
