// The fixture of the tests around the summary: a card whose races are told by their program numbers.
#pragma once

#include "analysis/summary.h"
#include "screen/view_columns.h"
#include "support/card_test.h"

#include <array>

namespace quillon {

/// Payoffs by their names; an empty one was not paid.
struct Payoffs {
    Text winPay{};
    Text placePay1{};
    Text showPay1{};
    Text placePay2{};
    Text showPay2{};
    Text showPay3{};
    Text exactaPay{};
    Text trifectaPay{};
    Text superfectaPay{};
};

class SummaryTest : public CardTest {
protected:
    using Four = std::array<Text, 4>;

    SummaryTest() {
        card.cardFileName = "M1_20260314.pmd";
        card.cardDate = "20260314";
        card.raceInfo(1).trackCode = "M1";
        card.raceInfo(1).trackInfo = "Meadowlands  1.M";
        card.raceCount = 1;
    }

    static void race(int race, const Four& selections, const Four& finish, const Payoffs& payoffs = {}) {
        for (int place = 1; place <= 4; ++place) {
            card.raceOutcome(race, place) = selections.at(place - 1);
            card.raceOutcome(race, place + 4) = finish.at(place - 1);
        }
        int cell = 0;
        for (const Text& payoff :
             {payoffs.winPay, payoffs.placePay1, payoffs.showPay1, payoffs.placePay2, payoffs.showPay2,
              payoffs.showPay3, payoffs.exactaPay, payoffs.trifectaPay, payoffs.superfectaPay})
            card.payoffRecord(race, ++cell) = payoff;
    }

    static Text cell(int row, int column) { return screen.summary.read(row, column).text; }
    static Text total(int column) { return cell(SummaryRow::totals, column); }
};

} // namespace quillon
