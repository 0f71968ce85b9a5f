#include "desktop/command_runner.h"

#include "core/failure.h"

namespace quillon {

bool CommandRunner::canRun(CommandId id, const Arguments& arguments) {
    bool available = false;
    attempt([&] { available = isAvailable(command(id), arguments); });
    return available;
}

bool CommandRunner::run(CommandId id, const Arguments& arguments) {
    if (running_) return false;
    emit aboutToRun();
    if (!canRun(id, arguments)) return false;
    running_ = true;
    runCommand(command(id), arguments);
    running_ = false;
    emit ran(id);
    return true;
}

} // namespace quillon
