// The one way from a widget to a command.
#pragma once

#include "app/commands.h"

#include <QObject>

#include <functional>
#include <utility>

namespace quillon {

/// Runs commands of the table, one at a time. A command that is not available, or that comes while
/// another one waits for an answer of the user, is not run.
class CommandRunner : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// True when the command was run.
    bool run(CommandId id, const Arguments& arguments = {});

    /// A command that is asked for without the guard: on the way to another one.
    void runUnasked(CommandId id);

    bool isRunning() const { return running_ || asking_; }
    CommandId running() const { return id_; } ///< the command that runs, or ran last

    /// Asked before a command runs, which it may forbid.
    using Guard = std::function<bool(CommandId id, const Arguments& arguments)>;
    void setGuard(Guard guard) { guard_ = std::move(guard); }

    /// Whether the user can press it now.
    static bool canRun(CommandId id, const Arguments& arguments = {});

signals:
    void aboutToRun();      ///< boxes that are still being typed in hand in their text first
    void ran(CommandId id); ///< the screen may have changed: draw it again

private:
    void runNow(CommandId id, const Arguments& arguments);
    bool isAllowed(CommandId id, const Arguments& arguments);

    Guard guard_;
    CommandId id_ = CommandId::count;
    bool running_ = false;
    bool asking_ = false; ///< the guard is at work
};

inline Arguments numberArgument(int number) { return {.numbers = {number, 0, 0}, .text = {}}; }
inline Arguments textArgument(Text text) { return {.numbers = {}, .text = std::move(text)}; }

} // namespace quillon
