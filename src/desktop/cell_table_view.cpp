#include "desktop/cell_table_view.h"

#include "desktop/shown_text.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace quillon {
namespace {

constexpr int headMargin = 4; ///< pixels beside the text of a head
constexpr int measuredRows = 60;
constexpr int plainColumn = 900;  ///< twips of a column that has no width of its own
constexpr int longestTyped = 255; ///< as in the boxes: a pasted megabyte would make its column miles wide

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

/// The selected columns of a row, from left to right.
std::vector<int> columnsIn(const QItemSelection& ranges, int row) {
    std::vector<int> columns;
    for (const QItemSelectionRange& range : ranges) {
        if (row < range.top() || row > range.bottom()) continue;
        for (int column = range.left(); column <= range.right(); ++column) columns.push_back(column);
    }
    std::sort(columns.begin(), columns.end());
    columns.erase(std::unique(columns.begin(), columns.end()), columns.end());
    return columns;
}

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

/// Edits a cell in its place.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        QWidget* editor = QStyledItemDelegate::createEditor(parent, option, index);
        if (auto* line = qobject_cast<QLineEdit*>(editor)) line->setMaxLength(longestTyped);
        return editor;
    }
};

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
    setItemDelegate(new CellDelegate{this});
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

// What the style leaves free beside a cell's text, and the line of the grid.
int CellTableView::roomBesideText() const {
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    return 2 * margin + (showGrid() ? 1 : 0);
}

// As the cell is drawn: what its own font leaves open, such as the size, is the view's.
QFont CellTableView::fontOf(const QModelIndex& cell) const {
    QFont face = cell.data(Qt::FontRole).value<QFont>().resolve(font());
    if (roomForBold_) face.setBold(true);
    return face;
}

// Row by row, since a row may have to be made to be looked at.
std::vector<int> CellTableView::textWidths() const {
    TextMeasure measure;
    const int besideText = roomBesideText();
    const int columns = model()->columnCount();
    std::vector<int> widths(static_cast<std::size_t>(columns));
    const int rows = std::min(model()->rowCount(), measuredRows);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            const QModelIndex index = model()->index(row, column);
            const QString text = index.data().toString();
            if (text.isEmpty()) continue;
            int& width = widths[static_cast<std::size_t>(column)];
            width = std::max(width, measure.width(text, fontOf(index)) + besideText);
        }
    return widths;
}

CellTableView::ColumnWidth CellTableView::widthFor(int column, int textWidth) const {
    const auto place = static_cast<std::size_t>(model_.tableColumn(column));
    const int wanted = twips_.empty() ? plainColumn : place < twips_.size() ? twips_[place] : 0;
    if (wanted == 0) return {};
    const auto section = static_cast<std::size_t>(column);
    if (dragged_[section]) {
        const int pixels = appearance_.pixels(*dragged_[section]);
        return {pixels, pixels};
    }
    const QString head = model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    const int headWidth = QFontMetrics{horizontalHeader()->font()}.horizontalAdvance(head) + headMargin;
    const int needed = std::max({headWidth, textWidth, horizontalHeader()->minimumSectionSize()});
    return {std::max(appearance_.pixels(wanted), needed), needed};
}

// Each gives its share. Where that is not enough, the view scrolls, and all keep their widths.
void CellTableView::fit(std::vector<ColumnWidth>& widths) const {
    int tooWide = -viewport()->width();
    int spare = 0;
    for (const ColumnWidth& column : widths) {
        tooWide += column.wanted;
        spare += column.wanted - column.needed;
    }
    if (tooWide <= 0 || tooWide > spare) return;
    int spareSoFar = 0;
    int given = 0;
    for (ColumnWidth& column : widths) {
        spareSoFar += column.wanted - column.needed;
        const int due = static_cast<int>(std::int64_t{tooWide} * spareSoFar / spare);
        column.wanted -= due - given;
        given = due;
    }
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
    std::vector<ColumnWidth> widths;
    widths.reserve(static_cast<std::size_t>(columns));
    for (int column = 0; column < columns; ++column)
        widths.push_back(widthFor(column, texts[static_cast<std::size_t>(column)]));
    if (fitted_) fit(widths);
    for (int column = 0; column < columns; ++column) {
        const int width = widths[static_cast<std::size_t>(column)].wanted;
        setColumnHidden(column, width == 0);
        if (width > 0) setColumnWidth(column, width);
    }
    if (emptyRowsHidden_)
        for (int row = 0; row < model_.rowCount(); ++row) setRowHidden(row, model_.isEmptyRow(row));
    if (frozen_) layFrozen();
    laying_ = false;
}

void CellTableView::setFitted() {
    fitted_ = true;
    lay();
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

void CellTableView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (fitted_ && event->size().width() != event->oldSize().width()) lay();
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

// Goes by the ranges of the selection: a list of all cells of a million rows would not fit into memory.
CellTableView::CopiedRows CellTableView::copiedRows() const {
    const QItemSelection ranges = selectionModel() ? selectionModel()->selection() : QItemSelection{};
    int firstRow = model()->rowCount();
    int lastRow = -1;
    int firstColumn = model()->columnCount();
    for (const QItemSelectionRange& range : ranges) {
        firstRow = std::min(firstRow, range.top());
        lastRow = std::max(lastRow, range.bottom());
        firstColumn = std::min(firstColumn, range.left());
    }
    CopiedRows copied;
    int cells = 0;
    for (int row = firstRow; row <= lastRow && cells < mostCopied; ++row) {
        if (isRowHidden(row)) continue;
        std::vector<int> columns = columnsIn(ranges, row);
        std::erase_if(columns, [this](int at) { return isColumnHidden(at); });
        if (columns.empty()) continue;
        if (copied.rows++ > 0) copied.text += '\n';
        int column = firstColumn;
        for (const int selected : columns) {
            for (; column < selected; ++column)
                if (!isColumnHidden(column)) copied.text += '\t';
            copied.text += model()->index(row, selected).data().toString();
            ++cells;
        }
        copied.isCut = row < lastRow;
    }
    return copied;
}

QString CellTableView::selectionText() const { return copiedRows().text; }

void CellTableView::copySelection() {
    const CopiedRows copied = copiedRows();
    if (copied.text.isEmpty()) return;
    QApplication::clipboard()->setText(copied.text);
    if (!copied.isCut) return;
    QToolTip::showText(mapToGlobal(rect().center()),
                       tr("The selection is too large: its first %1 rows were copied.").arg(copied.rows),
                       this);
}

bool CellTableView::find(const QString& text, bool backwards) {
    CellSearch search{*this, text, backwards};
    constexpr int slice = 1000;
    CellSearch::State state = CellSearch::State::goesOn;
    while (state == CellSearch::State::goesOn) state = search.lookOn(slice);
    return state == CellSearch::State::found;
}

CellSearch::CellSearch(CellTableView& view, const QString& text, bool backwards, bool fromCurrent)
    : view_{&view}, text_{text},
      backwards_{backwards}, rows_{view.model()->rowCount()}, columns_{view.model()->columnCount()} {
    const QModelIndex current = view.currentIndex();
    start_ = current.isValid() ? static_cast<qint64>(current.row()) * columns_ + current.column()
             : backwards       ? 0
                               : -1;
    if (fromCurrent && current.isValid()) start_ += backwards ? 1 : -1;
}

bool CellSearch::isAt(qint64 cell) const {
    const auto row = static_cast<int>(cell / columns_);
    const auto column = static_cast<int>(cell % columns_);
    if (view_->isColumnHidden(column) || view_->isRowHidden(row)) return false;
    return view_->model()->index(row, column).data().toString().contains(text_, Qt::CaseInsensitive);
}

CellSearch::State CellSearch::lookOn(int milliseconds) {
    constexpr int cellsPerLook = 256; // at the clock
    if (!view_ || view_->model()->rowCount() != rows_ || view_->model()->columnCount() != columns_)
        return State::notThere;
    const qint64 cells = static_cast<qint64>(rows_) * columns_;
    if (text_.isEmpty()) return State::notThere;
    QElapsedTimer clock;
    clock.start();
    while (step_ < cells) {
        ++step_;
        const qint64 at = (start_ + (backwards_ ? -step_ : step_) + 2 * cells) % cells;
        if (isAt(at)) {
            const QModelIndex index =
                view_->model()->index(static_cast<int>(at / columns_), static_cast<int>(at % columns_));
            view_->setCurrentIndex(index);
            view_->scrollTo(index);
            return State::found;
        }
        if (step_ % cellsPerLook == 0 && clock.elapsed() >= milliseconds) return State::goesOn;
    }
    return State::notThere;
}

int CellSearch::percent() const {
    const qint64 cells = static_cast<qint64>(rows_) * columns_;
    return cells == 0 ? 100 : static_cast<int>(100 * step_ / cells);
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
