// The one way from a widget to a command.
#pragma once

#include "app/commands.h"

#include <QObject>

namespace quillon {

/// Runs commands of the table, one at a time. A command that is not available, or that comes while
/// another one waits for an answer of the user, is not run.
class CommandRunner : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// True when the command was run.
    bool run(CommandId id, const Arguments& arguments = {});

    bool isRunning() const { return running_; }

    /// Whether the user can press it now.
    static bool canRun(CommandId id, const Arguments& arguments = {});

signals:
    void aboutToRun();      ///< boxes that are still being typed in hand in their text first
    void ran(CommandId id); ///< the screen may have changed: draw it again

private:
    bool running_ = false;
};

inline Arguments numberArgument(int number) { return {.numbers = {number, 0, 0}, .text = {}}; }
inline Arguments textArgument(Text text) { return {.numbers = {}, .text = std::move(text)}; }

} // namespace quillon
