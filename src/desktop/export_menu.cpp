#include "desktop/export_menu.h"

#include "card/card_files.h"
#include "card/race_card.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"
#include "results/on_show.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <array>

namespace quillon {
namespace {

bool raceIsShown() { return cardIsOpen() && theScreen.racePanelsVisible; }
Text numbered(const char* name, int number) { return name + (" " + std::to_string(number)); }

// clang-format off
struct ExportItem {
    const char* name;
    const char* caption;
    bool (*isShown)();
    Text (*part)();
};
constexpr std::array items{
    ExportItem{"ExportEntries",  "&Entries of the Race...",    raceIsShown,                              [] { return numbered("raceview", raceViewOnShow()); }},
    ExportItem{"ExportLines",    "Past &Lines of the Race...", [] { return raceIsShown() && raceLinesOnShow() > 0; }, [] { return numbered("dataview", raceLinesOnShow()); }},
    ExportItem{"ExportOverview", "Card &Overview...",          raceIsShown,                              [] { return Text{"overview"}; }},
    ExportItem{"ExportSummary",  "&Summary...",                [] { return theScreen.summaryVisible; },  [] { return Text{"summary"}; }},
    ExportItem{"ExportProfile",  "&Betting Profile...",        [] { return theScreen.profileVisible; },  [] { return Text{"profile"}; }},
    ExportItem{"ExportTracks",   "&Tracks Profile...",         [] { return theScreen.tracksVisible; },   [] { return Text{"tracks"}; }},
    ExportItem{"ExportPicks",    "&Pick Results...",           [] { return theScreen.picksVisible; },    [] { return Text{"picks"}; }},
    ExportItem{"ExportStars",    "St&ars Profile...",          [] { return theScreen.starsVisible; },    [] { return Text{"stars"}; }},
};
struct Filter { const char* caption; const char* ending; };
constexpr std::array filters{
    Filter{"Comma-separated (*.csv)", ".csv"},
    Filter{"Tab-separated (*.tsv)",   ".tsv"},
    Filter{"JSON (*.json)",           ".json"},
};
// clang-format on

} // namespace

ExportMenu::ExportMenu(CommandRunner& runner, QWidget* window)
    : QMenu{tr("&Export"), window}, runner_{runner}, window_{window} {
    askForFile = [this](const QString& suggested) { return askBySystem(suggested); };
    menuAction()->setObjectName("ExportMenu");
    menuAction()->setStatusTip(tr(command(CommandId::Export).item.hint));
    for (std::size_t at = 0; at < items.size(); ++at) {
        QAction* action = addAction(tr(items[at].caption));
        action->setObjectName(items[at].name);
        action->setStatusTip(tr(command(CommandId::Export).item.hint));
        setCommand(*action, CommandId::Export);
        connect(action, &QAction::triggered, this, [this, at] { exportTable(at); });
        actions_.push_back(action);
    }
    refresh();
}

void ExportMenu::refresh() {
    for (std::size_t at = 0; at < items.size(); ++at) actions_[at]->setEnabled(items[at].isShown());
}

// A file of one of the forms: without an ending it gets that of the chosen form.
QString ExportMenu::askBySystem(const QString& suggested) {
    QStringList captions;
    for (const Filter& filter : filters) captions += tr(filter.caption);
    QString chosen;
    QString path =
        QFileDialog::getSaveFileName(window_, tr("Export"), suggested, captions.join(";;"), &chosen);
    if (path.isEmpty()) return {};
    for (const Filter& filter : filters)
        if (path.endsWith(filter.ending, Qt::CaseInsensitive)) return path;
    const auto at = static_cast<std::size_t>(std::max(0, static_cast<int>(captions.indexOf(chosen))));
    return path + filters[at].ending;
}

void ExportMenu::exportTable(std::size_t item) {
    const Text part = items[item].part();
    const QString card = shown(cardNameOf(quillon::card.cardFileName));
    const QString name = (card + " " + shown(part)).trimmed().replace(' ', '_') + filters.front().ending;
    const QString path = askForFile(QDir::current().absoluteFilePath(name));
    if (path.isEmpty()) return;
    const Text file = typed(path);
    if (shown(file) != path)
        return emit notWritten(tr("The name has letters that Quillon does not know: %1").arg(path));
    const QFileInfo before{path};
    if (!runner_.run(CommandId::Export, textArgument(part + " " + file))) return;
    if (QFileInfo::exists(path)) emit written(QDir::toNativeSeparators(before.absoluteFilePath()));
}

} // namespace quillon
