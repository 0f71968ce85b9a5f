// The menus, made from the command table: what stands in an item is the table's, its state the screen's.
#pragma once

#include "day/changes.h"
#include "desktop/command_runner.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QObject>

#include <map>

namespace quillon {

class Menus : public QObject {
    Q_OBJECT

public:
    Menus(QMenuBar& bar, CommandRunner& runner, QObject* parent);

    /// Enabled, visible and checked as the screen says.
    void refresh();

    /// The item of a command; every command with a menu has one.
    QAction* action(CommandId id) const;

    QMenu* menu(Menu menu) const; ///< none for `Menu::none`

private:
    void addCommands(Menu menu);
    void addCommand(QMenu& menu, const Command& command);
    void nameChange(CommandId id, const Change* change);

    CommandRunner& runner_;
    std::map<Menu, QMenu*> menus_;
    std::map<CommandId, QAction*> actions_;
};

} // namespace quillon
