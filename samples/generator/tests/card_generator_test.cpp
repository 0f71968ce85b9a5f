#include "card_generator.h"
#include "card_tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace {

using namespace samples;

std::string bytesOf(const Card& card) {
    std::string bytes;
    for (const NamedTable& named : cardTables(card)) bytes += tableBytes(named.table);
    return bytes;
}

std::size_t lineCount(const Card& card) {
    std::size_t count = 0;
    for (const Race& race : card.races)
        for (const Entry& entry : race.entries) count += entry.lines.size();
    return count;
}

const Table& tableNamed(const std::vector<NamedTable>& tables, std::string_view name) {
    return std::ranges::find(tables, name, &NamedTable::name)->table;
}

TEST(Random, StreamIsTheSameEverywhere) {
    // The first numbers of SplitMix64 for seed 1234567, as published with the algorithm.
    Random random(1234567);
    EXPECT_EQ(6457827717110365317U, random.next());
    EXPECT_EQ(3203168211198807973U, random.next());
    EXPECT_EQ(9817491932198370423U, random.next());
}

TEST(Random, BetweenHoldsBothEnds) {
    Random random(1);
    std::set<int> seen;
    for (int i = 0; i < 200; ++i) seen.insert(random.between(-1, 2));
    EXPECT_EQ((std::set<int>{-1, 0, 1, 2}), seen);
}

TEST(CardGenerator, SameSeedGivesTheSameBytes) {
    const CardOptions options{.seed = 7, .races = 4, .odd = allOddities()};
    EXPECT_EQ(bytesOf(generateCard(options)), bytesOf(generateCard(options)));
}

TEST(CardGenerator, OtherSeedGivesOtherBytes) {
    EXPECT_NE(bytesOf(generateCard({.seed = 7, .races = 4})), bytesOf(generateCard({.seed = 8, .races = 4})));
}

TEST(CardGenerator, LargestCardFillsTheLimits) {
    const Card card = generateCard(largestCard());
    EXPECT_EQ(25U, card.races.size());
    for (const Race& race : card.races) EXPECT_EQ(20U, race.entries.size());
    EXPECT_EQ(3000U, lineCount(card)); // 25 x 20 x 6
    EXPECT_EQ(300U, card.drivers.size());
    EXPECT_EQ(200U, card.trainers.size());
}

TEST(CardGenerator, OversizedCardIsBeyondEveryLimit) {
    const Card card = generateCard(oversizedCard());
    EXPECT_GT(card.races.size(), 30U);
    EXPECT_GT(card.races.front().entries.size(), 20U);
    EXPECT_GT(lineCount(card), 3000U);
    EXPECT_GT(card.drivers.size(), 300U);
    EXPECT_GT(card.trainers.size(), 200U);
    const auto& entries = card.races.front().entries;
    EXPECT_TRUE(std::ranges::any_of(entries, [](const Entry& entry) { return entry.lines.size() > 30; }));
}

// True when the test holds for an entry or line of one of some random cards with every oddity.
template <class Test>
bool someEntry(Test test) {
    for (std::uint64_t seed = 1; seed <= 8; ++seed)
        for (const Race& race : generateCard({.seed = seed, .odd = allOddities()}).races)
            if (std::ranges::any_of(race.entries, test)) return true;
    return false;
}
template <class Test>
bool someLine(Test test) {
    return someEntry([&](const Entry& entry) { return std::ranges::any_of(entry.lines, test); });
}

TEST(CardGenerator, OdditiesOccur) {
    EXPECT_TRUE(someEntry([](const Entry& entry) { return entry.post == alsoEligible; }));
    EXPECT_TRUE(someEntry([](const Entry& entry) { return entry.lines.empty(); }));
    EXPECT_TRUE(someEntry([](const Entry& entry) { return entry.program == "1A"; }));
    EXPECT_TRUE(someLine([](const PastLine& line) { return line.className == "QUA"; }));
    EXPECT_TRUE(someLine([](const PastLine& line) { return line.distance > mile; }));
    EXPECT_TRUE(someLine([](const PastLine& line) { return line.distance < mile; }));
    EXPECT_TRUE(someLine([](const PastLine& line) { return line.post == 0; }));
    EXPECT_TRUE(someLine([](const PastLine& line) { return line.leader[2] == noTime; }));
    EXPECT_TRUE(someLine([](const PastLine& line) { return line.finalTime == blankTime; }));
    EXPECT_TRUE(someLine([](const PastLine& line) { return line.condition.empty(); }));
}

TEST(CardGenerator, PartialAndLetteredCards) {
    const Card card = generateCard({.seed = 5, .odd = {.letteredRaces = true, .partialCard = true}});
    EXPECT_GT(card.races.front().number, 1);
    EXPECT_EQ(card.races.front().number + 11, card.races.back().number); // twelve races, numbered through
    EXPECT_EQ("A", card.races.front().cardLetter);
    EXPECT_EQ("", card.races.back().cardLetter);
}

TEST(CardGenerator, PlainCardHasNoOddities) {
    for (const Race& race : generateCard({.seed = 3}).races) {
        EXPECT_EQ("", race.cardLetter);
        for (const Entry& entry : race.entries) {
            EXPECT_NE(alsoEligible, entry.post);
            EXPECT_FALSE(entry.lines.empty());
            for (const PastLine& line : entry.lines) {
                EXPECT_EQ(mile, line.distance);
                EXPECT_NE("QUA", line.className);
                EXPECT_GT(line.finalTime, noTime);
            }
        }
    }
}

TEST(CardTables, EightTablesInTheVendorsNames) {
    std::set<std::string_view> names;
    for (const NamedTable& named : cardTables(generateCard({.races = 1}))) names.insert(named.name);
    EXPECT_EQ((std::set<std::string_view>{"DAMHR", "DRIVERHR", "HORSEHR", "PTTRHR", "RACESHR", "RUNLINHR",
                                          "SIREHR", "TRAINRHR"}),
              names);
}

TEST(CardTables, RunningLineFieldsStandAtTheirPlaces) {
    const struct {
        std::size_t position;
        const char* name;
    } expected[] = {
        {6, "TRACK"},       {11, "PURSE"},      {13, "CLASS"},      {14, "CR"},         {18, "LEAD_TM_1Q"},
        {19, "LEAD_TM_2Q"}, {20, "LEAD_TM_3Q"}, {21, "LEAD_TM_FN"}, {23, "POST"},       {25, "CALL_1Q_BF"},
        {26, "CALL_1Q_PO"}, {27, "CALL_1Q_PK"}, {28, "CALL_1Q_AF"}, {30, "CALL_2Q_BF"}, {31, "CALL_2Q_PO"},
        {32, "CALL_2Q_PK"}, {33, "CALL_2Q_AF"}, {35, "CALL_3Q_BF"}, {36, "CALL_3Q_PO"}, {37, "CALL_3Q_PK"},
        {38, "CALL_3Q_AF"}, {41, "CALL_ST_PO"}, {47, "CALL_FN_PO"}, {49, "FAV"},        {52, "HRSE_TM_4Q"},
        {53, "HRSE_TM_FN"},
    };
    const auto tables = cardTables(generateCard({.races = 1}));
    const auto& fields = tableNamed(tables, "RUNLINHR").fields;
    for (const auto& [position, name] : expected) EXPECT_EQ(name, fields.at(position - 1).name) << position;
}

// One race with one entry that has the line.
Card cardWith(const PastLine& line) {
    Card card;
    card.races.push_back({.number = 3});
    card.races[0].entries.push_back({.horse = 9, .lines = {line}});
    return card;
}

std::string cellOf(const PastLine& line, std::string_view field) {
    const auto tables = cardTables(cardWith(line));
    const Table& table = tableNamed(tables, "RUNLINHR");
    const auto found = std::ranges::find(table.fields, field, &Field::name);
    return table.rows.at(0).cells.at(static_cast<std::size_t>(found - table.fields.begin()));
}

TEST(CardTables, CellsOfALine) {
    PastLine line{.date = std::chrono::year{2026} / 2 / 7, .purse = 7500, .classRating = 71, .distance = 17};
    line.leader = {141, 286, 427, 571}; // fifths: 28.2, 57.2, 1:25.4 and 1:54.2
    line.calls[atHalf] = {.position = 3, .behind = 9, .before = "x", .park = "\xBA\xBA", .after = ""};
    line.lastQuarter = 145; // 29.0
    line.finalTime = 600;   // 2:00.0
    line.odds = 1235;
    EXPECT_EQ("3", cellOf(line, "TODAYSRACE"));
    EXPECT_EQ("9", cellOf(line, "HN"));
    EXPECT_EQ("20260207", cellOf(line, "DATE"));
    EXPECT_EQ("7.500", cellOf(line, "PURSE"));
    EXPECT_EQ("71", cellOf(line, "CR"));
    EXPECT_EQ("1.0625", cellOf(line, "DIST_MILES")); // 17/16
    EXPECT_EQ("28.2", cellOf(line, "LEAD_TM_1Q"));
    EXPECT_EQ("57.2", cellOf(line, "LEAD_TM_2Q"));
    EXPECT_EQ("1:25.4", cellOf(line, "LEAD_TM_3Q"));
    EXPECT_EQ("1:54.2", cellOf(line, "LEAD_TM_FN"));
    EXPECT_EQ("x", cellOf(line, "CALL_2Q_BF"));
    EXPECT_EQ("3", cellOf(line, "CALL_2Q_PO"));
    EXPECT_EQ("\xBA\xBA", cellOf(line, "CALL_2Q_PK"));
    EXPECT_EQ("2 1/4", cellOf(line, "CALL_2Q_BL")); // 9 quarters
    EXPECT_EQ("", cellOf(line, "CALL_3Q_PO"));
    EXPECT_EQ("29.0", cellOf(line, "HRSE_TM_4Q"));
    EXPECT_EQ("2:00.0", cellOf(line, "HRSE_TM_FN"));
    EXPECT_EQ("12.35", cellOf(line, "ODDS"));
}

TEST(CardTables, CellsThatAreNotAvailable) {
    const PastLine line{.finalTime = blankTime};
    EXPECT_EQ("-97", cellOf(line, "HRSE_TM_4Q"));
    EXPECT_EQ("", cellOf(line, "HRSE_TM_FN"));
    EXPECT_EQ("-99", cellOf(line, "CR"));
    EXPECT_EQ("-99", cellOf(line, "ODDS"));
    EXPECT_EQ("", cellOf(line, "DN"));
}

} // namespace
