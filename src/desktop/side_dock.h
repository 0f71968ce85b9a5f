// A panel as a dock of the window: beside the race where there is room for both, else on its own.
#pragma once

#include "desktop/appearance.h"

#include <QDockWidget>
#include <QMainWindow>

namespace quillon {

class SideDock : public QDockWidget {
    Q_OBJECT

public:
    SideDock(const QString& title, const char* name, Appearance& appearance, QMainWindow& window);

    /// Shows the panel and gives it the keys, or puts it away.
    void open(bool wanted);

private:
    void putBeside();

    Appearance& appearance_;
    QMainWindow& window_;
};

} // namespace quillon
