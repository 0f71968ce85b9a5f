#include "desktop/cell_table_model.h"

#include "desktop/shown_text.h"

#include <QBrush>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

// White is what the system paints a cell with to take a light off it; in a dark theme that is the theme's
// own. A white saddle cloth comes with a colour for its number.
bool isShaded(const Cell& cell) { return cell.background && (*cell.background != white || cell.foreground); }

// The red of a head is too dark for a dark theme.
QColor readableHead(Colour colour) {
    const bool isDark = legibleOn(QGuiApplication::palette().color(QPalette::Button)) == Qt::white;
    constexpr int lighterPercent = 150;
    return isDark ? shown(colour).lighter(lighterPercent) : shown(colour);
}

QVariant foreground(const Cell& cell) {
    if (cell.foreground) return QBrush{shown(*cell.foreground)};
    if (isShaded(cell)) return QBrush{legibleOn(shown(*cell.background))};
    return {};
}

QVariant boldFont() {
    QFont bold;
    bold.setBold(true);
    return bold;
}

// A program number in the colours of its saddle cloth.
bool isSaddleCloth(const Cell& cell) { return cell.bold && cell.background && cell.foreground; }

// Size and the like are the view's.
QVariant saddleClothFont() {
    QFont font;
    font.setFamilies({"Bookman Old Style", "URW Bookman", "Bookman", font.family()});
    font.setBold(true);
    return font;
}

int alignment(Qt::AlignmentFlag side) { return (side | Qt::AlignVCenter).toInt(); }

} // namespace

void CellTableModel::show(const Grid* grid, const CellRange& range) {
    beginResetModel();
    grid_ = grid;
    range_ = range;
    version_ = grid ? grid->version() : 0;
    rows_ = rowsOnShow();
    endResetModel();
}

bool CellTableModel::refresh() {
    const bool changed = grid_ && grid_->version() != version_;
    if (changed) show(grid_, range_);
    return changed;
}

void CellTableModel::setRightAligned(int first, int last) { rightAligned_.emplace_back(first, last); }

void CellTableModel::setBoldRows(int first, int last) {
    firstBold_ = first;
    lastBold_ = last;
}

bool CellTableModel::isBold(int row, const Cell& cell) const {
    return cell.bold || (row >= firstBold_ && row <= lastBold_);
}

bool CellTableModel::isEmptyRow(int row) const {
    const int tableRow = range_.firstRow + row;
    if (!grid_ || tableRow >= grid_->rows()) return true;
    const int columns = columnCount();
    for (int column = 0; column < columns; ++column)
        if (!grid_->text(tableRow, tableColumn(column)).empty()) return false;
    return true;
}

void CellTableModel::setEditing(std::function<bool(int, int)> mayEdit,
                                std::function<void(int, int, const Text&)> edit) {
    mayEdit_ = std::move(mayEdit);
    edit_ = std::move(edit);
}

bool CellTableModel::isRightAligned(int column) const {
    return std::any_of(rightAligned_.begin(), rightAligned_.end(), [column](const auto& range) {
        return column >= range.first && column <= range.second;
    });
}

int CellTableModel::rowsOnShow() const {
    if (!grid_) return 0;
    int last = grid_->rows() - 1;
    if (range_.lastRow >= 0) last = std::min(last, range_.lastRow);
    while (tailHidden_ && last >= range_.firstRow && isEmptyRow(last - range_.firstRow)) --last;
    return std::max(0, last - range_.firstRow + 1);
}

int CellTableModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int CellTableModel::columnCount(const QModelIndex& parent) const {
    if (parent.isValid() || !grid_) return 0;
    int last = grid_->columns() - 1;
    if (range_.lastColumn >= 0) last = std::min(last, range_.lastColumn);
    return std::max(0, last - range_.firstColumn + 1);
}

QVariant CellTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || !grid_) return {};
    const int row = tableRow(index);
    const int column = tableColumn(index);
    if (row >= grid_->rows() || column >= grid_->columns()) return {}; // changed, and not taken up yet
    const auto cell = [&]() -> const Cell& { return grid_->read(row, column); };
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole: return shown(grid_->text(row, column));
    case Qt::BackgroundRole:
        return isShaded(cell()) ? QVariant{QBrush{shown(*cell().background)}} : QVariant{};
    case Qt::ForegroundRole: return foreground(cell());
    case Qt::FontRole:
        if (isSaddleCloth(cell())) return saddleClothFont();
        return isBold(row, cell()) ? boldFont() : QVariant{};
    case Qt::TextAlignmentRole:
        if (isSaddleCloth(cell())) return int{Qt::AlignCenter};
        return alignment(isRightAligned(column) ? Qt::AlignRight : Qt::AlignLeft);
    default: return {};
    }
}

QVariant CellTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (!grid_ || orientation != Qt::Horizontal) return {};
    const int column = tableColumn(section);
    if (column >= grid_->columns() || grid_->rows() == 0) return {};
    switch (role) {
    case Qt::DisplayRole: return shown(grid_->text(0, column));
    case Qt::ForegroundRole:
        if (const auto& colour = grid_->read(0, column).foreground) return QBrush{readableHead(*colour)};
        return {};
    case Qt::TextAlignmentRole: return alignment(isRightAligned(column) ? Qt::AlignRight : Qt::AlignLeft);
    default: return {};
    }
}

Qt::ItemFlags CellTableModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags plain = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    const bool editable = mayEdit_ && mayEdit_(tableRow(index), tableColumn(index));
    return editable ? plain | Qt::ItemIsEditable : plain;
}

bool CellTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || role != Qt::EditRole || !edit_) return false;
    const int row = tableRow(index);
    const int column = tableColumn(index);
    const Text text = typed(value.toString());
    if (text == grid_->text(row, column)) return false; // looked at, not changed
    edit_(row, column, text);
    return true;
}

} // namespace quillon
