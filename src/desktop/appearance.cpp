#include "desktop/appearance.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>

#include <algorithm>

namespace quillon {
namespace {

constexpr int twipsPerInch = 1440;
constexpr int zoomStep = 10;
constexpr qreal dotsPerInchWithoutScreen = 96;

QPalette lightPalette() {
    QPalette palette{QColor{0xF0, 0xF0, 0xF0}};
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor{0xF5, 0xF7, 0xF9});
    palette.setColor(QPalette::Highlight, QColor{0x2A, 0x6F, 0xB8});
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor{0x1F, 0x5F, 0xA8});
    palette.setColor(QPalette::ToolTipBase, QColor{0xFF, 0xFF, 0xE8});
    palette.setColor(QPalette::ToolTipText, Qt::black);
    return palette;
}

QPalette darkPalette() {
    const QColor window{0x2B, 0x2D, 0x30};
    const QColor text{0xE6, 0xE6, 0xE6};
    const QColor faint{0x8A, 0x8D, 0x91};
    QPalette palette{QColor{0x3C, 0x3F, 0x43}, window};
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Base, QColor{0x1E, 0x1F, 0x22});
    palette.setColor(QPalette::AlternateBase, QColor{0x25, 0x27, 0x2A});
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, QColor{0x2F, 0x65, 0xA8});
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor{0x6C, 0xA8, 0xF0});
    palette.setColor(QPalette::ToolTipBase, QColor{0x3C, 0x3F, 0x43});
    palette.setColor(QPalette::ToolTipText, text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    return palette;
}

} // namespace

void Appearance::setZoom(int percent) {
    percent = std::clamp(percent, smallestZoom, largestZoom);
    if (percent == zoom_) return;
    zoom_ = percent;
    emit changed();
}

void Appearance::zoomBy(int steps) { setZoom(zoom_ + steps * zoomStep); }

void Appearance::setTheme(Theme theme) {
    theme_ = theme;
    if (theme == Theme::system) {
        QApplication::setPalette(QPalette{});
    } else {
        // The desktop's own style may paint parts of its own theme; Fusion keeps to the palette.
        if (QApplication::style()->name() != "fusion")
            QApplication::setStyle(QStyleFactory::create("Fusion"));
        QApplication::setPalette(theme == Theme::dark ? darkPalette() : lightPalette());
    }
    emit changed();
}

int Appearance::pixels(int twips) const {
    const QScreen* monitor = QGuiApplication::primaryScreen();
    const qreal dotsPerInch = monitor ? monitor->logicalDotsPerInch() : dotsPerInchWithoutScreen;
    return qRound(twips * dotsPerInch * zoom_ / (100.0 * twipsPerInch));
}

QFont Appearance::viewFont(int points, bool bold) const {
    QFont font;
    font.setFamilies({"Arial Narrow", "Liberation Sans Narrow", "Nimbus Sans Narrow", "DejaVu Sans Condensed",
                      font.family()});
    font.setPointSizeF(points * zoom_ / 100.0);
    font.setBold(bold);
    return font;
}

// The system's own face where it is one: without a desktop it may be any.
QFont fixedPitchFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (QFontInfo{font}.fixedPitch()) return font;
    font.setFamilies({"DejaVu Sans Mono", "Liberation Mono", "Courier New", "Monospace"});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    return font;
}

QFont Appearance::fixedFont(int points) const {
    QFont font = fixedPitchFont();
    font.setPointSizeF(points * zoom_ / 100.0);
    return font;
}

} // namespace quillon
