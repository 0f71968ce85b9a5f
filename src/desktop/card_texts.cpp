#include "desktop/card_texts.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "desktop/shown_text.h"

#include <QDate>
#include <QLocale>
#include <QObject>

namespace quillon {

QString cardTitle() { return cardTitle(card.cardFileName); }

QString cardTitle(TextView fileName) {
    constexpr int digits = 8;
    const QString name = shown(fileName).section('.', 0, 0);
    const auto underscore = name.indexOf('_');
    const QDate date = QDate::fromString(name.mid(underscore + 1, digits), "yyyyMMdd");
    if (underscore < 1 || !date.isValid()) return name;
    return name.left(underscore).trimmed() + ", " +
           QLocale{QLocale::English}.toString(date, "dddd d MMMM yyyy");
}

int boardsPending() {
    int boards = 0;
    for (int race = 1; race < boardRaces; ++race)
        if (theScreen.boardsToTakeIn[{race}] != 0) ++boards;
    return boards;
}

QString pendingWords(int boards) {
    return boards == 1
               ? QObject::tr("1 race is not taken in: its exacta, trifecta and superfecta don't count yet.")
               : QObject::tr("%1 races are not taken in: exactas, trifectas and superfectas of those "
                             "don't count yet.")
                     .arg(boards);
}

int racesWithResults() {
    int races = 0;
    for (int race = 1; race <= card.raceCount && race < raceExtent; ++race)
        if (!trimmed(card.raceOutcome[{race, OutcomeCell::r1}]).empty()) ++races;
    return races;
}

} // namespace quillon
