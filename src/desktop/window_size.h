// Windows that open no larger than the screen has room for.
#pragma once

#include <QSize>
#include <QWidget>

namespace quillon {

/// What the free area of its screen holds of a window, less the frame that the desktop puts round it.
QSize roomFor(const QWidget& window);

/// A window beside the card's: as large as designed, where there is room with some to spare.
void resizeWithinScreen(QWidget& window, QSize designed);

/// The zoom, per cent, at which a first window shows all columns of a race on a screen as wide as this.
int firstZoom(int screenWidth);

} // namespace quillon
