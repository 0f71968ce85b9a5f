#include "desktop/change_texts.h"

#include "app/change_words.h"
#include "desktop/shown_text.h"

#include <QObject>

namespace quillon {
namespace {

constexpr QChar arrow{0x2192};
constexpr QChar nobody{0x2013};

QString numberOf(const Text& number) { return number.empty() ? QString{nobody} : shown(number); }

} // namespace

QString wordsOf(const Change& change) {
    QString words = change.race == 0 ? QObject::tr("Card: ") : QObject::tr("Race %1: ").arg(change.race);
    words += shown(change.what);
    for (const MovedPlace& moved : movedPlaces(change))
        words += QString{", S%1 %2 %3 %4"}
                     .arg(moved.place)
                     .arg(numberOf(moved.before), arrow, numberOf(moved.after));
    return words;
}

} // namespace quillon
