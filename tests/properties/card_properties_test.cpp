// What holds on every card, tried on thousands of random ones.
#include "random_night.h"

#include "app/start_up.h"
#include "core/formats.h"
#include "core/numbers.h"
#include "day/save.h"
#include "rating/race_ranking.h"
#include "reports/condensed_program.h"
#include "reports/pick_sheet.h"
#include "reports/selection_sheet.h"
#include "results/board.h"
#include "screen/view_columns.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace quillon {
namespace {

using CardProperties = RandomNightTest;

// --- Indices ----------------------------------------------------------------------------------------------

void walkTheCard() {
    for (const char* name : {"EBET", "AutoRecord"}) press(name);
    for (int race = 1; race <= card.raceCount; ++race) {
        press("RaceButton", {{race}, ""});
        for (int entry = 1; entry <= ratedEntries; ++entry) {
            press("EntryButton", {{entry}, ""});
            press("Command3", {{entry}, ""});
        }
        press("Next");
    }
    for (const char* name : {"SelectionResults", "Pick3Results", "MainScreen", "Entries", "Save", "CloseRC"})
        press(name);
}

TEST_F(CardProperties, NoIndexIsOutsideItsBound) {
    const std::uint64_t cards = 300u * static_cast<unsigned>(propertyScale());
    for (std::uint64_t seed = 1; seed <= cards; ++seed) {
        SCOPED_TRACE("card " + std::to_string(seed));
        start(randomCard(seed, seed % 2 == 0), seed);
        walkTheCard();
        for (const Fault& fault : journal.kept())
            ASSERT_EQ(Text::npos, fault.what.find("out of bounds")) << fault.step << ": " << fault.what;
    }
}

// --- Ranks ------------------------------------------------------------------------------------------------

using Ranks = std::array<int, 6>;
using Ratings = std::array<Text, 13>;

Ratings ratingsOf(int race) {
    Ratings ratings;
    for (int entry = 0; entry <= 12; ++entry)
        ratings.at(static_cast<std::size_t>(entry)) = card.entry(race, entry).rating;
    return ratings;
}

/// The best rating so far: the number 99.9, or a rating's text, which may be blanks and no number at all.
struct Best {
    std::optional<double> value = 99.9;

    bool takes(double rating, bool equalsToo) const {
        if (!value) return true;
        return equalsToo ? rating <= *value : rating < *value;
    }
};

/// The passes of a ranking one by one: of those that tie for a place up to the third the last one gets it,
/// for the fourth and fifth the first one, unless it ties with the seed.
Ranks rankedByHand(const Ratings& ratings, Ranks ranks) {
    const auto value = [&](int entry) { return lenientNumber(ratings.at(static_cast<std::size_t>(entry))); };
    Best best; // goes on from place to place
    for (std::size_t place = 1; place <= 5; ++place) {
        const auto take = [&](int entry) {
            const Text& text = ratings.at(static_cast<std::size_t>(entry));
            best.value = trimmed(text).empty() ? std::nullopt : std::optional{lenientNumber(text)};
            ranks.at(place) = entry;
        };
        const auto isAboveAllBefore = [&](int entry) {
            for (std::size_t before = 1; before < place; ++before)
                if (value(entry) <= value(ranks.at(before))) return false;
            return true;
        };
        const auto isPlaced = [&](int entry) {
            for (std::size_t before = 1; before < place; ++before)
                if (ranks.at(before) == entry) return true;
            return false;
        };
        for (int entry = 1; entry <= 12 && place > 1; ++entry)
            if (isAboveAllBefore(entry)) take(entry);
        for (int entry = 1; entry <= 12; ++entry) {
            const bool rated = !ratings.at(static_cast<std::size_t>(entry)).empty();
            if (rated && !isPlaced(entry) && best.takes(value(entry), place <= 3)) take(entry);
        }
    }
    return ranks;
}

/// An entry with a rating, or what the place was before.
void expectRatedOrStale(int race, const Ranks& now, const Ranks& before) {
    for (std::size_t place = 1; place <= 5; ++place) {
        ASSERT_GE(now.at(place), 0);
        ASSERT_LE(now.at(place), 12);
        const bool stale = now.at(place) == before.at(place);
        EXPECT_TRUE(stale || !card.entry(race, now.at(place)).rating.empty())
            << "race " << race << ", place " << place << ": entry " << now.at(place);
    }
}

void expectSelections(int race, const Ranks& ranks) {
    constexpr std::array outcomeCells{0, 1, 2, 3, 4, 9};
    for (std::size_t place = 1; place <= 5; ++place) {
        const RaceEntry& entry = card.entry(race, ranks.at(place));
        const auto k = static_cast<int>(place);
        EXPECT_EQ(trimmed(entry.programNumber), trimmed(card.raceOutcome(race, outcomeCells.at(place))));
        EXPECT_EQ(entry.rating, card.selection(race, k).selectionRating);
        EXPECT_EQ(trimmed(entry.horseName), trimmed(card.selection(race, k).selectionName));
    }
}

Ranks ranksOfCard() {
    Ranks ranks{};
    for (int place = 1; place <= 5; ++place)
        ranks.at(static_cast<std::size_t>(place)) = card.rankEntry(place);
    return ranks;
}

TEST_F(CardProperties, RanksAreRatedEntriesInOrderOrStale) {
    const std::uint64_t cards = 800u * static_cast<unsigned>(propertyScale());
    for (std::uint64_t seed = 1; seed <= cards && !HasFailure(); ++seed) {
        SCOPED_TRACE("card " + std::to_string(seed));
        start(randomCard(seed, seed % 2 == 0), seed);
        Ranks ranks{};
        for (int race = 1; race <= card.raceCount; ++race) {
            const Ranks before = ranks;
            ranks = rankedByHand(ratingsOf(race), before);
            expectRatedOrStale(race, ranks, before);
            expectSelections(race, ranks);
        }
        EXPECT_EQ(ranks, ranksOfCard());
    }
}

TEST_F(CardProperties, RanksAfterAScratchAreRatedEntriesInOrderOrStale) {
    const std::uint64_t cards = 400u * static_cast<unsigned>(propertyScale());
    int scratches = 0;
    for (std::uint64_t seed = 1; seed <= cards && !HasFailure(); ++seed) {
        SCOPED_TRACE("card " + std::to_string(seed));
        start(randomCard(seed, seed % 2 == 0), seed);
        samples::Random random{seed};
        const int race = random.between(1, card.raceCount);
        press("RaceButton", {{race}, ""});
        const Ranks before = ranksOfCard();
        answers = {"Yes"};
        if (!press("Command4", {{random.between(1, 7)}, ""})) continue;
        ++scratches;
        EXPECT_EQ(rankedByHand(ratingsOf(race), before), ranksOfCard());
        expectRatedOrStale(race, ranksOfCard(), before);
    }
    EXPECT_GT(scratches, static_cast<int>(cards) / 3);
}

// --- Sums -------------------------------------------------------------------------------------------------

/// Of a payoff's text, as far as it is a number.
std::int64_t centsIn(TextView text) {
    std::int64_t cents = 0;
    int decimals = -1;
    for (const char c : trimmed(text)) {
        if (c == '.' && decimals < 0) {
            decimals = 0;
            continue;
        }
        if (c < '0' || c > '9' || decimals == 2) break;
        cents = cents * 10 + (c - '0');
        if (decimals >= 0) ++decimals;
    }
    for (int missing = std::max(decimals, 0); missing < 2; ++missing) cents *= 10;
    return cents;
}

/// True where a finisher is shown twice, or a horse is S1 and S2: such a race is paid twice into a cell.
bool paysTwice(int race) {
    const auto number = [&](int column) { return lenientNumber(screen.summary.read(race, column).text); };
    const bool sameFinisher = number(6) == number(7) || number(7) == number(8) || number(6) == number(8);
    return number(6) > 0 && (sameFinisher || number(1) == number(2));
}

void expectSumsOfCells() {
    for (const int column : {11, 12, 13, 15, 16, 17, 18, 19, 22, 23, 24, 26, 27, 28}) {
        std::int64_t cents = 0;
        for (int race = 1; race <= 20; ++race) cents += centsIn(screen.summary.read(race, column).text);
        EXPECT_EQ(cents, centsIn(screen.summary.read(SummaryRow::totals, column).text))
            << "column " << column;
    }
}

void expectCountsOfMarks() {
    for (int column = 1; column <= 4; ++column) {
        int wins = 0;
        for (int race = 1; race <= 20; ++race)
            wins += screen.summary.read(race, column).background == recentYellow;
        EXPECT_EQ(std::to_string(wins), screen.summary.read(SummaryRow::totals, column).text)
            << "column " << column;
        const int hundredths = 100 * wins / card.raceCount;
        const int rounded = hundredths + (2 * (100 * wins % card.raceCount) >= card.raceCount ? 1 : 0);
        const Text shownShare = screen.summary.read(SummaryRow::percentages, column).text;
        EXPECT_EQ(rounded, static_cast<int>(lenientNumber(shownShare))) << "column " << column;
    }
}

TEST_F(CardProperties, TheTotalsOfTheSummaryAreTheSumsOfItsCells) {
    const std::uint64_t cards = 800u * static_cast<unsigned>(propertyScale());
    std::uint64_t checked = 0, paid = 0;
    for (std::uint64_t seed = 1; seed <= cards && !HasFailure(); ++seed) {
        SCOPED_TRACE("card " + std::to_string(seed));
        start(randomCard(seed, seed % 4 == 0), seed);
        press("EBET");
        for (int race = 1; race < card.raceCount; ++race) press("Next");
        press("SelectionResults");
        bool twice = false;
        for (int race = 1; race <= 20; ++race) twice |= paysTwice(race);
        if (twice) continue;
        ++checked;
        paid += centsIn(screen.summary.read(SummaryRow::totals, 11).text) > 0;
        expectSumsOfCells();
        expectCountsOfMarks();
    }
    EXPECT_GT(checked, cards / 2);
    EXPECT_GT(paid, cards / 8);
}

// --- Reports ----------------------------------------------------------------------------------------------

void writeReports() {
    SelectionSheet();
    KeyHorses();
    Condensed_PPP();
    for (const char* name : {"Entries", "SelectionResults", "PrintSummary", "MainScreen", "Save", "ALL",
                             "Print2", "Select", "Track_Profile", "MainScreen"})
        EXPECT_TRUE(press(name)) << name;
}

TEST_F(CardProperties, AReportThatIsWrittenAgainIsTheSame) {
    const std::uint64_t cards = 300u * static_cast<unsigned>(propertyScale());
    for (std::uint64_t seed = 1; seed <= cards && !HasFailure(); ++seed) {
        SCOPED_TRACE("card " + std::to_string(seed));
        const samples::Card drawn = randomCard(seed, seed % 2 == 0);
        start(drawn, seed);
        const auto loaded = writtenFiles();
        StartUp();
        press("Start");
        for (const auto& [path, content] : writtenFiles()) EXPECT_EQ(loaded.at(path), content) << path;

        press("EBET");
        for (int race = 1; race < card.raceCount; ++race) press("Next");
        press("SelectionResults");
        press("Record");
        press("MainScreen");
        writeReports();
        const auto once = writtenFiles();
        writeReports();
        for (const auto& [path, content] : writtenFiles()) EXPECT_EQ(once.at(path), content) << path;
    }
}

} // namespace
} // namespace quillon
