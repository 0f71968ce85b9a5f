#include "desktop/tickets_panel.h"

#include "analysis/card_tickets.h"
#include "desktop/shown_text.h"
#include "desktop/ticket_builder.h"
#include "desktop/ticket_slip.h"

#include <QVBoxLayout>

namespace quillon {
namespace {

constexpr int panelTwips = 8600;

} // namespace

TicketsPanel::TicketsPanel(Appearance& appearance, QWidget* parent)
    : QWidget{parent}, appearance_{appearance}, builder_{new TicketBuilder{appearance, this}},
      slip_{new TicketSlip{appearance, this}}, sheet_{new QPushButton{tr("P&ick Sheet's Tickets"), this}} {
    setObjectName("TicketsPanel");
    sheet_->setObjectName("SheetTickets");
    sheet_->setToolTip(tr("Put the tickets of the pick selections sheet on the slip, at the stake above"));
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(4, 2, 4, 4);
    column->setSpacing(4);
    column->addWidget(builder_);
    column->addWidget(sheet_, 0, Qt::AlignLeft);
    column->addWidget(slip_, 1);
    setFocusProxy(builder_);
    connect(builder_, &TicketBuilder::added, slip_, &TicketSlip::add);
    connect(sheet_, &QPushButton::clicked, this, &TicketsPanel::addSheet);
    connect(&appearance_, &Appearance::changed, this, &TicketsPanel::lay);
    lay();
}

void TicketsPanel::lay() {
    setMinimumWidth(appearance_.pixels(panelTwips));
    sheet_->setFont(appearance_.viewFont(10, false));
}

void TicketsPanel::addSheet() {
    for (const CardTicket& ticket : sheetTickets(builder_->stake())) slip_->add(ticket);
}

void TicketsPanel::refresh() {
    builder_->refresh();
    slip_->refresh();
    sheet_->setEnabled(cardIsOpen() && !sheetTickets(builder_->stake()).empty());
}

} // namespace quillon
