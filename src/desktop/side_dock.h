// A dock beside the race where the window has room for both, else a window of its own beside or over it.
#pragma once

#include "desktop/appearance.h"

#include <QDockWidget>
#include <QMainWindow>

namespace quillon {

class SideDock : public QDockWidget {
    Q_OBJECT

public:
    SideDock(const QString& title, Appearance& appearance, QMainWindow& window);

    void open(bool wanted);

private:
    void putBeside();

    Appearance& appearance_;
    QMainWindow& window_;
};

} // namespace quillon
