#include "analysis/tickets.h"

#include "analysis/ticket_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <random>
#include <set>

namespace quillon {
namespace {

std::int64_t combinations(TextView type, TextView numbers) {
    const auto ticket = ticketIn(type, numbers, "1");
    return ticket ? costOf(*ticket).combinations : -1;
}

struct CountCase {
    const char* type;
    const char* numbers;
    std::int64_t combinations;
};
void PrintTo(const CountCase& row, std::ostream* out) { *out << row.type << ' ' << row.numbers; }

class TicketCounts : public testing::TestWithParam<CountCase> {};

TEST_P(TicketCounts, AreThoseOfTheTracks) {
    EXPECT_EQ(GetParam().combinations, combinations(GetParam().type, GetParam().numbers));
}

// clang-format off
const CountCase countCases[] = {
    {"win",            "4",                      1},
    {"place",          "4,5",                    2},  // two bets
    {"show",           "1,1A,2",                 2},  // 1 and 1A are one
    {"exacta",         "1/2",                    1},
    {"exacta",         "1/1",                    0},  // the same horse twice
    {"exacta",         "1/1A",                   0},  // so are coupled entries
    {"exacta",         "1,2/1,2",                2},
    {"exacta",         "3/1,2,3,4,5",            4},  // a wheel: 3 is not second to itself
    {"exacta box",     "1,2,3",                  6},  // 3 x 2
    {"exacta box",     "1",                      0},
    {"exacta box",     "1,1A,2",                 2},
    {"trifecta",       "1/2,3/2,3,4",            4},  // 1-2-3, 1-2-4, 1-3-2, 1-3-4
    {"trifecta",       "1,2/1,2/3,4,5",          6},  // 2 x 3
    {"trifecta box",   "1,2,3,4",               24},  // 4 x 3 x 2
    {"superfecta",     "1/2/3/4",                1},
    {"superfecta",     "1,2,3,4/1,2,3,4/1,2,3,4/1,2,3,4", 24},
    {"superfecta box", "1,2,3,4,5",            120},  // 5 x 4 x 3 x 2
    {"high five box",  "1,2,3,4,5,6",          720},  // 6 x 5 x 4 x 3 x 2
    {"daily double",   "1,2/3,4,5",              6},
    {"double",         "1/1",                    1},  // two horses of two races
    {"pick 3",         "1,2/1/1,2,3",            6},
    {"pick 4",         "1,2/1,2/1,2/1,2",       16},
    {"pick 5",         "1/2/3/4/5",              1},
    {"Pick 6",         "1,2/1,2/1,2/1,2/1,2/1,2", 64},
    {"pick 3",         "1,1A/1,2/5",             2},
};
// clang-format on
INSTANTIATE_TEST_SUITE_P(Tickets, TicketCounts, testing::ValuesIn(countCases));

// --- Against enumeration --------------------------------------------------------------------------------------

// Everything that may come in, counted one by one: all orders of 12 horses, or all winners of so many races of
// 12, of which the ticket holds those whose every number is in its set.
class Enumeration {
public:
    explicit Enumeration(const Ticket& ticket) : ticket_(ticket) {}

    std::int64_t count() {
        std::string outcome;
        extend(outcome);
        return found_;
    }

private:
    static constexpr char lastHorse = 'a' + 11;

    void extend(std::string& outcome) {
        if (outcome.size() == static_cast<std::size_t>(rowOf(ticket_.pool).sets)) {
            ++found_;
            return;
        }
        for (char horse = 'a'; horse <= lastHorse; ++horse) {
            const bool again = outcome.find(horse) != std::string::npos;
            if ((again && !rowOf(ticket_.pool).overRaces) || !isTaken(horse, outcome.size())) continue;
            outcome.push_back(horse);
            extend(outcome);
            outcome.pop_back();
        }
    }

    bool isTaken(char horse, std::size_t place) const {
        const Numbers& set = ticket_.boxed ? ticket_.sets[0] : ticket_.sets[place];
        return std::any_of(set.begin(), set.end(), [&](const Text& number) {
            std::string digits;
            for (const char c : number)
                if (std::isdigit(static_cast<unsigned char>(c)) != 0) digits += c;
            return std::stoi(digits) == horse - 'a' + 1;
        });
    }

    Ticket ticket_;
    std::int64_t found_ = 0;
};

Ticket randomTicket(std::mt19937& engine) {
    const auto upTo = [&](std::size_t most) { return engine() % (most + 1); };
    Ticket ticket{.pool = pools[upTo(pools.size() - 1)].pool,
                  .stake = static_cast<std::int64_t>(1 + upTo(400))};
    ticket.boxed = canBeBoxed(ticket.pool) && upTo(2) == 0;
    const auto most = rowOf(ticket.pool).sets >= 5 ? 4U : 9U; // so that the enumeration ends
    for (std::size_t set = 0; set < setsOf(ticket.pool, ticket.boxed); ++set) {
        Numbers numbers;
        for (std::size_t left = upTo(most); left > 0; --left)
            numbers.push_back(std::to_string(1 + upTo(11)) + (upTo(5) == 0 ? "A" : ""));
        ticket.sets.push_back(numbers);
    }
    return ticket;
}

TEST(Tickets, CountWhatEnumerationFinds) {
    std::mt19937 engine{20260314};
    std::set<Pool> seen;
    for (int run = 0; run < 3000; ++run) {
        const Ticket ticket = randomTicket(engine);
        const TicketCost cost = costOf(ticket);
        ASSERT_EQ(Enumeration{ticket}.count(), cost.combinations)
            << typeText(ticket) << ' ' << numbersText(ticket);
        ASSERT_EQ(cost.combinations * ticket.stake, cost.cents);
        if (cost.combinations > 0) seen.insert(ticket.pool);
    }
    EXPECT_EQ(pools.size(), seen.size());
}

// --- Scratches --------------------------------------------------------------------------------------------------

Field fieldWithout(std::initializer_list<TextView> scratched) {
    Field field;
    for (const TextView number : {"1", "1A", "2", "3", "4", "5"})
        field.push_back(
            {Text{number}, std::find(scratched.begin(), scratched.end(), number) != scratched.end()});
    return field;
}

TEST(Tickets, AScratchedEntryDropsOutAndIsNamed) {
    const auto ticket = ticketIn("trifecta", "1/2,3/2,3,4", "0.50").value_or(Ticket{});
    const TicketCost cost = costOf(ticket, {fieldWithout({"3"})});
    EXPECT_EQ(1, cost.combinations); // 1-2-4
    EXPECT_EQ(50, cost.cents);
    EXPECT_EQ((std::vector<DroppedNumber>{{1, "3"}, {2, "3"}}), cost.scratched);
}

TEST(Tickets, ACoupledEntryRunsForBoth) {
    const auto ticket = ticketIn("exacta", "1/2", "2").value_or(Ticket{});
    EXPECT_EQ(1, costOf(ticket, {fieldWithout({"1"})}).combinations);
    EXPECT_TRUE(costOf(ticket, {fieldWithout({"1"})}).scratched.empty());
    EXPECT_EQ(0, costOf(ticket, {fieldWithout({"1", "1A"})}).combinations);
}

TEST(Tickets, EachLegHasItsField) {
    const auto ticket = ticketIn("pick 3", "1,2/1,2/1,2", "1").value_or(Ticket{});
    const TicketCost cost = costOf(ticket, {fieldWithout({}), fieldWithout({"2"}), fieldWithout({})});
    EXPECT_EQ(4, cost.combinations); // 2 x 1 x 2
    EXPECT_EQ((std::vector<DroppedNumber>{{1, "2"}}), cost.scratched);
    EXPECT_EQ(8, costOf(ticket, {fieldWithout({}), {}, {}}).combinations) << "legs of which nothing is known";
}

TEST(Tickets, ANumberThatTheFieldDoesNotKnowCounts) {
    const auto ticket = ticketIn("win", "9", "2").value_or(Ticket{});
    EXPECT_EQ(1, costOf(ticket, {fieldWithout({"2"})}).combinations);
}

// --- Words --------------------------------------------------------------------------------------------------------

TEST(TicketWords, AllIsEveryoneWhoRuns) {
    const std::vector<Field> fields{fieldWithout({"4"})};
    const auto ticket = ticketIn("exacta", "2/all", "2", fields);
    ASSERT_TRUE(ticket);
    EXPECT_EQ("2/1,1A,2,3,5", numbersText(*ticket));
    EXPECT_EQ(3, costOf(*ticket, fields).combinations); // 1, 3 and 5
    EXPECT_FALSE(ticketIn("exacta", "2/all", "2")) << "no field is known";
    EXPECT_FALSE(ticketIn("double", "2/all", "2", {fieldWithout({}), {}})) << "nor the second leg's";
}

TEST(TicketWords, WhatIsMalformedIsNoTicket) {
    const auto isTicket = [](TextView type, TextView numbers, TextView stake) {
        return ticketIn(type, numbers, stake).has_value();
    };
    EXPECT_TRUE(isTicket("exacta", "1/2a", "2"));
    for (const TextView type : {"", "box", " box", "exact", "exacta  box", "win box", "pick 3 box", "pick 7",
                                "pick", "daily double box"})
        EXPECT_FALSE(isTicket(type, "1/2", "2")) << type;
    for (const TextView numbers : {"", "1", "1/", "/2", "1/2/3", "1,/2", ",1/2", "1//2", "0/1", "A/1",
                                   "1AA/2", "1-2/3", "100/1", "+1/2", "1/2 ", "1.5/2"})
        EXPECT_FALSE(isTicket("exacta", numbers, "2")) << numbers;
    for (const TextView stake : {"", "0", "-1", "x", "0.005", "1.234", "1e9", "nan", "inf", "100000.01"})
        EXPECT_FALSE(isTicket("exacta", "1/2", stake)) << stake;
    EXPECT_FALSE(isTicket("exacta box", "1,2/3", "2"));
}

TEST(TicketWords, MoneyIsExactToTheCent) {
    EXPECT_EQ(10, centsIn("0.1"));
    EXPECT_EQ(29, centsIn("0.29")); // no binary figure
    EXPECT_EQ(114, centsIn("1.14"));
    EXPECT_EQ(10'000'000, centsIn("100000"));
    EXPECT_EQ("0.00", moneyText(0));
    EXPECT_EQ("0.05", moneyText(5));
    EXPECT_EQ("12.50", moneyText(1250));
    EXPECT_EQ("-3.07", moneyText(-307));
}

TEST(TicketWords, ATicketIsReadAsItIsWritten) {
    std::mt19937 engine{7};
    for (int run = 0; run < 500; ++run) {
        const Ticket ticket = randomTicket(engine);
        if (std::any_of(ticket.sets.begin(), ticket.sets.end(),
                        [](const Numbers& set) { return set.empty(); }))
            continue;
        EXPECT_EQ(ticket, ticketIn(typeText(ticket), numbersText(ticket), moneyText(ticket.stake)));
    }
}

} // namespace
} // namespace quillon
