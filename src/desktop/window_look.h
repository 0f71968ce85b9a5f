// How the window looks at its start, kept from one run to the next.
#pragma once

#include "desktop/appearance.h"

#include <QMainWindow>

namespace quillon {

/// The window's size at its first start: as designed, or as much as there is room for.
QSize firstSize(QSize designed, QSize room);

/// Zoom, place, docks and dragged widths as the last run left them, else its first size.
void restoreLook(QMainWindow& window, Appearance& appearance);

void keepLook(const QMainWindow& window, const Appearance& appearance);

} // namespace quillon
