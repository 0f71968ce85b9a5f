// A card that was saved, recalled and saved again is the same card.
#include "day/recall.h"
#include "day/save.h"

#include "card/fields.h"
#include "cardfiles/card_lines.h"
#include "support/card_test.h"

#include <random>
#include <type_traits>

namespace quillon {
namespace {

// Cards of random texts. The generator's numbers are the same everywhere, as those of a distribution are not.
class RandomCard {
public:
    explicit RandomCard(unsigned seed) : random_(seed) {}

    void fill() {
        const int races = 1 + below(23);
        for (int race = 1; race <= races; ++race) fillRace(race);
        for (int row = 1; row <= 300; ++row)
            for (int column = 1; column <= 39; ++column) writeLineCell(row, column, text());
        named(races, 1 + below(12));
    }

private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    // Inner blanks, quotes, commas and bytes of the code page; no blanks at the ends, no Q at the front.
    Text text() {
        static constexpr std::string_view characters = "AB 1.,\"/-*\xB0\xBA\xE9";
        Text made;
        for (int length = below(6); length > 0; --length)
            made += characters[static_cast<std::size_t>(below(static_cast<int>(characters.size())))];
        return Text{trimmed(made)};
    }

    TextCell cell() { return below(3) == 0 ? TextCell{} : TextCell{text()}; }

    void named(int race, int entry) { card.entry(race, entry).horseName = "Horse"; }

    void fillRace(int race) {
        const auto fill = [this](TextView, auto& value) {
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, Integer>)
                value = static_cast<Integer>(below(60) - 5);
            else if constexpr (std::is_same_v<Value, TextCell>)
                value = cell();
            else
                value = text();
        };
        RaceInfo& info = card.raceInfo(race);
        forEachField(raceInfoFields, info, fill);
        static constexpr const char* distances[] = {"1", "1 1/16", "1 1/8", "5/8", "7/8", ""};
        info.label = std::to_string(race) + (below(4) == 0 ? "A" : "");
        info.distance = distances[below(6)];
        info.trackCode = "M1";
        for (int entry = 1; entry <= 12; ++entry) {
            forEachField(raceEntryFields, card.entry(race, entry), fill);
            forEachField(pastLineFields, card.entry(race, entry).chosen, fill);
        }
        for (int cell = 1; cell <= 9; ++cell) card.raceOutcome(race, cell) = text();
        for (int cell = 1; cell <= 21; ++cell) card.payoffRecord(race, cell) = payoff();
        for (const int cell : {12, 20}) card.payoffRecord(race, cell) = ""; // box 10 moves 20 into 12
        for (int place = 1; place <= 5; ++place)
            forEachField(selectionFields, card.selection(race, place), fill);
    }

    // Begins with no 0, which storing the board would take away.
    Text payoff() { return "x" + text(); }

    std::mt19937 random_;
};

class RoundTrip : public CardTest, public testing::WithParamInterface<unsigned> {};

TEST_P(RoundTrip, SavingARecalledCardGivesTheSameFiles) {
    RandomCard{GetParam()}.fill();
    card.cardFileName = "M1_20260314.pmd";
    screen.header.track.caption = "M1";
    screen.header.date.caption = "20260314";
    Save();
    const std::string savedCard = contentOf(cardPath);
    const std::string savedArchive = contentOf(archivePath);
    ASSERT_EQ(13'179U, linesOf(savedCard).size() - 1);

    for (const char* time : {"first", "second"}) {
        card.clear();
        cursor = {};
        screen.clear();
        RecallRaceCard();
        ChooseFile("M1_20260314.pmd");
        Save();
        EXPECT_TRUE(savedCard == contentOf(cardPath)) << time;
        EXPECT_TRUE(savedArchive == contentOf(archivePath)) << time;
        const auto before = linesOf(savedCard);
        const auto after = linesOf(contentOf(cardPath));
        for (std::size_t at = 0; at < std::min(before.size(), after.size()); ++at)
            ASSERT_EQ(before[at], after[at]) << "line " << at;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RoundTrip, testing::Range(1U, 9U));

class NamedTrims : public CardTest {};

TEST_F(NamedTrims, OnlyOddsTrackAndClassRatingChange) {
    card.cardFileName = "M1_20260314.pmd";
    screen.header.track.caption = "M1";
    screen.header.date.caption = "20260314";
    RaceEntry& entry = card.entry(1, 1);
    entry.horseName = "Some Horse          ";
    entry.morningOdds = " 5/2";
    entry.programNumber = "  1";
    entry.chosen = {.TRACK = "   M1", .CLASS = " CLM ", .CR = " 78", .POST = " 4", .HRSE_TM_4Q = "    "};
    entry.rating = " 61.3";
    card.raceInfo(1).trackCode = "M1";
    Save();
    auto lines = linesOf(contentOf(cardPath));
    EXPECT_EQ("\"78\"", lines[7]); // trimmed by the save itself

    card.clear();
    screen.clear();
    RecallRaceCard();
    ChooseFile("M1_20260314.pmd");
    Save();
    lines[2] = "\"5/2\"";
    lines[4] = "\"M1\"";
    EXPECT_EQ(lines, linesOf(contentOf(cardPath)));
}

} // namespace
} // namespace quillon
