// Long use: thousands of random commands over many cards in one process.
#include "random_night.h"

#include "app/start_up.h"
#include "console/console.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <utility>

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // g++ 12 comes without its header
#elif defined(__GLIBC__)
#include <malloc.h>
#endif

namespace quillon {
namespace {

/// Bytes that the program holds; 0 where the system does not tell.
std::size_t bytesHeld() {
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#elif defined(__GLIBC__)
    const auto held = mallinfo2();
    return held.uordblks + held.hblkhd;
#else
    return 0;
#endif
}

/// What a user may press and type, sense and nonsense.
class RandomUser {
public:
    explicit RandomUser(std::uint64_t seed) : random_(seed) {}

    std::string firstLine() { return random_.chance(60) ? "Start" : "RecallRaceCard"; }

    std::string line() {
        if (random_.chance(25))
            if (const std::string choice = choiceOfShownList(); !choice.empty()) return choice;
        if (random_.chance(12)) return "Answer " + answer();
        if (random_.chance(2)) return "Cancel";
        if (random_.chance(6)) return "show " + std::string{random_.pick(parts)};
        if (random_.chance(1)) return text();
        return commandLine(random_.pick(commandTable()));
    }

private:
    static constexpr std::array parts{"board",      "header",      "buttons",       "menu",
                                      "faults",     "raceview 2",  "dataview 25",   "summary",
                                      "profile",    "tracks",      "picks",         "stars",
                                      "tracklist",  "starsfields", "colours picks", "colours raceview 1",
                                      "driverlist", "filelist",    "raceview 999",  ""};
    static constexpr std::array texts{"",
                                      "1",
                                      "2",
                                      " 3",
                                      "12",
                                      "1A",
                                      "-1",
                                      "0",
                                      "99999999",
                                      "4.5",
                                      "RACE 1",
                                      "RACE 3",
                                      "RACE ",
                                      "5/2",
                                      "ALL Margins",
                                      "ALL Odds",
                                      "5",
                                      "10",
                                      "M1",
                                      "EXIT",
                                      "Exit",
                                      "a long text that no box has any room for at all",
                                      "\xC3\xA9\xC2\xBA",
                                      "\"quoted\"",
                                      "6.40",
                                      "1e300",
                                      "nan",
                                      "2 Over",
                                      "<= 2/1",
                                      "C:\\x",
                                      "../../x"};

    std::string answer() { return random_.chance(40) ? "Yes" : text(); }

    std::string text() {
        if (random_.chance(25)) return listed();
        return random_.pick(texts);
    }

    /// A line of one of the lists, as a user picks it.
    std::string listed() {
        const std::array lists{&screen.fileList,   &screen.trackList, &screen.driverList, &screen.raceList,
                               &screen.marginList, &screen.oddsList,  &screen.maxOddsList};
        const auto& lines = random_.pick(lists)->lines;
        return lines.empty() ? std::string{} : random_.pick(lines);
    }

    std::string number() {
        if (random_.chance(60)) return std::to_string(random_.between(1, 5));
        return std::to_string(random_.chance(80) ? random_.between(0, 13) : random_.between(-3, 40));
    }

    std::string commandLine(const Command& command) {
        const std::string name = command.name;
        const bool ends = name == "NewRC" || name == "Exit_QL" || name == "CloseWindow";
        if (ends && !random_.chance(10)) return "Start";
        std::string line = name;
        for (int at = 0; at < numbersOf(command.takes); ++at) line += " " + number();
        if (takesText(command.takes)) line += " " + text();
        return line;
    }

    std::string choiceOfShownList() {
        const std::array lists{
            std::pair{"ChooseFile", &screen.fileList},     std::pair{"SelectTrack", &screen.trackList},
            std::pair{"DriverChoice", &screen.driverList}, std::pair{"MarginChoice", &screen.marginList},
            std::pair{"OddsChoice", &screen.oddsList},     std::pair{"MaxOddsChoice", &screen.maxOddsList}};
        const auto& [command, list] = random_.pick(lists);
        if (!list->visible || list->lines.empty()) return {};
        return std::string{command} + " " + random_.pick(list->lines);
    }

    static int numbersOf(Takes takes) {
        if (takes == Takes::cell) return 3;
        return takes == Takes::number || takes == Takes::numberAndText ? 1 : 0;
    }
    static bool takesText(Takes takes) { return takes != Takes::nothing && takes != Takes::number; }

    samples::Random random_;
};

class SoakTest : public RandomNightTest {
protected:
    /// A new window in the same process and folder: a card of its own now and then, others to be recalled.
    void openWindow(std::uint64_t night) {
        layNight(randomCard(night % 40 + 1, night % 2 == 0), night % 40 + 1);
        StartUp();
        journal.clear();
    }

    /// Works in one window until it closes or the user has had enough of it. How many commands were run.
    int use(RandomUser& user) {
        constexpr int enough = 60;
        std::ostringstream transcript;
        Console console{transcript};
        std::string script = user.firstLine() + "\n";
        for (int commands = 1; commands <= enough; ++commands) {
            transcript.str("");
            std::istringstream line{script};
            console.run(line);
            if (transcript.view().ends_with("\nend\n")) return commands;
            script = user.line() + "\n";
        }
        return enough;
    }

    /// What is still held when a window has closed and all that it showed is gone.
    std::size_t heldBehindWindow() {
        StartUp();
        journal.clear();
        return bytesHeld();
    }
};

TEST_F(SoakTest, TenThousandRandomCommandsHoldNoMemory) {
    const int commands = 10000 * propertyScale();
    constexpr int commandsToSettle = 100; // buffers and lists have their size by then
    // Texts and lists that are used again keep the room of the largest card they ever held.
    constexpr std::size_t slack = std::size_t{512} << 10U;
    RandomUser user{20260314};
    std::size_t settled = 0;
    std::uint64_t window = 0;
    for (int done = 0; done < commands; ++window) {
        SCOPED_TRACE("window " + std::to_string(window));
        openWindow(window);
        const bool settling = done <= commandsToSettle;
        done += use(user);
        const std::size_t held = heldBehindWindow();
        if (settling)
            settled = std::max(settled, held);
        else
            ASSERT_LE(held, settled + slack) << "after " << done << " commands";
    }
    EXPECT_GT(settled, 0u);
}

} // namespace
} // namespace quillon
