// What is kept of a card against a crash: when, until when, and how it comes back.
#include "day/keeping.h"

#include "app/start_up.h"
#include "core/failure.h"
#include "day/changes.h"
#include "day/recovery.h"
#include "random_night.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#ifndef _WIN32
#include <csignal>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace quillon {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;

const fs::path folder = "A Quillon PRO/Recovery";

std::vector<fs::path> keptFiles() {
    std::vector<fs::path> files;
    if (fs::exists(folder))
        for (const auto& entry : fs::directory_iterator{folder})
            if (entry.path().extension() == ".recovery") files.push_back(entry.path());
    return files;
}

class KeepingTest : public RandomNightTest {
protected:
    ~KeepingTest() override { keepWithin = usual; }

    void startDay(std::uint64_t seed = 1) { start(randomCard(seed, false), seed); }

    // Types the winner of race 1.
    static void change(const Text& winner = "2") { press("Box", {{4}, winner}); }

    /// As another run of the program would find it that has ended by a crash.
    void crash() {
        KeepCard();
        ASSERT_EQ(1U, keptFiles().size());
        fs::copy_file(keptFiles().front(), folder / "left-1.recovery");
        changes.end();
        noticeChanges();
        StartUp();
    }

    const milliseconds usual = keepWithin;
};

TEST_F(KeepingTest, AChangeIsKeptTwoSecondsLaterAndNotBefore) {
    EXPECT_EQ(milliseconds{2000}, keepWithin);
    startDay();
    EXPECT_EQ(std::nullopt, keepingDueIn());
    change();
    const auto due = keepingDueIn();
    ASSERT_NE(std::nullopt, due);
    EXPECT_LE(*due, milliseconds{2000});
    EXPECT_GT(*due, milliseconds{1000});
    change("3");
    EXPECT_LE(*keepingDueIn(), *due); // from the first one on
    KeepCardWhenDue();
    EXPECT_TRUE(keptFiles().empty());
    keepWithin = milliseconds{0};
    KeepCardWhenDue();
    EXPECT_EQ(1U, keptFiles().size());
    EXPECT_EQ(std::nullopt, keepingDueIn());
}

TEST_F(KeepingTest, WalkingAndLookingNeedNothingKept) {
    startDay();
    press("RaceButton", {{2}, ""});
    press("EntryButton", {{1}, ""});
    EXPECT_EQ(std::nullopt, keepingDueIn());
    KeepCard();
    EXPECT_TRUE(keptFiles().empty());
}

TEST_F(KeepingTest, AResultsPassIsKeptBeforeItBegins) {
    startDay();
    change();
    press("EBET");
    ASSERT_EQ(1U, keptFiles().size());
    fs::copy_file(keptFiles().front(), folder / "left-1.recovery");
    const LeftBehind* const left = leftBehind();
    ASSERT_NE(nullptr, left);
    EXPECT_EQ(1, left->heading.changes); // the typed winner, without the pass
}

TEST_F(KeepingTest, AHeatIsKeptBeforeItBegins) {
    startDay();
    change();
    press("HeatWinner");
    answers = {"14", "1", "2"};
    ASSERT_TRUE(press("HeatChoice", {{1}, ""}));
    ASSERT_EQ(1U, keptFiles().size());
    fs::copy_file(keptFiles().front(), folder / "left-1.recovery");
    ASSERT_NE(nullptr, leftBehind());
    EXPECT_EQ(1, leftBehind()->heading.changes); // the typed winner, without the heat
    EXPECT_EQ(2U, changes.standing().size());
}

TEST_F(KeepingTest, ASaveACloseAnotherCardAndTheWayBackLeaveNothing) {
    keepWithin = milliseconds{0};
    startDay();
    const auto keptAfter = [&](const char* command) {
        static int winner = 0;
        change(std::to_string(++winner));
        KeepCardWhenDue();
        EXPECT_EQ(1U, keptFiles().size()) << command;
        press(command);
        return keptFiles().size();
    };
    EXPECT_EQ(0U, keptAfter("Save"));
    EXPECT_EQ(1U, keptAfter("Next")); // is a change as well
    EXPECT_EQ(0U, keptAfter("CloseRC"));
    startDay();
    EXPECT_EQ(0U, keptAfter("Undo"));
    change();
    KeepCardWhenDue();
    press("CloseRC");
    press("RecallRaceCard");
    press("ChooseFile", {{}, std::as_const(screen).fileList.lines.front()});
    EXPECT_EQ(0U, keptFiles().size());
}

TEST_F(KeepingTest, WhatAChangeAfterASaveTookBackIsKept) {
    startDay();
    change();
    press("Save");
    press("Undo"); // the file on disk has the change
    KeepCard();
    EXPECT_EQ(1U, keptFiles().size());
}

TEST_F(KeepingTest, AFolderThatCanNotBeMadeIsTriedAgainWithTheNextChange) {
    startDay();
    put(folder, "a file in its place");
    change();
    EXPECT_FALSE(attempt(KeepCard));
    EXPECT_EQ(std::nullopt, keepingDueIn());
    fs::remove(folder);
    change("3");
    EXPECT_TRUE(attempt(KeepCard));
    EXPECT_EQ(1U, keptFiles().size());
}

TEST_F(KeepingTest, TheCardComesBackWithItsChangesAndTheWayBack) {
    for (std::uint64_t seed = 1; seed <= 3u * static_cast<unsigned>(propertyScale()); ++seed) {
        SCOPED_TRACE("day " + std::to_string(seed));
        startDay(seed);
        const std::string loaded = everythingShown();
        samples::Random random{seed};
        for (int presses = 0; presses < 15; ++presses) pressAnything(random);
        change("9");
        change("8");
        press("Undo");
        const std::string end = everythingShown();
        const auto files = writtenFiles();
        const auto made = changes.standing().size();
        const std::size_t unsaved = changes.unsaved();
        crash();
        ASSERT_FALSE(changes.isOpen());

        ASSERT_TRUE(press("Recover"));
        EXPECT_EQ(end, everythingShown());
        EXPECT_EQ(files, writtenFiles());
        EXPECT_EQ(made, changes.standing().size());
        EXPECT_EQ(unsaved, changes.unsaved());
        EXPECT_TRUE(press("Redo"));
        EXPECT_EQ("first typed: 8", changes.last().what);
        EXPECT_TRUE(press("UndoTo", {{0}, ""}));
        EXPECT_EQ(loaded, everythingShown());
        EXPECT_TRUE(keptFiles().empty());
    }
}

TEST_F(KeepingTest, BytesOfAnotherVersionAreToldAndLeft) {
    startDay();
    change();
    keepForRecovery("a state of another version", {"MVR_20260314.pmd", 3, "20260314 201405"});
    fs::copy_file(keptFiles().front(), folder / "left-1.recovery");
    ASSERT_TRUE(press("Recover"));
    EXPECT_EQ("message: Another version of Quillon has kept this card, and it alone can restore it.",
              shown.back());
    EXPECT_EQ(1U, changes.standing().size()); // of the card that is still open
    EXPECT_TRUE(fs::exists(folder / "left-1.recovery"));
    ASSERT_TRUE(press("Forget"));
    EXPECT_FALSE(fs::exists(folder / "left-1.recovery"));
}

#ifndef _WIN32

// --- Killed at any moment ---------------------------------------------------------------------------------

constexpr std::size_t pressesOfADay = 60;

/// What the program that is killed tells of itself, in memory that outlives it. Times are nanoseconds.
struct Diary {
    std::atomic<bool> isLoaded;
    std::atomic<std::size_t> begun; ///< presses; so many less one have ended at least
    std::array<std::int64_t, pressesOfADay + 1> beganAt;
    std::array<std::int64_t, pressesOfADay + 1> endedAt;
};

std::int64_t now() { return std::chrono::steady_clock::now().time_since_epoch().count(); }

/// What a run that is never killed is after each press.
struct DayState {
    std::string shown;
    std::size_t unsaved = 0;
    bool differs = false; ///< by this press, which was a change or a save
};

class KillTest : public KeepingTest {
protected:
    KillTest() {
        void* const memory =
            ::mmap(nullptr, sizeof(Diary), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED) throw std::runtime_error{"no shared memory"};
        diary = new (memory) Diary{};
    }
    ~KillTest() override { ::munmap(diary, sizeof(Diary)); }

    void pressOrSave(samples::Random& random) {
        if (random.chance(8))
            press("Save");
        else
            pressAnything(random);
    }

    std::vector<DayState> dayWithoutACrash(std::uint64_t seed) {
        startDay(seed);
        std::vector<DayState> states{{everythingShown(), 0, false}};
        samples::Random random{seed};
        for (std::size_t at = 1; at <= pressesOfADay; ++at) {
            const auto before = changes.version();
            pressOrSave(random);
            states.push_back({everythingShown(), changes.unsaved(), changes.version() != before});
        }
        changes.end();
        noticeChanges();
        return states;
    }

    void liveUntilKilled(std::uint64_t seed) {
        startDay(seed);
        samples::Random random{seed};
        samples::Random pauses{seed * 31}; // while the user thinks
        diary->isLoaded = true;
        for (std::size_t at = 1; at <= pressesOfADay; ++at) {
            if (pauses.chance(25)) ::usleep(static_cast<useconds_t>(pauses.between(0, 6000)));
            diary->beganAt.at(at) = now();
            attempt(KeepCardWhenDue); // as the front ends do between two commands
            diary->begun = at;
            pressOrSave(random);
            diary->endedAt.at(at) = now();
        }
        for (;;) ::pause();
    }

    /// Runs the day in a program of its own and kills it so long after the card is there.
    void killAfter(std::uint64_t seed, milliseconds life) {
        new (diary) Diary{};
        const pid_t program = ::fork();
        if (program == 0) {
            liveUntilKilled(seed);
            ::_exit(1);
        }
        while (!diary->isLoaded) ::usleep(200);
        ::usleep(static_cast<useconds_t>(life.count() * 1000));
        ::kill(program, SIGKILL);
        ::waitpid(program, nullptr, 0);
    }

    /// The press that the user has back at least: the last save, and what stood long enough to be kept. Where
    /// he only looked afterwards, nothing was kept.
    std::size_t fewestBack(const std::vector<DayState>& day) const {
        const std::size_t begun = diary->begun;
        const std::int64_t kept = std::chrono::nanoseconds{keepWithin}.count();
        std::size_t fewest = 0;
        for (std::size_t at = 1; at < begun; ++at)
            if (day[at].differs &&
                (isSave(day, at) || diary->endedAt.at(at) <= diary->beganAt.at(begun) - kept))
                fewest = at;
        return fewest;
    }

    static bool isSave(const std::vector<DayState>& day, std::size_t at) {
        return day[at].unsaved == 0; // a change leaves one at least
    }

    Diary* diary = nullptr;
};

TEST_F(KillTest, ACardComesBackAsItStoodUpToTheLastMoments) {
    keepWithin = milliseconds{5}; // in place of two seconds, to have many in little time
    const int days = 2 * propertyScale();
    constexpr int killsADay = 50;
    int restored = 0;
    for (int number = 1; number <= days; ++number) {
        const auto seed = static_cast<std::uint64_t>(number);
        const std::vector<DayState> day = dayWithoutACrash(seed);
        samples::Random moments{seed};
        for (int kill = 1; kill <= killsADay; ++kill) {
            SCOPED_TRACE("day " + std::to_string(number) + ", kill " + std::to_string(kill));
            killAfter(seed, milliseconds{moments.between(0, 60)});
            StartUp();
            const std::size_t fewest = fewestBack(day);
            const std::size_t most = diary->begun;
            const bool found = press("Recover");
            const std::string back = found ? everythingShown() : "";
            const auto isThis = [&](const DayState& state) {
                return found ? state.shown == back : state.unsaved == 0;
            };
            const auto from = day.begin() + static_cast<std::ptrdiff_t>(fewest);
            const auto to = day.begin() + static_cast<std::ptrdiff_t>(most) + 1;
            ASSERT_TRUE(std::any_of(from, to, isThis)) << "presses " << fewest << " to " << most;
            if (found) ++restored;
            changes.end();
            noticeChanges();
            ASSERT_TRUE(keptFiles().empty());
        }
    }
    EXPECT_GT(restored, days * killsADay / 4);
}

#endif

} // namespace
} // namespace quillon
