#include "desktop/card_keeping.h"

#include "core/failure.h"
#include "day/keeping.h"
#include "day/recovery.h"
#include "desktop/card_texts.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

namespace quillon {
namespace {

const QString leftBehindKey = QStringLiteral("leftBehind");

// "20:14", with its day where that is not today.
QString whenKept(const RecoveryHeading& heading) {
    const QDateTime time = QDateTime::fromString(shown(heading.time), "yyyyMMdd hhmmss");
    const bool isToday = time.date() == QDate::currentDate();
    return QLocale{QLocale::English}.toString(time, isToday ? "hh:mm" : "d MMMM yyyy, hh:mm");
}

QString leftBehindWords(const RecoveryHeading& heading) {
    const QString count =
        heading.changes == 1 ? QObject::tr("1 change") : QObject::tr("%1 changes").arg(heading.changes);
    return QObject::tr("Quillon ended without a close. What it kept: %1, %2, %3.")
        .arg(cardTitle(heading.cardName), count, whenKept(heading));
}

} // namespace

CardKeeping::CardKeeping(CommandRunner& runner, NoticeBar& bar) : QObject{&bar}, runner_{runner}, bar_{bar} {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, [] { attempt(KeepCardWhenDue); });
    connect(&runner_, &CommandRunner::ran, this, &CardKeeping::takeUp);
    // Every end of the window has asked for unsaved changes: these were to be discarded.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [] { attempt(stopKeeping); });
    offer();
}

void CardKeeping::takeUp(CommandId id) {
    const auto due = keepingDueIn();
    if (!due)
        timer_.stop();
    else if (!timer_.isActive())
        timer_.start(*due);
    if (id == CommandId::Recover || id == CommandId::Forget) offer();
}

void CardKeeping::offer() {
    const LeftBehind* left = nullptr;
    attempt([&] { left = leftBehind(); });
    if (!left) return bar_.take(leftBehindKey);
    const auto restore = [this] { runner_.run(CommandId::Recover); };
    const auto putAway = [this] { runner_.run(CommandId::Forget); };
    bar_.put({.key = leftBehindKey,
              .text = leftBehindWords(left->heading),
              .actions = {{tr("Restore"), restore}, {tr("Put Away"), putAway}}});
}

} // namespace quillon
