#include "desktop/column_fitting.h"

#include <QHeaderView>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace quillon {
namespace {

constexpr int headMargin = 4; ///< pixels beside the text of a head
constexpr int measuredRows = 60;

/// How wide texts are. A view has few faces and many texts: each face is looked up once.
class TextMeasure {
public:
    int width(const QString& text, const QFont& font) {
        const auto known =
            std::find_if(faces_.begin(), faces_.end(), [&](const Face& face) { return face.font == font; });
        const Face& face = known != faces_.end() ? *known : faces_.emplace_back(font, QFontMetricsF{font});
        return static_cast<int>(std::ceil(face.metrics.horizontalAdvance(text)));
    }

private:
    struct Face {
        Face(QFont itsFont, QFontMetricsF itsMetrics)
            : font{std::move(itsFont)}, metrics{std::move(itsMetrics)} {}
        QFont font;
        QFontMetricsF metrics;
    };

    std::vector<Face> faces_;
};

// What the style leaves free beside a cell's text, and the line of the grid.
int roomBesideText(const QTableView& view) {
    const int margin = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1;
    return 2 * margin + (view.showGrid() ? 1 : 0);
}

// As the cell is drawn: what its own font leaves open, such as the size, is the view's.
QFont fontOf(const QModelIndex& cell, const QTableView& view, bool asBold) {
    QFont face = cell.data(Qt::FontRole).value<QFont>().resolve(view.font());
    if (asBold) face.setBold(true);
    return face;
}

} // namespace

// Row by row, since a row may have to be made to be looked at.
std::vector<int> textWidths(const QTableView& view, bool asBold) {
    TextMeasure measure;
    const QAbstractItemModel& cells = *view.model();
    const int besideText = roomBesideText(view);
    const int columns = cells.columnCount();
    std::vector<int> widths(static_cast<std::size_t>(columns));
    const int rows = std::min(cells.rowCount(), measuredRows);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            const QModelIndex index = cells.index(row, column);
            const QString text = index.data().toString();
            if (text.isEmpty() || view.columnSpan(row, column) > 1) continue;
            int& width = widths[static_cast<std::size_t>(column)];
            width = std::max(width, measure.width(text, fontOf(index, view, asBold)) + besideText);
        }
    return widths;
}

int headWidth(const QTableView& view, int column) {
    const QString head = view.model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const QStyle& style = *view.style();
    const int arrow = view.isSortingEnabled()
                          ? style.pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, &view) +
                                2 * style.pixelMetric(QStyle::PM_HeaderMargin, nullptr, &view)
                          : 0;
    return QFontMetrics{view.horizontalHeader()->font()}.horizontalAdvance(head) + headMargin + arrow;
}

// Each column gives its share. Where that is not enough, each gives all that it can, and the view scrolls.
void fitInto(int room, std::vector<ColumnWidth>& widths) {
    int tooWide = -room;
    int spare = 0;
    for (const ColumnWidth& column : widths) {
        tooWide += column.wanted;
        spare += column.wanted - column.needed;
    }
    if (tooWide <= 0 || spare <= 0) return;
    tooWide = std::min(tooWide, spare);
    int spareSoFar = 0;
    int given = 0;
    for (ColumnWidth& column : widths) {
        spareSoFar += column.wanted - column.needed;
        const int due = static_cast<int>(std::int64_t{tooWide} * spareSoFar / spare);
        column.wanted -= due - given;
        given = due;
    }
}

} // namespace quillon
