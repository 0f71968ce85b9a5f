// The fixture of the report tests: an open card whose races are told in a few words.
#pragma once

#include "support/card_test.h"

#include <string>
#include <vector>

namespace quillon {

class SheetTest : public CardTest {
protected:
    struct Row {
        Text pn{};
        Text pp{};
        Text ml{};
        Text name{};
        Text driverText{};
        Text pr{};
    };

    SheetTest() {
        card.cardFileName = "M1_20260314.pmd";
        card.cardDate = "20260314";
        card.raceInfo(1).trackCode = "M1";
        card.raceInfo(1).trackInfo = "Meadowlands  1.M";
        showRaces(1);
    }

    static void showRaces(int count) {
        for (std::size_t button = 0; button < screen.raceButtons.size(); ++button)
            screen.raceButtons[button].visible = button >= 1 && static_cast<int>(button) <= count;
    }

    /// Rows S1 to S4 and the fifth, as many as are given.
    static void rank(int race, const std::vector<Row>& rows) {
        int place = 0;
        for (const Row& row : rows) {
            ++place;
            card.raceOutcome(race, place == 5 ? 9 : place) = row.pn;
            card.selection(race, place) = {.selectionName = row.name,
                                           .selectionDriver = row.driverText,
                                           .selectionOdds = row.ml,
                                           .selectionRating = row.pr,
                                           .selectionPost = row.pp};
        }
    }

    /// Ranks a race by ratings alone: S1 has program number 11, S2 12, and so on.
    static void rankByRatings(int race, const std::vector<Text>& ratings, const Text& oddsOfS1 = " 7/2") {
        std::vector<Row> rows;
        rows.reserve(ratings.size());
        for (const Text& rating : ratings)
            rows.push_back({.pn = std::to_string(11 + rows.size()), .ml = oddsOfS1, .pr = rating});
        rank(race, rows);
    }

    static std::vector<std::string> linesOf(const std::string& path) {
        std::vector<std::string> lines;
        std::string content = contentOf(path);
        for (std::size_t end = content.find("\r\n"); end != std::string::npos; end = content.find("\r\n")) {
            lines.push_back(content.substr(0, end));
            content.erase(0, end + 2);
        }
        EXPECT_EQ("", content) << "the last line of " << path << " has no end";
        return lines;
    }
};

} // namespace quillon
