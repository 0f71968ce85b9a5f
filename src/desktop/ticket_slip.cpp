#include "desktop/ticket_slip.h"

#include "analysis/ticket_words.h"
#include "card/card_files.h"
#include "card/race_card.h"
#include "desktop/shown_text.h"
#include "desktop/spin_box_name.h"
#include "desktop/ticket_builder.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include <array>
#include <cmath>

namespace quillon {
namespace {

constexpr int centsOfOne = 100;

enum Column { races, type, numbers, stake, combinations, cost, columns };
constexpr std::array heads{"Race", "Type", "Numbers", "Stake", "Comb.", "Cost"};
static_assert(heads.size() == columns);

QString racesOf(const CardTicket& ticket) {
    const PoolRow& pool = rowOf(ticket.ticket.pool);
    return pool.overRaces ? QString{"%1-%2"}.arg(ticket.race).arg(ticket.race + pool.sets - 1)
                          : QString::number(ticket.race);
}

Text openCard() { return cardIsOpen() ? Text{cardNameOf(card.cardFileName)} : Text{}; }

TicketCost costNow(const CardTicket& ticket) {
    return costOf(ticket.ticket, fieldsOf(ticket.ticket.pool, ticket.race));
}

std::array<QString, columns> cellsOf(const CardTicket& ticket) {
    const TicketCost now = costNow(ticket);
    return {racesOf(ticket),
            shown(typeText(ticket.ticket)),
            shown(numbersText(ticket.ticket)),
            shown(moneyText(ticket.ticket.stake)),
            QString::number(now.combinations),
            shown(moneyText(now.cents))};
}

} // namespace

TicketSlip::TicketSlip(Appearance& appearance, QWidget* parent)
    : QWidget{parent}, appearance_{appearance}, table_{new QTableWidget{this}}, total_{new QLabel{this}},
      budgetLabel_{new QLabel{tr("B&udget:"), this}}, budget_{new QDoubleSpinBox{this}} {
    buildTable();
    auto* buttons = new QHBoxLayout;
    buildButtons();
    for (QPushButton* button : buttons_) buttons->addWidget(button);
    buttons->addStretch(1);
    auto* money = new QHBoxLayout;
    money->addWidget(budgetLabel_);
    money->addWidget(budget_);
    money->addWidget(total_, 1);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(table_, 1);
    column->addLayout(buttons);
    column->addLayout(money);
    connect(&appearance_, &Appearance::changed, this, &TicketSlip::lay);
    lay();
}

void TicketSlip::buildTable() {
    table_->setObjectName("TicketSlip");
    table_->setAccessibleName(tr("Tickets on the slip; Delete takes one off"));
    table_->setColumnCount(columns);
    QStringList texts;
    for (const char* head : heads) texts << tr(head);
    table_->setHorizontalHeaderLabels(texts);
    table_->verticalHeader()->hide();
    table_->setTabKeyNavigation(false);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    auto* takeOff = new QShortcut{QKeySequence::Delete, table_, nullptr, nullptr, Qt::WidgetShortcut};
    connect(takeOff, &QShortcut::activated, this, &TicketSlip::removeChosen);
    budget_->setObjectName("TicketBudget");
    nameSpinBox(*budget_, tr("Budget"));
    budget_->setRange(0, 1'000'000);
    budgetLabel_->setBuddy(budget_);
    total_->setObjectName("TicketTotal");
    total_->setTextFormat(Qt::PlainText);
    total_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(budget_, &QDoubleSpinBox::valueChanged, this, [this] { total_->setText(totalText()); });
}

void TicketSlip::buildButtons() {
    const auto add = [this](const QString& caption, const char* name, const QString& tip, auto&& slot) {
        auto* button = new QPushButton{caption, this};
        button->setObjectName(name);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, this, slot);
        buttons_.push_back(button);
    };
    add(tr("Ta&ke Off"), "RemoveTicket", tr("Take the chosen tickets off the slip"),
        [this] { removeChosen(); });
    add(tr("&Copy Slip"), "CopySlip", tr("Copy the slip as text"), [this] { copy(); });
    add(tr("P&rint Slip..."), "PrintSlip", tr("Show the slip as a page to print"), [this] { print(); });
}

void TicketSlip::lay() {
    setFont(appearance_.viewFont(10, false));
    total_->setFont(appearance_.viewFont(10, true));
    table_->setFont(appearance_.viewFont(10, false));
    table_->horizontalHeader()->setFont(appearance_.viewFont(9, true));
    table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 4);
    table_->resizeColumnsToContents();
}

std::vector<CardTicket>& TicketSlip::tickets() { return ofCards_[openCard()]; }

const std::vector<CardTicket>& TicketSlip::tickets() const { return ofCards_[openCard()]; }

void TicketSlip::add(const CardTicket& ticket) {
    tickets().push_back(ticket);
    refresh();
    table_->scrollToBottom();
}

void TicketSlip::removeChosen() {
    auto& slip = tickets();
    std::vector<CardTicket> left;
    for (int row = 0; row < static_cast<int>(slip.size()); ++row)
        if (!table_->selectionModel()->isRowSelected(row))
            left.push_back(slip[static_cast<std::size_t>(row)]);
    slip = std::move(left);
    table_->clearSelection();
    refresh();
}

std::int64_t TicketSlip::total() const {
    std::int64_t sum = 0;
    for (const CardTicket& ticket : tickets()) sum += costNow(ticket).cents;
    return sum;
}

QString TicketSlip::totalText() const {
    const std::int64_t sum = total();
    const auto budget = static_cast<std::int64_t>(std::llround(budget_->value() * centsOfOne));
    const QString text = tr("Total %1").arg(shown(moneyText(sum)));
    if (budget == 0) return text;
    return text + "; " +
           (sum > budget ? tr("%1 over the budget").arg(shown(moneyText(sum - budget)))
                         : tr("%1 left").arg(shown(moneyText(budget - sum))));
}

void TicketSlip::refresh() {
    const auto& slip = tickets();
    table_->setRowCount(static_cast<int>(slip.size()));
    for (int row = 0; row < table_->rowCount(); ++row) {
        const CardTicket& ticket = slip[static_cast<std::size_t>(row)];
        const auto cells = cellsOf(ticket);
        const QString tip = costText(costNow(ticket));
        for (int column = 0; column < columns; ++column) {
            auto* cell = new QTableWidgetItem{cells.at(static_cast<std::size_t>(column))};
            const bool isText = column == type || column == numbers;
            cell->setTextAlignment((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
            cell->setToolTip(tip);
            table_->setItem(row, column, cell);
        }
    }
    table_->resizeColumnsToContents();
    total_->setText(totalText());
    for (QPushButton* button : buttons_) button->setEnabled(!slip.empty());
}

QString TicketSlip::text() const {
    QStringList lines;
    for (const CardTicket& ticket : tickets()) {
        const auto cells = cellsOf(ticket);
        lines << QStringList{cells.begin(), cells.end()}.join('\t');
    }
    lines << totalText();
    return lines.join('\n');
}

PrintDocument TicketSlip::printDocument() const {
    PrintDocument document{.name = shown(openCard())};
    document.addLine(tr("Tickets for %1").arg(document.name), true);
    document.addLine({});
    std::array<qsizetype, columns> widths{};
    for (const CardTicket& ticket : tickets()) {
        const auto cells = cellsOf(ticket);
        for (std::size_t at = 0; at < cells.size(); ++at)
            widths.at(at) = std::max(widths.at(at), cells.at(at).size());
    }
    for (const CardTicket& ticket : tickets()) {
        const auto cells = cellsOf(ticket);
        QString line;
        for (std::size_t at = 0; at < cells.size(); ++at) {
            const auto width = static_cast<int>(widths.at(at));
            const bool isText = at == type || at == numbers;
            line += (at == 0 ? "" : "  ") +
                    (isText ? cells.at(at).leftJustified(width) : cells.at(at).rightJustified(width));
        }
        document.addLine(line);
    }
    document.addLine({});
    document.addLine(totalText(), true);
    return document;
}

void TicketSlip::copy() const { QApplication::clipboard()->setText(text()); }

void TicketSlip::print() {
    auto* preview = new PrintPreview{printDocument(), window()};
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->show();
}

} // namespace quillon
