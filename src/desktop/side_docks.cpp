#include "desktop/side_docks.h"

#include "desktop/cell_table_view.h"
#include "desktop/changes_dock.h"
#include "desktop/notes_panel.h"
#include "desktop/past_lines_panel.h"
#include "desktop/race_panel.h"
#include "desktop/tickets_panel.h"
#include "desktop/view_menu.h"
#include "desktop/why_dock.h"
#include "desktop/worth_panel.h"

#include <QApplication>

namespace quillon {

SideDocks::SideDocks(CommandRunner& runner, Appearance& appearance, QMainWindow& window)
    : QObject{&window}, changes_{new ChangesDock{runner, appearance, window}}, why_{new WhyDock{appearance,
                                                                                                window}},
      worthDock_{new SideDock{tr("Worth"), "WorthDock", appearance, window}}, worth_{new WorthPanel{
                                                                                  appearance, worthDock_}},
      ticketsDock_{new SideDock{tr("Tickets"), "TicketsDock", appearance, window}},
      tickets_{new TicketsPanel{appearance, ticketsDock_}}, notesDock_{new SideDock{tr("Notes"), "NotesDock",
                                                                                    appearance, window}},
      notes_{new NotesPanel{runner, appearance, notesDock_}} {
    worthDock_->setWidget(worth_);
    ticketsDock_->setWidget(tickets_);
    notesDock_->setWidget(notes_);
    for (const SideDock* dock : {worthDock_, ticketsDock_})
        connect(dock, &QDockWidget::visibilityChanged, this, &SideDocks::refreshWorth);
    // On its own it is a window, which must be the active one to be typed in.
    connect(notesDock_, &QDockWidget::visibilityChanged, this, [this](bool isVisible) {
        if (isVisible && notesDock_->isFloating()) notesDock_->activateWindow();
    });
}

void SideDocks::follow(const RacePanel& race, const PastLinesPanel& pastLines) {
    auto& entries = *race.findChild<CellTableView*>();
    changes_->leaveKeyTo(entries);
    why_->follow(entries, *pastLines.findChild<CellTableView*>("RaceLines"),
                 *pastLines.findChild<CellTableView*>("EntryLines"));
    notes_->follow(entries);
}

void SideDocks::addItems(ViewMenu& menu) {
    menu.addDock(tr("Chan&ges"), "Changes", "F2",
                 tr("What was changed on the card, and the program's selections beside mine"), *changes_);
    menu.addDock(tr("&Why"), "Why", "Shift+F2",
                 tr("Why a line is rated and chosen, and an entry has its place"), *why_);
    menu.addDock(tr("Wort&h"), "Worth", "Shift+F6", tr("Chances and fair odds of the race's entries"),
                 *worthDock_);
    menu.addDock(tr("Ti&ckets"), "Tickets", "Shift+F7", tr("What tickets cost; nothing is bet"),
                 *ticketsDock_);
    menu.addDock(tr("&Notes"), "Notes", "Ctrl+N", tr("Notes on the race, its horses, drivers and trainers"),
                 *notesDock_);
}

void SideDocks::refresh() {
    changes_->refresh();
    why_->refresh();
    refreshWorth();
    notes_->refresh();
}

// The saved cards are read for no one who doesn't look.
void SideDocks::refreshWorth() {
    if (worthDock_->isVisible()) worth_->refresh();
    if (ticketsDock_->isVisible()) tickets_->refresh();
}

QString SideDocks::guidesPlace() const {
    const QWidget* focused = QApplication::focusWidget();
    if (worthDock_->isAncestorOf(focused)) return "What an entry is worth";
    if (ticketsDock_->isAncestorOf(focused)) return "Tickets";
    if (notesDock_->isAncestorOf(focused)) return "Notes";
    return {};
}

} // namespace quillon
