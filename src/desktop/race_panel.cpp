#include "desktop/race_panel.h"

#include "card/columns.h"
#include "card/race_card.h"
#include "desktop/cell_table_view.h"
#include "desktop/command_texts.h"
#include "desktop/mark_texts.h"
#include "desktop/row_buttons.h"
#include "desktop/shown_text.h"
#include "results/card_notes.h"
#include "results/on_show.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace quillon {
namespace {

constexpr int headPoints = 8;
constexpr int bodyPoints = 10;
constexpr int rowTwips = 320;
constexpr int entryButtonTwips = 520;
constexpr int scratchButtonTwips = 540;
constexpr int heatButtonTwips = 620;

// As the row of the race view is lit.
const char* const currentStyle = "QPushButton { background-color: #ffff64; color: black;"
                                 " border: 1px solid #807000; border-radius: 3px; }"
                                 "QPushButton:focus { border: 2px solid black; }";

const Grid& gridOf(int race) { return theScreen.raceView.at(static_cast<std::size_t>(race)); }

template <std::size_t count>
const Button& buttonOf(const std::array<Button, count>& buttons, int row) {
    return buttons.at(static_cast<std::size_t>(row));
}

} // namespace

RacePanel::RacePanel(CommandRunner& runner, Appearance& appearance, QWidget* parent)
    : QWidget{parent}, runner_{runner}, appearance_{appearance} {
    buildTable();
    buttons_ = new RowButtons{*table_, appearance_, this};
    buildEntryButtons();
    buildScratchButtons();
    buildHeatButtons();
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(buttons_);
    row->addWidget(table_, 1);
    setTabOrder(heats_.back(), table_);
    connect(&appearance_, &Appearance::changed, this, &RacePanel::holdHeight);
    connect(&runner_, &CommandRunner::aboutToRun, this, [this] {
        if (!handingIn_) table_->takeUpEdit();
    });
    refresh();
}

void RacePanel::buildTable() {
    table_ = new CellTableView{appearance_, tr("Entries of the race"), this};
    table_->setObjectName("RaceView");
    table_->setProperty("command", nameOf(CommandId::Cell) + "," + nameOf(CommandId::DriverColumn));
    table_->setStatusTip(
        tr("A double click or F2 edits a cell from Class to F. A click on a driver lists the "
           "drivers. "
           "Enter on a name shows the past lines."));
    table_->setFonts(headPoints, bodyPoints, true);
    table_->setViewLayout(raceLayout());
    table_->setRowHeight(rowTwips);
    table_->showRowMarks(longestSign());
    table_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table_->installEventFilter(this);
    table_->cells().setEditing([this](int row, int column) { return mayTypeCell(race_, row, column); },
                               [this](int row, int column, const Text& text) { edit(row, column, text); });
    connect(table_->horizontalScrollBar(), &QScrollBar::rangeChanged, this, &RacePanel::holdHeight);
    connect(table_, &QTableView::clicked, this, [this](const QModelIndex& cell) {
        if (table_->cells().tableColumn(cell) == RaceColumn::driver &&
            QApplication::keyboardModifiers() == Qt::NoModifier)
            askForDriver(table_->cells().tableRow(cell));
    });
}

QPushButton* RacePanel::rowButton(int column, int row, CommandId id) {
    QPushButton* button = buttons_->add(column, row);
    setCommand(*button, id);
    connect(button, &QPushButton::clicked, this, [this, id, row] { runner_.run(id, numberArgument(row)); });
    return button;
}

void RacePanel::buildEntryButtons() {
    const int column = buttons_->addColumn(entryButtonTwips);
    for (int row = Grid::firstRow; row <= ratedEntries; ++row) {
        entries_.push_back(rowButton(column, row, CommandId::EntryButton));
        entries_.back()->setObjectName(QString{"EntryButton%1"}.arg(row));
    }
}

void RacePanel::buildScratchButtons() {
    const int column = buttons_->addColumn(scratchButtonTwips);
    for (int row = Grid::headRow; row <= ratedEntries; ++row) {
        scratches_.push_back(rowButton(column, row, CommandId::Command4));
        scratches_.back()->setObjectName(QString{"ScratchButton%1"}.arg(row));
    }
}

void RacePanel::buildHeatButtons() {
    heatColumn_ = buttons_->addColumn(heatButtonTwips);
    for (int row = Grid::firstRow; row <= ratedEntries; ++row) {
        heats_.push_back(rowButton(heatColumn_, row, CommandId::HeatChoice));
        heats_.back()->setObjectName(QString{"HeatButton%1"}.arg(row));
        heats_.back()->setText(captionOf(CommandId::HeatChoice));
    }
}

void RacePanel::refresh() {
    refreshTable();
    refreshButtons();
    holdHeight();
}

// The cell that the keyboard is on stays, though the rows are drawn anew.
void RacePanel::refreshTable() {
    const QModelIndex before = table_->currentIndex();
    const int race = raceViewOnShow();
    refreshMarks();
    if (race == race_)
        table_->refresh();
    else
        table_->show(&gridOf(race));
    race_ = race;
    if (before.isValid() && !table_->currentIndex().isValid())
        table_->selectionModel()->setCurrentIndex(table_->model()->index(before.row(), before.column()),
                                                  QItemSelectionModel::ClearAndSelect);
}

void RacePanel::refreshMarks() {
    const int race = raceViewOnShow();
    notes.takeUp();
    marks_.assign(1, {}); // the head's
    std::vector<RowMark> rows(1);
    for (int row = Grid::firstRow; row <= ratedEntries; ++row) {
        const EntryMarks& marks = marks_.emplace_back(entryMarks(race, row));
        RowMark& mark = rows.emplace_back();
        const std::vector<NoteLine> found = notesOnEntry(race, row);
        mark = {
            .sign = signOf(marks, !found.empty()), .words = wordsOf(marks, found), .isOut = marks.isOut()};
        if (!isFirstStart(race, row)) continue;
        mark.note = tr("first start");
        mark.noteFrom = RaceColumn::track;
        mark.noteColumns = RaceColumn::driver - RaceColumn::track;
    }
    table_->setRowMarks(std::move(rows));
}

void RacePanel::refreshButtons() {
    const Text& switching = theScreen.scratchButtons.front().caption;
    scratches_.front()->setText(shown(switching));
    scratches_.front()->setAccessibleName(tr("Switch the column to %1").arg(shown(switching)));
    scratches_.front()->setToolTip(tr("Switch all buttons of this column to \"%1\"").arg(shown(switching)));
    scratches_.front()->setEnabled(runner_.canRun(CommandId::Command4, numberArgument(0)));

    bool anyHeat = false;
    for (int row = Grid::firstRow; row <= ratedEntries; ++row) {
        const auto at = static_cast<std::size_t>(row);
        const QString horse = shown(horseIn(race_, row));
        const Arguments entry = numberArgument(row);

        QPushButton& lines = *entries_[at - 1];
        const QString number = shown(trimmed(buttonOf(theScreen.entryButtons, row).caption));
        lines.setText(number);
        lines.setEnabled(!number.isEmpty() && runner_.canRun(CommandId::EntryButton, entry));
        lines.setStyleSheet(theScreen.currentEntry == row ? currentStyle : "");
        lines.setAccessibleName(tr("Past lines of number %1, %2").arg(number, horse));
        lines.setToolTip(number.isEmpty() ? QString{} : tipOf(CommandId::EntryButton, horse));

        QPushButton& scratch = *scratches_[at];
        const Text& caption = buttonOf(theScreen.scratchButtons, row).caption;
        const bool removes = caption == "X";
        scratch.setText(shown(caption));
        const bool isOut = marks_[at].isOut();
        scratch.setEnabled(!isOut && runner_.canRun(CommandId::Command4, entry));
        scratch.setAccessibleName((removes ? tr("Remove %1") : tr("Scratch %1")).arg(horse));
        scratch.setToolTip(isOut     ? tr("%1 is out already").arg(horse)
                           : removes ? tr("Take %1 out, without a refund").arg(horse)
                                     : tipOf(CommandId::Command4, horse));

        QPushButton& heat = *heats_[at - 1];
        anyHeat = anyHeat || buttonOf(theScreen.heatButtons, row).visible;
        heat.setEnabled(!horse.isEmpty() && runner_.canRun(CommandId::HeatChoice, entry));
        heat.setAccessibleName(tr("Heat result of %1").arg(horse));
        heat.setToolTip(tipOf(CommandId::HeatChoice, horse));
    }
    buttons_->setColumnVisible(heatColumn_, anyHeat);
    buttons_->align();
}

// Exactly the head and twelve rows, and a scroll bar where the columns need one.
void RacePanel::holdHeight() {
    const int frame = 2 * table_->frameWidth();
    const bool scrolls = table_->horizontalHeader()->length() >
                         width() - buttons_->width() - table_->verticalHeader()->width() - frame;
    const int bar = scrolls ? table_->horizontalScrollBar()->sizeHint().height() : 0;
    setFixedHeight(table_->horizontalHeader()->sizeHint().height() + ratedEntries * table_->rowPixels() +
                   frame + bar);
}

void RacePanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    holdHeight();
}

void RacePanel::goTo(int row, int column) {
    const QModelIndex cell = table_->model()->index(row - Grid::firstRow, column);
    table_->setCurrentIndex(cell);
    table_->scrollTo(cell);
}

void RacePanel::edit(int row, int column, const Text& text) {
    const QScopedValueRollback handingIn{handingIn_, true};
    runner_.run(CommandId::Cell, {.numbers = {race_, row, column}, .text = text});
}

void RacePanel::askForDriver(int row) {
    if (!horseIn(race_, row).empty()) runner_.run(CommandId::DriverColumn, numberArgument(row));
}

bool RacePanel::enterOn(int row, int column, int key) {
    const bool enters = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (column == RaceColumn::driver && (enters || key == Qt::Key_Space)) {
        askForDriver(row);
        return true;
    }
    if (column != RaceColumn::horseName || !enters) return false;
    if (entries_[static_cast<std::size_t>(row - 1)]->isEnabled())
        runner_.run(CommandId::EntryButton, numberArgument(row));
    return true;
}

bool RacePanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != table_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const QModelIndex cell = table_->currentIndex();
    const auto* press = static_cast<QKeyEvent*>(event);
    if (!cell.isValid() || (press->modifiers() & ~Qt::KeypadModifier)) return false;
    return enterOn(table_->cells().tableRow(cell), table_->cells().tableColumn(cell), press->key());
}

} // namespace quillon
