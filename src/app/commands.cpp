#include "app/commands.h"

#include "core/failure.h"

#include <algorithm>

namespace quillon {
namespace {

// clang-format off
constexpr std::array commands{
    Command{"About", "About", Menu::help, Takes::nothing, "", [](const Arguments&) {}, MenuItem::About},
};
// clang-format on

} // namespace

std::span<const Command> commandTable() { return commands; }

const Command* findCommand(TextView name) {
    const auto found =
        std::find_if(commands.begin(), commands.end(), [&](const Command& row) { return row.name == name; });
    return found == commands.end() ? nullptr : &*found;
}

bool isAvailable(const Command& command, const Arguments& arguments) {
    if (command.item) {
        const MenuState& state = screen.item(*command.item);
        if (!state.visible || !state.enabled) return false;
    }
    return command.available == nullptr || command.available(arguments);
}

void runCommand(const Command& command, const Arguments& arguments) {
    const Step step{command.name};
    attempt([&] { command.run(arguments); });
}

} // namespace quillon
