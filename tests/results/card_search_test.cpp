#include "results/card_search.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "screen/race_views.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using Kind = CardPlace::Kind;

class CardSearchTest : public CardTest {
protected:
    CardSearchTest() {
        card.raceCount = 7;
        enter(2, 1, "Corner Boy", "Doe, J", "Cornwall, A");
        enter(2, 4, "Plain Biscuit", "Corn, P", "Amber, B");
        enter(7, 3, "Peppercorn", "Doe, J", "Amber, B");
    }

    static void enter(int race, int row, const char* horse, const char* driver, const char* trainer) {
        raceViewOf(race)(row, RaceColumn::horseName).text = horse;
        raceViewOf(race)(row, RaceColumn::driver).text = driver;
        card.entry[{race, row}].trainerName = trainer;
    }
};

TEST_F(CardSearchTest, HorsesDriversAndTrainersOfAllRacesAreFoundInTheirOrder) {
    const std::vector<CardPlace> expected{
        {2, 1, Kind::horse, "Corner Boy"},
        {2, 1, Kind::trainer, "Cornwall, A"},
        {2, 4, Kind::driver, "Corn, P"},
        {7, 3, Kind::horse, "Peppercorn"},
    };
    EXPECT_EQ(expected, placesInCard("corn"));
    EXPECT_EQ(expected, placesInCard("  CORN "));
}

TEST_F(CardSearchTest, NotesAreFoundAfterTheNamesOfTheirEntry) {
    card.cardFileName = "MVR_20260314.pmd";
    put("Notes.txt", "20260301\tMVR_20260301\tDOE, J\tbad in corners\r\n"
                     "20260301\tMVR_20260301\tDoe, J\tbad in corners\r\n"
                     "20260301\tMVR_20260301\tRace 2\tof another card, corners\r\n"
                     "20260314\tMVR_20260314\tRace 2\tmud in the Corner\r\n"
                     "20260314\tMVR_20260314\tNobody\tcorner\r\n");
    const std::vector<CardPlace> expected{
        {2, 1, Kind::note, "mud in the Corner"},
        {2, 1, Kind::horse, "Corner Boy"},
        {2, 1, Kind::note, "bad in corners"},
        {7, 3, Kind::note, "bad in corners"},
    };
    EXPECT_EQ(expected, placesInCard("corner"));
}

TEST_F(CardSearchTest, NothingIsFoundOfABlankOrAStrangeText) {
    EXPECT_TRUE(placesInCard("  ").empty());
    EXPECT_TRUE(placesInCard("zebra").empty());
}

TEST_F(CardSearchTest, RacesAfterTheCardsLastAreLeftOut) {
    card.raceCount = 2;
    EXPECT_TRUE(placesInCard("Peppercorn").empty());
    card.raceCount = 30; // more than have a view
    EXPECT_EQ(1U, placesInCard("Peppercorn").size());
}

} // namespace
} // namespace quillon
