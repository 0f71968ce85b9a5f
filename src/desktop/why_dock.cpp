#include "desktop/why_dock.h"

#include "card/columns.h"
#include "desktop/cell_table_view.h"
#include "desktop/why_panel.h"

namespace quillon {

WhyDock::WhyDock(Appearance& appearance, QMainWindow& window)
    : SideDock{tr("Why"), "WhyDock", appearance, window}, panel_{new WhyPanel{appearance, this}} {
    setWidget(panel_);
}

void WhyDock::refresh() { panel_->refresh(); }

void WhyDock::follow(CellTableView& entries, CellTableView& raceLines, CellTableView& entryLines) {
    follow(entries, RaceColumn::rating, targetOfEntry);
    follow(raceLines, DataColumn::rating, targetOfRaceLine);
    follow(entryLines, DataColumn::rating, targetOfEntryLine);
}

void WhyDock::follow(CellTableView& table, int ratingColumn, const WhyPointer::TargetOf& targetOf) {
    auto* pointer = new WhyPointer{table, ratingColumn, targetOf};
    connect(pointer, &WhyPointer::pointedAt, panel_, &WhyPanel::tell);
}

} // namespace quillon
