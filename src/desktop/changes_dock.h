// The list of changes as a dock of the window.
#pragma once

#include "desktop/command_runner.h"
#include "desktop/side_dock.h"

namespace quillon {

class CellTableView;
class ChangesPanel;

class ChangesDock : public SideDock {
    Q_OBJECT

public:
    ChangesDock(CommandRunner& runner, Appearance& appearance, QMainWindow& window);

    void refresh();

    /// In an editable cell of this table F2 edits; everywhere else it is the key of this dock.
    void leaveKeyTo(CellTableView& table);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ChangesPanel* panel_;
};

} // namespace quillon
