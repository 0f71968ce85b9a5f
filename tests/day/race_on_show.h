// Race 3 of a rated card, on show: what the commands before the race start from.
#pragma once

#include "core/formats.h"
#include "screen/race_views.h"
#include "support/card_test.h"

namespace quillon {

class RaceOnShow : public CardTest {
protected:
    static constexpr int race = 3;

    RaceOnShow() {
        card.cardFileName = "M1_20260314.pmd";
        card.raceCount = race;
        card.trackSize = "1/2";
        for (std::size_t button = 1; button <= race; ++button) screen.raceButtons[button].visible = true;
        screen.header.race = "3";
        cursor.race = 1; // commands go by the race on show, not by the cursor
    }

    /// Entries 1, 2, 3 ... with these ratings. Program numbers are ten less the entry.
    static void enter(const std::vector<const char*>& ratings) {
        for (int index = 1; index <= static_cast<int>(ratings.size()); ++index) {
            RaceEntry& entry = card.entry(race, index);
            entry.horseName = "Horse " + std::to_string(index);
            entry.programNumber = numberOf(index);
            entry.postPosition = aligned("@@@", std::to_string(index));
            entry.morningOdds = " 5/2";
            entry.driverName = "Doe, " + std::to_string(index);
            entry.driverUdr = " .200";
            entry.rating = ratings[static_cast<std::size_t>(index - 1)];
            Grid& view = screen.raceView[race];
            for (int column = 4; column <= 31; ++column) view(index, column).text = "c";
            view(index, RaceColumn::post).text = std::to_string(index);
            view(index, RaceColumn::udr).text = entry.driverUdr;
            view(index, RaceColumn::rating).text = entry.rating;
            screen.entryButtons[static_cast<std::size_t>(index)].caption = entry.programNumber;
        }
    }

    static Text numberOf(int index) { return aligned("@@@", std::to_string(10 - index)); }

    static const Text& ratingOf(int index) { return card.entry(race, index).rating; }
    static Text cell(int index, int column) { return screen.raceView[race].text(index, column); }

    /// The entries whose numbers stand in the first four boxes; 0 for an empty box.
    static std::array<int, 4> boxes() {
        std::array<int, 4> entries{};
        for (std::size_t box = 0; box < 4; ++box) {
            const Text& number = screen.boxes[box].text;
            entries[box] = number.empty() ? 0 : 10 - static_cast<int>(lenientNumber(number));
        }
        return entries;
    }
};

using Boxes = std::array<int, 4>;

} // namespace quillon
