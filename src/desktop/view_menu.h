// The View menu: what is on show beside or instead of the race, how large, where texts open, in which colours.
#pragma once

#include "desktop/appearance.h"

#include <QAction>
#include <QDockWidget>
#include <QKeySequence>
#include <QMenu>

namespace quillon {

class DesktopPorts;
class SideDock;

class ViewMenu : public QMenu {
    Q_OBJECT

public:
    ViewMenu(Appearance& appearance, DesktopPorts& ports, QDockWidget& raceList, QWidget* parent);

    /// An item that shows a dock and puts it away, below the others of its kind.
    void addDock(const QString& text, const char* name, const char* keys, const QString& hint,
                 SideDock& dock);

    /// Enabled and checked as it is on show.
    void refresh(bool overviewShown);

signals:
    void overviewWanted(bool wanted);

private:
    void addPlaces(QDockWidget& raceList);
    void addZoom();
    void addViewer(DesktopPorts& ports);
    void addThemes();

    template <typename Slot>
    QAction* add(const QString& text, const QList<QKeySequence>& keys, const QString& hint, Slot slot);

    Appearance& appearance_;
    QAction* overview_ = nullptr;
    QAction* afterDocks_ = nullptr;
};

} // namespace quillon
