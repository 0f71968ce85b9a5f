#include "app/commands.h"

#include "app/change_words.h"
#include "core/failure.h"
#include "day/changes.h"
#include "day/keeping.h"
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
    return command.item.menu != Menu::none && command.item.menu != Menu::walk &&
           command.item.menu != Menu::edit && command.item.menu != Menu::fileFoot;
}

bool hasForm(const Command& command, const Text& text) {
    return command.isWellFormed == nullptr || command.isWellFormed(text);
}

bool mayChangeCard(const Command& command) {
    return command.effect == Effect::changesCard || command.effect == Effect::takesBoard ||
           command.effect == Effect::changesAndDrops;
}

bool mayDropTyping(const Command& command) {
    return command.effect == Effect::dropsTyping || command.effect == Effect::changesAndDrops;
}

bool isAvailable(const Command& command, const Arguments& arguments) {
    const MenuState& state = screen.item(command.id);
    if (!state.visible || !state.enabled) return false;
    return command.available == nullptr || command.available(arguments);
}

namespace {

// Much changes there at once: the card is kept as it stands before.
bool readsResults(CommandId id) {
    return id == CommandId::AutoRecord || id == CommandId::EBET || id == CommandId::HeatChoice;
}

void runAsChange(const Command& command, const Arguments& arguments) {
    if (readsResults(command.id)) attempt(KeepCard);
    const int race = raceOfChange(command.id, arguments);
    changes.run({.run = [&] { command.run(arguments); },
                 .compared = command.effect == Effect::takesBoard ? Compared::store : Compared::everything,
                 .race = race,
                 .words = [&] { return changeWords(command.id, arguments, race); }});
}

// What the list of changes has to know of a command that has run to its end.
void tellChanges(Effect effect) {
    if (effect == Effect::opensCard && screen.mode != CardMode::none) changes.begin();
    if (effect == Effect::closesCard && screen.mode == CardMode::none) changes.end();
    if (effect == Effect::savesCard) changes.saved();
    if (effect == Effect::recordsCard) changes.recorded();
}

void runAndTell(const Command& command, const Arguments& arguments) {
    if (mayChangeCard(command)) return runAsChange(command, arguments);
    const bool nothingToLoad = command.id == CommandId::Start && screen.startOffer != StartOffer::load;
    if (attempt([&] { command.run(arguments); }) && !nothingToLoad) tellChanges(command.effect);
}

} // namespace

void runCommand(const Command& command, const Arguments& arguments) {
    const Step step{command.name};
    runAndTell(command, arguments);
    noticeChanges();
}

} // namespace quillon
