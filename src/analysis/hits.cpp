#include "analysis/hits.h"

#include <algorithm>

namespace quillon {
namespace {

using Column = SummaryColumn;
using Outcome = OutcomeCell;
using Payoff = PayoffCell;

constexpr auto none = Column::label; ///< of columns: no bet has this one
constexpr Integer deadHeat = 2;

// clang-format off
/// A payoff and the column that it is shown in and added to.
struct PaidColumn { Column::Number column = none; Payoff::Number payoff{}; };

/// What a finisher earns where he is the selection. Program numbers compare as numbers here: "1A" runs for 1.
struct PlacePass {
    Outcome::Number finisher;
    Outcome::Number selection;
    bool countsWins = false;
    bool endsAtDeadHeat = false; ///< at the first race with a dead heat for the win not told yet
    std::array<PaidColumn, 3> paid{};
};

constexpr PlacePass winOfS1{
    Outcome::r1, Outcome::s1, true, false,
    {{{Column::win, Payoff::win}, {Column::place, Payoff::place1}, {Column::show, Payoff::show1}}},
};

constexpr std::array placePasses{
    PlacePass{Outcome::r1, Outcome::s2, true, true},
    PlacePass{Outcome::r1, Outcome::s3, true},
    PlacePass{Outcome::r1, Outcome::s4, true},
    PlacePass{Outcome::r2, Outcome::s1, false, false,
              {{{Column::place, Payoff::place2}, {Column::show, Payoff::show2}}}},
    PlacePass{Outcome::r3, Outcome::s1, false, false, {{{Column::show, Payoff::show3}}}},
};

/// For each finisher in turn the selections that win the bet by finishing there; "" where all do.
using Ticket = std::array<TextView, 4>;

/// A bet on the order of finish. Program numbers compare as texts here: " 4" is not "4".
struct Bet {
    Payoff::Number payoff;
    Ticket ticket;
    std::array<Column::Number, 3> shown; ///< columns that show the payoff
    std::array<Column::Number, 2> added; ///< columns that it is added to
    Ticket otherTicket{};                ///< wins as well, once for both
};

/// Bets of one column.
constexpr Bet bet(Column::Number column, Payoff::Number payoff, Ticket ticket, Ticket otherTicket = {}) {
    return {payoff, ticket, {column}, {column}, otherTicket};
}

constexpr std::array bets{
    //                                              1st     2nd     3rd     4th
    bet(Column::exacta1With2,     Payoff::exacta,   {"1",    "2"}),
    bet(Column::exactaBox12,      Payoff::exacta,   {"12",   "12"}),
    bet(Column::exacta1With23,    Payoff::exacta,   {"1",    "23"}),
    bet(Column::exactaBox123,     Payoff::exacta,   {"123",  "123"}),
    bet(Column::exactaBox1234,    Payoff::exacta,   {"1234", "1234"}),
    bet(Column::trifecta1With234, Payoff::trifecta, {"1",    "234",  "234"}),
    bet(Column::trifectaBox123,   Payoff::trifecta, {"123",  "123",  "123"}),
    bet(Column::trifecta1With23,  Payoff::trifecta, {"1",    "2",    "3"}, {"1", "3", "2"}),
    // A superfecta shows under every bet that holds it.
    Bet{Payoff::superfecta, {"1", "234", "234", "234"},
        {Column::superfecta1With234, Column::superfecta2With134, Column::superfectaBox1234},
        {Column::superfecta1With234, Column::superfecta2With134}},
    Bet{Payoff::superfecta, {"2", "134", "134", "134"},
        {Column::superfecta2With134, Column::superfectaBox1234}, {Column::superfecta2With134}},
    bet(Column::superfectaBox1234, Payoff::superfecta, {"1234", "1234", "1234", "1234"}),
};
// clang-format on

bool sameNumber(const RaceResults& race, Outcome::Number finisher, Outcome::Number selection) {
    return lenientNumber(race.outcome[finisher]) == lenientNumber(race.outcome[selection]);
}

bool isAmong(const RaceResults& race, TextView finisher, TextView selections) {
    return std::any_of(selections.begin(), selections.end(), [&](char selection) {
        return race.outcome.at(Outcome::s1 + (selection - '1')) == finisher;
    });
}

bool wins(const RaceResults& race, const Ticket& ticket) {
    if (ticket.front().empty()) return false;
    for (std::size_t place = 0; place < ticket.size(); ++place)
        if (!ticket[place].empty() && !isAmong(race, race.outcome[Outcome::r1 + place], ticket[place]))
            return false;
    return true;
}

/// The passes over a card, one after another: a later one writes over what an earlier one shows.
struct Judge {
    const CardResults& results;
    CardHits hits{};

    void payPlaces(std::size_t race, const PlacePass& pass);
    bool tellWinOfS1(std::size_t race);
    void runPass(const PlacePass& pass);
    void runBet(const Bet& bet);
    void runAll();
};

void Judge::payPlaces(std::size_t race, const PlacePass& pass) {
    const RaceResults& result = results.races[race];
    RaceHits& hit = hits.races[race];
    if (pass.countsWins && lenientNumber(result.outcome[pass.selection]) > 0) {
        hit.won[pass.selection] = true;
        ++hits.wins[pass.selection];
    }
    for (const PaidColumn& paid : pass.paid) {
        if (paid.column == none) continue;
        hit.paid[paid.column] = result.payoff[paid.payoff];
        hits.sums[paid.column] += lenientNumber(result.payoff[paid.payoff]);
    }
}

// Whether S1 won, in a dead heat also as the second horse. The dead heat is told by that, whoever shared it.
bool Judge::tellWinOfS1(std::size_t race) {
    const RaceResults& result = results.races[race];
    Integer& heat = hits.winHeat[race];
    if (heat > deadHeat) return false;
    const bool shared = heat == deadHeat;
    if (shared) heat = 1;
    return sameNumber(result, Outcome::r1, Outcome::s1) ||
           (shared && sameNumber(result, Outcome::r2, Outcome::s1));
}

void Judge::runPass(const PlacePass& pass) {
    for (std::size_t race = 1; race <= judgedRaces; ++race) {
        if (pass.endsAtDeadHeat && hits.winHeat[race] >= deadHeat) return;
        if (sameNumber(results.races[race], pass.finisher, pass.selection)) payPlaces(race, pass);
    }
}

// A race without data wins every bet, and adds nothing by its empty payoffs.
void Judge::runBet(const Bet& bet) {
    for (std::size_t race = 1; race <= judgedRaces; ++race) {
        const RaceResults& result = results.races[race];
        if (!wins(result, bet.ticket) && !wins(result, bet.otherTicket)) continue;
        const TextView payoff = result.payoff[bet.payoff];
        for (const auto column : bet.shown)
            if (column != none) hits.races[race].paid[column] = payoff;
        for (const auto column : bet.added)
            if (column != none) hits.sums[column] += lenientNumber(payoff);
    }
}

void Judge::runAll() {
    const auto races = static_cast<std::size_t>(std::clamp(results.lastRace, 0, raceExtent - 1));
    for (std::size_t race = 0; race < raceExtent; ++race) hits.winHeat[race] = results.races[race].winHeat;
    for (std::size_t race = 1; race <= races; ++race)
        if (tellWinOfS1(race)) payPlaces(race, winOfS1);
    for (const PlacePass& pass : placePasses) runPass(pass);
    for (const Bet& bet : bets) runBet(bet);
    for (std::size_t race = 1; race <= races; ++race)
        if (lenientNumber(results.races[race].payoff[Payoff::superfecta]) > 0) ++hits.superfectaRaces;
}

} // namespace

CardHits hitsOf(const CardResults& results) {
    Judge judge{results};
    judge.runAll();
    return judge.hits;
}

} // namespace quillon
