#include "desktop/cell_table_view.h"

#include "desktop/shown_text.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>

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

/// The whole number that a text begins with; nothing where it begins with no figure.
std::optional<int> numberInFront(const QString& text) {
    const auto isFigure = [](QChar character) { return character >= '0' && character <= '9'; };
    const auto end = std::find_if_not(text.begin(), text.end(), isFigure);
    bool ok = false;
    const int value = text.left(end - text.begin()).toInt(&ok);
    return ok ? std::optional{value} : std::nullopt;
}

} // namespace

bool NumberSortProxy::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    if (left.column() < rowOrderColumns_) return left.row() < right.row();
    const QString a = left.data().toString();
    const QString b = right.data().toString();
    const auto first = leadingNumber(a);
    const auto second = leadingNumber(b);
    if (first && second) return *first < *second;
    if (first || second) return first.has_value(); // numbers before words
    const auto firstFront = numberInFront(a);
    const auto secondFront = numberInFront(b);
    if (firstFront && secondFront && *firstFront != *secondFront) return *firstFront < *secondFront;
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

void CellTableView::setSortable(int rowOrderColumns) {
    sorted_.setRowOrderColumns(rowOrderColumns);
    sorted_.setSourceModel(&model_);
    setModel(&sorted_);
    setSortingEnabled(true);
    horizontalHeader()->setSortIndicatorClearable(true);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    sorted_.sort(-1);
}

int CellTableView::tableRow(const QModelIndex& index) const {
    if (!index.isValid()) return -1;
    return model_.tableRow(index.model() == &sorted_ ? sorted_.mapToSource(index) : index);
}

void CellTableView::refresh() {
    if (model_.refresh()) lay();
}

void CellTableView::show(const Grid* grid, const CellRange& range) {
    model_.show(grid, range);
    lay();
}

// Row by row, since a row may have to be made to be looked at.
std::vector<int> CellTableView::textWidths() const {
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics body{font()};
    const QFontMetrics boldBody{bold};
    const int columns = model()->columnCount();
    std::vector<int> widths(static_cast<std::size_t>(columns));
    const int rows = std::min(model()->rowCount(), measuredRows);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            const QModelIndex index = model()->index(row, column);
            const QString text = index.data().toString();
            if (text.isEmpty()) continue;
            const bool isBold = roomForBold_ || index.data(Qt::FontRole).isValid();
            int& width = widths[static_cast<std::size_t>(column)];
            width = std::max(width, (isBold ? boldBody : body).horizontalAdvance(text) + 2 * cellMargin);
        }
    return widths;
}

int CellTableView::widthFor(int column, int textWidth) const {
    const auto place = static_cast<std::size_t>(model_.tableColumn(column));
    const int wanted = twips_.empty() ? plainColumn : place < twips_.size() ? twips_[place] : 0;
    if (wanted == 0) return 0;
    const auto section = static_cast<std::size_t>(column);
    if (dragged_[section]) return appearance_.pixels(*dragged_[section]);
    const QString head = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int headWidth = QFontMetrics{horizontalHeader()->font()}.horizontalAdvance(head) + cellMargin;
    return std::max({appearance_.pixels(wanted), headWidth, textWidth});
}

void CellTableView::lay() {
    laying_ = true;
    setFont(appearance_.viewFont(bodyPoints_, bodyBold_));
    horizontalHeader()->setFont(appearance_.viewFont(headPoints_, true));
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(rowPixels());
    const int columns = model_.columnCount();
    dragged_.resize(static_cast<std::size_t>(columns));
    const std::vector<int> texts = textWidths();
    for (int column = 0; column < columns; ++column) {
        const int width = widthFor(column, texts[static_cast<std::size_t>(column)]);
        setColumnHidden(column, width == 0);
        if (width > 0) setColumnWidth(column, width);
    }
    if (emptyRowsHidden_)
        for (int row = 0; row < model_.rowCount(); ++row) setRowHidden(row, model_.isEmptyRow(row));
    if (frozen_) layFrozen();
    laying_ = false;
}

void CellTableView::setEmptyRowsHidden() {
    emptyRowsHidden_ = true;
    lay();
}

void CellTableView::setRoomForBold() {
    roomForBold_ = true;
    lay();
}

void CellTableView::setFirstColumnFrozen() {
    frozen_ = new QTableView{this};
    frozen_->setAccessibleName(tr("%1, first column").arg(accessibleName()));
    frozen_->setModel(model());
    frozen_->setSelectionModel(selectionModel());
    frozen_->setSelectionMode(selectionMode());
    frozen_->setEditTriggers(NoEditTriggers);
    frozen_->setFrameShape(QFrame::NoFrame);
    frozen_->setFocusPolicy(Qt::ClickFocus);
    frozen_->setFocusProxy(this);
    frozen_->setWordWrap(false);
    frozen_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    frozen_->verticalHeader()->hide();
    frozen_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    frozen_->horizontalHeader()->setMinimumSectionSize(8);
    frozen_->horizontalHeader()->setHighlightSections(false);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, frozen_->verticalScrollBar(),
            &QScrollBar::setValue);
    connect(frozen_->verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            &QScrollBar::setValue);
    connect(frozen_->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int section, int, int pixels) {
                if (section == 0 && pixels > 0) setColumnWidth(0, pixels);
            });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int section, int, int pixels) {
        if (section != 0 || pixels == 0) return;
        frozen_->setColumnWidth(0, pixels);
        updateGeometries();
    });
    lay();
    frozen_->show();
    frozen_->raise();
}

void CellTableView::layFrozen() {
    frozen_->setFont(font());
    frozen_->horizontalHeader()->setFont(horizontalHeader()->font());
    frozen_->verticalHeader()->setMinimumSectionSize(1);
    frozen_->verticalHeader()->setDefaultSectionSize(rowPixels());
    for (int column = 1; column < model_.columnCount(); ++column) frozen_->setColumnHidden(column, true);
    if (model_.columnCount() > 0) frozen_->setColumnWidth(0, columnWidth(0));
    if (emptyRowsHidden_)
        for (int row = 0; row < model_.rowCount(); ++row) frozen_->setRowHidden(row, isRowHidden(row));
    updateGeometries();
}

void CellTableView::updateGeometries() {
    QTableView::updateGeometries();
    if (!frozen_) return;
    const int head = horizontalHeader()->height();
    frozen_->horizontalHeader()->setFixedHeight(head);
    frozen_->setGeometry(frameWidth(), frameWidth(), columnWidth(0), head + viewport()->height());
}

// A cell that came to lie under the frozen column is not in sight yet.
void CellTableView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QTableView::scrollTo(index, hint);
    if (!frozen_ || index.column() == 0) return;
    const int covered = columnWidth(0) - visualRect(index).left();
    if (covered > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - covered);
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

} // namespace quillon
