// Why a line is rated and chosen, and an entry placed, in the window's words.
#pragma once

#include "day/why.h"

#include <QString>

#include <optional>
#include <vector>

namespace quillon {

/// A past line of an entry, by its place; 0 for the one that speaks for the entry.
struct WhyTarget {
    int race = 0;
    int entry = 0;
    int line = 0;

    bool operator==(const WhyTarget&) const = default;
};

/// "First figure" for "LastQuarterCalc".
QString stepWords(TextView step);

QString verdictWords(Verdict verdict);

/// The place of the line that speaks for its entry among its lines, from 1; 0 for none.
int chosenOf(const std::vector<WhyLine>& lines);

/// Tells that the entry's rating is not that of its line any more; empty where it is.
QString changedSince(int race, int entry, const std::vector<WhyLine>& lines);

/// The road of a line in a few lines: what changed its figure, and the rating.
QString whyTip(const WhyTarget& target);

/// The line that a row of the entries, of a race's lines, or of an entry's lines stands for.
std::optional<WhyTarget> targetOfEntry(int row);
std::optional<WhyTarget> targetOfRaceLine(int row);
std::optional<WhyTarget> targetOfEntryLine(int row);

} // namespace quillon
