#include "desktop/cell_table_view.h"

#include "desktop/shown_text.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

constexpr int cellMargin = 4; ///< pixels on both sides of a text
constexpr int measuredRows = 60;
constexpr int plainColumn = 900; ///< twips of a column that has no width of its own

/// The number a text begins with, behind blanks, "$" and a sign; nothing where it is no number.
std::optional<double> leadingNumber(const QString& text) {
    QString number = text.trimmed();
    if (number.startsWith('$')) number = number.mid(1).trimmed();
    if (number.endsWith('%')) number.chop(1);
    bool ok = false;
    const double value = number.toDouble(&ok);
    return ok ? std::optional{value} : std::nullopt;
}

} // namespace

bool NumberSortProxy::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const QString a = left.data().toString();
    const QString b = right.data().toString();
    const auto first = leadingNumber(a);
    const auto second = leadingNumber(b);
    if (first && second) return *first < *second;
    if (first || second) return first.has_value(); // numbers before words
    return a.localeAwareCompare(b) < 0;
}

CellTableView::CellTableView(Appearance& appearance, const QString& name, QWidget* parent)
    : QTableView{parent}, appearance_{appearance} {
    setAccessibleName(name);
    setModel(&model_);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setTabKeyNavigation(false); // Tab goes on to the next control
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(8);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int section, int, int pixels) {
        if (laying_ || pixels == 0 || static_cast<std::size_t>(section) >= dragged_.size()) return;
        const int unit = std::max(1, appearance_.pixels(1440));
        dragged_[static_cast<std::size_t>(section)] = pixels * 1440 / unit;
    });
    connect(&appearance_, &Appearance::changed, this, &CellTableView::lay);
    lay();
}

void CellTableView::setFonts(int headPoints, int bodyPoints, bool bodyBold) {
    headPoints_ = headPoints;
    bodyPoints_ = bodyPoints;
    bodyBold_ = bodyBold;
    lay();
}

void CellTableView::setColumnWidths(std::vector<int> twips) {
    twips_ = std::move(twips);
    lay();
}

void CellTableView::setColumnWidths(std::span<const ViewColumn> columns) {
    std::vector<int> twips;
    for (const ViewColumn& column : columns) twips.push_back(column.width);
    setColumnWidths(std::move(twips));
}

void CellTableView::setRowHeight(int twips) {
    rowTwips_ = twips;
    lay();
}

int CellTableView::rowPixels() const {
    return std::max(appearance_.pixels(rowTwips_), QFontMetrics{font()}.height() + 2);
}

void CellTableView::setSortable() {
    sorted_.setSourceModel(&model_);
    setModel(&sorted_);
    setSortingEnabled(true);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    sorted_.sort(-1);
}

void CellTableView::refresh() {
    if (model_.refresh()) lay();
}

void CellTableView::show(const Grid* grid, const CellRange& range) {
    model_.show(grid, range);
    lay();
}

int CellTableView::widthFor(int column) const {
    const auto place = static_cast<std::size_t>(model_.tableColumn(model_.index(0, column)));
    int wanted = twips_.empty() ? plainColumn : place < twips_.size() ? twips_[place] : 0;
    if (wanted == 0) return 0;
    const auto section = static_cast<std::size_t>(column);
    if (section < dragged_.size() && dragged_[section]) return appearance_.pixels(*dragged_[section]);

    int pixels = appearance_.pixels(wanted);
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics body{font()};
    const QFontMetrics boldBody{bold};
    const QString head = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    pixels = std::max(pixels, QFontMetrics{horizontalHeader()->font()}.horizontalAdvance(head) + cellMargin);
    const int rows = std::min(model()->rowCount(), measuredRows);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model()->index(row, column);
        const QString text = index.data().toString();
        if (text.isEmpty()) continue;
        const bool isBold = index.data(Qt::FontRole).isValid();
        pixels = std::max(pixels, (isBold ? boldBody : body).horizontalAdvance(text) + 2 * cellMargin);
    }
    return pixels;
}

void CellTableView::lay() {
    laying_ = true;
    setFont(appearance_.viewFont(bodyPoints_, bodyBold_));
    horizontalHeader()->setFont(appearance_.viewFont(headPoints_, true));
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(rowPixels());
    const int columns = model_.columnCount();
    dragged_.resize(static_cast<std::size_t>(columns));
    for (int column = 0; column < columns; ++column) {
        const int width = widthFor(column);
        setColumnHidden(column, width == 0);
        if (width > 0) setColumnWidth(column, width);
    }
    laying_ = false;
}

QString CellTableView::selectionText() const {
    QModelIndexList cells = selectionModel() ? selectionModel()->selectedIndexes() : QModelIndexList{};
    cells.removeIf(
        [this](const QModelIndex& cell) { return isColumnHidden(cell.column()) || isRowHidden(cell.row()); });
    std::sort(cells.begin(), cells.end());
    if (cells.isEmpty()) return {};

    int firstColumn = cells.first().column();
    for (const QModelIndex& cell : cells) firstColumn = std::min(firstColumn, cell.column());
    QString text;
    int row = cells.first().row();
    int column = firstColumn;
    for (const QModelIndex& cell : cells) {
        if (cell.row() != row) {
            text += '\n';
            row = cell.row();
            column = firstColumn;
        }
        for (; column < cell.column(); ++column)
            if (!isColumnHidden(column)) text += '\t';
        text += cell.data().toString();
    }
    return text;
}

void CellTableView::copySelection() const {
    const QString text = selectionText();
    if (!text.isEmpty()) QApplication::clipboard()->setText(text);
}

bool CellTableView::find(const QString& text, bool backwards) {
    const int rows = model()->rowCount();
    const int columns = model()->columnCount();
    const qint64 cells = static_cast<qint64>(rows) * columns;
    if (text.isEmpty() || cells == 0) return false;
    const QModelIndex current = currentIndex();
    const qint64 start = current.isValid() ? static_cast<qint64>(current.row()) * columns + current.column()
                         : backwards       ? 0
                                           : -1;
    for (qint64 step = 1; step <= cells; ++step) {
        const qint64 at = (start + (backwards ? -step : step) + 2 * cells) % cells;
        const auto row = static_cast<int>(at / columns);
        const auto column = static_cast<int>(at % columns);
        if (isColumnHidden(column) || isRowHidden(row)) continue;
        const QModelIndex index = model()->index(row, column);
        if (!index.data().toString().contains(text, Qt::CaseInsensitive)) continue;
        setCurrentIndex(index);
        scrollTo(index);
        return true;
    }
    return false;
}

void CellTableView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return copySelection();
    QTableView::keyPressEvent(event);
}

void CellTableView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu{this};
    QAction* copy = menu.addAction(tr("&Copy"), this, &CellTableView::copySelection);
    copy->setShortcut(QKeySequence::Copy);
    copy->setEnabled(selectionModel() && selectionModel()->hasSelection());
    menu.addAction(tr("Select &All"), this, &QTableView::selectAll);
    menu.exec(event->globalPos());
}

void CellTableView::takeUpEdit() {
    if (state() != EditingState) return;
    QWidget* editor = indexWidget(currentIndex());
    if (!editor) return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

} // namespace quillon
