#include "desktop/ticket_builder.h"

#include "analysis/ticket_words.h"
#include "card/columns.h"
#include "card/race_card.h"
#include "desktop/shown_text.h"
#include "desktop/spin_box_name.h"
#include "results/board.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QVBoxLayout>

#include <array>
#include <cmath>

namespace quillon {
namespace {

constexpr int mostSets = 6;
constexpr int selections = 4;
constexpr int centsOfOne = 100;
constexpr std::array placeNames{"1st", "2nd", "3rd", "4th", "5th"};

// S1 to S4 of a race, 0 for the others.
int selectionOf(int race, TextView number) {
    for (int place = 1; place <= selections; ++place)
        if (trimmed(card.raceOutcome[{race, OutcomeCell::s1 + place - 1}]) == number) return place;
    return 0;
}

QString horseOf(int race, TextView number) {
    for (int at = 1; at <= ratedEntries; ++at)
        if (trimmed(card.entry[{race, at}].programNumber) == number)
            return shown(trimmed(card.entry[{race, at}].horseName));
    return {};
}

bool isBox(const QTableWidgetItem* item) { return item && item->flags().testFlag(Qt::ItemIsUserCheckable); }

bool isChecked(const QTableWidgetItem* item) { return isBox(item) && item->checkState() == Qt::Checked; }

} // namespace

QString costText(const TicketCost& cost) {
    QString text = cost.combinations == 1 ? TicketBuilder::tr("1 combination")
                                          : TicketBuilder::tr("%1 combinations").arg(cost.combinations);
    text += ", " + shown(moneyText(cost.cents));
    QStringList scratched;
    for (const DroppedNumber& dropped : cost.scratched)
        if (!scratched.contains(shown(dropped.programNumber))) scratched << shown(dropped.programNumber);
    return scratched.isEmpty() ? text
                               : text + "; " + TicketBuilder::tr("scratched: %1").arg(scratched.join(", "));
}

TicketBuilder::TicketBuilder(Appearance& appearance, QWidget* parent)
    : QWidget{parent}, appearance_{appearance}, races_{new QLabel{this}}, pool_{new QComboBox{this}},
      boxed_{new QCheckBox{tr("Bo&x"), this}}, stake_{new QDoubleSpinBox{this}},
      table_{new QTableWidget{this}}, cost_{new QLabel{this}}, add_{new QPushButton{tr("Add to Sli&p"),
                                                                                    this}} {
    buildChoice();
    buildTable();
    buildMarks();
    arrange();
    setFocusProxy(pool_);
    connect(&appearance_, &Appearance::changed, this, &TicketBuilder::lay);
    lay();
}

void TicketBuilder::buildChoice() {
    races_->setObjectName("TicketRaces");
    races_->setTextFormat(Qt::PlainText);
    pool_->setObjectName("TicketType");
    pool_->setAccessibleName(tr("Type of ticket"));
    for (const PoolRow& row : pools) {
        QString name = shown(row.name);
        name[0] = name[0].toUpper();
        pool_->addItem(name);
    }
    boxed_->setObjectName("TicketBoxed");
    boxed_->setToolTip(tr("The entries of one row, in every order"));
    stake_->setObjectName("TicketStake");
    nameSpinBox(*stake_, tr("Stake of a combination"));
    stake_->setRange(0.01, 10'000);
    stake_->setValue(2);
    connect(pool_, &QComboBox::currentIndexChanged, this, &TicketBuilder::refresh);
    connect(boxed_, &QCheckBox::toggled, this, &TicketBuilder::refresh);
    connect(stake_, &QDoubleSpinBox::valueChanged, this, &TicketBuilder::tellCost);
}

void TicketBuilder::buildTable() {
    table_->setObjectName("TicketBoxes");
    table_->setAccessibleName(tr("Entries of the ticket, a row a place or leg; Space checks one"));
    table_->setColumnCount(ratedEntries);
    table_->horizontalHeader()->hide();
    table_->setTabKeyNavigation(false);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(table_, &QTableWidget::itemChanged, this, &TicketBuilder::tellCost);
    cost_->setObjectName("TicketCost");
    cost_->setTextFormat(Qt::PlainText);
    cost_->setWordWrap(true);
    add_->setObjectName("AddTicket");
    add_->setToolTip(tr("Put this ticket on the slip; nothing is bet"));
    connect(add_, &QPushButton::clicked, this, [this] { emit added(ticket()); });
}

void TicketBuilder::buildMarks() {
    const auto addMark = [this](const QString& caption, const char* name, const QString& tip, auto&& slot) {
        auto* button = new QPushButton{caption, this};
        button->setObjectName(name);
        button->setAccessibleName(tip);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, this, slot);
        marks_.push_back(button);
    };
    constexpr std::array names{"TicketS1", "TicketS2", "TicketS3", "TicketS4"};
    for (int place = 1; place <= selections; ++place)
        addMark(QString{"S&%1"}.arg(place), names.at(static_cast<std::size_t>(place) - 1),
                tr("Check or uncheck S%1 in the row at work").arg(place),
                [this, place] { checkSelection(place); });
    addMark(tr("A&ll"), "TicketAll", tr("Check everyone in the row at work: a wheel"),
            [this] { checkAll(true); });
    addMark(tr("N&one"), "TicketNone", tr("Uncheck everyone in the row at work"),
            [this] { checkAll(false); });
}

void TicketBuilder::arrange() {
    auto* choice = new QHBoxLayout;
    auto* stakeLabel = new QLabel{tr("&Stake:"), this};
    stakeLabel->setBuddy(stake_);
    choice->addWidget(pool_);
    choice->addWidget(boxed_);
    choice->addStretch(1);
    choice->addWidget(stakeLabel);
    choice->addWidget(stake_);
    auto* marks = new QHBoxLayout;
    marks->setSpacing(4);
    for (QPushButton* button : marks_) marks->addWidget(button);
    marks->addStretch(1);
    marks->addWidget(add_);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(races_);
    column->addLayout(choice);
    column->addWidget(table_);
    column->addLayout(marks);
    column->addWidget(cost_);
}

void TicketBuilder::lay() {
    setFont(appearance_.viewFont(10, false));
    races_->setFont(appearance_.viewFont(10, true));
    cost_->setFont(appearance_.viewFont(10, true));
    for (QPushButton* button : marks_)
        button->setMinimumWidth(button->fontMetrics().horizontalAdvance("None") + 16);
    for (QPushButton* button : marks_) button->setMaximumWidth(button->minimumWidth());
    table_->setFont(appearance_.viewFont(10, false));
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Button)); // empty boxes are lost on a dark base
    table_->setPalette(palette);
    const int row = table_->fontMetrics().height() + 8;
    table_->verticalHeader()->setDefaultSectionSize(row);
    table_->setFixedHeight(mostSets * row + 2 * table_->frameWidth() +
                           table_->horizontalScrollBar()->sizeHint().height());
    table_->resizeColumnsToContents();
}

TicketBuilder::Layout TicketBuilder::wanted() const {
    const Pool pool = pools.at(static_cast<std::size_t>(pool_->currentIndex())).pool;
    return {card.cardFileName, cardIsOpen() ? raceOnShow() : 0, pool,
            boxed_->isChecked() && canBeBoxed(pool)};
}

int TicketBuilder::raceOf(int row) const { return layout_.race + (rowOf(layout_.pool).overRaces ? row : 0); }

Field TicketBuilder::fieldIn(int row) const {
    if (fields_.empty()) return {};
    return fields_[std::min(static_cast<std::size_t>(row), fields_.size() - 1)];
}

QString TicketBuilder::headOf(int row) const {
    if (rowOf(layout_.pool).overRaces) return tr("Race %1").arg(raceOf(row));
    if (layout_.boxed) return tr("Box");
    if (layout_.pool == Pool::place || layout_.pool == Pool::show) return shown(rowOf(layout_.pool).name);
    return tr(placeNames.at(static_cast<std::size_t>(row)));
}

void TicketBuilder::refresh() {
    const Layout now = wanted();
    boxed_->setEnabled(canBeBoxed(now.pool));
    const bool isOther = !(now == layout_);
    layout_ = now;
    fields_ = now.race > 0 ? fieldsOf(now.pool, now.race) : std::vector<Field>{};
    {
        const QScopedValueRollback busy{filling_, true};
        if (isOther) table_->setRowCount(0);
        layOut();
    }
    const int last = raceOf(rowOf(now.pool).sets - 1);
    races_->setText(now.race < 1       ? tr("No race is on show")
                    : last == now.race ? tr("Race %1").arg(now.race)
                                       : tr("Races %1 to %2").arg(now.race).arg(last));
    for (QPushButton* button : marks_) button->setEnabled(now.race > 0);
    tellCost();
}

void TicketBuilder::layOut() {
    const bool wasEmpty = table_->rowCount() == 0;
    table_->setRowCount(static_cast<int>(setsOf(layout_.pool, layout_.boxed)));
    for (int row = 0; row < table_->rowCount(); ++row) fillRow(row);
    if (wasEmpty) table_->setCurrentCell(0, 0);
    table_->resizeColumnsToContents();
}

void TicketBuilder::fillRow(int row) {
    table_->setVerticalHeaderItem(row, new QTableWidgetItem{headOf(row)});
    const Field field = fieldIn(row);
    for (int column = 0; column < table_->columnCount(); ++column)
        fillBox(row, column,
                static_cast<std::size_t>(column) < field.size() ? field[static_cast<std::size_t>(column)]
                                                                : Runner{},
                raceOf(row));
}

// A check of the same entry stays, that of a scratched one too: the cost says that it drops out.
void TicketBuilder::fillBox(int row, int column, const Runner& runner, int race) {
    QTableWidgetItem* item = table_->item(row, column);
    if (!item) table_->setItem(row, column, item = new QTableWidgetItem);
    if (runner.programNumber.empty()) {
        item->setData(Qt::CheckStateRole, {});
        item->setText({});
        item->setFlags(Qt::ItemIsSelectable);
        return;
    }
    const int place = selectionOf(race, runner.programNumber);
    QString text = shown(runner.programNumber);
    if (place > 0) text += QString{" S%1"}.arg(place);
    if (runner.scratched) text += ' ' + tr("Scr");
    const bool wasChecked =
        isChecked(item) && item->data(Qt::UserRole).toString() == shown(runner.programNumber);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(wasChecked ? Qt::Checked : Qt::Unchecked);
    item->setData(Qt::UserRole, shown(runner.programNumber));
    item->setText(text);
    const QString horse = horseOf(race, runner.programNumber);
    item->setToolTip(horse);
    item->setData(Qt::AccessibleTextRole, headOf(row) + ", " + text + ", " + horse);
}

int TicketBuilder::rowAtWork() const { return std::max(table_->currentRow(), 0); }

void TicketBuilder::checkSelection(int place) {
    const int row = rowAtWork();
    for (int column = 0; column < table_->columnCount(); ++column) {
        QTableWidgetItem* item = table_->item(row, column);
        if (!isBox(item) || selectionOf(raceOf(row), typed(item->data(Qt::UserRole).toString())) != place)
            continue;
        item->setCheckState(isChecked(item) ? Qt::Unchecked : Qt::Checked);
    }
}

void TicketBuilder::checkAll(bool wanted) {
    const Field field = fieldIn(rowAtWork());
    for (int column = 0; column < table_->columnCount(); ++column) {
        QTableWidgetItem* item = table_->item(rowAtWork(), column);
        if (!isBox(item)) continue;
        const bool runs = !field[static_cast<std::size_t>(column)].scratched;
        item->setCheckState(wanted && runs ? Qt::Checked : Qt::Unchecked);
    }
}

std::int64_t TicketBuilder::stake() const {
    return static_cast<std::int64_t>(std::llround(stake_->value() * centsOfOne));
}

CardTicket TicketBuilder::ticket() const {
    CardTicket made{layout_.race, {.pool = layout_.pool, .boxed = layout_.boxed, .stake = stake()}};
    for (int row = 0; row < table_->rowCount(); ++row) {
        Numbers& numbers = made.ticket.sets.emplace_back();
        for (int column = 0; column < table_->columnCount(); ++column)
            if (const QTableWidgetItem* item = table_->item(row, column); isChecked(item))
                numbers.push_back(typed(item->data(Qt::UserRole).toString()));
    }
    return made;
}

void TicketBuilder::tellCost() {
    if (filling_) return;
    const TicketCost cost = costOf(ticket().ticket, fields_);
    cost_->setText(costText(cost));
    add_->setEnabled(cost.combinations > 0);
}

} // namespace quillon
