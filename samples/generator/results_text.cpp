#include "results_text.h"

#include "tracks.h"

#include <array>
#include <string_view>

namespace samples {

namespace {

constexpr std::string_view lineEnd = "\r\n";

constexpr std::array<std::string_view, 12> monthNames{
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December",
};
constexpr std::array<std::string_view, 7> dayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                   "Thursday", "Friday", "Saturday"};

std::string right(std::string_view text, std::size_t width) {
    return std::string(text.size() < width ? width - text.size() : 0, ' ') + std::string{text};
}

std::string left(std::string_view text, std::size_t width) {
    std::string result{text};
    if (result.size() < width) result.resize(width, ' ');
    return result;
}

std::string grouped(int value) {
    std::string digits = std::to_string(value);
    for (std::size_t end = digits.size(); end > 3; end -= 3) digits.insert(end - 3, 1, ',');
    return digits;
}

// "12.40"; from a thousand dollars on with a comma.
std::string money(Cents cents) {
    const std::string rest = std::to_string(cents % 100);
    return grouped(cents / 100) + (rest.size() < 2 ? ".0" : ".") + rest;
}

std::string moneyOrBlank(Cents cents) { return cents > 0 ? money(cents) : std::string{}; }

std::string isoDate(Day day) { return dateText(day).insert(6, 1, '-').insert(4, 1, '-'); }

std::string longDate(Day day) {
    const std::chrono::year_month_day date{day};
    return std::string{monthNames[static_cast<unsigned>(date.month()) - 1]} + " " +
           std::to_string(static_cast<unsigned>(date.day())) + ", " +
           std::to_string(static_cast<int>(date.year()));
}

std::string title(const Card& card) { return "Results for " + std::string{trackOf(card.track).name}; }

std::string gaitText(const Race& race) { return race.gait == "TROT" ? "Trot" : "Pace"; }

std::string columnFinisher(const Placing& placing) {
    return left(placing.entry->program, 3) + left(placing.entry->name, 25) +
           right(moneyOrBlank(placing.win), 10) + right(moneyOrBlank(placing.place), 10) +
           right(money(placing.show), 10);
}

std::string columnWager(std::string_view words, std::string_view numbers, Cents payoff) {
    return right(words, 6 + words.size()) + " " + std::string{numbers} + " paid $" + money(payoff);
}

std::string_view columnPoolWords(int legs) {
    constexpr std::array<std::string_view, 4> words{"DOUBLE", "PICK THREE", "PICK FOUR", "PICK FIVE"};
    return words[static_cast<std::size_t>(legs) - 2];
}

std::string columnRace(const RaceResult& result) {
    std::string text{lineEnd};
    const auto add = [&](const std::string& line) { (text += line) += lineEnd; };
    add("Race:" + right(std::to_string(result.race->number), 3) + "   " + gaitText(*result.race) +
        "   1 Mile   Purse $" + grouped(result.race->purse));
    add("PRG HORSE                           WIN     PLACE      SHOW");
    for (std::size_t place = 0; place < 3; ++place) add(columnFinisher(result.placings[place]));
    for (const auto& exotic : result.exactas) add(columnWager("EXACTA", exotic.numbers, exotic.payoff));
    for (const auto& exotic : result.trifectas) add(columnWager("TRIFECTA", exotic.numbers, exotic.payoff));
    for (const auto& exotic : result.superfectas)
        add(columnWager("SUPERFECTA", exotic.numbers, exotic.payoff));
    for (const PoolPayoff& pool : result.pools)
        add(columnWager(columnPoolWords(pool.legs),
                        pool.winners + " (" + std::to_string(pool.legs) + " CORRECT)", pool.payoff));
    return text;
}

std::string wordFinisher(std::size_t place, const Placing& placing) {
    constexpr std::array<std::string_view, 4> words{"1st", "2nd", "3rd", "4th"};
    std::string line =
        std::string{words[place]} + " " + left(placing.entry->program, 3) + placing.entry->name;
    if (placing.win > 0) line += right(money(placing.win), 7); // a reader counts from the end of the line
    if (placing.place > 0) line += right(money(placing.place), 6);
    if (placing.show > 0) line += right(money(placing.show), 6);
    return line;
}

std::string wordExotic(std::string_view word, const ExoticPayoff& exotic) {
    return "$2 " + std::string{word} + " " + exotic.numbers + " " + money(exotic.payoff);
}

// "$2 D/D 1-2  4- 3 56.40": the winners in columns 12 and 15.
std::string wordDouble(const PoolPayoff& pool) {
    const auto slash = pool.winners.find('/');
    const std::string races = std::to_string(pool.firstLeg) + "-" + std::to_string(pool.firstLeg + 1);
    return left("$2 D/D " + races, 11) + right(pool.winners.substr(0, slash), 2) + "-" +
           right(pool.winners.substr(slash + 1), 2) + " " + money(pool.payoff);
}

std::string wordPick(const PoolPayoff& pool) {
    const std::string legs = std::to_string(pool.legs);
    return "$2 Pick " + legs + " " + pool.winners + " " + legs + " of " + legs + " " + money(pool.payoff);
}

std::string wordRace(const RaceResult& result) {
    std::string text{lineEnd};
    const auto add = [&](const std::string& line) { (text += line) += lineEnd; };
    add("Race: " + left(std::to_string(result.race->number), 3) + " " + gaitText(*result.race) +
        ", 1 Mile, Purse $" + grouped(result.race->purse));
    for (std::size_t place = 0; place < result.placings.size(); ++place)
        add(wordFinisher(result.deadHeat && place == 1 ? 0 : place, result.placings[place]));
    for (const ExoticPayoff& exotic : result.exactas) add(wordExotic("Exacta", exotic));
    for (const ExoticPayoff& exotic : result.trifectas) add(wordExotic("Trifecta", exotic));
    for (const ExoticPayoff& exotic : result.superfectas) add(wordExotic("Superfecta", exotic));
    for (const PoolPayoff& pool : result.pools) add(pool.legs == 2 ? wordDouble(pool) : wordPick(pool));
    for (const std::string& program : result.refunds) add("Refunds " + program);
    return text;
}

// What a late scratch adds to a results file.
std::string refundLine(const Race& race, std::string_view program) {
    return "REFUNDS: R" + std::to_string(race.number) + std::string(7, ' ') + right(program, 3);
}

} // namespace

std::string columnLayout(const Card& card, std::span<const RaceResult> results) {
    const std::chrono::weekday day{card.date};
    std::string text = title(card);
    text += lineEnd;
    text += std::string{dayNames[day.c_encoding()]} + " " + isoDate(card.date);
    text += lineEnd;
    for (const RaceResult& result : results) text += columnRace(result);
    text += lineEnd;
    for (const RaceResult& result : results)
        for (const std::string& program : result.refunds)
            (text += refundLine(*result.race, program)) += lineEnd;
    return text;
}

std::string wordLayout(const Card& card, std::span<const RaceResult> results) {
    std::string text = title(card);
    text += lineEnd;
    text += longDate(card.date);
    text += lineEnd;
    for (const RaceResult& result : results) text += wordRace(result);
    return text;
}

} // namespace samples
