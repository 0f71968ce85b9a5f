#include "analysis/ticket_words.h"

#include "analysis/fair_odds.h"
#include "core/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quillon {
namespace {

constexpr TextView boxWord = " box";
constexpr TextView everyone = "all";
constexpr int centsOfOne = 100;

// Other names that people have for a pool.
struct OtherName {
    TextView name;
    Pool pool;
};
constexpr std::array otherNames{
    OtherName{"double", Pool::dailyDouble},
    OtherName{"high 5", Pool::highFive},
};

std::optional<Pool> poolNamed(TextView name) {
    for (const PoolRow& row : pools)
        if (sameIgnoringCase(row.name, name)) return row.pool;
    for (const OtherName& row : otherNames)
        if (sameIgnoringCase(row.name, name)) return row.pool;
    return std::nullopt;
}

bool isBox(TextView type) {
    return type.size() > boxWord.size() &&
           sameIgnoringCase(type.substr(type.size() - boxWord.size()), boxWord);
}

std::vector<TextView> piecesOf(TextView text, char separator) {
    std::vector<TextView> pieces;
    for (;;) {
        const auto end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == TextView::npos) return pieces;
        text.remove_prefix(end + 1);
    }
}

// "7" or "1A", from 1 to 99.
bool isProgramNumber(TextView text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const TextView letter = text.substr(static_cast<std::size_t>(end - text.data()));
    const bool isLetter = letter.size() == 1 && upperCase(letter) >= "A" && upperCase(letter) <= "Z";
    return error == std::errc{} && number > 0 && bettingNumber(text) == number &&
           (letter.empty() || isLetter);
}

std::optional<Numbers> everyoneIn(const std::vector<Field>& fields, std::size_t set) {
    Numbers numbers;
    if (!fields.empty())
        for (const Runner& runner : fields[std::min(set, fields.size() - 1)])
            if (!runner.scratched) numbers.push_back(runner.programNumber);
    return numbers.empty() ? std::nullopt : std::optional{numbers};
}

std::optional<Numbers> numbersIn(TextView text, const std::vector<Field>& fields, std::size_t set) {
    if (sameIgnoringCase(text, everyone)) return everyoneIn(fields, set);
    Numbers numbers;
    for (const TextView piece : piecesOf(text, ',')) {
        if (!isProgramNumber(piece)) return std::nullopt;
        numbers.push_back(upperCase(piece));
    }
    return numbers;
}

Text joined(const Numbers& numbers) {
    Text text;
    for (const Text& number : numbers) text += (text.empty() ? "" : ",") + number;
    return text;
}

} // namespace

std::optional<std::int64_t> centsIn(TextView money) {
    constexpr double most = 100'000;
    constexpr double slack = 1e-6; // of a cent that no binary figure hits
    const auto amount = numberIn(money);
    if (!amount || !(*amount > 0) || !(*amount <= most)) return std::nullopt;
    const double cents = *amount * centsOfOne;
    const double whole = std::round(cents);
    if (whole < 1 || std::abs(cents - whole) > slack) return std::nullopt;
    return static_cast<std::int64_t>(whole);
}

Text moneyText(std::int64_t cents) {
    const Text sign = cents < 0 ? "-" : "";
    const std::int64_t amount = cents < 0 ? -cents : cents;
    const Text part = std::to_string(amount % centsOfOne);
    return sign + std::to_string(amount / centsOfOne) + (part.size() < 2 ? ".0" : ".") + part;
}

std::optional<Pool> poolIn(TextView type) {
    return poolNamed(isBox(type) ? type.substr(0, type.size() - boxWord.size()) : type);
}

std::optional<Ticket> ticketIn(TextView type, TextView numbers, TextView stake,
                               const std::vector<Field>& fields) {
    Ticket ticket{.boxed = isBox(type)};
    const auto pool = poolIn(type);
    const auto cents = centsIn(stake);
    if (!pool || !cents || (ticket.boxed && !canBeBoxed(*pool))) return std::nullopt;
    ticket.pool = *pool;
    ticket.stake = *cents;
    for (const TextView piece : piecesOf(numbers, '/')) {
        auto set = numbersIn(piece, fields, ticket.sets.size());
        if (!set) return std::nullopt;
        ticket.sets.push_back(std::move(*set));
    }
    return ticket.sets.size() == setsOf(ticket.pool, ticket.boxed) ? std::optional{ticket} : std::nullopt;
}

Text typeText(const Ticket& ticket) {
    return Text{rowOf(ticket.pool).name} + (ticket.boxed ? Text{boxWord} : Text{});
}

Text numbersText(const Ticket& ticket) {
    Text text;
    for (std::size_t set = 0; set < ticket.sets.size(); ++set)
        text += (set == 0 ? "" : "/") + joined(ticket.sets[set]);
    return text;
}

} // namespace quillon
