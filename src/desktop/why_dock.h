// "Why" as a dock of the window: it tells of the line that the keyboard or the mouse is on.
#pragma once

#include "desktop/side_dock.h"
#include "desktop/why_pointer.h"

namespace quillon {

class CellTableView;
class WhyPanel;

class WhyDock : public SideDock {
    Q_OBJECT

public:
    WhyDock(Appearance& appearance, QMainWindow& window);

    void refresh();

    /// The three tables that have a PR column: of entries, of a race's lines, and of an entry's.
    void follow(CellTableView& entries, CellTableView& raceLines, CellTableView& entryLines);

private:
    void follow(CellTableView& table, int ratingColumn, const WhyPointer::TargetOf& targetOf);

    WhyPanel* panel_;
};

} // namespace quillon
