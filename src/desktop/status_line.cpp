#include "desktop/status_line.h"

#include "card/race_card.h"
#include "day/changes.h"
#include "desktop/shown_text.h"

namespace quillon {

StatusLine::StatusLine(CommandRunner& runner, const DesktopPorts& ports, QStatusBar& bar)
    : QObject{&bar}, ports_{ports}, bar_{bar} {
    connect(&runner, &CommandRunner::aboutToRun, this, [this] { cardName_ = card.cardFileName; });
    connect(&runner, &CommandRunner::ran, this, &StatusLine::tellSaved);
    connect(&runner, &CommandRunner::ran, this, &StatusLine::tellRecorded);
    connect(&ports, &DesktopPorts::couldNot, this, [this](const QString& what) { bar_.showMessage(what); });
    connect(&ports, &DesktopPorts::noted, this, &StatusLine::tell);
}

void StatusLine::tell(const QString& text) {
    constexpr int longEnoughToRead = 20000; // milliseconds
    bar_.showMessage(text, longEnoughToRead);
}

// A save that went well says nothing of its own.
void StatusLine::tellSaved(CommandId id) {
    constexpr int aGlance = 8000; // milliseconds
    if (ports_.errorShown()) return;
    if (id == CommandId::Save && cardIsOpen())
        bar_.showMessage(tr("The card is saved as %1").arg(shown(card.cardFileName)), aGlance);
    if (id == CommandId::CloseRC && !cardIsOpen() && !cardName_.empty())
        tell(tr("%1 is saved, with its results and all changes, and closed").arg(shown(cardName_)));
}

// A step back does not reach the archive.
void StatusLine::tellRecorded(CommandId id) {
    const bool isStep = id == CommandId::Undo || id == CommandId::Redo || id == CommandId::UndoTo;
    if (isStep && changes.isRecorded())
        tell(tr("The archive keeps its record of this card as it was recorded"));
}

} // namespace quillon
