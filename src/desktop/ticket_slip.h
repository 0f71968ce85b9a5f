// Tickets put together for a card: what they cost, what is left of the budget, print and copy.
#pragma once

#include "analysis/card_tickets.h"
#include "desktop/appearance.h"
#include "desktop/print_preview.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QWidget>

#include <map>
#include <vector>

namespace quillon {

class TicketSlip : public QWidget {
    Q_OBJECT

public:
    explicit TicketSlip(Appearance& appearance, QWidget* parent = nullptr);

    /// Draws the slip of the open card, who is scratched now left out of its combinations.
    void refresh();

    void add(const CardTicket& ticket);

    QString text() const; ///< a line a ticket, a tab between two cells, then total and budget
    PrintDocument printDocument() const;

private:
    void buildTable();
    void buildButtons();
    void lay();
    void removeChosen();
    void copy() const;
    void print();
    std::vector<CardTicket>& tickets();
    const std::vector<CardTicket>& tickets() const;
    std::int64_t total() const;
    QString totalText() const;

    Appearance& appearance_;
    mutable std::map<Text, std::vector<CardTicket>> ofCards_; ///< by the card's name
    QTableWidget* table_;
    QLabel* total_;
    QLabel* budgetLabel_;
    QDoubleSpinBox* budget_;
    std::vector<QPushButton*> buttons_;
};

} // namespace quillon
