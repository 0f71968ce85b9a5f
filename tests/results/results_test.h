// What the tests of the results passes share: a card M1 of 14 March 2026 and its results file.
#pragma once

#include "results/board.h"
#include "support/card_test.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

class ResultsPassTest : public CardTest {
protected:
    ResultsPassTest() {
        card.cardFileName = "M1_20260314.pmd";
        card.raceCount = 12;
        screen.header.race = "4"; // some race is on show
        put("TrackEditor.ini", "M1        The Meadowlands\r\nMR        Monticello\r\n");
    }

    static void putResults(std::string_view text) { put("A Quillon PRO/Results/M1_20260314.pmr", text); }

    // The filled cells of a race's payoffs, "7=24.60", or of its outcome.
    static std::vector<std::string> payoffs(int race) {
        std::vector<std::string> filled;
        for (int cell = 0; cell <= 21; ++cell)
            if (const Text& text = card.payoffRecord(race, cell); !text.empty())
                filled.push_back(std::to_string(cell) + "=" + text);
        return filled;
    }
    static std::vector<std::string> outcome(int race) {
        std::vector<std::string> filled;
        for (int cell = 0; cell <= 9; ++cell)
            if (const Text& text = card.raceOutcome(race, cell); !text.empty())
                filled.push_back(std::to_string(cell) + "=" + text);
        return filled;
    }

    // A text of another day or track: a beep, what is wrong, and the card beside the text.
    void expectStopped(const std::string& told, const char* what) const {
        ASSERT_EQ(3U, shown.size()) << what;
        EXPECT_EQ("beep", shown[0]);
        EXPECT_EQ("message: Active File and Results File do not match!  Record Results cannot continue! "
                  "Check TRC file for correct date and track.",
                  shown[1]);
        EXPECT_EQ("message: " + told, shown[2]) << what;
    }

    static void clearResults() {
        card.raceOutcome.clear();
        card.payoffRecord.clear();
        card.pickPayoff.clear();
        card.pickLegs.clear();
        card.poolText.clear();
        card.poolLegs = 0;
        screen.header.race = "4";
    }
};

using Filled = std::vector<std::string>;

/// Bytes that look like nothing, the same in each run.
inline std::string anyBytes(std::size_t count, std::uint32_t seed) {
    std::string bytes;
    bytes.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        seed = seed * 1664525u + 1013904223u;
        bytes += static_cast<char>(seed >> 24);
    }
    return bytes;
}

} // namespace quillon
