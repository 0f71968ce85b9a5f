#include "app/commands.h"

#include "core/failure.h"
#include "screen/screen.h"

#include <algorithm>

namespace quillon {

const Command& command(CommandId id) { return commandTable()[static_cast<std::size_t>(id)]; }

const Command* findCommand(TextView name, std::span<const Command> commands) {
    const auto found =
        std::find_if(commands.begin(), commands.end(), [&](const Command& row) { return row.name == name; });
    return found == commands.end() ? nullptr : &*found;
}

bool isMenuItem(const Command& command) {
    return command.item.menu != Menu::none && command.item.menu != Menu::walk;
}

bool mayChangeCard(const Command& command) { return command.effect != Effect::keepsCard; }

bool mayDropTyping(const Command& command) { return command.effect == Effect::dropsTyping; }

bool isAvailable(const Command& command, const Arguments& arguments) {
    const MenuState& state = screen.item(command.id);
    if (!state.visible || !state.enabled) return false;
    return command.available == nullptr || command.available(arguments);
}

void runCommand(const Command& command, const Arguments& arguments) {
    const Step step{command.name};
    attempt([&] { command.run(arguments); });
}

} // namespace quillon
