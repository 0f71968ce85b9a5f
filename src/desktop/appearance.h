// How large and in which theme the window is drawn: zoom, fonts, and twips as pixels.
#pragma once

#include <QFont>
#include <QObject>

namespace quillon {

enum class Theme { system, light, dark };

/// A face for texts laid out by columns, on the screen and on paper.
QFont fixedPitchFont();

class Appearance : public QObject {
    Q_OBJECT

public:
    static constexpr int smallestZoom = 60; ///< per cent
    static constexpr int largestZoom = 300;

    explicit Appearance(QObject* parent = nullptr) : QObject{parent} {}

    int zoom() const { return zoom_; }
    void setZoom(int percent); ///< held between the smallest and the largest
    void zoomBy(int steps);    ///< steps of 10 per cent

    Theme theme() const { return theme_; }
    void setTheme(Theme theme); ///< of the whole application

    /// A length of the views' layout on the screen, with the zoom.
    int pixels(int twips) const;

    /// The narrow face of the views at this size, with the zoom.
    QFont viewFont(int points, bool bold) const;

    /// A fixed-pitch face for texts laid out by columns, with the zoom.
    QFont fixedFont(int points) const;

signals:
    void changed(); ///< the zoom or the theme

private:
    int zoom_ = 100;
    Theme theme_ = Theme::system;
};

} // namespace quillon
