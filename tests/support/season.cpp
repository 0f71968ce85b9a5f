#include "support/season.h"

#include "cardfiles/card_lines.h"
#include "core/files.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace quillon {
namespace {

struct MorningLine {
    const char* text;
    double odds;
};
constexpr std::array morningLines{
    MorningLine{"1/5", 0.2}, MorningLine{"2/5", 0.4}, MorningLine{"3/5", 0.6}, MorningLine{"4/5", 0.8},
    MorningLine{"1/1", 1},   MorningLine{"6/5", 1.2}, MorningLine{"8/5", 1.6}, MorningLine{"2/1", 2},
    MorningLine{"5/2", 2.5}, MorningLine{"3/1", 3},   MorningLine{"4/1", 4},   MorningLine{"6/1", 6},
    MorningLine{"8/1", 8},   MorningLine{"12/1", 12}, MorningLine{"20/1", 20}, MorningLine{"30/1", 30},
};

// The shortest line that is no shorter.
std::string lineAt(double odds) {
    const auto found = std::find_if(morningLines.begin(), morningLines.end() - 1,
                                    [&](const MorningLine& line) { return line.odds >= odds; });
    return found->text;
}

std::string oneDecimal(double number) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f", number);
    return text.data();
}

std::string inQuotes(const std::string& text) { return '"' + text + '"'; }

void putRace(std::vector<std::string>& lines, int number, const SeasonRace& race) {
    const auto at = [&](int line) -> std::string& { return lines[static_cast<std::size_t>(line)]; };
    std::string refunds;
    for (std::size_t place = 0; place < race.entries.size(); ++place) {
        const SeasonEntry& entry = race.entries[place];
        const int index = static_cast<int>(place) + 1;
        at(entryLine(number, index, 1)) = inQuotes("Horse " + std::to_string(index));
        at(entryLine(number, index, 2)) = inQuotes(" " + entry.morningLine);
        at(entryLine(number, index, 3)) = inQuotes("  " + std::to_string(index));
        at(entryLine(number, index, 32)) = inQuotes(entry.scratched ? "99.9" : entry.rating);
        if (entry.scratched) refunds += " " + std::to_string(index);
    }
    for (std::size_t place = 0; place < race.finish.size(); ++place)
        at(outcomeLine(number, 5 + static_cast<int>(place))) =
            inQuotes(std::to_string(race.finish[place] + 1));
    at(payoffLine(number, 10)) = inQuotes(refunds);
}

} // namespace

double Season::upToOne() { return (static_cast<double>(engine_()) + 0.5) / 4294967296.0; }

double Season::normal() {
    const double radius = std::sqrt(-2 * std::log(upToOne()));
    return radius * std::cos(2 * std::numbers::pi * upToOne());
}

std::vector<std::size_t> Season::drawnFinish(const SeasonRace& race) {
    constexpr std::size_t places = 4;
    std::vector<std::size_t> left;
    for (std::size_t place = 0; place < race.entries.size(); ++place)
        if (!race.entries[place].scratched) left.push_back(place);
    std::vector<std::size_t> finish;
    while (!left.empty() && finish.size() < places) {
        double sum = 0;
        const auto weight = [&](std::size_t place) {
            return std::exp(-perPoint_ * (std::stod(race.entries[place].rating) - 58));
        };
        for (const std::size_t place : left) sum += weight(place);
        double drawn = upToOne() * sum;
        std::size_t at = 0;
        while (at + 1 < left.size() && (drawn -= weight(left[at])) > 0) ++at;
        finish.push_back(left[at]);
        left.erase(left.begin() + static_cast<std::ptrdiff_t>(at));
    }
    return finish;
}

// The morning line knows something of the ratings, and something else: it is theirs with noise, and with the
// fifth that a track keeps.
SeasonRace Season::race() {
    constexpr double kept = 1.2;
    SeasonRace race;
    const auto starters = static_cast<std::size_t>(5 + 6 * upToOne());
    std::vector<double> weights;
    double sum = 0;
    for (std::size_t at = 0; at < starters; ++at) {
        const double rating = std::round((58 + 1.8 * normal()) * 10) / 10;
        race.entries.push_back({.rating = oneDecimal(rating), .scratched = upToOne() < 0.03});
        sum += weights.emplace_back(std::exp(-0.7 * perPoint_ * (rating - 58) + 0.5 * normal()));
    }
    for (std::size_t at = 0; at < starters; ++at)
        race.entries[at].morningLine = lineAt(sum / weights[at] / kept - 1);
    if (starters - static_cast<std::size_t>(std::count_if(race.entries.begin(), race.entries.end(),
                                                          [](const auto& e) { return e.scratched; })) <
        2)
        for (SeasonEntry& entry : race.entries) entry.scratched = false;
    race.finish = drawnFinish(race);
    return race;
}

std::vector<JudgedRace> judgedSeason(std::uint32_t seed, double perPoint, std::size_t cards,
                                     std::size_t racesOfCard) {
    Season season{seed, perPoint};
    std::vector<JudgedRace> races;
    for (std::size_t at = 0; at < cards * racesOfCard; ++at) {
        const SeasonRace race = season.race();
        JudgedRace judged{.card = at / racesOfCard};
        for (std::size_t place = 0; place < race.entries.size(); ++place) {
            if (race.entries[place].scratched) continue;
            if (place == race.finish.front()) judged.winner = judged.ratings.size();
            judged.ratings.push_back(std::stod(race.entries[place].rating));
        }
        races.push_back(judged);
    }
    return races;
}

void putSeason(std::uint32_t seed, double perPoint, std::size_t cards, std::size_t racesOfCard) {
    Season season{seed, perPoint};
    makeFolder(Folder::raceCards);
    for (std::size_t at = 0; at < cards; ++at) {
        auto lines = emptyCardLines();
        for (std::size_t race = 1; race <= racesOfCard; ++race)
            putRace(lines, static_cast<int>(race), season.race());
        const std::string date = std::to_string(20'200'000 + at); // days that the reader need not know
        std::ofstream{folderOnDisk(Folder::raceCards) / ("MVR_" + date + ".pmd"), std::ios::binary}
            << fileOf(lines);
    }
}

} // namespace quillon
