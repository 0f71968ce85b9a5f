#include "console/show_store.h"

#include "card/fields.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <sstream>

namespace quillon {
namespace {

std::string shownStore() {
    std::ostringstream out;
    Transcript transcript{out};
    showStore(transcript);
    return out.str();
}

struct StoreCase {
    const char* line;
    void (*put)();
};

void PrintTo(const StoreCase& row, std::ostream* out) { *out << row.line; }

class StoreShowTest : public CardTest {};
class StoreField : public StoreShowTest, public testing::WithParamInterface<StoreCase> {};

TEST_P(StoreField, IsShownByNameAndIndex) {
    GetParam().put();
    EXPECT_EQ(GetParam().line + std::string{"\n"}, shownStore());
}

// A field of each record, and the last place of each table.
const StoreCase storeCases[] = {
    {"cardFileName\tMVR_20260314.pmd", [] { card.cardFileName = "MVR_20260314.pmd"; }},
    {"raceCount\t12", [] { card.raceCount = 12; }},
    {"superfectaRaces\t-1", [] { card.superfectaRaces = -1; }},
    {"RaceInfo(1).purse\t12000", [] { card.raceInfo(1).purse = "12000"; }},
    {"RaceInfo(30).ratingNote\t32767", [] { card.raceInfo(30).ratingNote = 32767; }},
    {"RaceInfo(0).label\t 1 ", [] { card.raceInfo(0).label = " 1 "; }},
    {"RaceEntry(1,3).rating\t29.9", [] { card.entry(1, 3).rating = "29.9"; }},
    {"RaceEntry(30,20).horseName\tNo\xC3\xABl", [] { card.entry(30, 20).horseName = "No\xEBl"; }},
    {"RaceEntry(1,3).chosen.CR\tQUA", [] { card.entry(1, 3).chosen.CR = "QUA"; }},
    {"RaceEntry(0,0).chosen.lineNumber\t7", [] { card.entry(0, 0).chosen.lineNumber = 7; }},
    {"PastLine(1,3,2).DATE\t20260228", [] { card.pastLine.write(1, 3, 2).DATE = "20260228"; }},
    {"PastLine(30,20,30).rating\t 0", [] { card.pastLine.write(30, 20, 30).rating = " 0"; }},
    {"PastLine(30,30,30).CALL_3Q_AF\t2", [] { card.pastLine.writeWide(30, 30, 30).CALL_3Q_AF = "2"; }},
    {"DriverTable(4).name\tBarlow,A", [] { card.driverTable(4).name = "Barlow,A"; }},
    {"DriverTable(300).udr\t.212", [] { card.driverTable(300).udr = ".212"; }},
    {"TrainerTable(200)\tOddie,P", [] { card.trainerTable(200) = "Oddie,P"; }},
    {"LineCells(17,38)\t 30.1", [] { writeLineCell(17, 38, " 30.1"); }},
    {"LineCells(3000,40)\tlast", [] { writeLineCell(3000, 40, "last"); }},
    {"rankEntry(5)\t12", [] { card.rankEntry(5) = 12; }},
    {"SelectionSet(1,2).selectionName\tPlain Biscuit",
     [] { card.selection(1, 2).selectionName = "Plain Biscuit"; }},
    {"SelectionSet(30,5).selectionPost\t  9", [] { card.selection(30, 5).selectionPost = "  9"; }},
    {"RaceOutcome(1,5)\t4", [] { card.raceOutcome(1, 5) = "4"; }},
    {"RaceOutcome(30,9)\t4", [] { card.raceOutcome(30, 9) = "4"; }},
    {"PayoffRecord(1,7)\t12.40", [] { card.payoffRecord(1, 7) = "12.40"; }},
    {"PayoffRecord(30,21)\t0", [] { card.payoffRecord(30, 21) = "0"; }}, // a text of "0" is not empty
    {"PickPayoff(30,10)\t88", [] { card.pickPayoff(30, 10) = "88"; }},
    {"PickLegs(30,20)\t1/2", [] { card.pickLegs(30, 20) = "1/2"; }},
    {"keyPicks(1,2)\t3", [] { card.keyPicks(1, 2) = "3"; }},
    {"keyPicks(25,4)\t3", [] { card.keyPicks(25, 4) = "3"; }},
    {"winHeat(3)\t2", [] { card.winHeat(3) = 2; }},
    {"placeHeat(30)\t1", [] { card.placeHeat(30) = 1; }},
    {"heatPost(14,2)\t6", [] { card.heatPost(14, 2) = 6; }},
    {"heatRating(30,20)\t31.0", [] { card.heatRating(30, 20) = "31.0"; }},
    {"LineCursor.lineValue\t - ", [] { cursor.lineValue = " - "; }},
    {"LineCursor.race\t2", [] { cursor.race = 2; }},
    {"LineCursor.postNumber\t4.5", [] { cursor.postNumber = 4.5; }},
    {"LineCursor.scratchAdjust\ta\\nb", [] { cursor.scratchAdjust = "a\r\nb"; }},
};

INSTANTIATE_TEST_SUITE_P(Fields, StoreField, testing::ValuesIn(storeCases));

TEST_F(StoreShowTest, AnEmptyStoreShowsNothing) {
    card.entry(1, 3).horseName = ""; // given, but empty
    card.pastLine.write(1, 3, 2);
    EXPECT_EQ("", shownStore());
}

TEST_F(StoreShowTest, ComesInItsOrder) {
    cursor.lineValue = " 30.1";
    card.heatRating(1, 1) = "r";
    card.heatPost(1, 1) = 8;
    card.placeHeat(1) = 7;
    card.winHeat(2) = 6;
    card.keyPicks(1, 2) = "5";
    card.pickLegs(4, 1) = "l";
    card.pickPayoff(4, 3) = "p";
    card.payoffRecord(1, 7) = "4";
    card.raceOutcome(1, 5) = "o";
    card.selection(1, 1).selectionName = "S1";
    card.rankEntry(1) = 3;
    writeLineCell(1, 1, "c");
    card.trainerTable(1) = "t";
    card.driverTable(2).name = "d2";
    card.driverTable(1).udr = "u1";
    card.driverTable(1).name = "d1";
    card.pastLine.write(1, 2, 1).TRACK = "M1";
    card.pastLine.write(1, 1, 2).DATE = "20260228";
    card.entry(1, 2).horseName = "B";
    card.entry(1, 1).chosen.DATE = "20260301";
    card.entry(1, 1).rating = "29.9";
    card.entry(1, 1).horseName = "A";
    card.raceInfo(2).label = "2";
    card.raceInfo(1).distance = "1";
    card.raceInfo(1).label = "1";
    card.totalLines = 9;
    card.raceCount = 2;
    EXPECT_EQ(
        "raceCount\t2\ntotalLines\t9\n"
        "RaceInfo(1).label\t1\nRaceInfo(1).distance\t1\nRaceInfo(2).label\t2\n"
        "RaceEntry(1,1).horseName\tA\nRaceEntry(1,1).rating\t29.9\nRaceEntry(1,1).chosen.DATE\t20260301\n"
        "RaceEntry(1,2).horseName\tB\n"
        "PastLine(1,1,2).DATE\t20260228\nPastLine(1,2,1).TRACK\tM1\n"
        "DriverTable(1).name\td1\nDriverTable(1).udr\tu1\nDriverTable(2).name\td2\n"
        "TrainerTable(1)\tt\nLineCells(1,1)\tc\nrankEntry(1)\t3\nSelectionSet(1,1).selectionName\tS1\n"
        "RaceOutcome(1,5)\to\nPayoffRecord(1,7)\t4\nPickPayoff(4,3)\tp\nPickLegs(4,1)\tl\n"
        "keyPicks(1,2)\t5\nwinHeat(2)\t6\nplaceHeat(1)\t7\nheatPost(1,1)\t8\nheatRating(1,1)\tr\n"
        "LineCursor.lineValue\t 30.1\n",
        shownStore());
}

// Gives a field a value that is neither empty nor 0.
void fill(Text& text) { text = "x"; }
void fill(TextCell& cell) { cell = "x"; }
void fill(Integer& number) { number = 1; }
void fill(double& number) { number = 1; }

TEST_F(StoreShowTest, NoFieldOfARecordIsLeftOut) {
    const auto fillAll = [](TextView, auto& value) { fill(value); };
    forEachField(cardScalars, card, fillAll);
    forEachField(raceInfoFields, card.raceInfo(1), fillAll);
    forEachField(raceEntryFields, card.entry(1, 1), fillAll);
    forEachField(pastLineFields, card.entry(1, 1).chosen, fillAll);
    forEachField(pastLineFields, card.pastLine.write(1, 1, 1), fillAll);
    forEachField(driverFields, card.driverTable(1), fillAll);
    forEachField(selectionFields, card.selection(1, 1), fillAll);
    forEachField(lineCursorFields, cursor, fillAll);
    const std::string shown = shownStore();
    // 17 scalars, 12 of a race, 14 of an entry, 31 of its line, 31 of a past line, 2 of a driver, 5 of a
    // selection, 20 of the cursor
    EXPECT_EQ(17 + 12 + 14 + 31 + 31 + 2 + 5 + 20, std::count(shown.begin(), shown.end(), '\n'));
}

} // namespace
} // namespace quillon
