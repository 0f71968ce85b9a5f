// What the window says in its status bar after a command, for a while.
#pragma once

#include "desktop/command_runner.h"
#include "desktop/desktop_ports.h"

#include <QObject>
#include <QStatusBar>

namespace quillon {

class StatusLine : public QObject {
    Q_OBJECT

public:
    StatusLine(CommandRunner& runner, const DesktopPorts& ports, QStatusBar& bar);

    void tell(const QString& text);

private:
    void tellSaved(CommandId id);
    void tellRecorded(CommandId id);

    const DesktopPorts& ports_;
    QStatusBar& bar_;
    Text cardName_; ///< its file, before the command that runs
};

} // namespace quillon
