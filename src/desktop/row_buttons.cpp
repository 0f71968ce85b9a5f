#include "desktop/row_buttons.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace quillon {
namespace {

constexpr int points = 10;

bool movesRows(QEvent::Type type) {
    return type == QEvent::Resize || type == QEvent::Move || type == QEvent::Show;
}

} // namespace

RowButtons::RowButtons(CellTableView& table, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, table_{table}, appearance_{appearance}, rows_{new QWidget{this}} {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    table_.viewport()->installEventFilter(this);
    connect(table_.verticalScrollBar(), &QScrollBar::valueChanged, this, &RowButtons::align);
    connect(table_.verticalHeader(), &QHeaderView::geometriesChanged, this, &RowButtons::align);
    connect(&appearance_, &Appearance::changed, this, &RowButtons::align);
}

int RowButtons::addColumn(int twips) {
    columns_.push_back({twips});
    return static_cast<int>(columns_.size()) - 1;
}

void RowButtons::setColumnVisible(int column, bool visible) {
    columns_[static_cast<std::size_t>(column)].visible = visible;
}

QPushButton* RowButtons::add(int column, int row) {
    auto* button = new QPushButton{row == Grid::headRow ? this : rows_};
    button->setFocusPolicy(Qt::ClickFocus);
    button->installEventFilter(this);
    places_.push_back({button, column, row});
    return button;
}

void RowButtons::align() {
    const QRect body = table_.viewport()->geometry();
    int width = 0;
    for (std::size_t at = 0; at < columns_.size(); ++at) {
        const int pixels = columns_[at].visible ? appearance_.pixels(columns_[at].twips) : 0;
        for (const Place& button : places_)
            if (button.column == static_cast<int>(at)) place(button, width, pixels);
        width += pixels;
    }
    setFixedWidth(width);
    rows_->setGeometry(0, body.y(), width, body.height());
    for (std::size_t at = 0; at < columns_.size(); ++at) keepOneTabStop(static_cast<int>(at), nullptr);
}

void RowButtons::place(const Place& place, int x, int width) {
    const int row = place.row - Grid::firstRow;
    const bool isThere = width > 0 && row < table_.model()->rowCount();
    place.button->setVisible(isThere);
    if (!isThere) return;
    place.button->setFont(appearance_.viewFont(points, true));
    if (row < 0)
        place.button->setGeometry(x, 0, width, table_.viewport()->y());
    else
        place.button->setGeometry(x, table_.rowViewportPosition(row), width, table_.rowHeight(row));
}

bool RowButtons::canFocus(const Place& place) const {
    return place.button->isVisibleTo(this) && place.button->isEnabled();
}

// The button that had the focus last, else the first that can have it.
void RowButtons::keepOneTabStop(int column, const QPushButton* wanted) {
    const Place* stop = nullptr;
    const Place* first = nullptr;
    for (const Place& place : places_) {
        if (place.column != column || !canFocus(place)) continue;
        if (!first) first = &place;
        const bool wasStop = place.button->focusPolicy() == Qt::StrongFocus;
        if (wanted ? place.button == wanted : wasStop) stop = &place;
    }
    if (!stop) stop = first;
    for (const Place& place : places_)
        if (place.column == column)
            place.button->setFocusPolicy(&place == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

const RowButtons::Place* RowButtons::placeOf(const QObject* button) const {
    const auto found = std::find_if(places_.begin(), places_.end(),
                                    [button](const Place& place) { return place.button == button; });
    return found == places_.end() ? nullptr : &*found;
}

// Up and down to the next button of the column, left and right to the next column in the same row.
bool RowButtons::walk(const Place& from, int key) {
    const bool alongRow = key == Qt::Key_Left || key == Qt::Key_Right;
    if (!alongRow && key != Qt::Key_Up && key != Qt::Key_Down) return false;
    const bool forwards = key == Qt::Key_Right || key == Qt::Key_Down;
    const Place* nearest = nullptr;
    int least = 0;
    for (const Place& place : places_) {
        if (alongRow ? place.row != from.row : place.column != from.column) continue;
        const int way = alongRow ? place.column - from.column : place.row - from.row;
        const int distance = forwards ? way : -way;
        if (distance <= 0 || !canFocus(place) || (nearest && distance >= least)) continue;
        nearest = &place;
        least = distance;
    }
    if (nearest) nearest->button->setFocus(Qt::OtherFocusReason);
    return true;
}

bool RowButtons::eventFilter(QObject* watched, QEvent* event) {
    if (!qobject_cast<CellTableView*>(tableAsWidget_.data())) return false; // it is no table any more
    if (watched == table_.viewport()) {
        if (movesRows(event->type())) align();
        return false;
    }
    const Place* at = placeOf(watched);
    if (!at) return false;
    if (event->type() == QEvent::FocusIn) {
        keepOneTabStop(at->column, at->button);
        if (at->row >= Grid::firstRow)
            table_.scrollTo(table_.model()->index(at->row - Grid::firstRow, table_.columnAt(0)));
    }
    return event->type() == QEvent::KeyPress && walk(*at, static_cast<QKeyEvent*>(event)->key());
}

} // namespace quillon
