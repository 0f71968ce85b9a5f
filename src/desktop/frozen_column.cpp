#include "desktop/frozen_column.h"

#include <QHeaderView>
#include <QScrollBar>

namespace quillon {
namespace {

constexpr int first = 0; ///< the column that is frozen

} // namespace

FrozenColumn::FrozenColumn(QTableView& table) : QTableView{&table}, table_{table} {
    setAccessibleName(tr("%1, first column").arg(table.accessibleName()));
    setModel(table.model());
    setSelectionModel(table.selectionModel());
    setSelectionMode(table.selectionMode());
    setEditTriggers(NoEditTriggers);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(&table);
    setWordWrap(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(table.horizontalHeader()->minimumSectionSize());
    horizontalHeader()->setHighlightSections(false);
    follow();
}

// The two are scrolled up and down and made wider together.
void FrozenColumn::follow() {
    connect(table_.verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, table_.verticalScrollBar(),
            &QScrollBar::setValue);
    connect(horizontalHeader(), &QHeaderView::sectionResized, &table_, [this](int section, int, int pixels) {
        if (section == first && pixels > 0) table_.setColumnWidth(first, pixels);
    });
    connect(table_.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int section, int, int pixels) {
                if (section != first || pixels == 0) return;
                setColumnWidth(first, pixels);
                place();
            });
}

void FrozenColumn::takeUp(int rowPixels) {
    setStyle(table_.style()); // a child has none of its parent's
    setFont(table_.font());
    horizontalHeader()->setFont(table_.horizontalHeader()->font());
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(rowPixels);
    const int columns = model()->columnCount();
    for (int column = first + 1; column < columns; ++column) setColumnHidden(column, true);
    if (columns > 0) setColumnWidth(first, table_.columnWidth(first));
    place();
}

void FrozenColumn::place() {
    const int head = table_.horizontalHeader()->height();
    const int frame = table_.frameWidth();
    horizontalHeader()->setFixedHeight(head);
    setGeometry(frame, frame, table_.columnWidth(first), head + table_.viewport()->height());
}

void FrozenColumn::uncover(const QModelIndex& index) {
    if (index.column() == first) return;
    const int covered = table_.columnWidth(first) - table_.visualRect(index).left();
    QScrollBar& bar = *table_.horizontalScrollBar();
    if (covered > 0) bar.setValue(bar.value() - covered);
}

} // namespace quillon
