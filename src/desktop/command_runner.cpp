#include "desktop/command_runner.h"

#include "core/failure.h"

namespace quillon {

bool CommandRunner::canRun(CommandId id, const Arguments& arguments) {
    bool available = false;
    attempt([&] { available = isAvailable(command(id), arguments); });
    return available;
}

bool CommandRunner::run(CommandId id, const Arguments& arguments) {
    if (isRunning()) return false;
    emit aboutToRun();
    if (!canRun(id, arguments) || !isAllowed(id, arguments) || !canRun(id, arguments)) return false;
    runNow(id, arguments);
    return true;
}

bool CommandRunner::isAllowed(CommandId id, const Arguments& arguments) {
    if (!guard_) return true;
    asking_ = true;
    const bool allowed = guard_(id, arguments);
    asking_ = false;
    return allowed;
}

void CommandRunner::runUnasked(CommandId id) {
    if (!running_ && canRun(id)) runNow(id, {});
}

void CommandRunner::runNow(CommandId id, const Arguments& arguments) {
    running_ = true;
    id_ = id;
    runCommand(command(id), arguments);
    running_ = false;
    emit ran(id);
}

} // namespace quillon
