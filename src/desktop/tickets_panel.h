// Tickets: one that is put together, and the slip of those that were. Nothing is bet.
#pragma once

#include "desktop/appearance.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace quillon {

class TicketBuilder;
class TicketSlip;

class TicketsPanel : public QWidget {
    Q_OBJECT

public:
    explicit TicketsPanel(Appearance& appearance, QWidget* parent = nullptr);

    void refresh();

private:
    void addSheet();
    void lay();

    Appearance& appearance_;
    TicketBuilder* builder_;
    TicketSlip* slip_;
    QPushButton* sheet_;
};

} // namespace quillon
