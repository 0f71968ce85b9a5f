#include "desktop/window_notices.h"

#include "app/write_failures.h"
#include "card/race_card.h"
#include "core/failure.h"
#include "core/journal.h"
#include "desktop/card_texts.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"
#include "results/board.h"
#include "results/on_show.h"

#include <QDir>
#include <QLocale>

namespace quillon {
namespace {

const QString pendingKey = QStringLiteral("pending");
const QString refusalKey = QStringLiteral("refusal");
const QString horsesKey = QStringLiteral("horses");

bool isPass(CommandId id) { return id == CommandId::AutoRecord || id == CommandId::EBET; }

// As this system names it.
QString realPath(const FilePlace& place) {
    std::filesystem::path path;
    attempt([&] { path = place.name.empty() ? folderOnDisk(place.folder) : pathOnDisk(place); });
    const auto name = path.u8string();
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(name.data()), static_cast<qsizetype>(name.size()));
    return QDir::toNativeSeparators(QDir::current().absoluteFilePath(text));
}

QString passWords(int boards) {
    const int races = racesWithResults();
    const QString read =
        races == 1 ? QObject::tr("1 race has results") : QObject::tr("%1 races have results").arg(races);
    const QString wait = boards == 1 ? QObject::tr("1 board is not taken in yet")
                                     : QObject::tr("%1 boards are not taken in yet").arg(boards);
    return read + "; " + wait + '.';
}

} // namespace

WindowNotices::WindowNotices(CommandRunner& runner, NoticeBar& bar, QPushButton& faults)
    : QObject{&bar}, runner_{runner}, bar_{bar}, faults_{faults} {
    faults_.setObjectName("FaultBadge");
    faults_.setFlat(true);
    faults_.setToolTip(tr("What was passed over in tables and files since the start"));
    connect(&runner_, &CommandRunner::ran, this, &WindowNotices::takeUp);
    writeFailureWatch = [this](const WriteFailure& failure) { tellWriteFailure(failure); };
}

WindowNotices::~WindowNotices() { writeFailureWatch = nullptr; }

void WindowNotices::takeUp(CommandId id) {
    bar_.take(refusalKey);
    const int boards = boardsPending();
    if (isPass(id) && racesWithResults() == 0)
        tellRefusal(tr("The results text holds no result of this card yet: open it with Navigation > Results "
                       "(F11), paste the page into it and save it."),
                    CommandId::count);
    if (boards == 0) return bar_.take(pendingKey);
    if (isPass(id)) return tellPending(passWords(boards));
    const bool isOnShow = !bar_.textOf(pendingKey).isEmpty();
    if (id == CommandId::SelectionResults || (isOnShow && theScreen.summaryVisible))
        return tellPending(pendingWords(boards));
    if (isOnShow) tellPending(passWords(boards));
}

// The sums of a summary on show are those from before its boards were taken in.
void WindowNotices::tellPending(const QString& text) {
    const auto takeAllIn = [this] {
        const bool isSummary = theScreen.summaryVisible;
        runner_.run(CommandId::TakeAllIn);
        if (isSummary) runner_.run(CommandId::SelectionResults);
    };
    bar_.put({.key = pendingKey, .text = text, .actions = {{tr("Take All In"), takeAllIn}}});
}

void WindowNotices::tellRefusal(const QString& reason, CommandId instead) {
    Notice notice{.key = refusalKey, .text = reason};
    if (instead != CommandId::count) {
        notice.actions = {{buttonCaption(instead), [this, instead] { runner_.run(instead); }}};
    }
    bar_.put(notice);
}

// Once a race, until it is read.
void WindowNotices::tellMoreHorses() {
    const int race = cardIsOpen() ? raceOnShow() : 0;
    const int horses = horsesIn(race);
    if (race == raceLookedAt_ && horses == horsesThere_) return;
    raceLookedAt_ = race;
    horsesThere_ = horses;
    if (horses <= ratedEntries) return bar_.take(horsesKey);
    bar_.put(
        {.key = horsesKey,
         .text =
             tr("Race %1 has %2 entries: %3 are shown and rated.").arg(race).arg(horses).arg(ratedEntries)});
}

void WindowNotices::tellWriteFailure(const WriteFailure& failure) {
    const QString path = realPath(failure.place);
    const QString cause = QString::fromStdString(causeInWords(failure.cause));
    bar_.put(
        {.key = "write." + path,
         .text = tr("%1 can't be written: %2. So %3.").arg(path, cause, shown(meaningOf(failure.place)))});
}

void WindowNotices::refresh() {
    tellMoreHorses();
    const auto count = journal.count();
    faults_.setVisible(count > 0);
    const QString number = QLocale{QLocale::English}.toString(qulonglong{count});
    faults_.setText(count == 1 ? tr("1 fault") : tr("%1 faults").arg(number));
    faults_.setAccessibleName(tr("Fault journal: %1").arg(faults_.text()));
}

} // namespace quillon
