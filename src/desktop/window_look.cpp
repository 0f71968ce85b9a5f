#include "desktop/window_look.h"

#include "desktop/cell_table_view.h"
#include "desktop/shown_text.h"
#include "desktop/window_size.h"

#include <QSettings>

namespace quillon {
namespace {

QString widthsOf(const CellTableView& table) { return "widths/" + table.objectName(); }

} // namespace

QSize firstSize(QSize designed, QSize room) { return designed.boundedTo(room); }

void restoreLook(QMainWindow& window, Appearance& appearance) {
    const QSize designed{appearance.pixels(theScreen.width), appearance.pixels(theScreen.height)};
    window.resize(firstSize(designed, roomFor(window)));
    const QSettings settings;
    appearance.setZoom(settings.value("zoom", appearance.zoom()).toInt());
    window.restoreGeometry(settings.value("geometry").toByteArray());
    window.restoreState(settings.value("state").toByteArray());
    const auto tables = window.findChildren<CellTableView*>();
    for (CellTableView* table : tables)
        table->setDraggedWidths(settings.value(widthsOf(*table)).toStringList());
}

void keepLook(const QMainWindow& window, const Appearance& appearance) {
    QSettings settings;
    settings.setValue("geometry", window.saveGeometry());
    settings.setValue("state", window.saveState());
    const auto tables = window.findChildren<CellTableView*>();
    for (const CellTableView* table : tables) {
        const QStringList widths = table->draggedWidths();
        if (widths.isEmpty())
            settings.remove(widthsOf(*table));
        else
            settings.setValue(widthsOf(*table), widths);
    }
    settings.setValue("zoom", appearance.zoom());
    settings.setValue("theme", static_cast<int>(appearance.theme()));
}

} // namespace quillon
