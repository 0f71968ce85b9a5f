// Archives for the tests of the profiles, written place by place.
#pragma once

#include "support/card_test.h"

#include <array>
#include <functional>

namespace quillon {

/// A card of the archive. Sums are texts as the archive has them.
struct ArchiveCard {
    Text key = "   M1_20260314";
    Text races = " 10";
    std::array<Text, 4> wins{"0", "0", "0", "0"};
    std::array<Text, 11> sums{".00", ".00", ".00", ".00", ".00", ".00", ".00", ".00", ".00", ".00", ".00"};
    Text s1WithAll = ".00"; ///< "S1/2-3-4", place 137
    Text allFour = ".00";   ///< "S1-2-3-4", place 147
    Text s2WithAll = ".00"; ///< "S2-1/3-4", place 157
    Text superfectaRaces = "0";
};

inline Text field(const Text& text, std::size_t width) {
    return Text(width - std::min(width, text.size()), ' ') + text;
}

inline Text lineOf(const ArchiveCard& card) {
    Text line = field(card.key, 14) + field(card.races, 3);
    for (const Text& wins : card.wins) line += field(wins, 5);
    for (const Text& sum : card.sums) line += field(sum, 9);
    line += field(card.s1WithAll, 10) + field(card.allFour, 10) + field(card.s2WithAll, 10);
    return line + field(card.superfectaRaces, 3);
}

inline Text archiveOf(const std::vector<ArchiveCard>& cards) {
    Text archive;
    for (const ArchiveCard& card : cards) archive += lineOf(card) + "\r\n";
    return archive;
}

/// A row of TrackEditor.ini with the code at column 1 and the size at column 37.
inline Text trackRow(const Text& code, const Text& size) {
    Text row(53, ' ');
    row.replace(0, code.size(), code);
    row.replace(36, size.size(), size);
    return row + "           8\r\n";
}

class ProfileTest : public CardTest {
protected:
    static void archive(const std::vector<ArchiveCard>& cards) { put("HRA.ini", archiveOf(cards)); }

    static Text cell(int row, int column) { return screen.profile.text(row, column); }
    static bool bold(int row, int column) { return screen.profile.read(row, column).bold; }

    /// Cancels long work at its n-th report; `reports` are how far it was.
    void cancelAt(std::size_t n) {
        ports.progress = [this, n](double done) {
            reports.push_back(done);
            return reports.size() < n;
        };
    }
    std::vector<double> reports;
};

} // namespace quillon
