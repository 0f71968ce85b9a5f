#include "results_text.h"
#include "sample_card.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace samples;

const Card& card() {
    static const Card sample = sampleCard();
    return sample;
}

const std::vector<RaceResult>& results() {
    static const std::vector<RaceResult> sample = sampleResults(card());
    return sample;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (auto end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + 2;
    }
    return lines;
}

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string lastOf(const std::string& line, std::size_t count) {
    return line.substr(line.size() - std::min(count, line.size()));
}

// Cents as a text of dollars; from a thousand dollars on with a comma.
std::string dollars(Cents cents) {
    std::string text = std::to_string(cents);
    text.insert(text.size() - 2, ".");
    if (cents >= 100000) text.insert(text.size() - 6, ",");
    return text;
}

TEST(SampleResults, FinishersAreEntriesThatRaced) {
    ASSERT_EQ(12U, results().size());
    for (const RaceResult& result : results()) {
        std::set<const Entry*> finishers;
        ASSERT_EQ(4U, result.placings.size());
        for (const Placing& placing : result.placings) {
            EXPECT_TRUE(finishers.insert(placing.entry).second);
            EXPECT_NE(alsoEligible, placing.entry->post);
            EXPECT_EQ(0, std::ranges::count(result.refunds, placing.entry->program));
            EXPECT_EQ(1, std::ranges::count(result.race->entries, placing.entry->program, &Entry::program));
        }
    }
}

TEST(SampleResults, PayoffsFallFromWinToShow) {
    for (const RaceResult& result : results()) {
        const Placing& first = result.placings[0];
        EXPECT_GE(first.win, first.place);
        EXPECT_GE(first.place, first.show);
        EXPECT_GE(result.placings[1].place, result.placings[1].show);
        EXPECT_GE(result.placings[2].show, 210);
        EXPECT_EQ(0, result.placings[3].show);
    }
}

TEST(SampleResults, HaveOneOfEachSpecialThing) {
    EXPECT_EQ(1, std::ranges::count_if(results(), &RaceResult::deadHeat));
    EXPECT_EQ(1, std::ranges::count_if(results(),
                                       [](const RaceResult& result) { return !result.refunds.empty(); }));
    std::multiset<int> legs;
    Cents most = 0;
    for (const RaceResult& result : results()) {
        for (const PoolPayoff& pool : result.pools) legs.insert(pool.legs);
        for (const ExoticPayoff& exotic : result.superfectas) most = std::max(most, exotic.payoff);
    }
    EXPECT_EQ((std::multiset<int>{2, 2, 3, 4, 5}), legs);
    EXPECT_GT(most, 100000) << "a payoff over a thousand dollars";
}

TEST(SampleResults, DeadHeatShowsAsAnAlternativeInThePools) {
    // The dead heat of race 7 is the third leg of the pick four over races 5 to 8.
    const auto& pool = results()[7].pools.at(0);
    const auto number = [](int race, std::size_t place) {
        return results()[static_cast<std::size_t>(race) - 1].placings[place].entry->program;
    };
    ASSERT_TRUE(results()[6].deadHeat);
    EXPECT_EQ(number(5, 0) + "/" + number(6, 0) + "/" + number(7, 0) + "," + number(7, 1) + "/" +
                  number(8, 0),
              pool.winners);
}

TEST(ColumnLayout, HeadNamesTrackAndDate) {
    const auto lines = linesOf(columnLayout(card(), results()));
    EXPECT_TRUE(lines[0].starts_with("Results"));
    EXPECT_EQ("2026-03-14", lines[1].substr(lines[1].find('2')));
}

TEST(ColumnLayout, ColonNamesARace) {
    int race = 0;
    for (const std::string& line : linesOf(columnLayout(card(), results()))) {
        const auto colon = line.find(':');
        if (colon == std::string::npos || line.starts_with("REFUNDS:")) continue;
        EXPECT_EQ(++race, std::stoi(line.substr(colon + 1, 3))) << line;
    }
    EXPECT_EQ(12, race);
}

TEST(ColumnLayout, FinishersFollowTheirHeading) {
    const auto lines = linesOf(columnLayout(card(), results()));
    std::size_t race = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!lines[i].starts_with("PRG")) continue;
        const auto& placings = results()[race++].placings;
        for (std::size_t place = 0; place < 3; ++place) {
            const std::string& line = lines[i + 1 + place];
            EXPECT_EQ(placings[place].entry->program, trimmed(line.substr(0, 2)));
            EXPECT_EQ(dollars(placings[place].show), trimmed(lastOf(line, 6)));
        }
        // The first digit after the number begins the Win payoff: names have none.
        const std::string& first = lines[i + 1];
        EXPECT_EQ(dollars(placings[0].win), trimmed(first.substr(first.find_first_of("123456789", 2), 6)));
    }
    EXPECT_EQ(12U, race);
}

TEST(ColumnLayout, WagersStandFromColumnSeven) {
    const auto lines = linesOf(columnLayout(card(), results()));
    const auto count = [&](const std::string& words) {
        return std::ranges::count_if(lines, [&](const std::string& line) {
            return line.starts_with("      " + words + " ") && line.find(" paid $") != std::string::npos;
        });
    };
    EXPECT_EQ(13, count("EXACTA")); // two in the dead heat
    EXPECT_EQ(13, count("TRIFECTA"));
    EXPECT_EQ(9, count("SUPERFECTA")); // not offered in races 3, 7 and 11
    EXPECT_EQ(2, count("DOUBLE"));
    EXPECT_EQ(1, count("PICK THREE"));
    EXPECT_EQ(1, count("PICK FOUR"));
    EXPECT_EQ(1, count("PICK FIVE"));
}

TEST(ColumnLayout, FourthFinisherEndsTheSuperfecta) {
    std::map<std::size_t, std::string> fourths;
    std::size_t race = 0;
    for (const std::string& line : linesOf(columnLayout(card(), results()))) {
        if (line.starts_with("Race:")) ++race;
        if (!line.starts_with("      SUPERFECTA ")) continue;
        // The eleven characters at column 18 hold the numbers and reach the "p" of "paid".
        const std::string numbers = line.substr(17, 11);
        ASSERT_NE(std::string::npos, numbers.find('p')) << line;
        fourths[race] = trimmed(lastOf(numbers.substr(0, numbers.find('p')), 2));
    }
    for (const auto& [number, fourth] : fourths)
        EXPECT_EQ(results()[number - 1].placings[3].entry->program, fourth) << number;
}

TEST(ColumnLayout, RefundsStandAtTheEnd) {
    const auto lines = linesOf(columnLayout(card(), results()));
    const std::string& last = lines.back();
    ASSERT_TRUE(last.starts_with("REFUNDS: R"));
    EXPECT_EQ("6 ", last.substr(10, 2)); // race 6 in columns 11 and 12
    EXPECT_EQ(results()[5].refunds.at(0), trimmed(lastOf(last, 2)));
}

TEST(WordLayout, HeadNamesTrackAndDate) {
    const auto lines = linesOf(wordLayout(card(), results()));
    EXPECT_TRUE(lines[0].starts_with("Results"));
    EXPECT_EQ("March 14, 2026", lines[1]);
}

// The lines of one race, from 1.
std::vector<std::string> wordLines(int race) {
    std::vector<std::string> found;
    int current = 0;
    for (const std::string& line : linesOf(wordLayout(card(), results()))) {
        if (line.starts_with("Race: ")) current = std::stoi(line.substr(6, 3));
        if (current == race && !line.empty()) found.push_back(line);
    }
    return found;
}

TEST(WordLayout, MoneyStandsAtTheEndOfTheFinishers) {
    for (const RaceResult& result : results()) {
        const auto lines = wordLines(result.race->number);
        for (std::size_t place = 0; place < 4; ++place) {
            const Placing& placing = result.placings[place];
            const std::string& line = lines[place + 1];
            EXPECT_EQ(placing.entry->program, trimmed(line.substr(3, 3)));
            if (place == 3) continue;
            EXPECT_EQ(dollars(placing.show), trimmed(lastOf(line, 6)));
            if (placing.place > 0) {
                EXPECT_EQ(dollars(placing.place), trimmed(lastOf(line, 12).substr(0, 6)));
            }
            if (placing.win > 0) {
                EXPECT_EQ(dollars(placing.win), trimmed(lastOf(line, 19).substr(0, 7)));
            }
        }
    }
}

TEST(WordLayout, PlacesAreWords) {
    const auto lines = wordLines(1);
    EXPECT_TRUE(lines[1].starts_with("1st "));
    EXPECT_TRUE(lines[2].starts_with("2nd "));
    EXPECT_TRUE(lines[3].starts_with("3rd "));
    EXPECT_TRUE(lines[4].starts_with("4th "));
    const auto heat = wordLines(7);
    EXPECT_TRUE(heat[1].starts_with("1st "));
    EXPECT_TRUE(heat[2].starts_with("1st "));
    EXPECT_TRUE(heat[3].starts_with("3rd "));
}

// How many characters at the end of a wager's line are read as its payoff, told by the length of the line.
std::size_t exoticWidth(const std::string& word, std::size_t length) {
    if (word == "Exacta")
        return length == 18 ? 4 : length == 19 ? 5 : length == 20 ? 6 : length <= 22 ? 7 : 0;
    if (word == "Trifecta") return length <= 24 ? 6 : length == 25 ? 7 : length <= 27 ? 8 : 0;
    return length <= 28 ? 7 : length == 29 ? 8 : 9;
}

TEST(WordLayout, LengthOfAWagersLineTellsItsPayoff) {
    for (const RaceResult& result : results())
        for (const auto& [word, exotics] : {std::pair{std::string{"Exacta"}, result.exactas},
                                            std::pair{std::string{"Trifecta"}, result.trifectas},
                                            std::pair{std::string{"Superfecta"}, result.superfectas}})
            for (const ExoticPayoff& exotic : exotics) {
                const auto lines = wordLines(result.race->number);
                const auto line = std::ranges::find_if(lines, [&, w = word](const std::string& text) {
                    return text.starts_with("$2 " + w + " " + exotic.numbers + " ");
                });
                ASSERT_NE(lines.end(), line) << word;
                EXPECT_EQ(dollars(exotic.payoff), trimmed(lastOf(*line, exoticWidth(word, line->size()))))
                    << *line;
            }
}

TEST(WordLayout, DoubleHasItsWinnersInColumns12And15) {
    const std::string line = wordLines(2).back();
    ASSERT_TRUE(line.starts_with("$2 D/D "));
    EXPECT_EQ(results()[0].placings[0].entry->program, trimmed(line.substr(11, 2)));
    EXPECT_EQ(results()[1].placings[0].entry->program, trimmed(line.substr(14, 2)));
    EXPECT_EQ(dollars(results()[1].pools.at(0).payoff), trimmed(line.substr(16)));
}

TEST(WordLayout, PickHasItsPoolBetweenNameAndCount) {
    for (const int race : {4, 8, 12}) {
        const std::string line = wordLines(race).back();
        const PoolPayoff& pool = results()[static_cast<std::size_t>(race) - 1].pools.back();
        const std::string legs = std::to_string(pool.legs);
        EXPECT_EQ("$2 Pick " + legs, line.substr(0, 9));
        const auto of = line.find("of") + 1; // counted from 1
        EXPECT_EQ(pool.winners, trimmed(line.substr(10, of - 13)));
        EXPECT_EQ(dollars(pool.payoff), lastOf(line, line.size() - of - 4));
    }
}

TEST(WordLayout, RefundIsALineOfItsRace) {
    EXPECT_EQ("Refunds " + results()[5].refunds.at(0), wordLines(6).back());
}

} // namespace
