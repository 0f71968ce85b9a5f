#include "desktop/cell_table_view.h"

#include "desktop/cell_copying.h"
#include "desktop/cell_search.h"
#include "desktop/column_fitting.h"
#include "desktop/frozen_column.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QProxyStyle>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>

namespace quillon {
namespace {

constexpr int longestTyped = 255; ///< as in the boxes: a pasted megabyte would make its column miles wide
constexpr int narrowest = 8;      ///< pixels of a column
constexpr int twipsPerInch = 1440;
constexpr int unsorted = -1;

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

/// Texts stand nearer to the lines beside them than a style has them: some views have thirty columns.
class NarrowCells : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        constexpr int besideText = 1; // pixels
        return metric == PM_FocusFrameHMargin ? besideText : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

CellTableView::CellTableView(Appearance& appearance, const QString& name, QWidget* parent)
    : QTableView{parent}, appearance_{appearance} {
    setAccessibleName(name);
    takeStyle();
    setModel(&model_);
    setItemDelegate(new CellDelegate{this});
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setTabKeyNavigation(false); // Tab goes on to the next control
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(narrowest);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int, int pixels) { keepDragged(column, pixels); });
    connect(&appearance_, &Appearance::changed, this, &CellTableView::lay);
    lay();
}

// The application's own, which goes with the theme.
void CellTableView::takeStyle() {
    const QString name = QApplication::style()->name();
    if (name == styleName_) return;
    styleName_ = name;
    auto* narrow = new NarrowCells{name};
    narrow->setParent(this);
    setStyle(narrow);
}

void CellTableView::setFonts(int headPoints, int bodyPoints, bool bodyBold) {
    headPoints_ = headPoints;
    bodyPoints_ = bodyPoints;
    bodyBold_ = bodyBold;
    lay();
}

void CellTableView::setRowHeight(int twips) {
    rowTwips_ = twips;
    lay();
}

int CellTableView::rowPixels() const {
    return std::max(appearance_.pixels(rowTwips_), QFontMetrics{font()}.height() + 2);
}

void CellTableView::setViewLayout(const ViewLayout& layout) {
    layout_ = layout;
    model_.setViewLayout(layout);
    if (layout.sortable) makeSortable();
    if (layout.firstFrozen && !frozen_) {
        frozen_ = new FrozenColumn{*this};
        frozen_->show();
        frozen_->raise();
    }
    lay();
}

void CellTableView::makeSortable() {
    sorted_.setRowOrderColumns(layout_.rowOrderColumns);
    sorted_.setSourceModel(&model_);
    setModel(&sorted_);
    setSortingEnabled(true);
    horizontalHeader()->setSortIndicatorClearable(true);
    horizontalHeader()->setSortIndicator(unsorted, Qt::AscendingOrder);
    sorted_.sort(unsorted);
}

void CellTableView::showRowMarks(const QString& longestSign) {
    longestSign_ = longestSign;
    setCornerButtonEnabled(false);
    verticalHeader()->setSectionsClickable(false);
    verticalHeader()->show();
    lay();
}

void CellTableView::setRowMarks(std::vector<RowMark> marks) {
    if (model_.setRowMarks(std::move(marks))) lay();
}

void CellTableView::layMarks() {
    if (longestSign_.isEmpty()) return;
    constexpr int besideSign = 10; // pixels
    verticalHeader()->setFont(appearance_.viewFont(headPoints_, true));
    verticalHeader()->setFixedWidth(QFontMetrics{verticalHeader()->font()}.horizontalAdvance(longestSign_) +
                                    besideSign);
}

// A note goes over its columns as one text, and so makes none of them wider.
void CellTableView::layNotes() {
    const std::vector<RowMark>& marks = model_.rowMarks();
    if (marks.empty()) return;
    clearSpans();
    for (int row = 0; row < model_.rowCount(); ++row) {
        const auto at = static_cast<std::size_t>(model_.tableRow(model_.index(row, 0)));
        if (at >= marks.size()) return;
        const RowMark& mark = marks[at];
        if (mark.noteColumns > 1 && mark.noteFrom + mark.noteColumns <= model_.columnCount())
            setSpan(row, mark.noteFrom, 1, mark.noteColumns);
    }
}

int CellTableView::tableRow(const QModelIndex& index) const {
    if (!index.isValid()) return -1;
    return model_.tableRow(index.model() == &sorted_ ? sorted_.mapToSource(index) : index);
}

void CellTableView::refresh() {
    if (model_.refresh()) lay();
}

void CellTableView::show(const Grid* grid) {
    model_.show(grid);
    lay();
}

void CellTableView::keepDragged(int column, int pixels) {
    const auto at = static_cast<std::size_t>(column);
    if (laying_ || pixels == 0 || at >= dragged_.size()) return;
    const int inch = std::max(1, appearance_.pixels(twipsPerInch));
    dragged_[at] = pixels * twipsPerInch / inch;
}

QStringList CellTableView::draggedWidths() const {
    QStringList widths;
    bool any = false;
    for (const auto& twips : dragged_) {
        any = any || twips;
        widths += QString::number(twips.value_or(0));
    }
    return any ? widths : QStringList{};
}

void CellTableView::setDraggedWidths(const QStringList& widths) {
    constexpr int widest = 20000; // twips: wider than any screen, and a damaged setting must not go further
    dragged_.assign(static_cast<std::size_t>(widths.size()), std::nullopt);
    for (qsizetype at = 0; at < widths.size(); ++at)
        if (const int twips = widths[at].toInt(); twips > 0)
            dragged_[static_cast<std::size_t>(at)] = std::min(twips, widest);
    lay();
}

void CellTableView::lay() {
    laying_ = true;
    takeStyle();
    setFont(appearance_.viewFont(bodyPoints_, bodyBold_));
    horizontalHeader()->setFont(appearance_.viewFont(headPoints_, true));
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(rowPixels());
    layMarks();
    layNotes();
    layColumns();
    if (layout_.emptyRows == EmptyRows::hidden) hideEmptyRows();
    if (frozen_) frozen_->takeUp(rowPixels());
    laying_ = false;
}

void CellTableView::hideEmptyRows() {
    for (int row = 0; row < model_.rowCount(); ++row) {
        const bool isEmpty = model_.isEmptyRow(row);
        setRowHidden(row, isEmpty);
        if (frozen_) frozen_->setRowHidden(row, isEmpty);
    }
}

void CellTableView::layColumns() {
    const std::vector<int> texts = textWidths(*this, layout_.roomForBold);
    dragged_.resize(std::max(dragged_.size(), texts.size())); // a table that shows nothing has no columns
    std::vector<ColumnWidth> widths(texts.size());
    for (std::size_t at = 0; at < widths.size(); ++at) {
        const auto column = static_cast<int>(at);
        const int twips = model_.widthOf(column);
        if (twips == 0) continue;
        const int needed = std::max({headWidth(*this, column), texts[at], narrowest});
        widths[at] = {std::max(appearance_.pixels(twips), needed), needed};
        if (!dragged_[at]) continue;
        const int pixels = appearance_.pixels(*dragged_[at]);
        widths[at] = {pixels, pixels};
    }
    if (layout_.fitted) fitInto(viewport()->width(), widths);
    for (std::size_t at = 0; at < widths.size(); ++at) {
        const auto column = static_cast<int>(at);
        setColumnHidden(column, widths[at].wanted == 0);
        if (widths[at].wanted > 0) setColumnWidth(column, widths[at].wanted);
    }
}

void CellTableView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (layout_.fitted && event->size().width() != event->oldSize().width()) lay();
}

void CellTableView::updateGeometries() {
    QTableView::updateGeometries();
    if (frozen_) frozen_->place();
}

// A cell that came to lie under the frozen column is not in sight yet.
void CellTableView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QTableView::scrollTo(index, hint);
    if (frozen_) frozen_->uncover(index);
}

QString CellTableView::selectionText() const { return copiedCells(*this, mostCopied).text; }

void CellTableView::copySelection() {
    const CopiedCells copied = copiedCells(*this, mostCopied);
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

void CellTableView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return copySelection();
    QTableView::keyPressEvent(event);
}

void CellTableView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu{this};
    QAction* copy = menu.addAction(tr("&Copy"), this, &CellTableView::copySelection);
    copy->setShortcut(QKeySequence::Copy);
    copy->setEnabled(model()->rowCount() > 0);
    menu.addAction(tr("Select &All"), this, &QTableView::selectAll);
    QAction* designed = menu.addAction(tr("Designed &Widths"), this, [this] { setDraggedWidths({}); });
    designed->setEnabled(!draggedWidths().isEmpty());
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
