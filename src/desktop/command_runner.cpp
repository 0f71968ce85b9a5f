#include "desktop/command_runner.h"

#include "core/failure.h"

#include <QtGlobal>

namespace quillon {

bool CommandRunner::canRun(const char* name, const Arguments& arguments) {
    const Command* command = findCommand(name);
    Q_ASSERT(command);
    bool available = false;
    attempt([&] { available = isAvailable(*command, arguments); });
    return available;
}

bool CommandRunner::run(const char* name, const Arguments& arguments) {
    if (running_) return false;
    emit aboutToRun();
    if (!canRun(name, arguments)) return false;
    running_ = true;
    runCommand(*findCommand(name), arguments);
    running_ = false;
    emit ran(name);
    return true;
}

} // namespace quillon
