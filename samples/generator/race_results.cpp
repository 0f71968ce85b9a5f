#include "race_results.h"

#include "random.h"
#include "wagers.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <string_view>

namespace samples {

namespace {

constexpr std::size_t placesPaid = 4;
constexpr Cents stake = 200;
constexpr Cents leastPayoff = 220;
constexpr Cents step = 20; // payoffs are cut to full dimes on the dollar
constexpr Cents mostPaid = 9999980;

struct Runner {
    const Entry* entry = nullptr;
    Cents perDollar = 0; // what the crowd's final odds pay for a dollar, the dollar included
    int score = 0;
};

// "7/2" as odds in hundredths: 350.
int oddsOf(std::string_view morningLine) {
    const auto slash = morningLine.find('/');
    int up = 0, down = 1;
    std::from_chars(morningLine.data(), morningLine.data() + slash, up);
    std::from_chars(morningLine.data() + slash + 1, morningLine.data() + morningLine.size(), down);
    return 100 * up / down;
}

Cents paid(std::int64_t amount, Cents least = leastPayoff) {
    return std::clamp(static_cast<Cents>(std::min<std::int64_t>(amount, mostPaid)) / step * step, least,
                      mostPaid);
}

// The number that is betted: 1 for both 1 and 1A.
std::string betNumber(const Entry& entry) {
    return entry.program.substr(0, entry.program.find_first_not_of("0123456789"));
}

std::vector<Runner> finishOf(Random& random, const Race& race, const Entry* scratched) {
    std::vector<Runner> runners;
    for (const Entry& entry : race.entries) {
        if (entry.post == alsoEligible || &entry == scratched) continue;
        const int odds = oddsOf(entry.morningLine) * random.between(60, 150) / 100;
        runners.push_back({&entry, 100 + std::max(odds, 20), 3 * entry.quality + random.around(0, 24)});
    }
    std::stable_sort(runners.begin(), runners.end(),
                     [](const Runner& a, const Runner& b) { return a.score > b.score; });
    assert(runners.size() >= placesPaid);
    return runners;
}

const Entry* worstEntry(const Race& race) {
    const auto worst = std::ranges::max_element(race.entries, {}, [](const Entry& entry) {
        return entry.post == alsoEligible ? 0 : oddsOf(entry.morningLine);
    });
    return &*worst;
}

// Win, place and show; a dead heat halves what the winners' backers gain.
Placing placingOf(Random& random, const Runner& runner, std::size_t place, bool deadHeat) {
    const Cents gain = 2 * (runner.perDollar - 100);
    Placing placing{.entry = runner.entry};
    placing.show = paid(stake + gain * random.between(15, 28) / 100);
    if (place < 2) placing.place = std::max(placing.show, paid(stake + gain * random.between(35, 50) / 100));
    const bool wins = place == 0 || (place == 1 && deadHeat);
    if (wins) placing.win = std::max(placing.place, paid(stake + (deadHeat ? gain / 2 : gain)));
    return placing;
}

// An exotic wager on the first so many; the more places it names, the less of the fair price is left.
ExoticPayoff exoticOf(const std::vector<Runner>& order, std::size_t count, bool deadHeat) {
    constexpr std::array percents{100, 90, 60, 55};
    ExoticPayoff exotic;
    std::int64_t amount = stake;
    for (std::size_t i = 0; i < count; ++i) {
        exotic.numbers += (i > 0 ? "-" : "") + betNumber(*order[i].entry);
        amount = amount * order[i].perDollar / 100 * percents[i] / 100;
    }
    exotic.payoff = paid(deadHeat ? amount / 2 : amount);
    return exotic;
}

// Of a coupled entry only the first to finish counts for the exotics.
std::vector<Runner> bettingOrder(const std::vector<Runner>& finish) {
    std::vector<Runner> order;
    for (const Runner& runner : finish) {
        const auto same = [&](const Runner& other) {
            return betNumber(*other.entry) == betNumber(*runner.entry);
        };
        if (std::ranges::none_of(order, same)) order.push_back(runner);
    }
    return order;
}

void payExotics(const std::vector<Runner>& finish, RaceResult& result) {
    std::vector<Runner> order = bettingOrder(finish);
    const bool hasSuperfecta = result.race->wagers.find("Superfecta") != std::string::npos;
    for (int turn = 0; turn < (result.deadHeat ? 2 : 1); ++turn) {
        result.exactas.push_back(exoticOf(order, 2, result.deadHeat));
        result.trifectas.push_back(exoticOf(order, 3, result.deadHeat));
        if (hasSuperfecta) result.superfectas.push_back(exoticOf(order, 4, result.deadHeat));
        std::swap(order[0], order[1]);
    }
}

RaceResult runRace(Random& random, const Race& race, bool deadHeat, bool scratch) {
    RaceResult result{.race = &race, .deadHeat = deadHeat};
    const Entry* scratched = scratch ? worstEntry(race) : nullptr;
    if (scratched) result.refunds.push_back(scratched->program);
    const std::vector<Runner> finish = finishOf(random, race, scratched);
    for (std::size_t place = 0; place < placesPaid; ++place)
        result.placings.push_back(place < 3 ? placingOf(random, finish[place], place, deadHeat)
                                            : Placing{.entry = finish[place].entry});
    payExotics(finish, result);
    return result;
}

std::string winnersOf(const RaceResult& result) {
    std::string winners = betNumber(*result.placings[0].entry);
    return result.deadHeat ? winners + "," + betNumber(*result.placings[1].entry) : winners;
}

// The pools that end with the card's n-th race, the last of the results.
void payPools(const std::vector<RaceResult>& results, RaceResult& last) {
    constexpr int pricePercent = 80;
    const int count = static_cast<int>(results.size());
    for (const MultiRaceWager& wager : multiRaceWagers) {
        if (wager.lastLeg() != count) continue;
        const auto first = static_cast<std::size_t>(wager.firstLeg - 1);
        PoolPayoff pool{.firstLeg = results[first].race->number, .legs = wager.legs, .winners = {}};
        std::int64_t amount = stake;
        for (std::size_t i = first; i < results.size(); ++i) {
            pool.winners += (i > first ? "/" : "") + winnersOf(results[i]);
            amount = amount * results[i].placings[0].win / stake;
        }
        pool.payoff = paid(amount * pricePercent / 100);
        last.pools.push_back(pool);
    }
}

} // namespace

std::vector<RaceResult> runCard(const Card& card, const ResultOptions& options) {
    Random random(options.seed);
    std::vector<RaceResult> results;
    for (const Race& race : card.races) {
        const int count = static_cast<int>(results.size()) + 1;
        results.push_back(runRace(random, race, count == options.deadHeatRace, count == options.scratchRace));
        payPools(results, results.back());
    }
    return results;
}

} // namespace samples
