#include "day/program_and_mine.h"

#include "card/columns.h"

#include "support/card_test.h"

namespace quillon {
namespace {

using ProgramAndMineTest = CardTest;

void putEntry(RaceCard& card, int entry, const char* number, const char* horse, const char* rating) {
    card.entry(2, entry).programNumber = number;
    card.entry(2, entry).horseName = horse;
    card.entry(2, entry).rating = rating;
}

// Numbers are stored with blanks round them; the fifth horse stands in the last cell of the outcome.
TEST_F(ProgramAndMineTest, TellsHorseAndRatingOfEachPlaceThenAndNow) {
    putEntry(card, 1, " 1", "Alpha ", " 77.0");
    putEntry(card, 2, " 2A", "Beta ", " 78.5");
    card.raceOutcome(2, OutcomeCell::s1) = " 1";
    card.raceOutcome(2, OutcomeCell::s2) = " 2A";
    card.raceOutcome(2, OutcomeCell::fifth) = "9";
    const RaceCard loaded = card;
    card.entry(2, 1).rating = " 99.9";
    card.raceOutcome(2, OutcomeCell::s1) = " 2A";
    card.raceOutcome(2, OutcomeCell::s2) = "";

    const auto places = programAndMine(loaded, card, 2);
    EXPECT_EQ((PlacedHorse{"1", "Alpha", "77.0"}), places[0].program);
    EXPECT_EQ((PlacedHorse{"2A", "Beta", "78.5"}), places[0].mine);
    EXPECT_TRUE(places[0].isMoved());
    EXPECT_EQ((PlacedHorse{"2A", "Beta", "78.5"}), places[1].program);
    EXPECT_EQ(PlacedHorse{}, places[1].mine);
    EXPECT_TRUE(places[1].isMoved());
    EXPECT_FALSE(places[2].isMoved());                        // nobody then, nobody now
    EXPECT_EQ((PlacedHorse{"9", "", ""}), places[4].program); // a number that no entry has
    EXPECT_FALSE(places[4].isMoved());
}

TEST_F(ProgramAndMineTest, ARaceThatIsNotThereHasNoPlaces) {
    for (const int race : {-1, 0, 24, 31})
        for (const ComparedPlace& place : programAndMine(card, card, race))
            EXPECT_EQ(PlacedHorse{}, place.mine) << race;
}

} // namespace
} // namespace quillon
