#include "desktop/menus.h"

#include "desktop/change_texts.h"
#include "desktop/command_texts.h"
#include "desktop/shown_text.h"

#include <array>

namespace quillon {
namespace {

// clang-format off
struct MenuTitle { Menu menu; const char* title; };
constexpr std::array menuTitles{
    MenuTitle{Menu::file,       "&File"},
    MenuTitle{Menu::edit,       "&Edit"},
    MenuTitle{Menu::navigation, "&Navigation"},
    MenuTitle{Menu::tools,      "&Tools"},
    MenuTitle{Menu::editor,     "E&ditor"},
    MenuTitle{Menu::analysis,   "&Analysis"},
    MenuTitle{Menu::profiles,   "&Betting Profiles"},
    MenuTitle{Menu::help,       "&Help"},
};
// clang-format on

// The caption with its letter underlined; an "&" of the caption itself stays one.
QString withMnemonic(const QString& caption, char letter) {
    QString text = caption.simplified();
    text.replace("&", "&&");
    const auto at = text.indexOf(QChar{letter}, 0, Qt::CaseSensitive);
    if (at >= 0) text.insert(at, '&');
    return text;
}

} // namespace

Menus::Menus(QMenuBar& bar, CommandRunner& runner, QObject* parent) : QObject{parent}, runner_{runner} {
    for (const MenuTitle& row : menuTitles) {
        const bool isSubmenu = row.menu == Menu::profiles;
        QMenu* menu =
            isSubmenu ? menus_.at(Menu::analysis)->addMenu(tr(row.title)) : bar.addMenu(tr(row.title));
        menu->setToolTipsVisible(true);
        menus_[row.menu] = menu;
    }
    menus_[Menu::fileFoot] = menus_.at(Menu::file);
    menus_[Menu::walk] = menus_.at(Menu::navigation);
    addCommands(Menu::walk);
    menus_.at(Menu::walk)->addSeparator();
    for (const MenuTitle& row : menuTitles) addCommands(row.menu);
    addCommands(Menu::fileFoot);
    menus_.at(Menu::file)->insertAction(action(CommandId::Exit_QL), action(CommandId::PrintNotes));
}

void Menus::addCommands(Menu menu) {
    for (const Command& command : commandTable())
        if (command.item.menu == menu) addCommand(*menus_.at(menu), command);
}

void Menus::addCommand(QMenu& menu, const Command& command) {
    const CommandItem& item = command.item;
    QAction* action = menu.addAction(withMnemonic(shown(item.caption), item.letter));
    action->setObjectName(command.name);
    setCommand(*action, command.id);
    action->setMenuRole(QAction::NoRole);
    if (*item.keys != '\0') action->setShortcuts(QKeySequence::listFromString(item.keys));
    action->setStatusTip(tr(item.hint));
    action->setToolTip(tr(item.hint));
    action->setCheckable(item.hasMark);
    connect(action, &QAction::triggered, this, [this, id = command.id] {
        runner_.run(id);
        refresh(); // the mark is the screen's, not the click's
    });
    actions_[command.id] = action;
}

void Menus::refresh() {
    for (const auto& [id, action] : actions_) {
        const MenuState& state = theScreen.item(id);
        action->setVisible(state.visible);
        action->setEnabled(CommandRunner::canRun(id));
        if (action->isCheckable()) action->setChecked(state.checked);
    }
    nameChange(CommandId::Undo, changes.canUndo() ? &changes.last() : nullptr);
    nameChange(CommandId::Redo, changes.canRedo() ? &changes.next() : nullptr);
}

// The hint of an item that works on one change says which.
void Menus::nameChange(CommandId id, const Change* change) {
    QString hint = tr(command(id).item.hint);
    if (change) hint = captionOf(id) + ": " + wordsOf(*change);
    action(id)->setToolTip(hint);
    action(id)->setStatusTip(hint);
}

QAction* Menus::action(CommandId id) const {
    const auto found = actions_.find(id);
    return found == actions_.end() ? nullptr : found->second;
}

QMenu* Menus::menu(Menu menu) const {
    const auto found = menus_.find(menu);
    return found == menus_.end() ? nullptr : found->second;
}

} // namespace quillon
