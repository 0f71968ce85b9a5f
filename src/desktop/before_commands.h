// What the window says or asks before a command runs, so that nothing is lost without a word.
#pragma once

#include "desktop/command_runner.h"

#include <QObject>
#include <QStringList>

#include <functional>

namespace quillon {

/// A question of the window's own: its answers by their captions, the safe one first, the one that goes on as
/// the command would have done second, Cancel last.
struct WindowQuestion {
    QString text{};
    QStringList answers{};
};

enum WindowAnswer { safeAnswer, goOnAnswer, cancelAnswer };

class BeforeCommands : public QObject {
    Q_OBJECT

public:
    explicit BeforeCommands(CommandRunner& runner, QWidget& window);

    /// Whether the command shall run; asks the user where something would be lost.
    bool allows(CommandId id, const Arguments& arguments);

    /// Whether the session may end; saves the card where the user wants that.
    bool mayLoseCard();

    /// Asks the user, in a box over the window; tests put an answer in its place.
    std::function<WindowAnswer(const WindowQuestion& question)> ask;

signals:
    /// The command was not run; another one may do what was meant, `CommandId::count` for none.
    void refused(const QString& reason, CommandId instead);

private:
    bool mayLoseTyping();
    bool mayRecord();
    bool readsOtherLayout(CommandId id);

    CommandRunner& runner_;
};

} // namespace quillon
