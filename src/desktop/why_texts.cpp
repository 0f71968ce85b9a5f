#include "desktop/why_texts.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "desktop/shown_text.h"
#include "results/board.h"
#include "results/on_show.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <array>

namespace quillon {
namespace {

struct StepWords {
    TextView step;
    const char* words;
};

constexpr std::array steps{
    StepWords{"LastQuarterCalc", "First figure"},
    StepWords{"RangeTest", "Range"},
    StepWords{"Tracks", "Course"},
    StepWords{"LengthOfStretch", "Stretch"},
    StepWords{"PostPosition", "Post"},
    StepWords{"Last_PP", "Late post"},
    StepWords{"LeadHorse", "Lead"},
    StepWords{"ParkOuts", "Outside"},
    StepWords{"ParkOutsWind", "In the wind"},
    StepWords{"ParkOutsDouble", "Two wide"},
    StepWords{"LengthsGained", "Lengths"},
    StepWords{"QualifierCredit", "Qualifier"},
    StepWords{"ClassChange", "Class"},
    StepWords{"FavouriteCredit", "Favourite"},
    StepWords{"DriverRating", "Driver"},
    StepWords{"WPS", "Finish"},
    StepWords{"CloseLine", "Rating"},
};

QString words(const char* text) { return QCoreApplication::translate("Why", text); }

// The line of an entry whose row in the race's data view this is.
int lineInRow(int race, int entry, int row) {
    int line = 0;
    const Grid& view = theScreen.dataView.at(static_cast<std::size_t>(race));
    for (int above = row; above >= Grid::firstRow; --above) {
        if (lenientNumber(view.text(above, DataColumn::post)) != entry) break;
        ++line;
    }
    return line;
}

} // namespace

QString stepWords(TextView step) {
    const auto found =
        std::find_if(steps.begin(), steps.end(), [&](const StepWords& row) { return row.step == step; });
    return found == steps.end() ? shown(step) : words(found->words);
}

QString verdictWords(Verdict verdict) {
    switch (verdict) {
    case Verdict::chosen: return words("chosen");
    case Verdict::passedOver: return words("passed over");
    case Verdict::notLookedAt: break;
    }
    return words("not looked at");
}

int chosenOf(const std::vector<WhyLine>& lines) {
    const auto found = std::find_if(lines.begin(), lines.end(),
                                    [](const WhyLine& line) { return line.note.verdict == Verdict::chosen; });
    return found == lines.end() ? 0 : static_cast<int>(found - lines.begin()) + 1;
}

QString changedSince(int race, int entry, const std::vector<WhyLine>& lines) {
    const int chosen = chosenOf(lines);
    if (chosen == 0) return {};
    const TextView now = trimmed(card.entry(race, entry).rating);
    const TextView then = trimmed(lines[static_cast<std::size_t>(chosen - 1)].rating);
    if (lenientNumber(now) == lenientNumber(then)) return {};
    return words("Rated %1 now, not the %2 of its line: a scratch or a driver change moved it")
        .arg(shown(now), shown(then));
}

QString whyTip(const WhyTarget& target) {
    if (theScreen.mode == CardMode::recalled)
        return words("A recalled card does not know how its lines were rated");
    const auto lines = whyLines(target.race, target.entry);
    const int at = target.line > 0 ? target.line : chosenOf(lines);
    if (at < 1 || at > static_cast<int>(lines.size())) return {};
    const WhyLine& line = lines[static_cast<std::size_t>(at - 1)];
    QStringList tip;
    tip << words("Line %1, %2: %3").arg(at).arg(verdictWords(line.note.verdict), shown(line.note.reason));
    for (const RoadStep& step : line.road.steps)
        if (step.before != step.after)
            tip << QString{"%1   %2   %3"}.arg(shown(step.after).rightJustified(5, QChar{0x2007}),
                                               stepWords(step.name), shown(step.reason));
    tip << words("%1   the rating").arg(shown(trimmed(line.rating)).rightJustified(5, QChar{0x2007}));
    const QString changed = target.line > 0 ? QString{} : changedSince(target.race, target.entry, lines);
    if (!changed.isEmpty()) tip << changed;
    return tip.join('\n');
}

std::optional<WhyTarget> targetOfEntry(int row) {
    const int race = raceViewOnShow();
    if (row < Grid::firstRow || horseIn(race, row).empty()) return std::nullopt;
    return WhyTarget{race, row, 0};
}

std::optional<WhyTarget> targetOfRaceLine(int row) {
    const int race = raceLinesOnShow();
    if (race == 0 || row < Grid::firstRow) return std::nullopt;
    const Grid& view = theScreen.dataView.at(static_cast<std::size_t>(race));
    if (row >= view.rows()) return std::nullopt;
    const double post = lenientNumber(view.text(row, DataColumn::post));
    if (post < 1 || post >= entryExtent || view.text(row, DataColumn::date).empty()) return std::nullopt;
    const int entry = static_cast<int>(post);
    return WhyTarget{race, entry, lineInRow(race, entry, row)};
}

std::optional<WhyTarget> targetOfEntryLine(int row) {
    if (row < Grid::firstRow || theScreen.currentEntry < 1) return std::nullopt;
    const Text number = lineNumberIn(row);
    if (number.empty()) return std::nullopt;
    return targetOfRaceLine(static_cast<int>(lenientNumber(number)));
}

} // namespace quillon
