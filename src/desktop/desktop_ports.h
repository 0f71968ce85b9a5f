// The window's ways to the outside: dialogs, the text viewer, the browser, the printer.
#pragma once

#include "app/ports.h"
#include "desktop/appearance.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace quillon {

/// Fills the ports while it lives, with dialogs over `window`.
class DesktopPorts : public QObject {
    Q_OBJECT

public:
    DesktopPorts(QWidget& window, Appearance& appearance);
    ~DesktopPorts() override;

    /// True once the system has ended.
    bool ended() const { return ended_; }

private:
    QWidget& window_;
    Appearance& appearance_;
    bool ended_ = false;
};

} // namespace quillon
