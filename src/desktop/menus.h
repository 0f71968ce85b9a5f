// The menus, made from the command table: captions and places are the table's, their states the screen's.
// Here stand the keys and the hints.
#pragma once

#include "desktop/command_runner.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QObject>

#include <map>
#include <string_view>
#include <vector>

namespace quillon {

class Menus : public QObject {
    Q_OBJECT

public:
    Menus(QMenuBar& bar, CommandRunner& runner, QObject* parent);

    /// Enabled, visible and checked as the screen says.
    void refresh();

    /// The item of a command; every command with a menu has one.
    QAction* action(std::string_view command) const;

    QMenu* menu(Menu menu) const; ///< none for `Menu::none`

private:
    void addCommands();
    void addWalk();
    QAction* addCommand(QMenu& menu, const Command& command);

    CommandRunner& runner_;
    std::map<Menu, QMenu*> menus_;
    std::map<std::string_view, QAction*> actions_;
};

} // namespace quillon
