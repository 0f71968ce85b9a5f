// The docks beside the race: changes, why, worth, tickets, notes.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QMainWindow>
#include <QString>

namespace quillon {

class ChangesDock;
class NotesPanel;
class PastLinesPanel;
class RacePanel;
class SideDock;
class TicketsPanel;
class ViewMenu;
class WhyDock;
class WorthPanel;

class SideDocks : public QObject {
    Q_OBJECT

public:
    SideDocks(CommandRunner& runner, Appearance& appearance, QMainWindow& window);

    /// The tables whose row on show they follow.
    void follow(const RacePanel& race, const PastLinesPanel& pastLines);

    void addItems(ViewMenu& menu);
    void refresh();

    /// The guide's heading of the dock that has the focus; empty without one.
    QString guidesPlace() const;

private:
    void refreshWorth();

    ChangesDock* changes_;
    WhyDock* why_;
    SideDock* worthDock_;
    WorthPanel* worth_;
    SideDock* ticketsDock_;
    TicketsPanel* tickets_;
    SideDock* notesDock_;
    NotesPanel* notes_;
};

} // namespace quillon
