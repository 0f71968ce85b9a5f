#include "desktop/mark_texts.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "desktop/shown_text.h"

#include <QCoreApplication>
#include <QDate>
#include <QLocale>
#include <QStringList>

namespace quillon {
namespace {

constexpr QChar lineSign{0x25B6}; // as at the line in the entry's frame
constexpr QChar driverSign{'D'};
constexpr QChar typedSign{'*'};
constexpr QChar noteSign{'N'};
constexpr int fifth = 5;

QString tr(const char* text) { return QCoreApplication::translate("Marks", text); }

QString placeInWords(int place) {
    return place == fifth ? tr("The fifth horse, after S1 to S4") : tr("Selection S%1").arg(place);
}

// The places before and after a call have no heads.
QString columnsInWords(const std::vector<int>& columns) {
    QStringList heads;
    bool anyCall = false;
    for (const int column : columns) {
        const QString head = shown(raceColumns()[static_cast<std::size_t>(column)].head);
        anyCall = anyCall || head.isEmpty();
        if (!head.isEmpty()) heads += head;
    }
    if (anyCall) heads += tr("marks at the calls");
    return heads.join(", ");
}

} // namespace

QString signOf(const EntryMarks& marks, bool hasNotes) {
    QStringList parts;
    if (marks.place > 0) parts += QString{"S%1"}.arg(marks.place);
    if (marks.scratched) parts += tr("Scr");
    if (marks.removed) parts += tr("X");
    QString rest;
    if (marks.lineTaken) rest += lineSign;
    if (marks.driverChanged) rest += driverSign;
    if (!marks.typedColumns.empty()) rest += typedSign;
    if (hasNotes) rest += noteSign;
    if (!rest.isEmpty()) parts += rest;
    return parts.join(' ');
}

QString longestSign() {
    EntryMarks all;
    all.place = 1;
    all.lineTaken = all.driverChanged = true;
    all.typedColumns = {RaceColumn::classText};
    return signOf(all, true);
}

QString wordsOf(const NoteLine& note) {
    const QString stored = shown(note.date);
    const QDate date = QDate::fromString(stored, QStringLiteral("yyyyMMdd"));
    const QString day = date.isValid() ? QLocale{QLocale::English}.toString(date, "d MMMM yyyy") : stored;
    return tr("%1, %2 (%3): %4").arg(shown(note.name), day, shown(note.card), shown(note.text));
}

QString wordsOf(const EntryMarks& marks, const std::vector<NoteLine>& found) {
    QStringList lines;
    if (marks.place > 0) lines += placeInWords(marks.place);
    if (marks.scratched) lines += tr("Scratched, with a refund");
    if (marks.removed) lines += tr("Removed, without a refund");
    if (marks.lineTaken) lines += tr("A line of your choice, in place of the program's");
    if (marks.driverChanged) {
        const QString before = shown(trimmed(marks.driverBefore));
        lines += before.isEmpty() ? tr("Another driver") : tr("Another driver, in place of %1").arg(before);
    }
    if (!marks.typedColumns.empty()) lines += tr("Typed by you: %1").arg(columnsInWords(marks.typedColumns));
    for (const NoteLine& note : found) lines += wordsOf(note);
    return lines.join('\n');
}

bool ChangedRaces::isChanged(int race) {
    if (race < 1 || race > ratedRaces) return false;
    const auto at = static_cast<std::size_t>(race);
    if (races_.size() <= at) races_.resize(at + 1);
    const Known now{theScreen.raceView.at(at).version(), static_cast<int>(theScreen.mode), false};
    Known& known = races_[at];
    if (known.version != now.version || known.mode != now.mode) {
        known = now;
        known.changed = quillon::isChanged(race);
    }
    return known.changed;
}

} // namespace quillon
