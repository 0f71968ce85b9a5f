#include "desktop/window_size.h"

#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace quillon {

namespace {

constexpr int border = 4; ///< pixels of the desktop's frame at each side

} // namespace

QSize roomFor(const QWidget& window) {
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return window.screen()->availableGeometry().size() - QSize{2 * border, title + 2 * border};
}

// In the middle of the card's window, with its title in sight.
void resizeWithinScreen(QWidget& window, QSize designed) {
    constexpr int around = 20; // pixels
    window.resize(designed.boundedTo(roomFor(window) - QSize{2 * around, 2 * around}));
}

// A race asks for so many pixels: its texts grow with the zoom, what stands between them does not.
int firstZoom(int screenWidth) {
    constexpr int betweenTexts = 390;
    constexpr int textsAtHundred = 600;
    constexpr int least = 70; // below it they are too small to read
    constexpr int step = 10;
    const int room = screenWidth - 2 * border;
    return std::clamp((room - betweenTexts) * 100 / textsAtHundred / step * step, least, 100);
}

} // namespace quillon
