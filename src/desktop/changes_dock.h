// The list of changes as a dock of the window: beside the race where there is room for both, else on its own.
#pragma once

#include "desktop/appearance.h"
#include "desktop/command_runner.h"

#include <QDockWidget>
#include <QMainWindow>

namespace quillon {

class CellTableView;
class ChangesPanel;

class ChangesDock : public QDockWidget {
    Q_OBJECT

public:
    ChangesDock(CommandRunner& runner, Appearance& appearance, QMainWindow& window);

    void refresh();

    void open(bool wanted);

    /// In an editable cell of this table F2 edits; everywhere else it is the key of this dock.
    void leaveKeyTo(CellTableView& table);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void putBeside();

    Appearance& appearance_;
    QMainWindow& window_;
    ChangesPanel* panel_;
};

} // namespace quillon
