#include "core/failure.h"
#include "rating/race_ranking.h"
#include "support/card_test.h"

namespace quillon {
namespace {

constexpr Integer none = 0;

/// Ratings of entries 1, 2, 3 ... and the entries that come out as S1 to S4 and fifth. `before` stands in the
/// places that no stage fills.
struct RankingRow {
    const char* claim;
    std::vector<const char*> ratings;
    std::array<Integer, rankedPlaces> places;
};

constexpr RankedEntries before{none, 11, 11, 11, 11, 11};

RankedEntries rankedOf(const Ranking& ranking, const std::vector<const char*>& ratings,
                       RankedEntries old = before) {
    RatingTexts texts{};
    for (std::size_t i = 0; i < ratings.size(); ++i) texts[i + 1] = ratings[i];
    return ranked(ranking, texts, old);
}

void expectRankings(const Ranking& ranking, const std::vector<RankingRow>& rows) {
    for (const RankingRow& row : rows) {
        const RankedEntries found = rankedOf(ranking, row.ratings);
        for (std::size_t place = 1; place <= rankedPlaces; ++place)
            EXPECT_EQ(row.places[place - 1], found[place]) << row.claim << ", place " << place;
    }
}

TEST(Ranking, TheRankingOfALoadFindsFive) {
    expectRankings(
        fullRanking,
        {
            {"six apart", {"63.0", "58.0", "61.0", "60.0", "62.0", "59.0"}, {2, 6, 4, 3, 5}},
            {"padded as they stand", {" 63.0", "58.0", " 61.0", "60.0", " 62.0", "59.0"}, {2, 6, 4, 3, 5}},
            {"by value, not by text", {"100.5", "9.5", "98.0", "99.0", "97.0"}, {2, 5, 3, 4, 1}},

            // 59.0 twice: stage 2 compares at most, so entry 3, the later, is S2.
            {"second and third equal", {"58.0", "59.0", "59.0", "60.0"}, {1, 3, 2, 4, 11}},
            // S1 to S3 are 1, 2, 4; nothing is above 62.0, best stays 62.0, and entry 3 is not below it.
            {"third and fourth equal in a field of four",
             {"60.0", "61.0", "62.0", "62.0"},
             {1, 2, 4, 11, 11}},
            // Stage 4 has the seed 5 with 63.0; 62.0 is below it. Stage 5: again 5 with 63.0, nothing below.
            {"third and fourth equal in front of a fifth",
             {"60.0", "61.0", "62.0", "62.0", "63.0"},
             {1, 2, 4, 3, 5}},
            // Of the three at 60.0 stage 1 takes the last, 3; the seed of stage 2 is 4, then 60.0 takes 1,
            // then 2; stage 3 likewise 1. Stage 4: seed 4 with 61.0, nothing below among the rest.
            {"three equal at the top", {"60.0", "60.0", "60.0", "61.0"}, {3, 2, 1, 4, 11}},

            // Stage 4 seeds with the last that is worse than S3, entry 6 at 63.0. Below it: 4 at 62.0; 5 is
            // not below 62.0.
            {"fourth and fifth equal: the earlier is fourth",
             {"59.0", "60.0", "61.0", "62.0", "62.0", "63.0"},
             {1, 2, 3, 4, 5}},
            // Both at 62.0 and the seed is one of them, entry 5, which stands. Stage 5 has no seed: 11 stays.
            {"fourth and fifth equal: the seed stands",
             {"59.0", "60.0", "61.0", "62.0", "62.0"},
             {1, 2, 3, 5, 11}},
            // Stage 5: seed 7 with 64.0; below it 5 with 63.0, then 6 is not below.
            {"fifth and sixth equal: the earlier is fifth",
             {"59.0", "60.0", "61.0", "62.0", "63.0", "63.0", "64.0"},
             {1, 2, 3, 4, 5}},
            {"fifth and sixth equal: the seed stands",
             {"59.0", "60.0", "61.0", "62.0", "63.0", "63.0"},
             {1, 2, 3, 4, 6}},
            // The tie is with the seed's value, and a lower one comes in between: 62.0 is below 63.0.
            {"fourth: a lower one replaces the seed",
             {"59.0", "60.0", "61.0", "63.0", "62.0", "63.0"},
             {1, 2, 3, 5, 6}},

            // No seed above S1: best stays 58.0, and entry 1 itself is left out.
            {"a field of one", {"58.0"}, {1, 11, 11, 11, 11}},
            {"a field of two", {"58.0", "59.0"}, {1, 2, 11, 11, 11}},
            {"a field of three", {"60.0", "58.0", "59.0"}, {2, 3, 1, 11, 11}},
            {"a field of four", {"60.0", "58.0", "59.0", "61.0"}, {2, 3, 1, 4, 11}},
            // No seed anywhere: stages 1 to 3 each take the last one left; stages 4 and 5 find nothing
            // below 99.9.
            {"all unusable", {"99.9", "99.9", "99.9", "99.9", "99.9"}, {5, 4, 3, 11, 11}},
            // No S1. The entry kept there has no rating here and counts 0, which both are above.
            {"nothing at or below 99.9", {"100.0", "101.0"}, {11, 1, 2, 11, 11}},
            {"no rating at all", {"", "", ""}, {11, 11, 11, 11, 11}},
            {"an empty rating is never picked", {"", "60.0", "", "59.0", "61.0"}, {4, 2, 5, 11, 11}},

            // Five blanks are 0 and no number. They pass stage 1, and the next rating that is not empty
            // replaces them; then nobody is above 60.0, best stays 60.0, and the blanks are at most that.
            {"blanks in front of a rating", {"     ", "60.0"}, {2, 1, 11, 11, 11}},
            // Stage 2: both are above 0, the seed is 2 with 61.0, and 60.0 is at most that.
            {"blanks at the end stay first", {"60.0", "61.0", "     "}, {3, 1, 2, 11, 11}},
            {"an empty rating does not replace blanks", {"60.0", "     ", ""}, {2, 1, 11, 11, 11}},
            {"twelve entries",
             {"71.0", "70.0", "69.0", "68.0", "67.0", "66.0", "65.0", "64.0", "63.0", "62.0", "61.0", "60.0"},
             {12, 11, 10, 9, 8}},
        });
}

TEST(Ranking, FourStagesLeaveTheFifthAlone) {
    expectRankings(
        fourStages,
        {
            {"six apart", {"63.0", "58.0", "61.0", "60.0", "62.0", "59.0"}, {2, 6, 4, 3, 11}},
            {"the later of equals in the first three", {"60.0", "60.0", "61.0", "61.0"}, {2, 1, 4, 11, 11}},
        });
}

TEST(Ranking, StrictStagesTakeTheEarlierOfEquals) {
    expectRankings(
        strictStages,
        {
            {"six apart", {"63.0", "58.0", "61.0", "60.0", "62.0", "59.0"}, {2, 6, 4, 3, 11}},
            // S1 is 1, the first of 60.0. Stage 2 seeds with 4 at 61.0: 2 is below. Stage 3: seed 4, nothing
            // below 61.0 but 1 and 2. Stage 4: nobody above 61.0, best stays 61.0, and 3 is not below.
            {"two pairs", {"60.0", "60.0", "61.0", "61.0"}, {1, 2, 4, 11, 11}},
            // 99.9 is not below the start, and nobody is above the entry that place 1 keeps, which has no
            // rating: 0. So the seed of stage 2 is the last of all, 3; and nothing is below 99.9.
            {"all unusable", {"99.9", "99.9", "99.9"}, {11, 3, 11, 11, 11}},
        });
}

TEST(Ranking, APlaceThatNoStageFillsStays) {
    // One starter at 60.0, entry 1. S2 keeps entry 4 of the race before.
    const RankedEntries found = rankedOf(fullRanking, {"60.0"}, {none, none, 4, none, none, none});
    EXPECT_EQ((RankedEntries{none, 1, 4, none, none, none}), found);
}

TEST(Ranking, TheStartIsTheFirstPicksOnly) {
    Ranking low = fullRanking;
    low.start = 60.0;
    // 61.0 is above the start: no S1. Entry 1 is above the value 0 of the unfilled place, and so S2.
    EXPECT_EQ((RankedEntries{none, none, 1, none, none, none}), rankedOf(low, {"61.0"}, {}));
}

class RankRaceTest : public CardTest {
protected:
    RankRaceTest() { cursor.race = race; }

    static RaceEntry& enter(int index, const char* rating) {
        RaceEntry& entry = card.entry(race, index);
        entry.horseName = "Horse " + std::to_string(index);
        entry.programNumber = std::to_string(index);
        entry.postPosition = std::to_string(index);
        entry.morningOdds = "5/2";
        entry.driverName = "Doe, " + std::to_string(index);
        entry.driverUdr = " .320";
        entry.driverNumber = static_cast<Integer>(index);
        card.driverTable(index).name = entry.driverName;
        entry.rating = rating;
        return entry;
    }

    /// S1 to S4 and fifth are 6, 5, 4, 3, 2; 1 is worst.
    static void enterSix() {
        const char* ratings[] = {"65.0", "64.0", "63.0", "62.0", "61.0", " 60.0"};
        for (int index = 1; index <= 6; ++index) enter(index, ratings[index - 1]);
    }

    static constexpr int race = 3;
};

TEST_F(RankRaceTest, TheSelectionsAreFilledFromTheRankedEntries) {
    enterSix();
    RankRace();
    const int ranking[] = {6, 5, 4, 3, 2};
    for (int place = 1; place <= 5; ++place) {
        const Selection& selection = card.selection(race, place);
        const Text index = std::to_string(ranking[place - 1]);
        EXPECT_EQ(ranking[place - 1], card.rankEntry(place));
        EXPECT_EQ("Horse " + index + "             ", selection.selectionName); // 7 characters and 13 blanks
        EXPECT_EQ("         Doe, " + index + "  .320", selection.selectionDriver);
        EXPECT_EQ("5/2", selection.selectionOdds); // taken in front of the print widths
        EXPECT_EQ(index, selection.selectionPost);
    }
    EXPECT_EQ("60.0", card.selection(race, 1).selectionRating);
    EXPECT_EQ("60.0", card.entry(race, 6).rating); // without its blank
    EXPECT_EQ("64.0", card.selection(race, 5).selectionRating);
    const char* outcome[] = {"", "6", "5", "4", "3", "", "", "", "", "2"};
    for (int cell = 0; cell <= 9; ++cell) EXPECT_EQ(outcome[cell], card.raceOutcome(race, cell)) << cell;
}

TEST_F(RankRaceTest, ANameIsFilledToTwentyInTheEntryToo) {
    enterSix();
    card.entry(race, 6).horseName = "Twenty Characters Xx";
    card.entry(race, 5).horseName = "Twenty-One Characters";
    RankRace();
    EXPECT_EQ("Horse 4             ", card.entry(race, 4).horseName.text());
    EXPECT_EQ("Twenty Characters Xx", card.selection(race, 1).selectionName);
    EXPECT_EQ("Twenty-One Characters", card.selection(race, 2).selectionName);
    EXPECT_EQ("Twenty-One Characters", card.entry(race, 5).horseName.text());
    EXPECT_EQ("Horse 1", card.entry(race, 1).horseName.text()); // not ranked
    EXPECT_EQ(0u, journal.count());                             // long names are no damage
}

TEST_F(RankRaceTest, TheDriversOfTheRankedAreFilledToFifteen) {
    enterSix();
    card.driverTable(5).name = "Fifteen Long, X";
    card.driverTable(4).name = "Seventeen Long, X";
    card.entry(race, 3).driverNumber = 999; // no such driver
    RankRace();
    EXPECT_EQ("Doe, 6         ", card.driverTable(6).name);
    EXPECT_EQ("Fifteen Long, X", card.driverTable(5).name);
    EXPECT_EQ("Seventeen Long, X", card.driverTable(4).name);
    EXPECT_EQ("Doe, 3", card.driverTable(3).name);
    EXPECT_EQ("Doe, 2         ", card.driverTable(2).name); // the fifth
    EXPECT_EQ("Doe, 1", card.driverTable(1).name);
}

struct WidthRow {
    Text PastLine::*cell;
    const char* raw;
    const char* wide;
};

TEST_F(RankRaceTest, TheCellsOfTheFourSelectionsGetTheirPrintWidths) {
    const WidthRow rows[] = {
        {&PastLine::CR, "70", " 70"},           {&PastLine::TRACK, "M", "    M"},
        {&PastLine::POST, "4", " 4"},           {&PastLine::CALL_FN_PO, "1", " 1"},
        {&PastLine::CALL_1Q_PO, "2", " 2"},     {&PastLine::CALL_2Q_PO, "3", " 3"},
        {&PastLine::CALL_3Q_PO, "4", " 4"},     {&PastLine::CALL_ST_PO, "5", " 5"},
        {&PastLine::HRSE_TM_4Q, "9.5", " 9.5"}, {&PastLine::CLASS, "opt", "opt"},
        {&PastLine::LEAD_TM_1Q, "28", "28"},    {&PastLine::CALL_1Q_BF, "", ""},
    };
    enterSix();
    for (int index = 1; index <= 6; ++index)
        for (const WidthRow& row : rows) card.entry(race, index).chosen.*row.cell = row.raw;
    RankRace();
    for (const int index : {6, 5, 4, 3})
        for (const WidthRow& row : rows)
            EXPECT_EQ(row.wide, card.entry(race, index).chosen.*row.cell) << row.raw;
    for (const int index : {2, 1}) // the fifth and the last
        for (const WidthRow& row : rows)
            EXPECT_EQ(row.raw, card.entry(race, index).chosen.*row.cell) << row.raw;

    EXPECT_EQ("  6", card.entry(race, 6).programNumber.text());
    EXPECT_EQ("  6", card.entry(race, 6).postPosition);
    EXPECT_EQ(" 5/2", card.entry(race, 6).morningOdds.text());
    EXPECT_EQ("2", card.entry(race, 2).programNumber.text());
}

TEST_F(RankRaceTest, TheFourthTakesTheStretchPositionOfTheThird) {
    enterSix();
    card.entry(race, 4).chosen.CALL_ST_PO = "7"; // S3
    card.entry(race, 3).chosen.CALL_ST_PO = "2"; // S4
    card.entry(race, 2).chosen.CALL_ST_PO = "9"; // fifth
    RankRace();
    EXPECT_EQ(" 7", card.entry(race, 4).chosen.CALL_ST_PO);
    EXPECT_EQ(" 7", card.entry(race, 3).chosen.CALL_ST_PO);
    EXPECT_EQ("9", card.entry(race, 2).chosen.CALL_ST_PO);
}

struct ParkRow {
    const char* mark;
    const char* ofRankedRace; ///< widened to two first
    const char* ofOtherRace;
};

TEST_F(RankRaceTest, ParkCellsThatDoNotStandAfterALetterAGoInEveryRace) {
    const ParkRow rows[] = {
        {"\xBA", "  ", "\xBA"}, // " \xBA" begins with a blank, the bare mark does not
        {"\xB0\xB0", "\xB0\xB0", "\xB0\xB0"},
        {"ix", "ix", "ix"},
        {"x", "  ", "x"},
        {"A", "  ", "  "}, // not above itself
        {"AB", "AB", "AB"},
        {"1", "  ", "  "},
        {"", "  ", "  "},
    };
    for (const ParkRow& row : rows) {
        enterSix();
        for (const int where : {1, race, 23, 24})
            for (const int index : {6, 3, 2})
                for (Text PastLine::*park :
                     {&PastLine::CALL_1Q_PK, &PastLine::CALL_2Q_PK, &PastLine::CALL_3Q_PK})
                    card.entry(where, index).chosen.*park = row.mark;
        RankRace();
        for (Text PastLine::*park : {&PastLine::CALL_1Q_PK, &PastLine::CALL_2Q_PK, &PastLine::CALL_3Q_PK})
            for (const int index : {6, 3}) {
                EXPECT_EQ(row.ofRankedRace, card.entry(race, index).chosen.*park) << row.mark;
                EXPECT_EQ(row.ofOtherRace, card.entry(1, index).chosen.*park) << row.mark;
                EXPECT_EQ(row.ofOtherRace, card.entry(23, index).chosen.*park) << row.mark;
                EXPECT_EQ(row.mark, card.entry(24, index).chosen.*park) << row.mark; // after the rated races
            }
        EXPECT_EQ(row.mark, card.entry(race, 2).chosen.CALL_1Q_PK) << row.mark; // the fifth
    }
}

TEST_F(RankRaceTest, AFieldWithoutRatingsShowsThisRacesEntriesAtTheOldPlaces) {
    enter(2, "");
    enter(7, "");
    card.rankEntry(1) = 7;
    card.rankEntry(2) = 2;
    RankRace();
    EXPECT_EQ("7", card.raceOutcome(race, 1));
    EXPECT_EQ("Horse 2             ", card.selection(race, 2).selectionName);
    EXPECT_EQ("", card.selection(race, 1).selectionRating);
}

TEST_F(RankRaceTest, ARecalledCardNamesTheDriverShownForToday) {
    RaceEntry& entry = enter(1, "60.0");
    entry.chosenDriver = "Roe, R";
    EXPECT_EQ("         Doe, 1  .320", driverText(entry));
    entry.driverName.clear();
    EXPECT_EQ("         Roe, R  .320", driverText(entry));
    entry.chosenDriver = "Fifteen Long, X";
    EXPECT_EQ("Fifteen Long, X  .320", driverText(entry));
}

TEST_F(RankRaceTest, TheFilledRowsOfTheDataViewAreCounted) {
    for (const int row : {1, 2, 5, 130, 131}) screen.dataView[race](row, 1).text = "20260220";
    screen.dataView[race](6, 2).text = "3"; // a row without a date
    RankRace();
    EXPECT_EQ(4, card.raceInfo(race).ratingNote); // 1, 2, 5 and 130
}

TEST_F(RankRaceTest, ARankingOfOtherValuesLeavesTheEntriesAlone) {
    enterSix();
    RatingTexts heat{};
    heat[4] = "60.5";
    heat[9] = "59.9";
    rankValues(fourStages, heat);
    EXPECT_EQ(9, card.rankEntry(1));
    EXPECT_EQ(4, card.rankEntry(2));
    EXPECT_EQ(0, card.rankEntry(3));
    EXPECT_EQ(" 60.0", card.entry(race, 6).rating);
}

} // namespace
} // namespace quillon
