#include "analysis/saved_races.h"

#include "analysis/race_worth.h"
#include "card/columns.h"
#include "cardfiles/card_lines.h"
#include "core/files.h"
#include "support/card_test.h"
#include "support/season.h"

#include <chrono>
#include <cmath>
#include <iostream>

namespace quillon {
namespace {

struct SavedEntry {
    int entry;
    const char* number;
    const char* odds;
    const char* rating;
};

// The lines of a card file with a race in it.
class SavedCardLines {
public:
    SavedCardLines& race(int number, const std::vector<SavedEntry>& entries, const char* winner) {
        for (const SavedEntry& row : entries) {
            set(entryLine(number, row.entry, 1), "Plain Biscuit");
            set(entryLine(number, row.entry, 2), row.odds);
            set(entryLine(number, row.entry, 3), row.number);
            set(entryLine(number, row.entry, 32), row.rating);
        }
        set(outcomeLine(number, 5), winner);
        return *this;
    }
    SavedCardLines& set(int line, const char* text) {
        lines_[static_cast<std::size_t>(line)] = '"' + std::string{text} + '"';
        return *this;
    }
    std::string file() const { return fileOf(lines_); }

    std::optional<JudgedRace> judged(int race) const {
        const std::string content = file();
        return judgedRace(SavedCard{content}, race);
    }

private:
    std::vector<std::string> lines_ = emptyCardLines();
};

const std::vector<SavedEntry> three{
    {1, "  1", " 2/1", "58.0"}, {2, "  2", " 1/1", "57.3"}, {5, "  5", " 5/1", "60.1"}};

// --- A race ---------------------------------------------------------------------------------------------------

// 2/1, 1/1 and 5/1 say 1/3, 1/2 and 1/6, which are one already.
TEST(JudgedRaceOf, ASavedCardHasItsStartersAndItsWinner) {
    const auto race = SavedCardLines{}.race(23, three, "5 ").judged(23);
    ASSERT_TRUE(race);
    EXPECT_EQ((std::vector{58.0, 57.3, 60.1}), race->ratings);
    EXPECT_EQ(2U, race->winner);
    ASSERT_EQ(3U, race->lineChances.size());
    EXPECT_NEAR(1.0 / 3, race->lineChances[0], 1e-12);
    EXPECT_NEAR(1.0 / 2, race->lineChances[1], 1e-12);
    EXPECT_NEAR(1.0 / 6, race->lineChances[2], 1e-12);
}

// On a half-mile track a scratch at post 10 gains 0.5 there, then 3, 1, 2.5, 0.7 and 0.8 as it moves in: 8.5 of 99.9.
TEST(UsableRating, ASlowHorseHasOneAndAScratchHasNone) {
    EXPECT_EQ(90.0, usableRating(" 90.0"));
    EXPECT_EQ(std::nullopt, usableRating("91.4"));
    EXPECT_EQ(std::nullopt, usableRating("99.9"));
    EXPECT_EQ(std::nullopt, usableRating("0"));
    EXPECT_EQ(std::nullopt, usableRating(""));
}

TEST(JudgedRaceOf, ScratchedAndUnratedAreLeftOut) {
    auto entries = three;
    entries.push_back({6, "  6", " 3/1", "99.9"}); // scratched, or without a usable line
    entries.push_back({7, "  7", " 3/1", "     "});
    entries.push_back({8, "  8", " 3/1", ""});
    entries.push_back({9, "  9", " 3/1", "98.2"}); // scratched, then moved in by a scratch inside it
    entries.push_back({10, " 10", " 3/1", "58.8"});
    SavedCardLines lines;
    lines.race(1, entries, "1").set(payoffLine(1, 10), " 6 10");
    const auto race = lines.judged(1);
    ASSERT_TRUE(race);
    EXPECT_EQ((std::vector{58.0, 57.3, 60.1}), race->ratings); // 10 has a refund; so has no 1
    EXPECT_EQ(3U, race->lineChances.size());
}

TEST(JudgedRaceOf, AWinnerThatIsNoneOfThemTellsNothing) {
    EXPECT_FALSE(SavedCardLines{}.race(1, three, "").judged(1)) << "not run, or not typed in";
    EXPECT_FALSE(SavedCardLines{}.race(1, three, "9").judged(1));
    EXPECT_FALSE(SavedCardLines{}.race(1, three, "1/2").judged(1));
    EXPECT_FALSE(SavedCardLines{}.race(1, {three[0]}, "1").judged(1)) << "a race of one";
    EXPECT_FALSE(SavedCardLines{}.race(1, three, "1").judged(2));
}

TEST(JudgedRaceOf, AMissingLineTakesTheMorningLineAway) {
    auto entries = three;
    entries[1].odds = "";
    const auto race = SavedCardLines{}.race(1, entries, "1").judged(1);
    ASSERT_TRUE(race);
    EXPECT_TRUE(race->lineChances.empty());
}

// 1 and 1A are bet on together at 1/1, and 2 at 1/1: the couple has a half, a quarter each.
TEST(JudgedRaceOf, CoupledEntriesShareTheirLine) {
    const std::vector<SavedEntry> coupled{
        {1, "1", "1/1", "58.0"}, {2, "1A", "1/1", "59.0"}, {3, "2", "1/1", "60.0"}};
    const auto race = SavedCardLines{}.race(1, coupled, "1a").judged(1);
    ASSERT_TRUE(race);
    EXPECT_EQ(1U, race->winner);
    EXPECT_EQ((std::vector{0.25, 0.25, 0.5}), race->lineChances);
}

// --- Files ----------------------------------------------------------------------------------------------------

class SavedRacesTest : public CardTest {
protected:
    static void putCard(const std::string& name, const std::string& content) {
        put("A Quillon PRO/Race Cards/" + name, content);
    }
    static std::vector<JudgedRace> read() { return savedRaces(fileStatesIn(Folder::raceCards, ".pmd")); }
};

TEST_F(SavedRacesTest, AMissingFolderHasNone) {
    EXPECT_TRUE(read().empty());
    SavedFit saved;
    EXPECT_EQ(0U, saved.fit().races);
    EXPECT_EQ(0U, journal.count());
}

TEST_F(SavedRacesTest, CardsAreNumberedByName) {
    putCard("B_20260102.PMD", SavedCardLines{}.race(1, three, "1").race(2, three, "2").file());
    putCard("A_20260102.pmd", SavedCardLines{}.race(7, three, "5").file());
    putCard("A_20260102.pmd2", SavedCardLines{}.race(7, three, "5").file()); // no card file
    const auto races = read();
    ASSERT_EQ(3U, races.size());
    EXPECT_EQ((std::vector<std::size_t>{0, 1, 1}),
              (std::vector{races[0].card, races[1].card, races[2].card}));
    EXPECT_EQ(2U, races[0].winner);
}

TEST_F(SavedRacesTest, TornAndOddFilesGiveWhatTheyHold) {
    const std::string whole = SavedCardLines{}.race(1, three, "1").race(23, three, "2").file();
    const auto outcomeOf23 = whole.size() / 13'179; // anything that is far too short
    putCard("cut.pmd", whole.substr(0, outcomeOf23));
    putCard("empty.pmd", "");
    putCard("noise.pmd", std::string(100'000, '\0') + "\"\n\"\n");
    putCard("one-line.pmd", std::string(300'000, 'x'));
    putCard("lf.pmd", [&] {
        std::string text = whole;
        std::erase(text, '\r');
        return text;
    }());
    // Without the results of race 23: its finish stands on lines 12,144 + 22 x 8 + 5 and on.
    std::string torn;
    for (int line = 1, at = 0; line <= outcomeLine(23, 5) - 1; ++line) {
        const auto end = whole.find('\n', static_cast<std::size_t>(at)) + 1;
        torn += whole.substr(static_cast<std::size_t>(at), end - static_cast<std::size_t>(at));
        at = static_cast<int>(end);
    }
    putCard("torn.pmd", torn);
    std::filesystem::create_directories("A Quillon PRO/Race Cards/folder.pmd");
    const auto races = read();
    EXPECT_EQ(3U, races.size()); // lf: 1 and 23, torn: 1
    EXPECT_EQ(0U, journal.count());
}

TEST_F(SavedRacesTest, TheOpenCardStaysAsItIs) {
    card.entry[{1, 1}].rating = "61.0";
    putCard("A_20260102.pmd", SavedCardLines{}.race(1, three, "1").file());
    EXPECT_EQ(1U, read().size());
    EXPECT_EQ("61.0", card.entry(1, 1).rating);
    EXPECT_EQ("", card.entry(1, 2).rating);
    EXPECT_EQ("", card.raceOutcome(1, OutcomeCell::r1));
}

TEST_F(SavedRacesTest, TheFitIsKeptUntilAFileChanges) {
    putCard("A_20260102.pmd", SavedCardLines{}.race(1, three, "1").file());
    SavedFit saved;
    EXPECT_EQ(1U, saved.fit().races);
    putCard("B_20260102.pmd", SavedCardLines{}.race(1, three, "1").race(2, three, "1").file());
    EXPECT_EQ(3U, saved.fit().races);
    // Another content of the same size, but of a later time.
    const auto path = std::filesystem::path{"A Quillon PRO/Race Cards/A_20260102.pmd"};
    putCard("A_20260102.pmd", SavedCardLines{}.race(1, three, "9").file());
    std::filesystem::last_write_time(path,
                                     std::filesystem::file_time_type::clock::now() + std::chrono::hours{1});
    EXPECT_EQ(2U, saved.fit().races);
    std::filesystem::remove("A Quillon PRO/Race Cards/B_20260102.pmd");
    EXPECT_EQ(0U, saved.fit().races);
}

// --- A season -------------------------------------------------------------------------------------------------

// 5,000 races drawn with a scale of 0.4: read back, they say so, within four errors.
TEST_F(SavedRacesTest, FiveHundredCards) {
    constexpr double truth = 0.4;
    putSeason(20260314, truth, 500, 10);
    SavedFit saved;
    const auto begin = std::chrono::steady_clock::now();
    const Fit fit = saved.fit();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(5000U, fit.races);
    EXPECT_EQ(500U, fit.cards);
    ASSERT_TRUE(fit.scale);
    EXPECT_NEAR(truth, fit.scale->perPoint, 4 * fit.scale->error);
    EXPECT_EQ(5000U, fit.loss.lineRaces);
    EXPECT_LT(fit.loss.fitted, fit.loss.line);
    EXPECT_LT(fit.loss.line, fit.loss.allEqual);
    EXPECT_LT(taken.count(), 20) << "a second is meant, without checks and with a disk of its own";
    std::cout << "read and fitted in " << taken.count() << " s: scale " << fit.scale->perPoint << " +- "
              << fit.scale->error << ", log loss " << fit.loss.fitted << ", all equal " << fit.loss.allEqual
              << ", morning line " << fit.loss.line << '\n';
}

// --- The open card ----------------------------------------------------------------------------------------------

class WorthOf : public CardTest {
protected:
    static void enter(int at, const char* number, const char* rating) {
        RaceEntry& entry = card.entry[{1, at}];
        entry.horseName = "Horse " + std::to_string(at) + "     ";
        entry.programNumber = number;
        entry.morningOdds = " 5/2";
        entry.rating = rating;
        screen.raceView[1](at, RaceColumn::horseName).text = entry.horseName;
    }
};

// At s = ln 2: 58 and 59 have 2/3 and 1/3 between them.
TEST_F(WorthOf, AnEntryWithoutARatingHasNoChance) {
    screen.mode = CardMode::loaded;
    enter(1, "  1", "58.0");
    enter(2, "  2", "");
    enter(4, "  4", "59.0");
    enter(5, "  5", "99.9");
    const auto rows = worthOf(1, std::log(2.0));
    ASSERT_EQ(4U, rows.size());
    EXPECT_EQ("1", rows[0].programNumber);
    EXPECT_EQ("Horse 1", rows[0].horse);
    EXPECT_EQ("5/2", rows[0].morningLine);
    EXPECT_NEAR(2.0 / 3, rows[0].chance.value_or(0), 1e-12);
    EXPECT_FALSE(rows[1].chance);
    EXPECT_EQ(4, rows[2].entry);
    EXPECT_NEAR(1.0 / 3, rows[2].chance.value_or(0), 1e-12);
    EXPECT_FALSE(rows[3].chance);
}

TEST_F(WorthOf, AScratchTakesTheEntryOut) {
    screen.mode = CardMode::loaded;
    enter(1, "  1", "58.0");
    enter(2, "  2", "57.0");
    enter(3, "  3", "59.0");
    screen.lineTaken[{1, 2}] = takenOut;
    const auto rows = worthOf(1, std::log(2.0));
    ASSERT_EQ(2U, rows.size());
    EXPECT_EQ("3", rows[1].programNumber);
    EXPECT_NEAR(2.0 / 3, rows[0].chance.value_or(0), 1e-12);
}

TEST_F(WorthOf, ARaceThatThereIsNotHasNone) {
    for (const int race : {-1, 0, 1, 23, 24, 1000}) EXPECT_TRUE(worthOf(race, 0.3).empty()) << race;
}

} // namespace
} // namespace quillon
