#include "analysis/card_tickets.h"

#include "analysis/ticket_words.h"
#include "card/columns.h"
#include "screen/screen.h"
#include "support/card_test.h"

namespace quillon {
namespace {

class CardTickets : public CardTest {
protected:
    CardTickets() { screen.mode = CardMode::loaded; }

    static void enter(int race, int at, const std::string& number) {
        RaceEntry& entry = card.entry[{race, at}];
        entry.horseName = "Plain Biscuit";
        entry.programNumber = rightAligned(number, 3);
        screen.raceView[static_cast<std::size_t>(race)](at, RaceColumn::horseName).text = entry.horseName;
    }

    // The key picks of a race, an empty text for none.
    static void pick(int race, std::array<const char*, 4> picks) {
        for (int at = 1; at <= 4; ++at) card.keyPicks(race, at) = picks[static_cast<std::size_t>(at) - 1];
    }
};

TEST_F(CardTickets, TheFieldKnowsWhoIsTakenOut) {
    enter(2, 1, "1");
    enter(2, 3, "1A");
    screen.lineTaken[{2, 3}] = takenOut;
    EXPECT_EQ((Field{{"1", false}, {"1A", true}}), fieldOf(2));
    for (const int race : {-1, 0, 1, 24}) EXPECT_TRUE(fieldOf(race).empty()) << race;
}

TEST_F(CardTickets, LegsAreTheRacesFromTheFirstOn) {
    enter(2, 1, "1");
    enter(3, 1, "7");
    EXPECT_EQ((std::vector<Field>{{{"1", false}}, {{"7", false}}, {}}), fieldsOf(Pool::pick3, 2));
    EXPECT_EQ((std::vector<Field>{{{"1", false}}}), fieldsOf(Pool::trifecta, 2));
    EXPECT_TRUE(fieldsOf(Pool::pick3, 1).empty());
}

// Race 1 offers a pick 3: 2 x 1 x 3 picks. Race 2 offers a double: 1 x 3. A wager of a single leg is no ticket.
TEST_F(CardTickets, ThePickSheetsWagersAreTickets) {
    card.raceCount = 4;
    card.raceInfo(1).wagering = "W P S  Pick 3 (Races 1-3)";
    card.raceInfo(2).wagering = "Daily Double";
    card.raceInfo(4).wagering = "Pick 1";
    pick(1, {"  1", "  4", "", ""});
    pick(2, {"  2", "", "", ""});
    pick(3, {"  5", "  6", "  7", ""});
    const auto tickets = sheetTickets(200);
    ASSERT_EQ(2U, tickets.size());
    EXPECT_EQ(
        (CardTicket{1, {.pool = Pool::pick3, .sets = {{"1", "4"}, {"2"}, {"5", "6", "7"}}, .stake = 200}}),
        tickets[0]);
    EXPECT_EQ((CardTicket{2, {.pool = Pool::dailyDouble, .sets = {{"2"}, {"5", "6", "7"}}, .stake = 200}}),
              tickets[1]);
    EXPECT_EQ(6 * 200, costOf(tickets[0].ticket).cents);
}

// S1 to S4 and the fifth are 1, 2, 3, 4 and 5; pick 3 is a key pick beside S1: two orders.
TEST_F(CardTickets, FivePlacesAreStraightTickets) {
    card.raceCount = 3;
    card.raceInfo(3).wagering = "Hi-5";
    pick(3, {"  1", "", "  3", ""});
    for (int place = 1; place <= 4; ++place)
        card.raceOutcome(3, OutcomeCell::s1 + place - 1) = "  " + std::to_string(place);
    card.raceOutcome(3, OutcomeCell::fifth) = "  5";
    const auto tickets = sheetTickets(20);
    ASSERT_EQ(2U, tickets.size());
    EXPECT_EQ("1/2/3/4/5", numbersText(tickets[0].ticket));
    EXPECT_EQ("3/1/2/4/5", numbersText(tickets[1].ticket));
    EXPECT_EQ("high five", typeText(tickets[0].ticket));
    EXPECT_EQ(20, costOf(tickets[0].ticket).cents);
}

TEST_F(CardTickets, ACardWithoutWagersHasNone) { EXPECT_TRUE(sheetTickets(100).empty()); }

} // namespace
} // namespace quillon
