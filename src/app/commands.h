// The command table: a row for each thing a user can do, with all that the front ends say and ask of it. The
// console takes its commands from it, the window its menus, buttons, keys and tips.
#pragma once

#include "app/arguments.h"
#include "core/text.h"
#include "screen/command_id.h"

#include <span>

namespace quillon {

/// What becomes of the open card when the command is run.
enum class Effect {
    keepsCard,    ///< nothing: the user looks at it, or reports and sums are made of it
    opensCard,    ///< another card takes its place
    restoresCard, ///< another card takes its place, with the changes that were made there
    closesCard,   ///< saved and put away
    savesCard,    ///< as it stands
    recordsCard,  ///< in the archive, which no step back takes back
    /// The store, a view or box of a race, or a file of the card may differ afterwards: a step that can be
    /// taken back.
    changesCard,
    takesBoard,      ///< the same, by taking the board into the store on the way to another race
    dropsTyping,     ///< the board is shown anew without being stored: what was typed and not stored is gone
    changesAndDrops, ///< both: results are read, and the board is shown anew
};

/// The menu that a command stands in.
enum class Menu {
    none,
    edit, ///< beyond the menus of old: not told among them
    walk, ///< the head of the navigation menu: commands with a button of their own, here for the keyboard
    file,
    fileFoot, ///< its lower part: beyond the menus of old, too
    navigation,
    tools,
    editor,
    analysis,
    profiles,
    help,
};

/// How a command is reached and called in the window: its menu item, its button, or its list.
struct CommandItem {
    Menu menu = Menu::none;
    char letter = '\0';       ///< of the caption, underlined in the menu
    const char* keys = "";    ///< "Ctrl+S"; several are separated by "; "
    const char* caption = ""; ///< of the menu item, the button or the list; "" for boxes and cells
    const char* hint = ""; ///< what it does; %1 is the race or horse of a button that stands in a row of many
    bool hasMark = false;  ///< switches something on and off, which a mark tells
};

struct Command {
    CommandId id{};
    const char* name = "";
    void (*run)(const Arguments& arguments) = nullptr;
    Effect effect = Effect::keepsCard;
    CommandItem item{};
    Takes takes = Takes::nothing;
    const char* argumentNames = "";                ///< as a usage line shows them: "n TEXT"
    bool (*available)(const Arguments&) = nullptr; ///< beyond the state of its menu item; nullptr is always
    bool (*isWellFormed)(const Text&) = nullptr;   ///< of a text with a form of its own; nullptr is any
};

/// All rows, in the order of their ids.
std::span<const Command> commandTable();

/// The row of an id.
const Command& command(CommandId id);

/// The row of this name (case counts), or nullptr.
const Command* findCommand(TextView name, std::span<const Command> commands = commandTable());

/// Whether it is an item of a menu, whose state is the screen's.
bool isMenuItem(const Command& command);

/// Whether a text that it is given has the form that it wants.
bool hasForm(const Command& command, const Text& text);

/// Whether running it may be a change of the card, and whether it may lose what was typed on the board.
bool mayChangeCard(const Command& command);
bool mayDropTyping(const Command& command);

/// Whether the user can press it now: its menu item is shown and enabled, its button or list is there.
bool isAvailable(const Command& command, const Arguments& arguments);

/// Runs an available command to its end. No failure leaves it.
void runCommand(const Command& command, const Arguments& arguments);

} // namespace quillon
