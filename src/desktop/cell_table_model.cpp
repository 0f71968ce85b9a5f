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

// A program number in the colours of its saddle cloth.
bool isSaddleCloth(const Cell& cell) { return cell.bold && cell.background && cell.foreground; }

// Size and the like are the view's.
QFont saddleClothFont() {
    QFont font;
    font.setFamilies({"Bookman Old Style", "URW Bookman", "Bookman", font.family()});
    font.setBold(true);
    return font;
}

int alignment(Align align) {
    const Qt::AlignmentFlag side = align == Align::right    ? Qt::AlignRight
                                   : align == Align::centre ? Qt::AlignHCenter
                                                            : Qt::AlignLeft;
    return (side | Qt::AlignVCenter).toInt();
}

} // namespace

void CellTableModel::setViewLayout(const ViewLayout& layout) {
    layout_ = layout;
    show(grid_);
}

void CellTableModel::show(const Grid* grid) {
    beginResetModel();
    grid_ = grid;
    version_ = grid ? grid->version() : 0;
    rows_ = rowsOnShow();
    endResetModel();
}

bool CellTableModel::refresh() {
    const bool changed = grid_ && grid_->version() != version_;
    if (changed) show(grid_);
    return changed;
}

bool CellTableModel::isEmptyRow(int row) const {
    if (!grid_ || tableRow(row) >= grid_->rows()) return true;
    const int columns = columnCount();
    for (int column = 0; column < columns; ++column)
        if (!grid_->text(tableRow(row), tableColumn(column)).empty()) return false;
    return true;
}

bool CellTableModel::setRowMarks(std::vector<RowMark> marks) {
    if (marks == marks_) return false;
    marks_ = std::move(marks);
    if (rows_ == 0) return true;
    emit dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
    emit headerDataChanged(Qt::Vertical, 0, rows_ - 1);
    return true;
}

const RowMark& CellTableModel::markOf(int tableRow) const {
    static const RowMark none;
    const auto at = static_cast<std::size_t>(tableRow);
    return at < marks_.size() ? marks_[at] : none;
}

void CellTableModel::setEditing(std::function<bool(int, int)> mayEdit,
                                std::function<void(int, int, const Text&)> edit) {
    mayEdit_ = std::move(mayEdit);
    edit_ = std::move(edit);
}

const ViewColumn* CellTableModel::described(int tableColumn) const {
    const auto at = static_cast<std::size_t>(tableColumn);
    return at < layout_.columns.size() ? &layout_.columns[at] : nullptr;
}

int CellTableModel::widthOf(int column) const {
    constexpr int plainWidth = 900; ///< where no column is described
    const ViewColumn* described = this->described(tableColumn(column));
    return described ? described->width : layout_.columns.empty() ? plainWidth : 0;
}

Align CellTableModel::alignOf(int tableColumn) const {
    const ViewColumn* described = this->described(tableColumn);
    return described ? described->align : Align::left;
}

int CellTableModel::rowsOnShow() const {
    if (!grid_) return 0;
    int rows = std::max(0, std::min(grid_->rows() - 1, layout_.lastRow) - Grid::firstRow + 1);
    if (layout_.emptyRows == EmptyRows::hiddenAtEnd)
        while (rows > 0 && isEmptyRow(rows - 1)) --rows;
    return rows;
}

// The blanks that pad texts would keep digits from standing below digits, and a number from the middle.
QString CellTableModel::shownText(int row, int column) const {
    const RowMark& mark = markOf(row);
    const int afterNote = column - layout_.firstColumn - mark.noteFrom;
    if (afterNote >= 0 && afterNote < mark.noteColumns) return afterNote == 0 ? mark.note : QString{};
    const Text text = grid_->text(row, column);
    return shown(alignOf(column) == Align::left ? TextView{text} : trimmed(text));
}

int CellTableModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int CellTableModel::columnCount(const QModelIndex& parent) const {
    if (parent.isValid() || !grid_) return 0;
    int columns = grid_->columns();
    if (!layout_.columns.empty()) columns = std::min(columns, static_cast<int>(layout_.columns.size()));
    return std::max(0, columns - layout_.firstColumn);
}

QVariant CellTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || !grid_) return {};
    const int row = tableRow(index);
    const int column = tableColumn(index);
    if (row >= grid_->rows() || column >= grid_->columns()) return {}; // changed, and not taken up yet
    const auto cell = [&]() -> const Cell& { return grid_->read(row, column); };
    switch (role) {
    case Qt::DisplayRole: return shownText(row, column);
    case Qt::EditRole: return shown(grid_->text(row, column)); // as stored
    case Qt::BackgroundRole:
        return isShaded(cell()) ? QVariant{QBrush{shown(*cell().background)}} : QVariant{};
    case Qt::ForegroundRole:
        return markOf(row).isOut && !isShaded(cell())
                   ? QVariant{QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text)}
                   : foreground(cell());
    case Qt::FontRole: return font(row, cell());
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return index.column() == 0 && !markOf(row).words.isEmpty() ? QVariant{asTip(markOf(row).words)}
                                                                   : QVariant{};
    case Qt::TextAlignmentRole: return alignment(alignOf(column));
    default: return {};
    }
}

QVariant CellTableModel::font(int row, const Cell& cell) const {
    const bool isCloth = isSaddleCloth(cell);
    const bool isOut = markOf(row).isOut;
    if (!isCloth && !isOut && !isBold(row, cell)) return {};
    QFont face = isCloth ? saddleClothFont() : QFont{};
    if (isBold(row, cell)) face.setBold(true);
    if (isOut) face.setStrikeOut(true);
    return face;
}

QVariant CellTableModel::signOfRow(int row, int role) const {
    const RowMark& mark = markOf(tableRow(row));
    switch (role) {
    case Qt::DisplayRole: return mark.sign;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
    case Qt::AccessibleDescriptionRole: return mark.words.isEmpty() ? QVariant{} : QVariant{mark.words};
    case Qt::TextAlignmentRole: return alignment(Align::left);
    default: return {};
    }
}

QVariant CellTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (!grid_) return {};
    if (orientation == Qt::Vertical) return signOfRow(section, role);
    const int column = tableColumn(section);
    if (column >= grid_->columns() || grid_->rows() == 0) return {};
    const Cell& head = grid_->read(Grid::headRow, column);
    const ViewColumn* described = this->described(column);
    switch (role) {
    // The table may head a column in its own way: the race's label stands above its entries.
    case Qt::DisplayRole: return shown(head.text.empty() && described ? described->head : head.text);
    case Qt::ForegroundRole:
        return head.foreground ? QVariant{QBrush{readableHead(*head.foreground)}} : QVariant{};
    case Qt::TextAlignmentRole: return alignment(alignOf(column));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return described && !described->hint.empty() ? QVariant{shown(described->hint)} : QVariant{};
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
