#include "sample_card.h"

#include "card_tables.h"
#include "file_bytes.h"
#include "tracks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;
using namespace samples;

const Card& card() {
    static const Card sample = sampleCard();
    return sample;
}

std::vector<const Entry*> allEntries() {
    std::vector<const Entry*> entries;
    for (const Race& race : card().races)
        for (const Entry& entry : race.entries) entries.push_back(&entry);
    return entries;
}

std::vector<const PastLine*> allLines() {
    std::vector<const PastLine*> lines;
    for (const Entry* entry : allEntries())
        for (const PastLine& line : entry->lines) lines.push_back(&line);
    return lines;
}

template <class Test>
std::ptrdiff_t countEntries(Test test) {
    return std::ranges::count_if(allEntries(), [&](const Entry* entry) { return test(*entry); });
}
template <class Test>
std::ptrdiff_t countLines(Test test) {
    return std::ranges::count_if(allLines(), [&](const PastLine* line) { return test(*line); });
}

TEST(SampleCard, IsTwelveRacesOfSevenToTen) {
    EXPECT_EQ("MVR", card().track);
    EXPECT_EQ("20260314", dateText(card().date));
    ASSERT_EQ(12U, card().races.size());
    for (int number = 1; const Race& race : card().races) {
        EXPECT_EQ(number++, race.number);
        EXPECT_EQ("", race.cardLetter);
        EXPECT_GE(race.entries.size(), 7U);
        EXPECT_LE(race.entries.size(), 10U);
    }
}

TEST(SampleCard, PostsRunFromOneInEachRace) {
    for (const Race& race : card().races) {
        int post = 0;
        for (const Entry& entry : race.entries)
            if (entry.post != alsoEligible) {
                EXPECT_EQ(++post, entry.post) << race.number;
            }
    }
}

TEST(SampleCard, HorsesAreNumberedThroughTheCardAndNamedOnce) {
    std::set<std::string> names;
    for (int number = 1; const Entry* entry : allEntries()) {
        EXPECT_EQ(number++, entry->horse);
        EXPECT_LE(entry->name.size(), 25U) << entry->name;
        EXPECT_TRUE(names.insert(entry->name).second) << entry->name;
    }
}

TEST(SampleCard, NobodyDrivesTwiceInARace) {
    for (const Race& race : card().races) {
        std::set<int> drivers;
        for (const Entry& entry : race.entries) {
            EXPECT_TRUE(drivers.insert(entry.driver).second) << race.number;
            EXPECT_GE(entry.driver, 1);
            EXPECT_LE(static_cast<std::size_t>(entry.driver), card().drivers.size());
            EXPECT_LE(static_cast<std::size_t>(entry.trainer), card().trainers.size());
        }
    }
}

TEST(SampleCard, HasOneOfEachSpecialEntry) {
    EXPECT_EQ(1, countEntries([](const Entry& entry) { return entry.post == alsoEligible; }));
    EXPECT_EQ(1, countEntries([](const Entry& entry) { return entry.program.ends_with("AE"); }));
    EXPECT_EQ(1, countEntries([](const Entry& entry) { return entry.program == "1A"; }));
    EXPECT_EQ(1, countEntries([](const Entry& entry) { return entry.lines.empty(); }));
}

TEST(SampleCard, EntriesHaveFiveToEightLinesMostRecentFirst) {
    for (const Entry* entry : allEntries()) {
        if (entry->lines.empty()) continue; // the first-time starter
        EXPECT_GE(entry->lines.size(), 5U);
        EXPECT_LE(entry->lines.size(), 8U);
        Day next = card().date;
        for (const PastLine& line : entry->lines) {
            EXPECT_LT(line.date, next);
            next = line.date;
        }
    }
}

TEST(SampleCard, LinesLieInsideAndOutsideTheWindows) {
    const auto aged = [](int low, int high) {
        return countLines([&](const PastLine& line) {
            const auto days = (card().date - line.date).count();
            return days >= low && days <= high;
        });
    };
    EXPECT_GT(aged(1, 33), 100);
    EXPECT_GT(aged(34, 50), 50);
    EXPECT_GT(aged(51, 1000), 50);
}

TEST(SampleCard, TimesAndLengthsAgree) {
    for (const PastLine* line : allLines()) {
        const bool distanced = line->calls[atFinish].after == "dis";
        if (line->distance != mile || distanced) continue;
        // A length is a fifth of a second, so quarters of a length rounded to lengths are fifths.
        const auto fifths = [](const Call& call) { return (call.behind + 2) / 4; };
        EXPECT_EQ(line->leader[3] + fifths(line->calls[atFinish]), line->finalTime);
        EXPECT_EQ(line->finalTime - line->leader[2] - fifths(line->calls[atThreeQuarters]),
                  line->lastQuarter);
        EXPECT_GT(line->lastQuarter, 5 * 26);
        EXPECT_LT(line->lastQuarter, 5 * 38); // a break in the stretch
        EXPECT_GT(line->finalTime, 5 * 108);  // 1:48
        EXPECT_LT(line->leader[3], 5 * 125);  // 2:05
    }
}

TEST(SampleCard, CallsStayInTheField) {
    for (const PastLine* line : allLines()) {
        EXPECT_LE(line->post, line->starters);
        for (const Call& call : line->calls) {
            EXPECT_GE(call.position, 1);
            EXPECT_LE(call.position, line->starters);
            if (call.position == 1) {
                EXPECT_EQ(0, call.behind);
            }
        }
    }
}

TEST(SampleCard, LinesShowWhatHappensInRaces) {
    const auto parked = [](std::string_view marks) {
        return countLines([&](const PastLine& line) {
            return std::ranges::any_of(line.calls, [&](const Call& call) { return call.park == marks; });
        });
    };
    EXPECT_GT(parked("\xBA"), 0);
    EXPECT_GT(parked("\xBA\xBA"), 0);
    EXPECT_GT(parked("\xB0"), 0);
    EXPECT_GT(parked("\xB0\xB0"), 0);
    EXPECT_GT(countLines([](const PastLine& line) { return line.favourite; }), 0);
    EXPECT_GT(countLines([](const PastLine& line) { return line.distance > mile; }), 0);
    EXPECT_GT(countLines([](const PastLine& line) {
                  return std::ranges::any_of(line.calls, [](const Call& call) { return call.before == "x"; });
              }),
              0);
}

TEST(SampleCard, QualifiersHaveNoOddsFavouritePurseOrRating) {
    int qualifiers = 0;
    for (const PastLine* line : allLines()) {
        if (line->className != "QUA") continue;
        ++qualifiers;
        EXPECT_EQ(noOdds, line->odds);
        EXPECT_FALSE(line->favourite);
        EXPECT_EQ(0, line->purse);
        EXPECT_EQ(noClassRating, line->classRating);
    }
    EXPECT_GT(qualifiers, 0);
}

TEST(SampleCard, TracksOfLinesAreInTheTrackTable) {
    const std::string text = "\n" + trackEditorText();
    for (const PastLine* line : allLines())
        EXPECT_NE(std::string::npos, text.find("\n" + line->track + " ")) << line->track;
}

TEST(SampleCard, WagersAreWrittenInSeveralWays) {
    for (const char* words : {"Double (Races 1-2)", "Pick 3 (Races 2-4)", "PICK 4 (Races 5-8)",
                              "Pk5 (Races 8-12)", "PENTAFECTA", "High 5"})
        EXPECT_EQ(1, std::ranges::count_if(
                         card().races,
                         [&](const Race& race) { return race.wagers.find(words) != std::string::npos; }))
            << words;
}

TEST(SampleCard, RacesFollowOneAnother) {
    std::set<std::string> times;
    for (const Race& race : card().races) times.insert(race.postTime);
    EXPECT_EQ(12U, times.size());
}

TEST(SampleFiles, CrossOverEndsWithTrackAndDay) {
    std::string text = crossOverText(card());
    ASSERT_TRUE(text.ends_with("\r\n"));
    text.resize(text.size() - 2);
    EXPECT_EQ("MVR0314", text.substr(text.size() - 12, 7));
}

TEST(SampleFiles, WebPageEndsWithAnAddress) {
    const std::string text = webPageText();
    EXPECT_TRUE(text.substr(text.rfind('\n', text.size() - 2) + 1).starts_with("https://"));
}

// Every file below a folder and its bytes; those of the generator itself and the notes for people left out.
std::map<std::string, std::string> filesBelow(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).generic_string();
        if (!entry.is_regular_file() || name.starts_with("generator/") || name == "README.md") continue;
        files[name] = readFile(entry.path()).value_or("unreadable");
    }
    return files;
}

// On a difference: generate the sample again and look at what changed.
TEST(SampleFiles, CommittedSampleIsWhatTheGeneratorWrites) {
    const fs::path fresh = fs::path(testing::TempDir()) / "quillon-sample";
    fs::remove_all(fresh);
    ASSERT_TRUE(writeSample(fresh));
    const auto expected = filesBelow(fresh);
    const auto committed = filesBelow(QUILLON_SAMPLES);
    EXPECT_EQ(13U, expected.size()); // eight tables, three settings, two results texts
    for (const auto& [name, bytes] : expected) {
        ASSERT_TRUE(committed.contains(name)) << name;
        EXPECT_TRUE(committed.at(name) == bytes) << name << " differs";
    }
    EXPECT_EQ(expected.size(), committed.size()) << "files that the generator doesn't write";
    fs::remove_all(fresh);
}

} // namespace
