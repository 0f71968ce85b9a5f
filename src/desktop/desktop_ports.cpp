#include "desktop/desktop_ports.h"

namespace quillon {

DesktopPorts::DesktopPorts(QWidget& window, Appearance& appearance)
    : window_{window}, appearance_{appearance} {
    ports = {};
    ports.end = [this] { ended_ = true; };
}

DesktopPorts::~DesktopPorts() { ports = {}; }

} // namespace quillon
