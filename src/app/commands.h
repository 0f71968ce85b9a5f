// The command table: a row for each thing a user can do. The window builds its menus and buttons from it, the
// console its commands.
#pragma once

#include "core/text.h"
#include "screen/screen.h"

#include <array>
#include <optional>
#include <span>

namespace quillon {

/// What a command takes, in the order it is given.
enum class Takes {
    nothing,
    number,
    text,
    numberAndText,
    cell, ///< race, row, column, text
};

struct Arguments {
    std::array<int, 3> numbers{};
    Text text{};
};

enum class Menu { none, file, navigation, tools, editor, analysis, profiles, help };

struct Command {
    const char* name;
    const char* caption; ///< of the menu item or button; "" for boxes and lists
    Menu menu;
    Takes takes;
    const char* argumentNames; ///< as a usage line shows them: "n TEXT"
    void (*run)(const Arguments& arguments);
    std::optional<MenuItem> item;                  ///< its state in the menus, for commands that have one
    bool (*available)(const Arguments&) = nullptr; ///< beyond the menu's state; nullptr is always
};

std::span<const Command> commandTable();

/// The row of this name (case counts), or nullptr.
const Command* findCommand(TextView name);

/// Whether the user can press it now: its menu item is shown and enabled, its button or list is there.
bool isAvailable(const Command& command, const Arguments& arguments);

/// Runs an available command to its end. No failure leaves it.
void runCommand(const Command& command, const Arguments& arguments);

} // namespace quillon
