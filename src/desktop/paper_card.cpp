#include "desktop/paper_card.h"

#include "card/race_card.h"
#include "desktop/card_texts.h"
#include "desktop/shown_text.h"
#include "rating/rating_display.h"
#include "reports/bet_mark.h"
#include "reports/card_overview.h"
#include "reports/ranked_row.h"
#include "results/card_notes.h"
#include "results/entry_marks.h"
#include "results/on_show.h"
#include "screen/race_views.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cstdlib>

namespace quillon {
namespace {

QString tr(const char* text) { return QCoreApplication::translate("PaperCard", text); }

QString plain(TextView text) { return shown(text).simplified(); }

// Red on blue is the same grey: a printer without colours has to tell them apart too.
constexpr int leastContrast = 80;

PaperNumber numberOf(const Cell& cell) {
    PaperNumber number{.text = plain(cell.text)};
    if (cell.background) number.cloth = shown(*cell.background);
    number.ink = cell.foreground ? shown(*cell.foreground) : legibleOn(number.cloth);
    if (std::abs(qGray(number.ink.rgb()) - qGray(number.cloth.rgb())) < leastContrast)
        number.ink = legibleOn(number.cloth);
    return number;
}

PaperNumber numberOf(TextView text) {
    Cell cell{.text = Text{text}};
    colourSaddleCloth(cell);
    return numberOf(cell);
}

// A call: the marks before it, the position, how far out, the marks after it.
QString callIn(const Grid& view, int entry, int before) {
    constexpr int cells = 4;
    QString call;
    for (int column = before; column < before + cells; ++column) call += plain(view.text(entry, column));
    return call;
}

PaperLine lineOf(const Grid& view, int entry) {
    const auto cell = [&](int column) { return plain(view.text(entry, column)); };
    return {cell(RaceColumn::track),
            cell(RaceColumn::purse),
            cell(RaceColumn::classText),
            cell(RaceColumn::classRating),
            cell(RaceColumn::leaderQuarter),
            cell(RaceColumn::leaderHalf),
            cell(RaceColumn::leaderThreeQuarters),
            cell(RaceColumn::leaderFinish),
            cell(RaceColumn::linePost),
            callIn(view, entry, RaceColumn::firstBefore),
            callIn(view, entry, RaceColumn::secondBefore),
            callIn(view, entry, RaceColumn::thirdBefore),
            cell(RaceColumn::stretch) + QChar{'/'} + cell(RaceColumn::finish),
            cell(RaceColumn::lastQuarter),
            cell(RaceColumn::finalTime)};
}

QString placeInShort(int place) {
    if (place == fifthPlace) return tr("5th");
    return place > 0 ? QString{"S%1"}.arg(place) : QString{};
}

QString driverOf(const Grid& view, int entry) {
    const QString udr = plain(view.text(entry, RaceColumn::udr));
    const QString name = plain(view.text(entry, RaceColumn::driver));
    return udr.isEmpty() ? name : name + "  " + udr;
}

// "wants the rail; Rosario, I: new colours": whose they are, but for those on the one they stand beside.
QString wordsOf(const std::vector<NoteLine>& found, TextView beside) {
    QStringList words;
    for (const NoteLine& note : found)
        words << (upperCase(trimmed(note.name)) == upperCase(trimmed(beside))
                      ? shown(note.text)
                      : tr("%1: %2").arg(shown(note.name), shown(note.text)));
    return words.join("; ");
}

PaperEntry entryOf(const Grid& view, int race, int row) {
    const EntryMarks marks = entryMarks(race, row);
    PaperEntry entry;
    entry.number = numberOf(view.read(row, RaceColumn::programNumber));
    entry.horse = plain(horseIn(race, row));
    entry.driver = driverOf(view, row);
    entry.morningLine = plain(view.text(row, RaceColumn::morningOdds));
    entry.post = plain(view.text(row, RaceColumn::post));
    entry.rating = plain(view.text(row, RaceColumn::rating));
    entry.place = placeInShort(marks.place);
    entry.note = wordsOf(notesOnEntry(race, row), horseIn(race, row));
    entry.isOut = marks.isOut();
    if (entry.isOut) entry.place = tr("out");
    if (entry.isOut)
        entry.noLine = marks.removed ? tr("removed") : tr("scratched");
    else if (isFirstStart(race, row))
        entry.noLine = tr("first start");
    else
        entry.line = lineOf(view, row);
    return entry;
}

// "$17,500"; what is no number stays as it is.
QString purseOf(const RaceInfo& info) {
    const QString stored = plain(info.purse);
    bool isNumber = false;
    const double dollars = QString{stored}.remove('$').remove(',').toDouble(&isNumber);
    return isNumber ? '$' + QLocale{QLocale::English}.toString(qRound64(dollars)) : stored;
}

// The track's description is a row of a table, columns blanks apart: its name stands first.
QString trackName() { return shown(card.raceInfo[{1}].trackInfo).trimmed().section("  ", 0, 0); }

QString factsOf(const RaceInfo& info) {
    const QString distance = plain(info.distance);
    const QString rating = plain(info.todaysCr);
    QStringList facts{plain(info.postTime), plain(info.gait),
                      distance.isEmpty() ? distance : tr("%1 Mi").arg(distance), purseOf(info),
                      rating.isEmpty() ? rating : tr("CR %1").arg(rating)};
    facts.removeAll(QString{});
    return facts.join("   ");
}

PaperRace raceOf(int race) {
    const RaceInfo& info = card.raceInfo[{race}];
    PaperRace made;
    made.label = plain(info.label);
    made.postTime = plain(info.postTime);
    made.facts = factsOf(info);
    made.gait = plain(info.gait);
    made.distance = plain(info.distance);
    made.purse = purseOf(info);
    made.conditions = plain(info.classText);
    made.wagering = plain(info.wagering);
    const std::vector<NoteLine> found = notes.onRace(race);
    if (!found.empty()) made.note = wordsOf(found, found.front().name);
    const Grid& view = theScreen.raceView.at(static_cast<std::size_t>(race));
    for (int row = Grid::firstRow; row <= ratedEntries; ++row)
        if (!horseIn(race, row).empty()) made.entries.push_back(entryOf(view, race, row));
    for (std::size_t place = 0; place < made.selections.size(); ++place) {
        const RankedRow row = rankedRow(race, static_cast<int>(place) + 1);
        made.selections.at(place) = {numberOf(row.pn), plain(row.name), plain(row.pr)};
    }
    const ShownMargin margin = shownMargin(race);
    made.margin = plain(margin.margin);
    made.betMark = plain(margin.mark);
    made.isClear = margin.points >= clearMargin;
    return made;
}

} // namespace

PaperCard paperCard() {
    notes.takeUp();
    PaperCard made;
    made.title = cardTitle();
    made.track = trackName();
    for (int race = 1; race <= std::min<int>(card.raceCount, ratedRaces); ++race)
        made.races.push_back(raceOf(race));
    return made;
}

} // namespace quillon
