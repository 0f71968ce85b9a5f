#include "import/checked_card.h"

#include "import/card_in_text.h"
#include "support/card_test.h"

namespace quillon {
namespace {

struct CheckedCardTest : CardTest {
    static Text refusal(const std::map<TextView, Text>& changed) {
        return checkedCard(smallCard(changed)).refusal;
    }
};

TEST_F(CheckedCardTest, ACardIsCalledByItsTrackItsDayAndItsRaces) {
    const CheckedCard card = checkedCard(smallCard());
    EXPECT_EQ("", card.refusal);
    EXPECT_EQ("MVR", card.track);
    EXPECT_EQ("20260314", card.date);
    EXPECT_EQ(2, card.races);
    EXPECT_TRUE(card.remarks.empty());
    EXPECT_EQ(0u, journal.count());
}

TEST_F(CheckedCardTest, TheTrackIsItsKey) {
    const Text races = "RACE N2 | TRACK C5 | BULLETDATE C8\n1 | M | 20260314\n";
    EXPECT_EQ("M1", checkedCard(smallCard({{raceTable, races}})).track);
}

TEST_F(CheckedCardTest, WithoutRacesThereIsNoCard) {
    EXPECT_EQ("RACESHR.DBF is not among them, and there is no card without it.", refusal({{raceTable, ""}}));
    EXPECT_EQ("RACESHR.DBF holds no race.", refusal({{raceTable, "RACE N2 | TRACK C5 | BULLETDATE C8\n"}}));
}

TEST_F(CheckedCardTest, MissingTablesAreNamed) {
    const CheckedCard one = checkedCard(smallCard({{driverTable, ""}}));
    EXPECT_EQ("", one.refusal);
    EXPECT_EQ(std::vector<Text>{"DRIVERHR.DBF is not among them."}, one.remarks);
    const CheckedCard three = checkedCard(smallCard({{horseTable, ""}, {lineTable, ""}, {trainerTable, ""}}));
    EXPECT_EQ("", three.refusal);
    EXPECT_EQ(std::vector<Text>{"HORSEHR.DBF, RUNLINHR.DBF and TRAINRHR.DBF are not among them."},
              three.remarks);
}

TEST_F(CheckedCardTest, ATableMustBeOne) {
    auto tables = smallCard();
    tables[1].content = "no table";
    EXPECT_EQ("HORSEHR.DBF is no table that can be read.", checkedCard(tables).refusal);
}

TEST_F(CheckedCardTest, ACutTableIsTold) {
    auto tables = smallCard();
    tables[1].content.resize(tables[1].content.size() - 10); // within the third of three rows
    const CheckedCard card = checkedCard(tables);
    EXPECT_EQ("", card.refusal);
    ASSERT_EQ(1u, card.remarks.size());
    EXPECT_TRUE(card.remarks[0].starts_with("HORSEHR.DBF: ")) << card.remarks[0];
}

TEST_F(CheckedCardTest, RacesAreOfOneTrackAndOneDay) {
    const Text head = "RACE N2 | TRACK C5 | BULLETDATE C8\n1 | MVR | 20260314\n";
    EXPECT_EQ("RACESHR.DBF holds races of two tracks, MVR and NFLD.",
              refusal({{raceTable, head + "2 | NFLD | 20260314\n"}}));
    EXPECT_EQ("RACESHR.DBF holds races of two days.", refusal({{raceTable, head + "2 | MVR | 20260315\n"}}));
}

TEST_F(CheckedCardTest, TheDayAndTheTrackMustBeSaid) {
    EXPECT_EQ("RACESHR.DBF does not say on which day its races are.",
              refusal({{raceTable, "RACE N2 | TRACK C5 | BULLETDATE C8\n1 | MVR | 20260231\n"}}));
    EXPECT_EQ("RACESHR.DBF does not say on which day its races are.",
              refusal({{raceTable, "RACE N2 | TRACK C5\n1 | MVR\n"}}));
    EXPECT_EQ("RACESHR.DBF does not say at which track its races are.",
              refusal({{raceTable, "RACE N2 | BULLETDATE C8\n1 | 20260314\n"}}));
}

// Two of the three lines name a horse that isn't there, or its race wrongly.
TEST_F(CheckedCardTest, LinesOfAnotherCardAreTold) {
    const Text lines =
        "TODAYSRACE N2 | HN N4 | DATE C8\n1 | 1 | 20260307\n2 | 2 | 20260307\n9 | 80 | 20260307\n";
    EXPECT_EQ("RUNLINHR.DBF is of another card than HORSEHR.DBF.", refusal({{lineTable, lines}}));
    const Text nearly =
        "TODAYSRACE N2 | HN N4 | DATE C8\n1 | 1 | 20260307\n1 | 2 | 20260307\n9 | 80 | 20260307\n";
    EXPECT_EQ("", refusal({{lineTable, nearly}}));
}

TEST_F(CheckedCardTest, LinesRunAfterTheCardAreOfALaterDay) {
    const Text lines =
        "TODAYSRACE N2 | HN N4 | DATE C8\n1 | 1 | 20260321\n1 | 2 | 20260328\n2 | 3 | 20260307\n";
    EXPECT_EQ("RUNLINHR.DBF is of a later day than RACESHR.DBF.", refusal({{lineTable, lines}}));
}

// Of the three horses two have driver 1, one driver 2; two have trainer 1, one trainer 2.
TEST_F(CheckedCardTest, PeopleThatMostHorsesDoNotFindAreOfAnotherCard) {
    EXPECT_EQ("", refusal({{driverTable, "DRIVERNAME C25\nStoltzfuss, Barry D\n"}}));
    EXPECT_EQ("DRIVERHR.DBF is of another card than HORSEHR.DBF.",
              refusal({{driverTable, "DRIVERNAME C25\n"}}));
    EXPECT_EQ("TRAINRHR.DBF is of another card than HORSEHR.DBF.",
              refusal({{trainerTable, "TRAINNAME C25\n"}}));
}

} // namespace
} // namespace quillon
