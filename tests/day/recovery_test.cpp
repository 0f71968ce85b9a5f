#include "day/recovery.h"

#include "core/failure.h"
#include "core/files.h"
#include "support/card_test.h"

#include <gtest/gtest.h>

#include <stdexcept>

#ifndef _WIN32
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace quillon {
namespace {

const RecoveryHeading evening{"MVR_20260314.pmd", 7, "20260314 201405"};
const RecoveryHeading later{"MVR_20260314.pmd", 9, "20260314 201733"};
const std::filesystem::path folder = "A Quillon PRO/Recovery";

class RecoveryTest : public CardTest {
protected:
    ~RecoveryTest() override {
        attempt(stopKeeping);
        attempt(forgetLeftBehind);
    }
};

#ifndef _WIN32
/// Another program that does this and then lives until it is killed.
class OtherProgram {
public:
    template <class Work>
    explicit OtherProgram(Work work) {
        int ready[2] = {};
        if (::pipe(ready) != 0) throw std::runtime_error{"no pipe"};
        id_ = ::fork();
        if (id_ == 0) {
            ::close(ready[0]);
            attempt(work);
            (void)!::write(ready[1], "x", 1);
            for (;;) ::pause();
        }
        ::close(ready[1]);
        char done = 0;
        (void)!::read(ready[0], &done, 1);
        ::close(ready[0]);
    }
    ~OtherProgram() { kill(); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    void kill() {
        if (id_ <= 0) return;
        ::kill(id_, SIGKILL);
        ::waitpid(id_, nullptr, 0);
        id_ = 0;
    }

private:
    pid_t id_ = 0;
};

TEST_F(RecoveryTest, WhatAKilledProgramKeptIsFound) {
    OtherProgram other{[] {
        keepForRecovery("the first state", evening);
        keepForRecovery("the last state", later);
    }};
    EXPECT_EQ(nullptr, leftBehind()); // while it lives
    other.kill();
    const LeftBehind* const left = leftBehind();
    ASSERT_NE(nullptr, left);
    EXPECT_EQ(later, left->heading);
    EXPECT_EQ("the last state", left->state);
    EXPECT_EQ(left, leftBehind());
    forgetLeftBehind();
    EXPECT_EQ(nullptr, leftBehind());
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(RecoveryTest, TwoProgramsWithOneCardKeepAFileEach) {
    OtherProgram other{[] { keepForRecovery("the other's", evening); }};
    keepForRecovery("ours", later);
    EXPECT_EQ(nullptr, leftBehind());
    other.kill();
    ASSERT_NE(nullptr, leftBehind());
    EXPECT_EQ("the other's", leftBehind()->state);
    keepForRecovery("ours again", later);
    forgetLeftBehind();
    EXPECT_EQ(nullptr, leftBehind()); // our own is none
    EXPECT_TRUE(exists(folder / "MVR_20260314-2.recovery"));
}

TEST_F(RecoveryTest, TheNewestIsFoundFirst) {
    const RecoveryHeading morning{"NFLD_20260313.pmd", 1, "20260313 093000"};
    OtherProgram first{[&] { keepForRecovery("evening", evening); }};
    OtherProgram second{[&] { keepForRecovery("later", later); }};
    OtherProgram third{[&] { keepForRecovery("morning", morning); }};
    for (OtherProgram* const program : {&first, &second, &third}) program->kill();
    for (const char* const state : {"later", "evening", "morning"}) {
        ASSERT_NE(nullptr, leftBehind());
        EXPECT_EQ(state, leftBehind()->state);
        forgetLeftBehind();
    }
    EXPECT_EQ(nullptr, leftBehind());
}

TEST_F(RecoveryTest, WhatOneProgramHasFoundNoOtherFinds) {
    OtherProgram{[] { keepForRecovery("left", evening); }}.kill();
    {
        OtherProgram finder{[] {
            if (leftBehind()) put("found", "yes");
        }};
        EXPECT_TRUE(exists("found"));
        EXPECT_EQ(nullptr, leftBehind());
    }
    ASSERT_NE(nullptr, leftBehind()); // the finder was killed before it had dealt with it
}

TEST_F(RecoveryTest, WhatIsTakenOverIsKeptInItsFileUntilItIsWrittenAnew) {
    OtherProgram{[] { keepForRecovery("left", evening); }}.kill();
    ASSERT_NE(nullptr, leftBehind());
    takeOverLeftBehind();
    EXPECT_EQ(nullptr, leftBehind());
    EXPECT_TRUE(exists(folder / "MVR_20260314-1.recovery"));
    keepForRecovery("gone on", later);
    EXPECT_FALSE(exists(folder / "MVR_20260314-2.recovery"));
    stopKeeping();
    EXPECT_TRUE(std::filesystem::is_empty(folder));
}

TEST_F(RecoveryTest, DamagedFilesAreNotOffered) {
    OtherProgram{[] { keepForRecovery("a state of the card", evening); }}.kill();
    const std::string whole = contentOf(folder / "MVR_20260314-1.recovery");
    for (std::size_t at = 0; at < whole.size(); ++at) {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 1);
        put(folder / "MVR_20260314-1.recovery", damaged);
        ASSERT_EQ(nullptr, leftBehind()) << at;
        put(folder / "MVR_20260314-1.recovery", whole.substr(0, at));
        ASSERT_EQ(nullptr, leftBehind()) << at;
    }
    put(folder / "MVR_20260314-1.recovery", whole);
    EXPECT_NE(nullptr, leftBehind());
}
#endif

TEST_F(RecoveryTest, ASaveOrACloseRemovesWhatWasKept) {
    stopKeeping(); // nothing was
    keepForRecovery("state", evening);
    EXPECT_TRUE(exists(folder / "MVR_20260314-1.recovery"));
    stopKeeping();
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    EXPECT_EQ(nullptr, leftBehind());
}

TEST_F(RecoveryTest, AnotherCardTakesThePlaceOfTheOneBefore) {
    keepForRecovery("state", evening);
    keepForRecovery("state", {"M1_20260315.pmd2", 1, "20260315 120000"});
    EXPECT_FALSE(exists(folder / "MVR_20260314-1.recovery"));
    EXPECT_TRUE(exists(folder / "M1_20260315-1.recovery"));
}

TEST_F(RecoveryTest, ANameThatIsNoFileNameIsMadeOne) {
    keepForRecovery("state", {"../a:b.pmd", 1, ""});
    EXPECT_TRUE(exists(folder / "___a_b-1.recovery"));
    keepForRecovery("state", {"", 1, ""});
    EXPECT_TRUE(exists(folder / "card-1.recovery"));
}

TEST_F(RecoveryTest, WithoutTheFolderNothingIsFoundAndNothingIsMade) {
    EXPECT_EQ(nullptr, leftBehind());
    EXPECT_FALSE(exists("A Quillon PRO"));
}

TEST_F(RecoveryTest, WhatCanNotBeWrittenIsAFailure) {
    put("A Quillon PRO/Recovery", "no folder");
    EXPECT_FALSE(attempt([] { keepForRecovery("state", evening); }));
    EXPECT_EQ(nullptr, leftBehind());
}

} // namespace
} // namespace quillon
